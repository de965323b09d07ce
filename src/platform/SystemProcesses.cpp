#include "platform/SystemProcesses.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QStandardPaths>
#include <cerrno>

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

std::expected<Command, int> Resolve(const FileSystem& files, const QString& commandLine,
                                    const QString& folder)
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

} // namespace

Captured SystemProcesses::capture(const QString& commandLine, const QString& folder)
{
    const auto command = Resolve(m_files, commandLine, folder);
    if (!command)
        return {false, QString::number(command.error()), {}};
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setWorkingDirectory(command->folder);
    process.start(command->program, command->arguments);
    if (!process.waitForStarted(-1))
        return {false, ErrorNumber(process.errorString()), {}};
    process.waitForFinished(-1);
    return {true, {}, process.readAll()};
}

bool SystemProcesses::start(const QString& commandLine, const QString& folder)
{
    const auto command = Resolve(m_files, commandLine, folder);
    return command && QProcess::startDetached(command->program, command->arguments, command->folder);
}

std::expected<Command, int> ResolveCommand(const FileSystem& files, const QString& name,
                                           const QStringList& arguments, const QString& folder)
{
    const QString program = FindProgram(files, name, folder);
    if (program.isEmpty() || !files.folderExists(folder))
        return std::unexpected(ENOENT);
    const QString actualFolder = files.actualPath(folder);
    const bool onWindows = QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
    if (onWindows || !IsWindowsProgram(files, program))
        return Command{program, arguments, actualFolder};
    const QString wine = QStandardPaths::findExecutable(u"wine"_s);
    if (wine.isEmpty())
        return std::unexpected(ENOEXEC);
    return Command{wine, QStringList(program) + arguments, actualFolder};
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
    for (const QString& spelling : std::as_const(spellings)) {
        if (!files.fileExists(spelling))
            continue;
        const QString actual = files.actualPath(spelling);
        if (QFileInfo(actual).isExecutable() || IsWindowsProgram(files, actual))
            return actual;
    }
    return {};
}
