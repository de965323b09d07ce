#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

class FilterView;
class QBoxLayout;

// The games tab: the games list with its views, the game's files and savegames, and its maps.
class GamesPage : public QWidget
{
    Q_OBJECT

public:
    GamesPage(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);

    // Leads the keyboard to the box that filters the games list.
    void findGame();

private:
    QBoxLayout* gamesColumn(Controls& controls, ControlBinder& binder);
    QBoxLayout* filesColumn(Controls& controls, ControlBinder& binder);
    QBoxLayout* mapsColumn(Controls& controls, ControlBinder& binder);

    FilterView* m_filter = nullptr;
};
