#pragma once

#include "ui/Prompts.h"

#include <QDialog>

class QLineEdit;
class QPushButton;

// Asks for a name, with one button: it says "OK" once something was typed.
class AskForm : public QDialog
{
    Q_OBJECT

public:
    explicit AskForm(const NameQuestion& question, QWidget* parent = nullptr);

    // What stands in the box; the player's answer when the dialog was accepted.
    QString name() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_name;
    QPushButton* m_button;
    bool m_buttonCancels;
};
