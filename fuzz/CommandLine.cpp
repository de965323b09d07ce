#include "engines/EngineFailure.h"
#include "fuzz/Fuzz.h"
#include "platform/Processes.h"
#include "tools/engine/EngineTranslation.h"

// Whatever is asked of the engine adapter becomes a command line or a message, for every engine.
void Try(const QByteArray& bytes)
{
    static DiskFileSystem files;
    static const QString root = [] {
        const QString wad = OnDisk(QStringLiteral("x"), {});
        const QString folder = wad.chopped(2);
        for (const char* name : {"Iwads", "VYKGames/G/Pwads", "VYKGames/A/Gwads", "VYKLaunch/Music"})
            files.createFolder(folder + u'/' + QLatin1String(name));
        for (const char* name : {"Iwads/Doom2.wad", "Iwads/Doom.wad", "VYKGames/G/Pwads/g.wad",
                                 "VYKGames/A/Gwads/a.wad", "VYKGames/A/Gwads/b.deh", "VYKLaunch/Music/m.vym"})
            files.write(folder + u'/' + QLatin1String(name), "MAP01 \\a.ogg\r\n");
        return folder;
    }();
    const QStringList arguments = SplitCommandLine(QString::fromUtf8(bytes));
    for (const QString& engine :
         {QStringLiteral("crispy-doom"), QStringLiteral("woof"), QStringLiteral("dsda-doom"),
          QStringLiteral("chocolate-doom"), QStringLiteral("other")}) {
        try {
            TranslateCommandLine(
                files, {root, arguments, {}, ConventionsOf(engine), [](const QString&) { return 1; }});
        } catch (const EngineFailure&) {
        } catch (const FileError&) {
        }
    }
}
