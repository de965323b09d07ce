#include "music/PlaylistEditor.h"

#include "music/BuiltInPlaylists.h"
#include "music/MapConversion.h"
#include "music/MusicFolder.h"
#include "music/Playlists.h"
#include "platform/Paths.h"
#include "platform/Text.h"
#include "shell/TextEditor.h"
#include "ui/FileErrorReport.h"

using namespace Qt::StringLiterals;

namespace {

bool asksYes(Prompts& prompts, const QString& text, const QString& title)
{
    return prompts.MsgboxPos(text, Msg::YesNo + Msg::Question, title) == Msg::ResultYes;
}

void reportNotWhole(Prompts& prompts)
{
    prompts.MsgboxPos(u"This playlist holds more than can be shown here, or what is no text.    \r\n"
                      "It can be looked at but not saved: the file is left as it is.    "_s,
                      Msg::Ok + Msg::Exclamation, u" Access error"_s);
}

// How the music file stands in a playlist: below the installation's folder without it, and with '\'.
QString referenceTo(const QString& path, const QString& root)
{
    const QString inside = root + u'/';
    if (!path.startsWith(inside, Qt::CaseInsensitive))
        return NativePath(path);
    return path.mid(root.size()).replace(u'/', u'\\');
}

// Of a playlist that names no map.
MapType usualType(const IwadPaths& iwads)
{
    return iwads.of(GameFamily::Doom).isEmpty() ? MapType::Doom2 : MapType::Doom;
}

} // namespace

void ReportPlaylistError(Prompts& prompts, const FileError& error)
{
    if (ReportCause(prompts, error))
        return;
    prompts.MsgboxPos(u"Unable to make changes to playlist    \r\n"_s, Msg::Ok + Msg::Exclamation,
                      u" Access error"_s);
}

void PlaylistEditor::startNew()
{
    m_mapType = usualType(m_launcher.facts.iwads);
    m_list = {.lines = StandardLayout(GameOf(*m_mapType))};
    m_unsaved = true;
}

bool PlaylistEditor::open()
{
    try {
        m_list = ReadPlaylist(m_launcher.files, PlaylistPath(m_launcher.paths, name()));
    } catch (const FileError& error) {
        ReportPlaylistError(m_launcher.prompts, error);
        return false;
    }
    m_mapType = MapTypeOf(m_list.lines);
    if (!m_list.isWhole) {
        reportNotWhole(m_launcher.prompts);
        return true;
    }
    if (!m_mapType)
        m_mapType = usualType(m_launcher.facts.iwads);
    else if (HasIntermission(m_list.lines) && IsStandardFormat(m_list.lines, *m_mapType))
        return true;
    if (HasIntermission(m_list.lines) && !asksYes(m_launcher.prompts,
                                                  u"This playlist format appears non standard.    \r\n"
                                                  "Would you like to attempt to correct this? "_s,
                                                  u" Non Standard Format"_s))
        return false;
    m_list.lines = m_converted = Converted(m_list.lines, *m_mapType);
    return true;
}

bool PlaylistEditor::canToggle() const
{
    return canClone() && !IsBuiltInPlaylist(name());
}

bool PlaylistEditor::canClone() const
{
    return m_list.isWhole && m_mapType && *m_mapType != MapType::Mixed;
}

bool PlaylistEditor::canRemoveFrom(int line) const
{
    constexpr int shortestKeyWithMusic = 6; // characters
    return isEntry(line) && m_list.lines.at(line).size() >= shortestKeyWithMusic;
}

QString PlaylistEditor::readme() const
{
    if (!IsBuiltInPlaylist(name()))
        return {};
    return m_launcher.files.actualPath(GetListPath(m_launcher.paths, name()) + u"/readme.txt"_s);
}

bool PlaylistEditor::isEntry(int line) const
{
    return line >= 0 && line < m_list.lines.size() && IsEntry(m_list.lines.at(line));
}

void PlaylistEditor::setLine(int line, const QString& text)
{
    if (m_list.lines.at(line) == text)
        return;
    m_list.lines[line] = text;
    m_unsaved = true;
}

void PlaylistEditor::setLines(const QStringList& lines)
{
    m_unsaved = m_unsaved || m_list.lines != lines;
    m_list.lines = lines;
    m_mapType = MapTypeOf(lines);
}

void PlaylistEditor::AddMusic(int line)
{
    if (!isEntry(line))
        return;
    LoadMusicFolder(m_launcher);
    const QString folder = m_launcher.session.MusicFolder;
    const QString path = m_launcher.prompts.chooseFile(
        {.title = u"Add or Replace a music file to the Playlist"_s,
         .filter = u"All Files"_s,
         .pattern = u"*.*"_s,
         .folder = folder.isEmpty() ? m_launcher.paths.MusicLaunchPath : folder,
         .further = {
             {u"Mp3 Files"_s, u"*.mp3"_s}, {u"Ogg Files"_s, u"*.ogg"_s}, {u"Mid Files"_s, u"*.mid"_s}}});
    if (!path.isEmpty())
        AddMusicFile(line, path);
}

void PlaylistEditor::AddMusicFile(int line, const QString& path)
{
    if (!isEntry(line))
        return;
    const QString file = FileNameOf(path);
    if (!file.contains(u'.') || !CheckMusicExt(file.section(u'.', -1)) || path.contains(u'"')) {
        m_launcher.prompts.MsgboxPos(u" This file type is not supported.    "_s, Msg::Ok + Msg::Exclamation,
                                     u" Error"_s);
        return;
    }
    const QString reference = referenceTo(path, m_launcher.paths.RootPath);
    setLine(line, KeyOf(m_list.lines.at(line)) + u" \""_s + reference + u'"');
    KeepMusicFolder(m_launcher, FolderOf(path));
}

void PlaylistEditor::setTrack(int line, int track)
{
    constexpr int twoDigits = 10;
    if (isEntry(line))
        setLine(line, KeyOf(m_list.lines.at(line)) + (track < twoDigits ? u" CD 0"_s : u" CD "_s) +
                          QString::number(track));
}

void PlaylistEditor::removeMusic(const QList<int>& lines)
{
    for (const int line : lines)
        if (isEntry(line))
            setLine(line, KeyOf(m_list.lines.at(line)));
}

void PlaylistEditor::removeAllMusic()
{
    for (int line = 0; line < m_list.lines.size(); ++line)
        if (isEntry(line))
            setLine(line, KeyOf(m_list.lines.at(line)));
}

void PlaylistEditor::ToggleMap()
{
    if (!canToggle())
        return;
    const MusicGame from = GameOf(*m_mapType);
    const QString victor = GetMusicString(ReplaceInterMusic(m_list.lines, u"D_VICTOR"));
    QStringList toggled = Toggled(m_list.lines, from);
    if (from == MusicGame::Doom)
        m_victorMusic = victor;
    else
        for (QString& line : toggled)
            if (line == u"D_VICTOR"_s)
                line += m_victorMusic;
    setLines(toggled);
}

void PlaylistEditor::Clone()
{
    if (canClone() &&
        asksYes(m_launcher.prompts,
                u"This procedure will duplicate the current playlist making it    "_s + u"\r\n"_s +
                    u" compatible with all Doom wads, do you wish to continue?       "_s,
                u" Clone playlist"_s))
        setLines(Cloned(m_list.lines, GameOf(*m_mapType)));
}

bool PlaylistEditor::SaveList(const QString& name, const QStringList& lines)
{
    if (!m_list.isWhole) {
        reportNotWhole(m_launcher.prompts);
        return false;
    }
    try {
        m_launcher.files.createFolder(m_launcher.paths.MusicLaunchPath);
        WritePlaylist(m_launcher.files, PlaylistPath(m_launcher.paths, name),
                      {.lines = lines, .isUtf8 = m_list.isUtf8});
    } catch (const FileError& error) {
        ReportPlaylistError(m_launcher.prompts, error);
        return false;
    }
    m_saved = true;
    ReadPlaylists(m_launcher);
    return true;
}

bool PlaylistEditor::save()
{
    if (!SaveList(name(), m_list.lines))
        return false;
    m_unsaved = false;
    m_converted.clear();
    return true;
}

bool PlaylistEditor::close()
{
    const auto answer = [this](const QString& text, const QString& title) {
        return m_launcher.prompts.MsgboxPos(text, Msg::YesNoCancel + Msg::Question, title);
    };
    if (!m_list.isWhole)
        return true; // there is nothing that could be saved
    int wanted = Msg::ResultNo;
    if (m_unsaved)
        wanted = answer(u" Your playlist has unsaved changes.      "_s + u"\r\n"_s +
                            u"  Do you want to save on exiting?        "_s,
                        u" Save playlist"_s);
    if (wanted == Msg::ResultYes)
        return save();
    // The changes are not wanted; the layout may be.
    if (wanted == Msg::ResultNo && !m_converted.isEmpty()) {
        wanted = answer(u" Your playlist has been converted to the new format.     "_s + u"\r\n"_s +
                            u"   Do you wish to save the new format on exiting?        "_s,
                        u" Save playlist to new format"_s);
        if (wanted == Msg::ResultYes)
            return SaveList(name(), m_converted);
    }
    return wanted == Msg::ResultNo; // dismissing the question goes on with the playlist
}

void PlaylistEditor::openInTextEditor()
{
    const QString path = PlaylistPath(m_launcher.paths, name());
    if (!m_launcher.files.fileExists(path))
        return;
    const QString own = m_launcher.paths.LaunchDataPath + u"editor.vyk"_s;
    try {
        const QString program = m_launcher.files.fileExists(own)
                                    ? ReadLines(m_launcher.files, own).value(0).trimmed().remove(u'"')
                                    : QString();
        const QString commandLine = u'"' + program + u"\" \""_s + NativePath(path) + u'"';
        if (!program.isEmpty() && m_launcher.processes.start(commandLine, m_launcher.paths.RootPath))
            return;
    } catch (const FileError&) {
        // The usual editor does as well.
    }
    OpenInTextEditor(m_launcher, path);
}

void PlaylistEditor::openHelp()
{
    const QString help = m_launcher.files.actualPath(m_launcher.paths.LaunchDataPath + u"playlist.txt"_s);
    if (!help.isEmpty())
        OpenInTextEditor(m_launcher, help);
}

void PlaylistEditor::openReadme()
{
    if (const QString file = readme(); !file.isEmpty())
        OpenInTextEditor(m_launcher, file);
}
