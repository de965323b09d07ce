#pragma once

#include "state/Controls.h"
#include "ui/ControlBinder.h"

#include <QWidget>

// The sound tab: what is heard, and how.
class SoundPage : public QWidget
{
    Q_OBJECT

public:
    SoundPage(Controls& controls, ControlBinder& binder, QWidget* parent = nullptr);
};
