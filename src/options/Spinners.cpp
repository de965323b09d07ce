#include "options/Spinners.h"

#include <algorithm>

namespace {

struct Spinner
{
    Button& down;
    Button& up;
    int Settings::*setting;
    int lowest;
    int highest;
};

// A number from elsewhere, out of the range, comes back into it.
void press(Settings& settings, const Spinner& spinner, int step)
{
    int& value = settings.*spinner.setting;
    value =
        value < spinner.lowest ? spinner.lowest : std::clamp(value + step, spinner.lowest, spinner.highest);
    if (settings.CorpseSeconds == 0) // corpses that stay need no resurrection
        settings.ResurrectCorpses = false;
}

} // namespace

void ConnectSpinners(Settings& settings, Controls& controls)
{
    const Spinner spinners[] = {
        {controls.butleft, controls.butRight, &Settings::CorpseSeconds, 0, 9},
        {controls.butLeft2, controls.butRight2, &Settings::GrenadeTime, 0, 7},
        {controls.RicoButton[Step::Down], controls.RicoButton[Step::Up], &Settings::RicochetInterval, 1, 9},
    };
    for (const Spinner& spinner : spinners) {
        spinner.down.clicked = [&settings, spinner] { press(settings, spinner, -1); };
        spinner.up.clicked = [&settings, spinner] { press(settings, spinner, 1); };
    }
}
