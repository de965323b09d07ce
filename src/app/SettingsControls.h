#pragma once

#include "app/Controls.h"
#include "app/Settings.h"

// The copy between the settings and the option controls that mirror them.

// Each mirrored control's state into its setting.
void ReadControlsToSettings(Settings& settings, Controls& controls);

// Each setting, as it was loaded, into its control, in the order of the table; every control that changes
// runs its handler. What a handler changes in `settings` on the way does not change what is still applied.
void ApplySettingsToControls(Settings& settings, Controls& controls);
