#pragma once

#include "app/Launcher.h"

// The settings of one run: from config.vyk at load, back to it at the end.

QString ConfigPath(const Launcher& launcher);

// Keeps a copy of config.vyk beside it ("config.vyk.bak", then "config.vyk.bak2", ...) and deletes it.
// Throws FileError; then config.vyk is as it was.
void SetConfigAside(Launcher& launcher);

// Sets the defaults and reads texpath.vyk, archives.vyk and config.vyk. A corrupt config.vyk is set aside
// with a message, and the launcher restarts: afterwards ShuttingDown is set. Throws FileError when it cannot
// be set aside: a restart would only find it again.
void LoadSettings(Launcher& launcher);

// Writes config.vyk whole. Throws FileError.
void SaveSettings(Launcher& launcher);
