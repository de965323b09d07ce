#include "options/GraphicsPage.h"

#include "ui/PageBinder.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

QLayout* skyRow(Controls& controls, PageBinder& make)
{
    QCheckBox* skyboxes = make.checkBox(u"chkGraphics"_s, controls.chkGraphics, Graphics::Skyboxes);
    const auto modes = make.optionButtons(u"SkyOpt"_s, controls.SkyOpt, {u"Sky mode 2"_s, u"Sky mode 1"_s});
    return PageBinder::row({skyboxes, modes.at(0), modes.at(1)});
}

QWidget* packsFrame(Controls& controls, PageBinder& make)
{
    auto& graphics = controls.chkGraphics;
    return make.frame(u"GraphicFrames_5"_s, controls.GraphicFrames[GraphicsFrame::Graphics],
                      {
                          make.checkBox(u"chkGraphics"_s, graphics, Graphics::DetailTextures),
                          make.checkBox(u"chkMain"_s, controls.chkMain, Main::HighResTextures),
                          make.checkBox(u"chkGraphics"_s, graphics, Graphics::HighResPatches),
                          skyRow(controls, make),
                          make.checkBox(u"chkGraphics"_s, graphics, Graphics::Spare0),
                          make.checkBox(u"chkGraphics"_s, graphics, Graphics::Spare1),
                      });
}

QWidget* lightingFrame(Controls& controls, PageBinder& make)
{
    return make.frame(u"GraphicFrames_4"_s, controls.GraphicFrames[GraphicsFrame::Lighting],
                      {
                          make.checkBox(u"chkEffects"_s, controls.chkEffects, Effects::DynamicLighting),
                          make.checkBox(u"chkEffects"_s, controls.chkEffects, Effects::Splashes),
                          make.checkBox(u"chkEffects"_s, controls.chkEffects, Effects::Spare),
                      });
}

QWidget* corpseFrame(Controls& controls, PageBinder& make)
{
    return make.frame(u"GraphicFrames_3"_s, controls.GraphicFrames[GraphicsFrame::CorpseFade],
                      {
                          make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, VYKOpts::ResurrectCorpses),
                          PageBinder::row({
                              make.spinner({u"Corpse fade"_s, u"Corpse"_s, controls.Corpse, u"butleft"_s,
                                            controls.butleft, u"butRight"_s, controls.butRight}),
                              make.label(u"TexLabel"_s, controls.TexLabel, Texts::CorpseFade),
                          }),
                      });
}

QWidget* resolutionFrame(Controls& controls, PageBinder& make)
{
    constexpr int iconSize = 16;
    auto* screen = new QLabel;
    screen->setPixmap(screen->style()->standardIcon(QStyle::SP_ComputerIcon).pixmap(iconSize));
    screen->setAlignment(Qt::AlignTop);
    auto& labels = controls.ResLabel;
    QBoxLayout* texts = PageBinder::column({
        make.label(u"ResLabel"_s, labels, ResolutionText::Resolution),
        make.label(u"ResLabel"_s, labels, ResolutionText::Mode),
        make.label(u"ResLabel"_s, labels, ResolutionText::RefreshRate),
        make.label(u"ResLabel"_s, labels, ResolutionText::Hint),
    });
    return make.frame(u"GraphicFrames_0"_s, controls.GraphicFrames[GraphicsFrame::Resolution],
                      {PageBinder::row({screen, texts})});
}

} // namespace

GraphicsPage::GraphicsPage(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    PageBinder make(binder);
    QBoxLayout* columns = PageBinder::beside({
        PageBinder::stack({packsFrame(controls, make), lightingFrame(controls, make)}),
        PageBinder::stack({corpseFrame(controls, make), resolutionFrame(controls, make)}),
    });
    columns->setContentsMargins(0, 0, 0, 0);
    setLayout(columns);
}
