#pragma once

#include "app/Tips.h"

#include <QDialog>

// The tip of the day.
class TipsForm : public QDialog
{
    Q_OBJECT

public:
    // `launcher` must outlive the dialog.
    TipsForm(Launcher& launcher, QWidget* parent);

private:
    Tips m_tips;
};
