#include "music/MusicForm.h"

#include "music/PlaylistView.h"
#include "music/TrackMenuView.h"
#include "ui/TaskMenuView.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

MusicForm::MusicForm(PlaylistEditor& editor, QWidget* parent)
    : QDialog(parent), m_editor(editor), m_list(new PlaylistView), m_editMenu(makeEditMenu())
{
    constexpr QSize usualSize(560, 560);
    setObjectName(u"MusicForm"_s);
    setWindowTitle(u"Opening "_s + editor.name());
    resize(usualSize);

    m_list->setObjectName(u"MusicList"_s);
    m_list->setAccessibleName(u"Playlist"_s);
    connect(m_list, &PlaylistView::addAsked, this,
            [this](int line) { run([this, line] { m_editor.AddMusic(line); }); });
    connect(m_list, &PlaylistView::fileDropped, this,
            [this](int line, const QString& path) { run([&] { m_editor.AddMusicFile(line, path); }); });
    connect(m_list, &PlaylistView::removeAsked, this,
            [this] { run([this] { m_editor.removeMusic(m_list->selectedLines()); }); });
    connect(m_list, &PlaylistView::menuAsked, this, [this](QPoint at) {
        CheckMenu();
        m_editMenu->popup(at);
    });

    auto* frame = new QWidget;
    frame->setObjectName(u"MusicFrame"_s);
    auto* inFrame = new QVBoxLayout(frame);
    inFrame->setContentsMargins(0, 0, 0, 0);
    inFrame->addWidget(m_list);

    auto* find = new QLineEdit;
    find->setObjectName(u"FocusBox"_s);
    find->setAccessibleName(u"Go to"_s);
    find->setPlaceholderText(u"Go to map"_s);
    find->setMaximumWidth(140);
    connect(find, &QLineEdit::textEdited, m_list, &PlaylistView::goTo);
    connect(find, &QLineEdit::returnPressed, m_list, qOverload<>(&QWidget::setFocus));
    auto* advice = new QLabel(u" Double-click on a map entries to add selections to the playlist"_s);
    advice->setObjectName(u"Label1"_s);
    auto* below = new QHBoxLayout;
    below->addWidget(advice, 1);
    below->addWidget(find);

    auto* rows = new QVBoxLayout(this);
    rows->setMenuBar(makeMenus());
    rows->addWidget(frame, 1);
    rows->addLayout(below);
    find->setFocus();
    m_list->showLines(m_editor.MusicList());
    CheckMenu();
}

QMenuBar* MusicForm::makeMenus()
{
    auto* bar = new QMenuBar;
    QMenu* menu = nullptr;
    const auto add = [&](const QString& name, const QString& caption, std::function<void()> command,
                         const QKeySequence& key = {}) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, [this, command] { run(command); });
        return action;
    };
    menu = bar->addMenu(u"&File"_s);
    add(
        u"mSave"_s, u"&Save"_s, [this] { m_editor.save(); }, QKeySequence::Save);
    add(u"mExit"_s, u"E&xit"_s, [this] { reject(); });
    menu = bar->addMenu(u"&Options"_s);
    m_toggle = add(u"mMap"_s, u"&Toggle map types"_s, [this] { m_editor.ToggleMap(); });
    m_clone = add(u"mClone"_s, u"&Clone playlist"_s, [this] { m_editor.Clone(); });
    add(u"mTextEdit"_s, u"&Exit out to notepad"_s, [this] {
        if (!m_editor.close())
            return;
        QDialog::reject();
        m_editor.openInTextEditor();
    });
    menu = bar->addMenu(u"&Help"_s);
    add(
        u"mHelp"_s, u"&Help"_s, [this] { m_editor.openHelp(); }, QKeySequence::HelpContents);
    m_readme = add(u"mReadme"_s, u"&Readme"_s, [this] { m_editor.openReadme(); });
    return bar;
}

QMenu* MusicForm::makeEditMenu()
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"mHidden"_s);
    const auto add = [&](const QString& name, const QString& caption, std::function<void()> command) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, [this, command] { run(command); });
        return action;
    };
    m_add =
        add(u"mMusic"_s, u"Add or replace &music"_s, [this] { m_editor.AddMusic(m_list->currentLine()); });
    auto* tracks = new TrackMenuView(u"Add or replace &CD track "_s, menu);
    tracks->setObjectName(u"mCD"_s);
    connect(tracks, &TrackMenuView::picked, this,
            [this](int track) { run([this, track] { m_editor.setTrack(m_list->currentLine(), track); }); });
    m_track = menu->addMenu(tracks);
    m_remove =
        add(u"mRemove"_s, u"&Remove selection"_s, [this] { m_editor.removeMusic(m_list->selectedLines()); });
    add(u"mAll"_s, u"Remove &all"_s, [this] { m_editor.removeAllMusic(); });
    return menu;
}

void MusicForm::CheckMenu()
{
    m_toggle->setEnabled(m_editor.canToggle());
    m_clone->setEnabled(m_editor.canClone());
    m_readme->setEnabled(!m_editor.readme().isEmpty());
    const int line = m_list->currentLine();
    m_add->setEnabled(m_editor.isEntry(line));
    m_track->setEnabled(m_editor.isEntry(line));
    m_remove->setEnabled(m_editor.canRemoveFrom(line));
}

void MusicForm::run(const std::function<void()>& command)
{
    command();
    m_list->showLines(m_editor.MusicList());
    CheckMenu();
}

void MusicForm::reject()
{
    if (m_editor.close())
        QDialog::reject();
}
