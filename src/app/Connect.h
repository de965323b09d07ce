#pragma once

#include "state/Launcher.h"

// Gives every control its handler. After each of them the window is computed anew.
void ConnectControls(Launcher& launcher);

// A launcher whose controls have their handlers.
struct ConnectedLauncher : Launcher
{
    template <class... Services>
    explicit ConnectedLauncher(Services&&... services) : Launcher(services...)
    {
        ConnectControls(*this);
    }
};
