#pragma once

#include "state/Launcher.h"
#include "ui/ToolTipView.h"

#include <QDialog>

class QLineEdit;

// The location of the player's own textures and patches. Closing it keeps what it shows.
class TexForm : public QDialog
{
    Q_OBJECT

public:
    // `launcher` must outlive the dialog.
    TexForm(Launcher& launcher, QWidget* parent);

    void done(int result) override;

private:
    void browse();

    Launcher& m_launcher;
    QLineEdit* m_path;
    clsToolTip m_toolTips;
};
