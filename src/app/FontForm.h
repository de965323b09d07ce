#pragma once

#include "state/Launcher.h"

#include <QDialog>

class QLabel;
class QListWidget;

// Chooses the launcher font. Its "Default" and its "OK" end the program, which starts again.
class FontForm : public QDialog
{
    Q_OBJECT

public:
    // `launcher` must outlive the dialog.
    FontForm(Launcher& launcher, QWidget* parent);

private:
    QListWidget* addList(class QBoxLayout* row, const QString& name, const QString& caption, int width);
    void LoadSizeList();
    void PreviewFont();

    Launcher& m_launcher;
    FontSetting m_choice;
    QListWidget *m_fonts, *m_styles, *m_sizes;
    QLabel* m_preview;
};
