#pragma once

#include "iwads/IwadDialog.h"
#include "ui/ToolTipView.h"

#include <QDialog>

class QFrame;
class QLineEdit;
class QPushButton;

// The IWAD locations dialog. Closing it in any way is its OK: at start-up there is no way around it.
class IwadForm : public QDialog
{
    Q_OBJECT

public:
    IwadForm(Launcher& launcher, QWidget* parent);

    void show(); // modal; returns when the dialog is closed
    void reject() override { acceptChanges(); }

private:
    QFrame* warningFrame();
    void ToolTipText(); // the tips come and go with the player's preference
    void acceptChanges();
    void write(); // what the dialog shows

    Launcher& m_launcher;
    IwadDialog m_dialog;
    clsToolTip m_toolTips;
    QList<std::pair<QWidget*, QString>> m_tips;
    QFrame* m_warning;
    QWidget* m_boxes;
    std::array<QLineEdit*, 4> m_showIwads{};
    QPushButton *m_search, *m_reset, *m_add, *m_ok;
};
