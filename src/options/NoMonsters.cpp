#include "options/NoMonsters.h"

using namespace Qt::StringLiterals;

namespace {

constexpr size_t noMonsters = 6; // chkMain
constexpr size_t resurrect = 3;  // chkVYKOpts

bool canHaveZombies(const Launcher& launcher)
{
    const auto& modes = launcher.controls.ChkModelOpts;
    return launcher.files.folderExists(launcher.paths.Md2Path + u"Monsters/Imp"_s) && !modes[3].ticked() &&
           !modes[2].ticked() && !launcher.modelPacks.ModelPacksMissing;
}

void noMonstersClicked(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    const bool monsters = !controls.chkMain[noMonsters].ticked();
    launcher.settings.NoMonsters = !monsters;
    for (const size_t option : {5U, 8U, 6U, 7U})
        controls.chkVYKOpts[option].enabled = monsters;
    controls.chkVYKOpts[resurrect].enabled = monsters && controls.Corpse.number() != 0;
    controls.butRight.enabled = controls.butleft.enabled = controls.Corpse.enabled = monsters;
    controls.GraphicFrames[3].enabled = controls.TexLabel[1].enabled = monsters;
    if (!monsters)
        controls.chkAltModels[0].enabled = false;
    else if (canHaveZombies(launcher))
        controls.chkAltModels[0].enabled = true;
}

} // namespace

void ConnectNoMonsters(Launcher& launcher)
{
    launcher.controls.chkMain[noMonsters].clicked = [&launcher] { noMonstersClicked(launcher); };
}
