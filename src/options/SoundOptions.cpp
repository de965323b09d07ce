#include "options/SoundOptions.h"

#include "options/PresenceChecks.h"
#include "options/Spinners.h"

using namespace Qt::StringLiterals;

namespace {

enum Sound : size_t {
    NoSound,
    NoMusic,
    Ricochets,
    Sound3D,
    Auto,
    Manual,
    Pack,
    Spare7,
    Spare8,
    Midi,
    Ignore
};

void silence(Controls& controls)
{
    for (const Sound box : {NoMusic, Ricochets, Sound3D, Auto, Manual, Pack, Spare7, Spare8, Midi})
        controls.chkSound[box].enabled = false;
    controls.cbChannels.enabled = controls.SoundFrame[1].enabled = controls.TexLabel[2].enabled = false;
    AllowRicochetSpinner(controls, false);
}

void allowSound(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    for (const Sound box : {NoMusic, Sound3D, Auto, Spare8, Midi})
        controls.chkSound[box].enabled = true;
    controls.chkSound[Manual].enabled = !controls.SelectionList.isEmpty();
    controls.cbChannels.enabled = controls.SoundFrame[1].enabled = controls.TexLabel[2].enabled = true;
    controls.chkSound[Pack].enabled = SoundPackInstalled(launcher);
    if (launcher.settings.BasicDoom)
        return;
    controls.chkSound[Ricochets].enabled = controls.chkSound[Spare7].enabled = true;
    if (controls.chkSound[Ricochets].ticked())
        AllowRicochetSpinner(controls, true);
}

void soundClicked(Launcher& launcher)
{
    launcher.settings.DisableSound = launcher.controls.chkSound[NoSound].ticked();
    launcher.settings.DisableSound ? silence(launcher.controls) : allowSound(launcher);
    DisableMusic(launcher);
}

void ricochetsClicked(Launcher& launcher)
{
    const CheckBox& box = launcher.controls.chkSound[Ricochets];
    if (box.ticked() && !box.enabled)
        return;
    launcher.settings.RicochetSetting = box.ticked();
    AllowRicochetSpinner(launcher.controls, box.ticked());
}

void sound3DClicked(Controls& controls)
{
    const bool on = controls.chkSound[Sound3D].ticked();
    if (on)
        controls.TexLabel[2].enabled = true;
    controls.chkSound[Spare8].enabled = on;
}

} // namespace

void ConnectSoundOptions(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    controls.chkSound[NoSound].clicked = [&launcher] { soundClicked(launcher); };
    controls.chkSound[NoMusic].clicked = [&launcher] {
        launcher.settings.DisableMusic = launcher.controls.chkSound[NoMusic].ticked();
        DisableMusic(launcher);
    };
    controls.chkSound[Ricochets].clicked = [&launcher] { ricochetsClicked(launcher); };
    controls.chkSound[Sound3D].clicked = [&controls] { sound3DClicked(controls); };
}

void DisableMusic(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    auto& boxes = controls.chkSound;
    const bool music = !boxes[NoSound].ticked() && !boxes[NoMusic].ticked();
    const bool hasPlaylists = music && !controls.SelectionList.isEmpty();
    controls.SoundFrame[1].enabled = controls.SelectionList.enabled = boxes[Midi].enabled =
        controls.butMusic[0].enabled = music;
    if (hasPlaylists || !music) {
        for (const Sound box : {Manual, Auto, Ignore})
            boxes[box].enabled = music;
        controls.butMusic[1].enabled = controls.butMusic[2].enabled = music;
    }
    if (music && boxes[Auto].ticked()) {
        controls.SelectionList.enabled = false;
        for (Button& button : controls.butMusic)
            button.enabled = false;
    }
}
