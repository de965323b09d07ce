#include "options/SoundPage.h"

#include "ui/ListView.h"
#include "ui/PageBinder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

SoundPage::SoundPage(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    PageBinder make(binder);
    auto& sound = controls.chkSound;
    QBoxLayout* options = PageBinder::column({
        make.checkBox(u"chkSound"_s, sound, Sound::Sound3D),
        make.checkBox(u"chkSound"_s, sound, Sound::DisableMusic),
        make.checkBox(u"chkSound"_s, sound, Sound::DisableSound),
        make.checkBox(u"chkSound"_s, sound, Sound::FmodMidi),
        make.checkBox(u"chkSound"_s, sound, Sound::SoundPack),
        make.checkBox(u"chkSound"_s, sound, Sound::Spare7),
        make.checkBox(u"chkSound"_s, sound, Sound::Spare8),
        PageBinder::row({
            make.dropDown(u"cbChannels"_s, controls.cbChannels, u"Audio channels"_s),
            make.label(u"TexLabel"_s, controls.TexLabel, Texts::AudioChannels),
        }),
        PageBinder::row({
            make.checkBox(u"chkSound"_s, sound, Sound::Ricochets),
            make.spinner({u"Ricochet interval"_s, u"Ricotext"_s, controls.Ricotext, u"RicoButton_0"_s,
                          controls.RicoButton[Step::Down], u"RicoButton_1"_s, controls.RicoButton[Step::Up]}),
        }),
    });

    auto* playlists = new ListView(u"There are no playlists yet.\n\"New\" makes one."_s);
    playlists->setAccessibleName(u"Playlists"_s);
    binder.bind(u"SelectionList"_s, controls.SelectionList, playlists);
    QBoxLayout* commands = PageBinder::column({
        make.button(u"butMusic_0"_s, controls.butMusic[PlaylistCommand::New], u"New playlist"_s),
        make.button(u"butMusic_1"_s, controls.butMusic[PlaylistCommand::Open], u"Open playlist"_s),
        make.button(u"butMusic_2"_s, controls.butMusic[PlaylistCommand::Delete], u"Delete playlist"_s),
    });
    QBoxLayout* choice = PageBinder::row({
        make.pushBox(u"chkSound_4"_s, sound[Sound::AutoPlaylist], u"Auto playlist"_s),
        make.pushBox(u"chkSound_5"_s, sound[Sound::ManualPlaylist], u"Manual playlist"_s),
        make.checkBox(u"chkSound"_s, sound, Sound::IgnorePlaylist),
    });
    auto* listAndCommands = new QHBoxLayout;
    listAndCommands->addWidget(playlists, 1);
    listAndCommands->addLayout(commands);
    auto* music = new QVBoxLayout;
    music->addLayout(listAndCommands, 1);
    music->addLayout(choice);

    auto* frames = new QHBoxLayout(this);
    frames->setContentsMargins(0, 0, 0, 0);
    frames->addWidget(make.frame(u"SoundFrame_0"_s, controls.SoundFrame[SoundFrames::Options], options));
    frames->addWidget(make.frame(u"SoundFrame_1"_s, controls.SoundFrame[SoundFrames::Playlists], music), 1);
}
