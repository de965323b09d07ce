#pragma once

#include "music/PlaylistEditor.h"

#include <QDialog>

class PlaylistView;
class QAction;
class QMenu;
class QMenuBar;

// The editor of a playlist.
class MusicForm : public QDialog
{
    Q_OBJECT

public:
    // `editor` must outlive the dialog.
    MusicForm(PlaylistEditor& editor, QWidget* parent);

    void reject() override; // asks whether to save first

private:
    QMenuBar* makeMenus();
    QMenu* makeEditMenu();
    void CheckMenu(); // what can be done now
    void run(const std::function<void()>& command);

    PlaylistEditor& m_editor;
    PlaylistView* m_list;
    QMenu* m_editMenu;
    QAction *m_toggle, *m_clone, *m_readme, *m_add, *m_track, *m_remove;
};
