#pragma once

#include "app/Launcher.h"

// The check boxes of the launcher's own preferences: each sets its setting at once, and clearing what is to
// be remembered also deletes what was.
void ConnectLaunchPreferences(Launcher& launcher);
