#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

// The options tab: the game, the launcher, what it does after a launch, and the player's devices.
class OptionsPage : public QWidget
{
    Q_OBJECT

public:
    OptionsPage(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* hotSpot();

    Controls& m_controls;
    ControlBinder& m_binder;
};
