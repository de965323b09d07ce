#include "options/OptionsPage.h"

#include "ui/PageBinder.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

QWidget* gameFrame(Controls& controls, PageBinder& make)
{
    auto& options = controls.chkVYKOpts;
    return make.frame(u"OptFrame_0"_s, controls.OptFrame[OptFrames::Game],
                      {
                          make.checkBox(u"chkVYKOpts"_s, options, VYKOpts::FastMonsters),
                          make.checkBox(u"chkVYKOpts"_s, options, VYKOpts::NoSameTypeInfighting),
                          make.checkBox(u"chkVYKOpts"_s, options, VYKOpts::NoLostSoulInfighting),
                          make.checkBox(u"chkVYKOpts"_s, options, VYKOpts::MonsterRespawn),
                          make.checkBox(u"chkVYKOpts"_s, options, VYKOpts::Spare),
                          make.checkBox(u"chkTesting"_s, controls.chkTesting),
                      });
}

QWidget* launcherFrame(Controls& controls, PageBinder& make)
{
    constexpr int iconSize = 16;
    auto& preferences = controls.chkLaunchPrefs;
    auto* folder = new QLabel;
    folder->setPixmap(folder->style()->standardIcon(QStyle::SP_DirLinkIcon).pixmap(iconSize));
    return make.frame(
        u"OptFrame_1"_s, controls.OptFrame[OptFrames::Launcher],
        {
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::RememberLastMap),
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::RememberLastSavegame),
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::WadFilesOnly),
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::TipOfTheDay),
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::ShortcutCreation),
            make.checkBox(u"chkLaunchPrefs"_s, preferences, LaunchPrefs::DisableToolTips),
            PageBinder::row(
                {make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, VYKOpts::AllowHiResRelocation), folder}),
            PageBinder::row({make.label(u"EngineLabel"_s, controls.EngineLabel),
                             make.dropDown(u"EngineList"_s, controls.EngineList, u"Engine"_s)}),
        });
}

QWidget* launchModeFrame(Controls& controls, PageBinder& make)
{
    const auto modes = make.optionButtons(u"ExitOption"_s, controls.ExitOption);
    return make.frame(u"OptFrame_2"_s, controls.OptFrame[OptFrames::LaunchMode],
                      {PageBinder::row({modes.at(0), modes.at(1), modes.at(2)})});
}

// A button that deletes, and the label that says what.
QLayout* purge(Controls& controls, PageBinder& make, Purge button, Deletion label)
{
    QBoxLayout* row = PageBinder::row({make.label(u"DelLabel"_s, controls.DelLabel, label)});
    row->addWidget(make.button(NameOf(u"ButPurge"_s, static_cast<int>(button)), controls.ButPurge[button],
                               controls.DelLabel[label].caption));
    return row;
}

QWidget* controlsFrame(Controls& controls, PageBinder& make, QWidget* hotSpot)
{
    return make.frame(
        u"OptFrame_3"_s, controls.OptFrame[OptFrames::Controls],
        {
            make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, VYKOpts::DisableMouse),
            make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, VYKOpts::DisableJoystick),
            make.checkBox(u"chkMain"_s, controls.chkMain, Main::Verbose),
            PageBinder::row({
                make.checkBox(u"ChkGL"_s, controls.ChkGL),
                make.label(u"ExpLabel"_s, controls.ExpLabel),
                make.spinner({u"Explosion"_s, u"Timeout"_s, controls.Timeout, u"butLeft2"_s,
                              controls.butLeft2, u"butRight2"_s, controls.butRight2}),
            }),
            PageBinder::row({
                make.checkBox(u"TexPathLabel"_s, controls.TexPathLabel),
                make.toolButton(u"AuxButton_9"_s, controls.AuxButton[Tool::TextureFolder],
                                static_cast<int>(Tool::TextureFolder), u"Browse for the hi-res location"_s),
            }),
            purge(controls, make, Purge::Nodes, Deletion::Nodes),
            purge(controls, make, Purge::SaveGames, Deletion::SaveGames),
            hotSpot,
        });
}

} // namespace

OptionsPage::OptionsPage(Controls& controls, ControlBinder& binder, QWidget* parent)
    : QWidget(parent), m_controls(controls), m_binder(binder)
{
    PageBinder make(binder);
    QBoxLayout* columns = PageBinder::beside({
        PageBinder::stack({gameFrame(controls, make), launchModeFrame(controls, make)}),
        launcherFrame(controls, make),
        controlsFrame(controls, make, hotSpot()),
    });
    columns->setContentsMargins(0, 0, 0, 0);
    setLayout(columns);
}

QWidget* OptionsPage::hotSpot()
{
    constexpr QSize size(24, 12);
    auto* spot = new QWidget;
    spot->setFixedSize(size);
    spot->installEventFilter(this);
    m_binder.bind(u"DevMode"_s, m_controls.DevMode, spot);
    return spot;
}

bool OptionsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick && m_controls.DevMode.clicked)
        m_binder.run(m_controls.DevMode.clicked);
    return QWidget::eventFilter(watched, event);
}
