#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

class TitleView;

// The top of the window: the title picture with the two web links over it, and the tools and tabs below.
class HeaderBar : public QWidget
{
    Q_OBJECT

public:
    // `picture` is the title picture, which the bar takes.
    HeaderBar(TitleView* picture, Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);

private:
    void arrange(TitleView* picture, Controls& controls, ControlBinder& binder);
    QWidget* toolsAndTabs(Controls& controls, ControlBinder& binder);
};
