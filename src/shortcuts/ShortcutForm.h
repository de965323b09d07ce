#pragma once

#include "ui/Prompts.h"
#include "ui/ToolTipView.h"

#include <QDialog>

class QCheckBox;
class QPushButton;

// Asks whether to remove the model packs, with one button: it cancels until the box is ticked.
class ShortcutForm : public QDialog
{
    Q_OBJECT

public:
    explicit ShortcutForm(const CleanupQuestion& question, QWidget* parent = nullptr);

private:
    QWidget* modelDelFrame(const CleanupQuestion& question);
    void CheckDelete(); // what the button does

    clsToolTip m_toolTips;
    QCheckBox* m_delete;
    QPushButton* m_button;
};
