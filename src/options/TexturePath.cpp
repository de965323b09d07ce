#include "options/TexturePath.h"

#include "options/PresenceChecks.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "ui/FolderQuestion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t dialogButton = 9;    // AuxButton
constexpr size_t highResTextures = 1; // chkMain
constexpr size_t highResPatches = 4;  // chkGraphics

// An empty path is not stored.
void store(Launcher& launcher, const QString& path)
{
    const QString file = launcher.paths.LaunchDataPath + u"texpath.vyk"_s;
    try {
        if (path.isEmpty())
            launcher.files.remove(file);
        else
            WriteLines(launcher.files, file, {NativePath(path)});
    } catch (const FileError&) {
        launcher.prompts.MsgboxPos(u"The location of the textures could not be saved.    "_s,
                                   Msg::Ok + Msg::Exclamation, u" Access error "_s);
    }
}

} // namespace

void ConnectTexturePath(Launcher& launcher)
{
    launcher.controls.AuxButton[dialogButton].clicked = [&launcher] { launcher.window.showTexForm(); };
}

void ShowTexturePath(Launcher& launcher)
{
    if (TexturePathValid(launcher)) {
        launcher.controls.HiResText.text = NativePath(launcher.settings.TexturePath);
        return;
    }
    launcher.controls.HiResText.text = NoTextures;
    store(launcher, {});
}

void SetTexPath(Launcher& launcher)
{
    const QString shown = NativePath(launcher.settings.TexturePath);
    const QString chosen = launcher.prompts.chooseFolder(
        FolderQuestion(shown, u"Select the new location of your high resolution textures ..."_s),
        launcher.settings.TexturePath);
    if (!chosen.isEmpty())
        launcher.controls.HiResText.text = NativePath(chosen);
    KeepTexturePath(launcher);
}

void KeepTexturePath(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    Settings& settings = launcher.settings;
    settings.TexturePath = WithSlashes(controls.HiResText.text.trimmed());
    FindResourcePacks(launcher); // may take the installation's own folder instead
    if (!launcher.resources.textures) {
        controls.HiResText.text = NoTextures;
        controls.chkMain[highResTextures].enabled = controls.chkGraphics[highResPatches].enabled = false;
        store(launcher, {});
        return;
    }
    controls.HiResText.text = NativePath(settings.TexturePath);
    if (settings.HighResTextures)
        controls.chkMain[highResTextures].enabled = true;
    if (settings.HighResPatches && launcher.resources.patches)
        controls.chkGraphics[highResPatches].enabled = true;
    const bool isOwn = SameName(settings.TexturePath, launcher.paths.RootPath + u"/Data/Textures"_s);
    store(launcher, isOwn ? QString() : settings.TexturePath);
}
