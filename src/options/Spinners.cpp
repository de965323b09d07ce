#include "options/Spinners.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t resurrect = 3; // chkVYKOpts

void noCorpseFade(Controls& controls)
{
    controls.Corpse.colour = Colour::Accent;
    controls.chkVYKOpts[resurrect].setTicked(false);
    controls.chkVYKOpts[resurrect].enabled = false;
    controls.TexLabel[1].caption = u"No corpse fade"_s;
}

void someCorpseFade(Controls& controls)
{
    controls.Corpse.colour = Colour::Normal;
    controls.chkVYKOpts[resurrect].enabled = true;
    controls.TexLabel[1].caption = u"Seconds before corpses fade"_s;
}

void noGrenadeDelay(Controls& controls)
{
    controls.Timeout.colour = Colour::Accent;
    controls.ChkGL.caption = u"Pipebomb launcher"_s;
}

void someGrenadeDelay(Controls& controls)
{
    controls.Timeout.colour = Colour::Normal;
    controls.ChkGL.caption = u"Grenade launcher"_s;
}

struct Spinner
{
    TextBox& (*box)(Controls&);
    Button& (*down)(Controls&);
    Button& (*up)(Controls&);
    int lowest;
    int highest;
    int Settings::*setting;
    void (*reachedZero)(Controls&);
    void (*leftZero)(Controls&);
};

// clang-format off
constexpr Spinner spinners[] = {
    {[](Controls& c) -> TextBox& { return c.Corpse; }, [](Controls& c) -> Button& { return c.butleft; },
     [](Controls& c) -> Button& { return c.butRight; }, 0, 9, &Settings::CorpseSeconds, noCorpseFade, someCorpseFade},
    {[](Controls& c) -> TextBox& { return c.Timeout; }, [](Controls& c) -> Button& { return c.butLeft2; },
     [](Controls& c) -> Button& { return c.butRight2; }, 0, 7, &Settings::GrenadeTime, noGrenadeDelay, someGrenadeDelay},
    {[](Controls& c) -> TextBox& { return c.Ricotext; }, [](Controls& c) -> Button& { return c.RicoButton[0]; },
     [](Controls& c) -> Button& { return c.RicoButton[1]; }, 1, 9, &Settings::RicochetInterval, nullptr, nullptr},
};
// clang-format on

// A number from elsewhere, out of the range, comes back into it.
void press(Launcher& launcher, const Spinner& spinner, int step)
{
    TextBox& box = spinner.box(launcher.controls);
    const int from = box.number();
    const int value = from < spinner.lowest ? spinner.lowest
                                            : std::clamp(from + step, spinner.lowest, spinner.highest);
    if (value == from)
        return;
    box.text = QString::number(value);
    launcher.settings.*spinner.setting = value;
    if (value == 0 && spinner.reachedZero)
        spinner.reachedZero(launcher.controls);
    else if (step > 0 && spinner.leftZero)
        spinner.leftZero(launcher.controls);
}

} // namespace

void ConnectSpinners(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    for (const Spinner& spinner : spinners) {
        spinner.down(controls).clicked = [&launcher, &spinner] { press(launcher, spinner, -1); };
        spinner.up(controls).clicked = [&launcher, &spinner] { press(launcher, spinner, 1); };
    }
    controls.ChkGL.clicked = [&controls, &settings = launcher.settings] {
        const bool on = settings.GrenadeLauncher = controls.ChkGL.ticked();
        controls.butLeft2.enabled = controls.butRight2.enabled = controls.Timeout.enabled = on;
    };
}

void ShowZeroTimes(Launcher& launcher)
{
    if (launcher.settings.CorpseSeconds == 0)
        noCorpseFade(launcher.controls);
    if (launcher.settings.GrenadeTime == 0)
        noGrenadeDelay(launcher.controls);
}

void AllowRicochetSpinner(Controls& controls, bool on)
{
    controls.RicoButton[0].enabled = controls.RicoButton[1].enabled = controls.Ricotext.enabled = on;
}
