#include "options/ModelsPage.h"

#include "ui/PageBinder.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

QWidget* packsFrame(Controls& controls, PageBinder& make)
{
    auto& packs = controls.chkAltModels;
    return make.frame(u"FrameModel_0"_s, controls.FrameModel[ModelsFrame::Packs],
                      {
                          make.checkBox(u"chkAltModels"_s, packs, AltModels::Replacements),
                          make.checkBox(u"chkAltModels"_s, packs, AltModels::Kelspack),
                          make.checkBox(u"chkAltModels"_s, packs, AltModels::KelspackAlternative),
                          make.checkBox(u"chkAltModels"_s, packs, AltModels::PistolZombies),
                          make.checkBox(u"ChkModelOpts"_s, controls.ChkModelOpts, ModelOpts::NoForcedModels),
                      });
}

QLayout* smokeRow(Controls& controls, PageBinder& make)
{
    QCheckBox* gunSmoke = make.checkBox(u"GunSmoke"_s, controls.GunSmoke);
    const auto modes = make.optionButtons(u"Smoke"_s, controls.Smoke, {u"Smoke mode 2"_s, u"Smoke mode 1"_s});
    return PageBinder::row({gunSmoke, modes.at(0), modes.at(1)});
}

QWidget* effectsFrame(Controls& controls, PageBinder& make)
{
    return make.frame(
        u"FrameModel_1"_s, controls.FrameModel[ModelsFrame::Effects],
        {smokeRow(controls, make), make.checkBox(u"chkEffects"_s, controls.chkEffects, Effects::ExtraFx)});
}

QWidget* scalingFrame(Controls& controls, PageBinder& make)
{
    return make.frame(u"GraphicFrames_1"_s, controls.GraphicFrames[GraphicsFrame::SkinScaling],
                      {PageBinder::row({
                          make.dropDown(u"cbScaler"_s, controls.cbScaler, u"Model skin scaling"_s),
                          make.label(u"TexLabel"_s, controls.TexLabel, Texts::SkinScaling),
                      })});
}

// Advice for players who have no model packs yet, or old ones.
QWidget* adviceBanner(Controls& controls, PageBinder& make)
{
    auto& labels = controls.ModLabel;
    QBoxLayout* website = PageBinder::row({
        make.label(u"ModLabel"_s, labels, Advice::NewPacks),
        make.label(u"ModLabel"_s, labels, Advice::FromWebsite),
    });
    website->addWidget(make.label(u"ModLabel"_s, labels, Advice::Downloads));
    QBoxLayout* cleanup = PageBinder::row({
        make.label(u"ModLabel"_s, labels, Advice::CleanUpFirst),
        make.button(u"ButPurge_2"_s, controls.ButPurge[Purge::Models], u"Clean up models"_s),
    });
    return make.frame(u"ModFrame"_s, controls.ModFrame, {website, cleanup});
}

} // namespace

ModelsPage::ModelsPage(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    PageBinder make(binder);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(PageBinder::beside({
                        packsFrame(controls, make),
                        PageBinder::stack({effectsFrame(controls, make), scalingFrame(controls, make)}),
                    }),
                    1);
    rows->addWidget(adviceBanner(controls, make));
}
