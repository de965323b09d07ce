#include "music/Playlists.h"

#include "music/AutoPlaylist.h"
#include "music/BuiltInPlaylists.h"
#include "music/PlaylistEditor.h"
#include "options/SoundOptions.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t autoBox = 4; // chkSound
constexpr size_t manualBox = 5;
enum Command : size_t { New, Open, Delete }; // butMusic

const struct
{
    GameFamily family;
    GameFamily orFamily;
    QString title;
} autoGames[] = {
    {GameFamily::Doom, GameFamily::Shareware, u"DOOM"_s},
    {GameFamily::Doom2, GameFamily::Doom2, u"DOOM II"_s},
    {GameFamily::Plutonia, GameFamily::Plutonia, u"PLUTONIA"_s},
    {GameFamily::Tnt, GameFamily::Tnt, u"TNT"_s},
};

QString ending()
{
    return u".vym"_s;
}

void allowCommands(Controls& controls)
{
    const bool any = !controls.SelectionList.isEmpty();
    controls.butMusic[Open].enabled = controls.butMusic[Delete].enabled = any;
    controls.chkSound[autoBox].enabled = controls.chkSound[manualBox].enabled = any;
}

// The selected entry is the playlist; a name that no file has is none.
void takeSelected(Launcher& launcher)
{
    launcher.settings.PlaylistName = launcher.controls.SelectionList.selectedText();
}

void edit(Launcher& launcher, PlaylistEditor& editor)
{
    launcher.window.showMusicForm(editor);
    if (!launcher.files.fileExists(PlaylistPath(launcher.paths, launcher.settings.PlaylistName)))
        takeSelected(launcher); // a new one was not saved
}

// Nothing when the player cancels or must not have it.
std::optional<QString> askNewName(Launcher& launcher)
{
    const std::optional<QString> AskedName = launcher.prompts.askName({.caption = u" Create New Playlist"_s,
                                                                       .frame = u"Name of Playlist"_s,
                                                                       .button = u"OK"_s,
                                                                       .name = u"MyDoomMusic"_s});
    QString name = AskedName.value_or(QString()).trimmed();
    if (EndsWith(name, ending()))
        name.chop(ending().size());
    if (name.isEmpty())
        return std::nullopt;
    if (!IsUsableName(name) || !IsUsableName(name + ending()) || name.contains(u',')) {
        launcher.prompts.MsgboxPos(u" Illegal naming convention detected.    "_s, Msg::Ok + Msg::Exclamation,
                                   u" Music list creation"_s);
        return std::nullopt;
    }
    if (launcher.files.fileExists(PlaylistPath(launcher.paths, name)) &&
        launcher.prompts.MsgboxPos(name + u" already exists do you wish to overwrite it?    "_s,
                                   Msg::YesNo + Msg::Question, u" Music list creation"_s) != Msg::ResultYes)
        return std::nullopt;
    return name;
}

void newClicked(Launcher& launcher)
{
    if (const auto name = askNewName(launcher)) {
        launcher.settings.PlaylistName = *name;
        PlaylistEditor editor(launcher);
        editor.startNew();
        edit(launcher, editor);
    }
    allowCommands(launcher.controls);
}

void openClicked(Launcher& launcher)
{
    takeSelected(launcher);
    const QString path = PlaylistPath(launcher.paths, launcher.settings.PlaylistName);
    PlaylistEditor editor(launcher);
    if (launcher.files.fileExists(path) && editor.open())
        edit(launcher, editor);
    allowCommands(launcher.controls);
}

void deleteClicked(Launcher& launcher)
{
    ListBox& list = launcher.controls.SelectionList;
    const QString name = list.selectedText();
    if (!name.isEmpty() &&
        launcher.prompts.MsgboxPos(u"Are you certain you wish to delete "_s + name + u"   "_s,
                                   Msg::YesNo + Msg::Question,
                                   u" Delete Selected Playlist"_s) == Msg::ResultYes) {
        try {
            launcher.files.remove(PlaylistPath(launcher.paths, name));
            list.remove(list.selected());
            list.select(list.count() - 1);
            takeSelected(launcher);
        } catch (const FileError&) {
            ReportPlaylistError(launcher.prompts);
        }
    }
    allowCommands(launcher.controls);
}

void autoClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool on = controls.chkSound[autoBox].ticked();
    launcher.settings.AutoPlaylistsOn = on;
    controls.chkSound[autoBox].colour = on ? Colour::Red : Colour::Normal;
    if (on)
        controls.chkSound[manualBox].setTicked(false);
    controls.SelectionList.enabled = controls.butMusic[New].enabled = !on;
    controls.butMusic[Open].enabled = controls.butMusic[Delete].enabled =
        !on && !controls.SelectionList.isEmpty();
    DisableMusic(launcher); // there may be no music at all
}

void manualClicked(Launcher& launcher)
{
    CheckBox& manual = launcher.controls.chkSound[manualBox];
    const bool on = manual.ticked();
    launcher.settings.ManualPlaylistOn = on;
    manual.colour = on ? Colour::Red : Colour::Normal;
    manual.caption = on ? u"Load"_s : u"Manual"_s;
    if (on)
        launcher.controls.chkSound[autoBox].setTicked(false);
}

void autoChosen(Launcher& launcher)
{
    if (HasAutoPlaylists(launcher))
        return;
    launcher.prompts.MsgboxPos(u"No auto playlist has been detected, to create an auto playlist   "_s +
                                   u"\r\n"_s +
                                   u"right-click on a playlist entry and then specify an iwad type.   "_s,
                               Msg::Ok + Msg::Information, u" No auto playlist detected "_s);
    launcher.controls.chkSound[autoBox].setTicked(false);
}

void manualChosen(Launcher& launcher)
{
    if (launcher.controls.SelectionList.selected() >= 0)
        return;
    launcher.prompts.MsgboxPos(
        u"No playlist has been selected, first highlight one of the above playlists    "_s,
        Msg::Ok + Msg::Information, u" No auto playlist detected "_s);
    launcher.controls.chkSound[manualBox].setTicked(false);
}

void assign(Launcher& launcher, int game)
{
    takeSelected(launcher);
    try {
        SetAutoPlaylist(launcher, game);
    } catch (const FileError&) {
        ReportPlaylistError(launcher.prompts);
        return;
    }
    launcher.prompts.MsgboxPos(
        u"     "_s + launcher.settings.PlaylistName + u"  has been added to your auto selection.         "_s,
        Msg::Ok + Msg::Information, u" Auto playlist selection for "_s + autoGames[game].title);
}

const Menu* playlistMenu(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    for (size_t i = 0; i < controls.mcAutoSelect.size(); ++i) {
        const auto& game = autoGames[i];
        controls.mcAutoSelect[i].enabled =
            !launcher.iwads.of(game.family).isEmpty() || !launcher.iwads.of(game.orFamily).isEmpty();
    }
    return controls.SelectionList.selected() >= 0 ? &controls.mPopup8 : nullptr;
}

} // namespace

QString PlaylistPath(const InstallationPaths& paths, const QString& name)
{
    return paths.MusicLaunchPath + name + ending();
}

void ConnectPlaylists(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.butMusic[New].clicked = [&launcher] { newClicked(launcher); };
    controls.butMusic[Open].clicked = [&launcher] { openClicked(launcher); };
    controls.butMusic[Delete].clicked = [&launcher] { deleteClicked(launcher); };
    controls.SelectionList.clicked = [&launcher] { takeSelected(launcher); };
    controls.SelectionList.doubleClicked = [&launcher] { openClicked(launcher); };
    controls.SelectionList.taskMenu = [&launcher] { return playlistMenu(launcher); };
    controls.chkSound[autoBox].clicked = [&launcher] { autoClicked(launcher); };
    controls.chkSound[autoBox].chosen = [&launcher] { autoChosen(launcher); };
    controls.chkSound[manualBox].clicked = [&launcher] { manualClicked(launcher); };
    controls.chkSound[manualBox].chosen = [&launcher] { manualChosen(launcher); };
    for (size_t i = 0; i < controls.mcAutoSelect.size(); ++i)
        controls.mcAutoSelect[i].clicked = [&launcher, i] { assign(launcher, static_cast<int>(i)); };
}

void FillPlaylistList(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    try {
        launcher.files.createFolder(launcher.paths.MusicLaunchPath);
    } catch (const FileError&) {
        // Then there is no playlist, and saving one says why.
    }
    const QString selected = launcher.settings.PlaylistName;
    controls.SelectionList.clear();
    for (const QString& file : launcher.files.files(launcher.paths.MusicLaunchPath))
        if (EndsWith(file, ending()))
            controls.SelectionList.add(file.chopped(ending().size()));
    controls.SelectionList.startAs(controls.SelectionList.find(selected));
    if (!controls.SelectionList.isEmpty())
        return;
    controls.chkSound[autoBox].setTicked(false);
    controls.chkSound[autoBox].enabled = controls.chkSound[manualBox].enabled = false;
    controls.butMusic[Open].enabled = controls.butMusic[Delete].enabled = false;
}

void LoadPlaylists(Launcher& launcher)
{
    MakeFennicPlaylists(launcher);
    MakeTavroPlaylists(launcher);
    MakeDunhelmPlaylists(launcher);
    MakeKTorPlaylists(launcher);
    FillPlaylistList(launcher);
}
