#include "tools/engine/EngineAdapter.h"

#include "engines/EngineFailure.h"
#include "engines/EngineSwitches.h"
#include "engines/FoundEngines.h"
#include "platform/Complain.h"
#include "platform/CutOffWrites.h"
#include "platform/Locks.h"
#include "platform/Paths.h"
#include "platform/Processes.h"
#include "platform/Text.h"
#include "tools/engine/EngineSavegames.h"
#include "tools/engine/EngineTranslation.h"
#include "tools/wadreader/WadDirectory.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

constexpr int failed = 1;
constexpr int publishInterval = 1000; // milliseconds

int MapsOf(const QString& path)
{
    const auto directory = readWadDirectory(QFileInfo(path).filesystemFilePath());
    return directory ? static_cast<int>(directory->maps.size()) : 0;
}

void complain(const QString& message)
{
    Complain(u"Keldrax"_s, message);
}

// Keldrax.out. A report that cannot be written keeps nobody from playing.
class Report
{
public:
    Report(FileSystem& files, const QString& root) : m_files(files), m_path(root + u"/Keldrax.out"_s) {}

    // Starts the report anew. False when it cannot be written.
    bool rewrite(const QStringList& lines)
    {
        try {
            WriteLines(m_files, m_path, lines);
            m_path = m_files.actualPath(m_path);
            m_start = QFileInfo(m_path).size();
            return true;
        } catch (const FileError& error) {
            complain(QString::fromUtf8(error.what()));
            return false;
        }
    }

    // Adds a line behind what the engine printed.
    void append(const QString& line)
    {
        QFile file(m_path);
        if (file.open(QFile::Append))
            file.write(line.toUtf8() + "\r\n");
    }

    // What was added since the last `rewrite`, up to the last few kilobytes.
    QByteArray added() const
    {
        constexpr qint64 enough = 4096;
        QFile file(m_path);
        if (!file.open(QFile::ReadOnly))
            return {};
        file.seek(qMax(m_start, file.size() - enough));
        return file.read(enough);
    }

    const QString& path() const { return m_path; }

private:
    FileSystem& m_files;
    QString m_path;
    qint64 m_start = 0; // where that begins
};

// Takes "--engine NAME" out of the arguments; empty when it is not there.
QString takeEngine(QStringList& arguments)
{
    const qsizetype at = arguments.indexOf(u"--engine"_s);
    if (at < 0 || at + 1 >= arguments.size())
        return {};
    arguments.removeAt(at);
    return arguments.takeAt(at);
}

// Each switch of the launcher's, and what the engine makes of it.
void printAbilities(const FoundEngine& engine, const KnownEngine& conventions)
{
    QTextStream out(stdout);
    out << AdapterMark << ": " << engine.title << ' ' << engine.program << '\n';
    for (const EngineSwitch& known : EngineSwitches()) {
        const QString text = InEngine(known, conventions);
        out << known.text << '\t' << (text.isEmpty() ? u"nothing"_s : text) << '\n';
    }
}

// The plan with all that it needs made. What cannot be made keeps nobody from playing; and without the
// engine's configuration a playlist would be silence.
EnginePlan Prepare(FileSystem& files, EngineRequest request, const QString& program)
{
    EnginePlan plan = TranslateCommandLine(files, request);
    const bool withMusic = !plan.music.wad.isEmpty();
    try {
        WriteMusicPack(files, request.root, plan.music);
        plan.arguments += PrepareEngineConfig(files, request.root, program, request.engine,
                                              request.environment, plan.settings);
        return plan;
    } catch (const FileError& error) {
        if (withMusic) {
            request.withMusic = false;
            plan = Prepare(files, request, program);
        }
        plan.leftOut += (withMusic ? u"the playlist: "_s : u"the engine's configuration: "_s) +
                        QString::fromUtf8(error.what());
        return plan;
    }
}

// Runs the engine to its end, publishing savegames meanwhile.
int Play(const QString& program, const EnginePlan& plan, const QString& root, EngineSavegames& savegames,
         Report& report, bool reportWritten)
{
    QProcess engine;
    engine.setWorkingDirectory(root);
    engine.setInputChannelMode(QProcess::ForwardedInputChannel);
    // Into a file rather than a pipe, which would break under an engine that outlives this program.
    if (reportWritten) {
        engine.setProcessChannelMode(QProcess::MergedChannels);
        engine.setStandardOutputFile(report.path(), QIODevice::Append);
    } else {
        engine.setProcessChannelMode(QProcess::ForwardedChannels);
    }
    engine.start(program, plan.arguments);
    if (!engine.waitForStarted(-1)) {
        const QString message = u"%1 could not be started: %2"_s.arg(program, engine.errorString());
        report.append(u"Failed: "_s + message);
        complain(message);
        return failed;
    }
    while (!engine.waitForFinished(publishInterval) && engine.state() != QProcess::NotRunning)
        savegames.publish();
    savegames.publishAll();

    const QString lastWords = LastWords(report.added());
    if (engine.exitStatus() == QProcess::CrashExit) {
        complain(u"The engine crashed or was ended.\n%1"_s.arg(lastWords));
        report.append(u"Exit status: none, the engine crashed or was ended"_s);
        return failed;
    }
    if (engine.exitCode() != 0)
        complain(u"%1 has ended with an error.\n%2"_s.arg(BaseNameOf(program), lastWords));
    report.append(u"Exit status: %1"_s.arg(engine.exitCode()));
    return engine.exitCode();
}

} // namespace

int RunEngineAdapter(FileSystem& files, const QString& root, const QStringList& given,
                     const QProcessEnvironment& environment)
{
    Report report(files, root);
    QStringList lines{u"Given: "_s + AsLine(given)};
    QStringList arguments = given;
    QString wanted = takeEngine(arguments);
    try {
        if (wanted.isEmpty())
            wanted = LoadEngineChoice(files, root);
        const FoundEngine engine = FindEngine(wanted, root, environment);
        const QString& program = engine.program;
        const KnownEngine& conventions = ConventionsOf(program);
        if (arguments == QStringList(u"--can"_s)) {
            printAbilities(engine, conventions);
            return 0;
        }
        const EnginePlan plan = Prepare(files, {root, arguments, environment, conventions, MapsOf}, program);
        lines += u"Started: "_s + AsLine(QStringList{program} + plan.arguments);
        for (const QString& leftOut : plan.leftOut)
            lines += u"Left out: "_s + leftOut;

        files.createFolder(plan.saveFolder);
        const QString saveFolder = files.actualPath(plan.saveFolder);
        // A second game may run in the same folder: the one that came first tidies up.
        QLockFile lock(saveFolder + u"/Keldrax.lock"_s);
        const bool first = TakeLock(lock, 0);
        if (first)
            DiscardCutOffWrites(files, saveFolder + u'/');
        EngineSavegames savegames(files, saveFolder, conventions.savegame.toString());
        first ? savegames.present() : savegames.presentMissing();
        // An engine that finds its slots empty saves over what lies in them.
        if (!savegames.problems().isEmpty())
            throw EngineFailure(u"The savegames could not be made ready, so the game was not started. "_s +
                                savegames.problems().join(u' '));

        const bool reportWritten = report.rewrite(lines);
        const int status = Play(program, plan, root, savegames, report, reportWritten);
        if (first)
            savegames.removePublished();
        for (const QString& problem : savegames.problems()) {
            report.append(problem);
            complain(problem);
        }
        return status;
    } catch (const std::runtime_error& failure) { // EngineFailure or FileError
        const QString message = QString::fromUtf8(failure.what());
        lines += u"Failed: "_s + message;
        complain(message);
    }
    report.rewrite(lines);
    return failed;
}
