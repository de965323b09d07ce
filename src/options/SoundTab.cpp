#include "options/OptionsInForce.h"
#include "options/Tabs.h"

using namespace Qt::StringLiterals;

namespace {

bool sound(Now now)
{
    return now.sound;
}

bool music(Now now)
{
    return now.music;
}

// A scripted map brings its music.
bool playlists(Now now)
{
    return now.music && now.hasPlaylists && !now.scriptedMap;
}

bool ricochets(Now now)
{
    return now.sound && !now.basicDoom;
}

constexpr OptionRule rules[] = {
    {&Settings::DisableMusic, sound},
    {&Settings::Sound3D, sound},
    {&Settings::RicochetSetting, ricochets},
    {&Settings::HiResSoundPack, [](Now now) { return now.resources.sounds && now.sound && !now.basicDoom; }},
    {&Settings::AutoPlaylistsOn, playlists},
    {&Settings::ManualPlaylistOn, playlists},
    {&Settings::ForceFmodMidi, music},
    {&Settings::IgnorePlaylistIfCustomMusic, [](Now now) { return now.music && now.hasPlaylists; }},
};

// The list of playlists and its commands: without music there is nothing to choose, and the launcher chooses
// by itself where it is to.
void DisableMusic(Now now, Controls& controls)
{
    const bool choosable = now.music && !(now.on.AutoPlaylistsOn && now.hasPlaylists);
    controls.SoundFrame[SoundFrames::Playlists].enabled = now.music;
    controls.SelectionList.enabled = controls.butMusic[PlaylistCommand::New].enabled = choosable;
    controls.butMusic[PlaylistCommand::Open].enabled = controls.butMusic[PlaylistCommand::Delete].enabled =
        choosable && now.hasPlaylists;
}

} // namespace

std::span<const OptionRule> SoundTabRules()
{
    return rules;
}

void ShowSoundTab(const Truth& truth, Controls& controls)
{
    const Circumstances now(truth);
    GreyOptions(rules, now, controls);
    controls.cbChannels.enabled = controls.TexLabel[Texts::AudioChannels].enabled = now.sound;
    controls.RicoButton[Step::Down].enabled = controls.RicoButton[Step::Up].enabled =
        controls.Ricotext.enabled = ricochets(now) && now.on.RicochetSetting;

    controls.SelectionList.show(truth.facts.playlists);
    controls.SelectionList.startAs(controls.SelectionList.find(now.on.PlaylistName));
    DisableMusic(now, controls);
    const bool manual = now.on.ManualPlaylistOn;
    controls.chkSound[Sound::ManualPlaylist].caption = manual ? u"Load"_s : u"Manual"_s;
    controls.chkSound[Sound::ManualPlaylist].colour = manual ? Colour::Red : Colour::Normal;
    controls.chkSound[Sound::AutoPlaylist].colour = now.on.AutoPlaylistsOn ? Colour::Red : Colour::Normal;
}
