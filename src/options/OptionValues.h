#pragma once

#include "state/Controls.h"
#include "state/Settings.h"

// The values of the options: between a setting and the control that shows it there is the option table alone.

// A control that the player changes sets its setting.
void ConnectOptionValues(Settings& settings, Controls& controls);

// Each setting's value into its control; runs nothing.
void ShowOptionValues(const Settings& settings, Controls& controls);

// What a click does after it set the setting.
void Then(CheckBox& box, std::function<void()> what);
