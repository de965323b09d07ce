#pragma once

#include "state/Launcher.h"

// The tips of the day: tips.txt, a tip to each line. TipNumber is the number of the one shown last, from 1.
class Tips
{
public:
    // Reads the tips and takes the next one. `launcher` must outlive this object.
    explicit Tips(Launcher& launcher);

    // Takes the next tip, after the last one the first. Without tips nothing changes.
    void next();

    // The current tip, or why there is none.
    QString text() const;

    // The player wants tips at start-up, or not.
    void showAtStartup(bool on);

private:
    // False when the file does not exist or cannot be read.
    bool LoadTips(const QString& path);

    Launcher& m_launcher;
    QStringList m_tips;
};
