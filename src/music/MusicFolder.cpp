#include "music/MusicFolder.h"

#include "platform/Paths.h"
#include "platform/Text.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 maximumBytes = 64 * 1024; // a path is far shorter

QString pathOf(const Launcher& launcher)
{
    return launcher.paths.MusicLaunchPath + u"music.vyk"_s;
}

} // namespace

void LoadMusicFolder(Launcher& launcher)
{
    if (!launcher.files.fileExists(pathOf(launcher)))
        return;
    QString folder;
    try {
        folder =
            WithSlashes(FieldsOf(FromAnsi(launcher.files.read(pathOf(launcher), maximumBytes))).value(0));
    } catch (const FileError&) {
        // The next choice writes it anew.
    }
    launcher.session.MusicFolder = launcher.files.folderExists(folder) ? folder : QString();
}

void KeepMusicFolder(Launcher& launcher, const QString& folder)
{
    launcher.session.MusicFolder = folder;
    try {
        launcher.files.createFolder(launcher.paths.MusicLaunchPath);
        WriteLines(launcher.files, pathOf(launcher), {u'"' + NativePath(folder) + u'"'});
    } catch (const FileError&) {
        // The dialog starts elsewhere next time.
    }
}
