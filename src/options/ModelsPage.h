#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

// The models tab: the model packs, their effects and how finely models are drawn.
class ModelsPage : public QWidget
{
    Q_OBJECT

public:
    ModelsPage(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);
};
