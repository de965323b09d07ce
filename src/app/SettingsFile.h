#pragma once

#include "state/Settings.h"

#include <QStringList>

// The lines of config.vyk.

enum class ReadResult {
    Complete,
    Stopped, // the lines ended early: the rest keeps what it had
    Faulty,  // a number was out of range, and its setting keeps what it had; all others were read
    Corrupt, // a number or flag line is no number
};

// Reads the lines into `settings` in the order of the table. `withPosition` is false under "/WINE", where
// the last two lines are neither read nor written.
ReadResult ReadSettings(Settings& settings, const QStringList& lines, bool withPosition);

QStringList SettingsLines(const Settings& settings, bool withPosition);
