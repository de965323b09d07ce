#include "options/SoundPage.h"

#include "ui/PageBinder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

SoundPage::SoundPage(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    PageBinder make(binder);
    auto& sound = controls.chkSound;
    QBoxLayout* boxes = PageBinder::column({
        make.checkBox(u"chkSound"_s, sound, 3),
        make.checkBox(u"chkSound"_s, sound, 1),
        make.checkBox(u"chkSound"_s, sound, 0),
        make.checkBox(u"chkSound"_s, sound, 9),
        make.checkBox(u"chkSound"_s, sound, 6),
        make.checkBox(u"chkSound"_s, sound, 7),
        make.checkBox(u"chkSound"_s, sound, 8),
    });
    QBoxLayout* amounts = PageBinder::column({
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

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(
        make.frame(u"SoundFrame_0"_s, controls.SoundFrame[0], PageBinder::beside({boxes, amounts})));
}
