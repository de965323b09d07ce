#include "options/TexturePath.h"

#include "options/GraphicsTab.h"
#include "options/PackFacts.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "ui/FolderQuestion.h"

using namespace Qt::StringLiterals;

namespace {

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
    launcher.controls.AuxButton[Tool::TextureFolder].clicked = [&launcher] { launcher.window.showTexForm(); };
}

QString ShowTexturePath(Launcher& launcher)
{
    return KeepTexturePath(launcher, NativePath(launcher.settings.TexturePath));
}

QString SetTexPath(Launcher& launcher, const QString& shown)
{
    const QString current = launcher.facts.resources.textures;
    const QString chosen = launcher.prompts.chooseFolder(
        FolderQuestion(NativePath(current),
                       u"Select the new location of your high resolution textures ..."_s),
        current);
    return KeepTexturePath(launcher, chosen.isEmpty() ? shown : chosen);
}

QString KeepTexturePath(Launcher& launcher, const QString& shown)
{
    QString& path = launcher.settings.TexturePath;
    const QString before = path;
    path = shown == NoTextures ? QString() : WithSlashes(shown.trimmed());
    CheckGraphicsPacks(launcher);
    const ResourcePacks& packs = launcher.facts.resources;
    path = packs.texturesAreOwn ? QString() : packs.textures;
    if (path != before || path.isEmpty())
        store(launcher, path);
    return packs.textures.isEmpty() ? NoTextures : NativePath(packs.textures);
}
