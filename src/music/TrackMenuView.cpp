#include "music/TrackMenuView.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QKeyEvent>
#include <QToolButton>
#include <QWidgetAction>

using namespace Qt::StringLiterals;

namespace {

constexpr int tracks = 36;
constexpr int inColumn = 9;

// The track that a key leads to from `track`; the same when it leads nowhere.
int nextTrack(int track, int key)
{
    const int step = key == Qt::Key_Up      ? -1
                     : key == Qt::Key_Down  ? 1
                     : key == Qt::Key_Left  ? -inColumn
                     : key == Qt::Key_Right ? inColumn
                                            : 0;
    const int next = track + step;
    return next < 1 || next > tracks ? track : next;
}

} // namespace

TrackMenuView::TrackMenuView(const QString& title, QWidget* parent)
    : QMenu(title, parent), m_tracks(new QButtonGroup(this))
{
    auto* grid = new QWidget(this);
    grid->setStyleSheet(u"QToolButton { border: none; padding: 3px 8px; }"
                        "QToolButton:checked, QToolButton:hover"
                        " { background: palette(highlight); color: palette(highlighted-text); }"_s);
    auto* places = new QGridLayout(grid);
    places->setContentsMargins(2, 2, 2, 2);
    places->setSpacing(0);
    for (int i = 0; i < tracks; ++i) {
        auto* track = new QToolButton;
        track->setObjectName(u"rTrack_"_s + QString::number(i));
        track->setText(u"Track %1"_s.arg(i + 1, 2, 10, QChar(u'0')));
        track->setCheckable(true);
        track->setFocusPolicy(Qt::NoFocus);
        m_tracks->addButton(track, i + 1);
        places->addWidget(track, i % inColumn, i / inColumn);
    }
    connect(m_tracks, &QButtonGroup::idClicked, this, [this](int track) {
        for (QWidget* menu = this; qobject_cast<QMenu*>(menu); menu = menu->parentWidget())
            menu->close();
        Q_EMIT picked(track);
    });
    auto* action = new QWidgetAction(this);
    action->setDefaultWidget(grid);
    addAction(action);
}

void TrackMenuView::showEvent(QShowEvent* event)
{
    m_tracks->button(1)->setChecked(true);
    QMenu::showEvent(event);
}

void TrackMenuView::keyPressEvent(QKeyEvent* event)
{
    const int track = m_tracks->checkedId();
    const int next = nextTrack(track, event->key());
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_tracks->button(track)->click();
    else if (next != track)
        m_tracks->button(next)->setChecked(true);
    else
        QMenu::keyPressEvent(event); // Escape, say, and Left from the first column
}
