#include "platform/SystemProcesses.h"

#include "platform/Paths.h"
#include "platform/ProgramArguments.h"
#include "platform/SystemError.h"

#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString exe = u".exe"_s;

bool IsWindowsProgram(const FileSystem& files, const QString& path)
{
    try {
        return files.read(path, 2) == "MZ"_ba;
    } catch (const FileError&) {
        return false; // a program may be executable and not readable
    }
}

ResolvedCommand Resolve(const FileSystem& files, const QString& commandLine, const QString& folder)
{
    QStringList arguments = SplitCommandLine(commandLine);
    const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
    return ResolveCommand(files, name, arguments, folder);
}

// QProcess tells why a start failed only in words, which end in the system's own: find their number.
QString ErrorNumber(const QString& message)
{
    constexpr int count = 1500;
    for (int number = 1; number < count; ++number)
        if (message.endsWith(qt_error_string(number)))
            return QString::number(number);
    return message;
}

void prepare(QProcess& process, const Command& command, const QString& commandLine)
{
    process.setProgram(command.program);
    SetArguments(process, command.arguments, commandLine);
    process.setWorkingDirectory(command.folder);
}

// A program that outlives this object.
class WatchedProgram : public QProcess
{
public:
    using QProcess::QProcess;
    WatchedProgram(const WatchedProgram&) = delete;
    WatchedProgram& operator=(const WatchedProgram&) = delete;
    ~WatchedProgram() override { setProcessState(NotRunning); } // what runs would be ended else
};

QByteArray EndOf(const QString& path)
{
    constexpr qint64 enough = 4096;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return {};
    file.seek(qMax(qint64(0), file.size() - enough));
    return file.read(enough);
}

} // namespace

Captured SystemProcesses::capture(const QString& commandLine, const QString& folder)
{
    const auto [command, error] = Resolve(m_files, commandLine, folder);
    if (!command)
        return {false, QString::number(error), {}};
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    prepare(process, *command, commandLine);
    process.start();
    if (!process.waitForStarted(-1))
        return {false, ErrorNumber(process.errorString()), {}};
    constexpr qsizetype largest = 256 * 1024;
    QByteArray output;
    do {
        output += process.readAll();
        output.truncate(largest);
    } while (process.waitForReadyRead(-1));
    process.waitForFinished(-1);
    return {true, {}, output};
}

bool SystemProcesses::start(const QString& commandLine, const QString& folder)
{
    const auto command = Resolve(m_files, commandLine, folder).command;
    if (!command)
        return false;
    QProcess process;
    prepare(process, *command, commandLine);
    return process.startDetached();
}

bool SystemProcesses::startWatched(const QString& commandLine, const QString& folder,
                                   const ProgramWatch& watch)
{
    const auto command = Resolve(m_files, commandLine, folder).command;
    if (!command)
        return false;
    auto process = std::make_unique<WatchedProgram>();
    prepare(*process, *command, commandLine);
    Detach(*process);
    // Into a file: a pipe would break when this program ends before the other.
    auto* const output = new QTemporaryFile(process.get());
    const bool isKept = output->open();
    output->close();
    process->setProcessChannelMode(QProcess::MergedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(isKept ? output->fileName() : QProcess::nullDevice());
    process->start();
    if (!process->waitForStarted(-1))
        return false;

    WatchedProgram* const running = process.release();
    running->setParent(&m_watched);
    const auto settle = std::make_shared<std::function<void()>>(watch.settled);
    const auto settled = [settle] {
        if (const auto once = std::exchange(*settle, {}))
            once();
    };
    QObject::connect(running, &QProcess::finished, running,
                     [=, failed = watch.failed](int status, QProcess::ExitStatus how) {
                         running->deleteLater();
                         if (how == QProcess::NormalExit && status == 0) {
                             settled();
                             return;
                         }
                         *settle = {};
                         failed(LastWords(EndOf(output->fileName())));
                     });
    QTimer::singleShot(m_firstSeconds, running, settled);
    return true;
}

ResolvedCommand ResolveCommand(const FileSystem& files, const QString& name, const QStringList& arguments,
                               const QString& folder)
{
    const QString program = FindProgram(files, name, folder);
    if (program.isEmpty() || !files.folderExists(folder))
        return {.command = {}, .error = noSuchProgram};
    const QString actualFolder = files.actualPath(folder);
    const bool onWindows = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    if (onWindows || !IsWindowsProgram(files, program))
        return {.command = Command{program, arguments, actualFolder}};
    const QString wine = QStandardPaths::findExecutable(u"wine"_s);
    if (wine.isEmpty())
        return {.command = {}, .error = noProgram};
    return {.command = Command{wine, QStringList(program) + arguments, actualFolder}};
}

QString FindProgram(const FileSystem& files, const QString& name, const QString& folder)
{
    const bool isAbsolute = QDir::isAbsolutePath(WithSlashes(name));
    if (name.isEmpty() || (folder.isEmpty() && !isAbsolute))
        return {};
    const QString path = isAbsolute ? name : folder + u'/' + name;
    QStringList spellings{path, path + exe};
    if (EndsWith(path, exe))
        spellings += path.chopped(exe.size());
    QString windowsProgram; // where this is not Windows, one of its own goes before
    for (const QString& spelling : std::as_const(spellings)) {
        if (!files.fileExists(spelling))
            continue;
        const QString actual = files.actualPath(spelling);
        if (IsWindowsProgram(files, actual))
            windowsProgram = windowsProgram.isEmpty() ? actual : windowsProgram;
        else if (QFileInfo(actual).isExecutable())
            return actual;
    }
    return windowsProgram;
}
