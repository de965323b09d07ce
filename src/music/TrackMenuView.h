#pragma once

#include <QMenu>

class QButtonGroup;

// The menu of the tracks of a CD, 01 to 36, nine below each other.
class TrackMenuView : public QMenu
{
    Q_OBJECT

public:
    explicit TrackMenuView(const QString& title, QWidget* parent = nullptr);

Q_SIGNALS:
    void picked(int track); // from 1

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QButtonGroup* m_tracks; // by number; the checked one is where the keyboard is
};
