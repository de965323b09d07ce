#include "options/Modes.h"

#include "options/OptionValues.h"
#include "state/OptionTable.h"

namespace {

void kelspack(Settings& settings)
{
    if (settings.KelspackWeapons)
        settings.KelspackAlternative = settings.NoForcedModels = false;
}

void kelspackAlternative(Settings& settings)
{
    if (settings.KelspackAlternative)
        settings.KelspackWeapons = settings.NoForcedModels = false;
}

void noForcedModels(Settings& settings)
{
    if (settings.NoForcedModels)
        settings.KelspackWeapons = settings.KelspackAlternative = false;
}

} // namespace

void ConnectModes(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const struct
    {
        CheckBox& box;
        void (*ticks)(Settings&);
    } rows[] = {
        {controls.chkMain[Main::BasicDoom], BasicDoom},
        {controls.ChkModelOpts[ModelOpts::Fx], FxEffects},
        {controls.ChkModelOpts[ModelOpts::CoreEffects], CoreEffects},
        {controls.ChkModelOpts[ModelOpts::NoForcedModels], noForcedModels},
        {controls.chkAltModels[AltModels::Kelspack], kelspack},
        {controls.chkAltModels[AltModels::KelspackAlternative], kelspackAlternative},
    };
    for (const auto& row : rows)
        Then(row.box, [ticks = row.ticks, &settings = launcher.settings] { ticks(settings); });
}

void BasicDoom(Settings& settings)
{
    if (settings.BasicDoom)
        settings.CoreEffects = false;
    else
        settings.Fx = false;
}

void FxEffects(Settings& settings)
{
    if (!settings.Fx)
        return;
    settings.BasicDoom = true;
    settings.CoreEffects = false;
}

void CoreEffects(Settings& settings)
{
    if (settings.CoreEffects)
        settings.BasicDoom = settings.Fx = false;
}

void SettleModes(Settings& settings)
{
    CoreEffects(settings);
    FxEffects(settings);
    noForcedModels(settings);
    kelspack(settings);
}
