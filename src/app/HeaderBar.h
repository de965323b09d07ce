#pragma once

#include "app/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

// The top of the window: the title picture with the two web links over it, and the tools and tabs below.
class HeaderBar : public QWidget
{
    Q_OBJECT

public:
    HeaderBar(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);

private:
    QWidget* titlePicture(Controls& controls, ControlBinder& binder);
    QWidget* toolsAndTabs(Controls& controls, ControlBinder& binder);
};
