#pragma once

#include <thread>

// Starts reading the system's list of fonts, on a thread of its own: the first text needs it, and reading
// it takes as long as connecting to the display does. Where fonts come from elsewhere it does nothing.
std::jthread WarmUpFonts();
