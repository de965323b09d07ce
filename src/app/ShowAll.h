#pragma once

#include "state/Launcher.h"

// Computes what every control of the window shows from what is true: values, texts, lists, captions, tips,
// what is greyed and hidden, and what Launch would do. It has no memory and touches no disk; it runs after
// every event.
void ShowWindow(Launcher& launcher);
void ShowWindow(const Truth& truth, Controls& controls);
