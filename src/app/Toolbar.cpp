#include "app/Toolbar.h"

namespace {

constexpr size_t iwadLocations = 5; // AuxButton

} // namespace

void ConnectToolbar(Launcher& launcher)
{
    launcher.controls.AuxButton[iwadLocations].clicked = [&launcher] { launcher.window.showIwadForm(); };
}
