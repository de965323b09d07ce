#pragma once

#include "music/PlaylistFile.h"
#include "music/PlaylistLayout.h"
#include "state/Launcher.h"

#include <optional>

// The playlist that is being edited, and the commands over it. A line is given by its number
// from 0; one outside the list changes nothing.
class PlaylistEditor
{
public:
    // `launcher` must outlive the editor.
    PlaylistEditor(Launcher& launcher, const QString& name) : m_launcher(launcher), m_name(name) {}

    // A playlist without music, laid out for Doom when its IWAD is known, else for Doom II.
    void startNew();

    // Reads the playlist and puts an older layout right. Returns false, with a message where one is due, when
    // it cannot be read or the player would not have it put right.
    bool open();

    const QString& name() const { return m_name; }
    bool wasSaved() const { return m_saved; } // at least once
    const QStringList& MusicList() const { return m_list.lines; }

    // What can be done now.
    bool isEntry(int line) const; // it can be given music
    bool canToggle() const;       // between the two games' maps
    bool canClone() const;
    bool canRemoveFrom(int line) const; // it may have music
    QString readme() const;             // of the music pack; empty when there is none

    // Asks for a music file for the line, which must be an entry.
    void AddMusic(int line);
    // The same with a file that the player dropped on the line: its path, with '/'.
    void AddMusicFile(int line, const QString& path);
    void setTrack(int line, int track); // of a CD, from 1
    void removeMusic(const QList<int>& lines);
    void removeAllMusic();
    void ToggleMap();
    void Clone(); // asks first

    // Writes the playlist. Returns false, with a message, when it cannot be written.
    bool save();

    // Asks whether to keep what was not saved. Returns false when the player wants it saved and it cannot be.
    bool close();

    // In the system's text editor or the player's own. A file that is missing opens nothing.
    void openInTextEditor();
    void openHelp();
    void openReadme();

private:
    bool SaveList(const QString& name, const QStringList& lines);
    void setLine(int line, const QString& text);
    void setLines(const QStringList& lines);

    Launcher& m_launcher;
    QString m_name;
    PlaylistText m_list;
    std::optional<MapType> m_mapType;
    bool m_unsaved = false;
    bool m_saved = false;
    QStringList m_converted; // as it was put right at opening; empty when it was not or has been saved
    QString m_victorMusic;   // of D_VICTOR, which Doom II has not, while the list is toggled
};

// Says that a playlist could not be changed.
void ReportPlaylistError(Prompts& prompts, const FileError& error);
