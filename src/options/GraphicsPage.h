#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

// The graphics tab: the high-resolution packs, lights, corpses, and the resolution last used.
class GraphicsPage : public QWidget
{
    Q_OBJECT

public:
    GraphicsPage(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);
};
