#pragma once

#include "state/Launcher.h"

// The two links over the title picture, to the engine's place in the web.
void ConnectWebLinks(Launcher& launcher);
