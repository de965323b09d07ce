#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

class PageBinder;
class QBoxLayout;

// The strip below the tabs: how to play, the command panel, and the Launch button.
class StripBar : public QWidget
{
    Q_OBJECT

public:
    StripBar(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void enlargeLaunch(); // its text, against the font of the others
    QBoxLayout* playRow(Controls& controls, PageBinder& make, ControlBinder& binder);
    QWidget* commandPanel(Controls& controls, PageBinder& make, ControlBinder& binder);
    QWidget* lightLevel(Controls& controls, PageBinder& make);
    QBoxLayout* launchRow(Controls& controls, PageBinder& make);

    QWidget* m_launch = nullptr;
};
