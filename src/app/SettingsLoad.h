#pragma once

#include "app/SettingsFile.h"
#include "state/Launcher.h"

// The settings of one run: from config.vyk at load, back to it at the end.

QString ConfigPath(const Launcher& launcher);

// Keeps a copy of config.vyk beside it: "config.vyk.bak", then "config.vyk.bak2", ... Throws FileError.
void KeepConfigBeside(Launcher& launcher);

// The same, and deletes config.vyk. Throws FileError; then config.vyk is as it was.
void SetConfigAside(Launcher& launcher);

// Sets the defaults and reads texpath.vyk, archives.vyk and config.vyk; changes no file. What a corrupt
// config.vyk said up to its bad line is in the settings. Returns how far config.vyk could be read.
ReadResult ReadStoredSettings(Launcher& launcher);

// Brings settings into their range, and what excludes one another to one of the two.
void CorrectSettings(Settings& settings);

// Reads the stored settings and corrects those out of their range. A corrupt config.vyk is set aside with
// a message, and the launcher restarts: afterwards ShuttingDown is set. Throws FileError when it cannot be
// set aside: a restart would only find it again.
void LoadSettings(Launcher& launcher);

// Every default; the window position is unknown.
void UseDefaultSettings(Launcher& launcher);

// Writes config.vyk whole. Throws FileError.
void SaveSettings(Launcher& launcher);
