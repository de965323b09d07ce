#pragma once

#include "app/Controls.h"
#include "app/Settings.h"

// The copy between the settings and the option controls that mirror them.

// Each mirrored control's state into its setting.
void ReadControlsToSettings(Settings& settings, Controls& controls);

// Each setting, as it was loaded, into its control, in the order of the table; every control that changes
// runs its handler, as if the player had clicked one after the other. What a handler changes on the way does
// not change what is still applied; afterwards the settings are what the controls show.
void ApplySettingsToControls(Settings& settings, Controls& controls);
