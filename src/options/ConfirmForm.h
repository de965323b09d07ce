#pragma once

#include <QDialog>

#include <functional>

// The last question before model packs are removed; Cancel is the default.
class ConfirmForm : public QDialog
{
    Q_OBJECT

public:
    // `neverAgain` is told at once whenever the player ticks or unticks the box.
    explicit ConfirmForm(const std::function<void(bool)>& neverAgain, QWidget* parent = nullptr);
};
