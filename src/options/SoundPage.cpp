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
        make.checkBox(u"chkSound"_s, sound, 3),
        make.checkBox(u"chkSound"_s, sound, 1),
        make.checkBox(u"chkSound"_s, sound, 0),
        make.checkBox(u"chkSound"_s, sound, 9),
        make.checkBox(u"chkSound"_s, sound, 6),
        make.checkBox(u"chkSound"_s, sound, 7),
        make.checkBox(u"chkSound"_s, sound, 8),
        PageBinder::row({
            make.dropDown(u"cbChannels"_s, controls.cbChannels, u"Audio channels"_s),
            make.label(u"TexLabel"_s, controls.TexLabel, 2),
        }),
        PageBinder::row({
            make.checkBox(u"chkSound"_s, sound, 2),
            make.spinner({u"Ricochet interval"_s, u"Ricotext"_s, controls.Ricotext, u"RicoButton_0"_s,
                          controls.RicoButton[0], u"RicoButton_1"_s, controls.RicoButton[1]}),
        }),
    });

    auto* playlists = new ListView(u"There are no playlists yet.\n\"New\" makes one."_s);
    playlists->setAccessibleName(u"Playlists"_s);
    binder.bind(u"SelectionList"_s, controls.SelectionList, playlists);
    QBoxLayout* commands = PageBinder::column({
        make.button(u"butMusic_0"_s, controls.butMusic[0], u"New playlist"_s),
        make.button(u"butMusic_1"_s, controls.butMusic[1], u"Open playlist"_s),
        make.button(u"butMusic_2"_s, controls.butMusic[2], u"Delete playlist"_s),
    });
    QBoxLayout* choice = PageBinder::row({
        make.pushBox(u"chkSound_4"_s, sound[4], u"Auto playlist"_s),
        make.pushBox(u"chkSound_5"_s, sound[5], u"Manual playlist"_s),
        make.checkBox(u"chkSound"_s, sound, 10),
    });
    auto* listAndCommands = new QHBoxLayout;
    listAndCommands->addWidget(playlists, 1);
    listAndCommands->addLayout(commands);
    auto* music = new QVBoxLayout;
    music->addLayout(listAndCommands, 1);
    music->addLayout(choice);

    auto* frames = new QHBoxLayout(this);
    frames->setContentsMargins(0, 0, 0, 0);
    frames->addWidget(make.frame(u"SoundFrame_0"_s, controls.SoundFrame[0], options));
    frames->addWidget(make.frame(u"SoundFrame_1"_s, controls.SoundFrame[1], music), 1);
}
