#include "music/Playlists.h"

#include "music/AutoPlaylist.h"
#include "music/BuiltInPlaylists.h"
#include "music/PlaylistEditor.h"
#include "options/OptionValues.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"
#include "shell/Trash.h"

using namespace Qt::StringLiterals;

namespace {

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

// The chosen entry is the playlist; a name that no file has is none.
QString chosenPlaylist(const Launcher& launcher)
{
    const QString& name = launcher.settings.PlaylistName;
    return launcher.facts.playlists.contains(name, Qt::CaseInsensitive) ? name : QString();
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
        PlaylistEditor editor(launcher, *name);
        editor.startNew();
        launcher.window.showMusicForm(editor);
        if (editor.wasSaved())
            launcher.settings.PlaylistName = *name;
    }
}

void openClicked(Launcher& launcher)
{
    const QString path = PlaylistPath(launcher.paths, launcher.settings.PlaylistName);
    PlaylistEditor editor(launcher, launcher.settings.PlaylistName);
    if (launcher.files.fileExists(path) && editor.open())
        launcher.window.showMusicForm(editor);
}

void deleteClicked(Launcher& launcher)
{
    const QString name = chosenPlaylist(launcher);
    Trash trash(launcher.files, launcher.prompts);
    if (name.isEmpty() || launcher.prompts.MsgboxPos(
                              u"Are you certain you wish to delete "_s + name + u"   "_s + trash.words(),
                              Msg::YesNo + Msg::Question, u" Delete Selected Playlist"_s) != Msg::ResultYes)
        return;
    try {
        if (!trash.discard(PlaylistPath(launcher.paths, name)))
            return;
        ReadPlaylists(launcher);
        launcher.settings.PlaylistName =
            launcher.facts.playlists.isEmpty() ? QString() : launcher.facts.playlists.last();
    } catch (const FileError& error) {
        ReportPlaylistError(launcher.prompts, error);
    }
}

void autoClicked(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    if (!settings.AutoPlaylistsOn)
        return;
    settings.ManualPlaylistOn = false;
    ReadPlaylists(launcher);
    if (!launcher.facts.autoPlaylists.isEmpty())
        return;
    launcher.prompts.MsgboxPos(u"No auto playlist has been detected, to create an auto playlist   "_s +
                                   u"\r\n"_s +
                                   u"right-click on a playlist entry and then specify an iwad type.   "_s,
                               Msg::Ok + Msg::Information, u" No auto playlist detected "_s);
    settings.AutoPlaylistsOn = false;
}

void manualClicked(Launcher& launcher)
{
    Settings& settings = launcher.settings;
    if (!settings.ManualPlaylistOn)
        return;
    settings.AutoPlaylistsOn = false;
    if (!chosenPlaylist(launcher).isEmpty())
        return;
    launcher.prompts.MsgboxPos(
        u"No playlist has been selected, first highlight one of the above playlists    "_s,
        Msg::Ok + Msg::Information, u" No auto playlist detected "_s);
    settings.ManualPlaylistOn = false;
}

void assign(Launcher& launcher, AutoGame game)
{
    const QString name = chosenPlaylist(launcher);
    try {
        SetAutoPlaylist(launcher.files, launcher.paths, name, game);
    } catch (const FileError& error) {
        ReportPlaylistError(launcher.prompts, error);
        return;
    }
    ReadPlaylists(launcher);
    launcher.prompts.MsgboxPos(u"     "_s + name + u"  has been added to your auto selection.         "_s,
                               Msg::Ok + Msg::Information,
                               u" Auto playlist selection for "_s +
                                   autoGames[static_cast<size_t>(game)].title);
}

const Menu* playlistMenu(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const IwadPaths& iwads = launcher.facts.iwads;
    const auto* game = std::begin(autoGames);
    for (MenuItem& item : controls.mcAutoSelect) {
        item.enabled = !iwads.of(game->family).isEmpty() || !iwads.of(game->orFamily).isEmpty();
        ++game;
    }
    return chosenPlaylist(launcher).isEmpty() ? nullptr : &controls.mPopup8;
}

} // namespace

QString PlaylistPath(const InstallationPaths& paths, const QString& name)
{
    return paths.MusicLaunchPath + name + ending();
}

void ConnectPlaylists(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.butMusic[PlaylistCommand::New].clicked = [&launcher] { newClicked(launcher); };
    controls.butMusic[PlaylistCommand::Open].clicked = [&launcher] { openClicked(launcher); };
    controls.butMusic[PlaylistCommand::Delete].clicked = [&launcher] { deleteClicked(launcher); };
    controls.SelectionList.clicked = [&launcher] {
        launcher.settings.PlaylistName = launcher.controls.SelectionList.selectedText();
    };
    controls.SelectionList.doubleClicked = [&launcher] { openClicked(launcher); };
    controls.SelectionList.taskMenu = [&launcher] { return playlistMenu(launcher); };
    Then(controls.chkSound[Sound::AutoPlaylist], [&launcher] { autoClicked(launcher); });
    Then(controls.chkSound[Sound::ManualPlaylist], [&launcher] { manualClicked(launcher); });
    for (const AutoGame game : {AutoGame::Doom, AutoGame::Doom2, AutoGame::Plutonia, AutoGame::Tnt})
        controls.mcAutoSelect[game].clicked = [&launcher, game] { assign(launcher, game); };
}

QStringList FillPlaylistList(FileSystem& files, const InstallationPaths& paths)
{
    try {
        files.createFolder(paths.MusicLaunchPath);
    } catch (const FileError&) {
        // Then there is no playlist, and saving one says why.
    }
    QStringList playlists;
    for (const QString& file : files.files(paths.MusicLaunchPath))
        if (EndsWith(file, ending()))
            playlists << file.chopped(ending().size());
    return playlists;
}

void ReadPlaylists(Launcher& launcher)
{
    launcher.facts.playlists = FillPlaylistList(launcher.files, launcher.paths);
    launcher.facts.autoPlaylists = ReadAutoPlaylists(launcher.files, launcher.paths);
}

void LoadPlaylists(Launcher& launcher)
{
    MakeFennicPlaylists(launcher);
    MakeTavroPlaylists(launcher);
    MakeDunhelmPlaylists(launcher);
    MakeKTorPlaylists(launcher);
    ReadPlaylists(launcher);
}
