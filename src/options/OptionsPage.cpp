#include "options/OptionsPage.h"

#include "ui/PageBinder.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

QWidget* gameFrame(Controls& controls, PageBinder& make)
{
    auto& options = controls.chkVYKOpts;
    return make.frame(u"OptFrame_0"_s, controls.OptFrame[0],
                      {
                          make.checkBox(u"chkVYKOpts"_s, options, 5),
                          make.checkBox(u"chkVYKOpts"_s, options, 6),
                          make.checkBox(u"chkVYKOpts"_s, options, 7),
                          make.checkBox(u"chkVYKOpts"_s, options, 8),
                          make.checkBox(u"chkVYKOpts"_s, options, 4),
                          make.checkBox(u"chkTesting"_s, controls.chkTesting),
                      });
}

QWidget* launcherFrame(Controls& controls, PageBinder& make)
{
    constexpr int iconSize = 16;
    auto& preferences = controls.chkLaunchPrefs;
    auto* folder = new QLabel;
    folder->setPixmap(folder->style()->standardIcon(QStyle::SP_DirLinkIcon).pixmap(iconSize));
    return make.frame(u"OptFrame_1"_s, controls.OptFrame[1],
                      {
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 0),
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 1),
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 4),
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 5),
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 2),
                          make.checkBox(u"chkLaunchPrefs"_s, preferences, 3),
                          PageBinder::row({make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, 2), folder}),
                      });
}

QWidget* launchModeFrame(Controls& controls, PageBinder& make)
{
    const auto modes = make.optionButtons(u"ExitOption"_s, controls.ExitOption);
    return make.frame(u"OptFrame_2"_s, controls.OptFrame[2],
                      {PageBinder::row({modes.at(0), modes.at(1), modes.at(2)})});
}

// A button that deletes, and the label that says what.
QLayout* purge(Controls& controls, PageBinder& make, int button, int label)
{
    Control& what = controls.DelLabel[static_cast<size_t>(label)];
    QLabel* text = make.label(NameOf(u"DelLabel"_s, label), what);
    QBoxLayout* row = PageBinder::row({text});
    row->addWidget(make.button(NameOf(u"ButPurge"_s, button), controls.ButPurge[static_cast<size_t>(button)],
                               what.caption));
    return row;
}

QWidget* controlsFrame(Controls& controls, PageBinder& make, QWidget* hotSpot)
{
    return make.frame(u"OptFrame_3"_s, controls.OptFrame[3],
                      {
                          make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, 0),
                          make.checkBox(u"chkVYKOpts"_s, controls.chkVYKOpts, 1),
                          make.checkBox(u"chkMain"_s, controls.chkMain, 7),
                          PageBinder::row({
                              make.checkBox(u"ChkGL"_s, controls.ChkGL),
                              make.label(u"ExpLabel"_s, controls.ExpLabel),
                              make.spinner({u"Explosion"_s, u"Timeout"_s, controls.Timeout, u"butLeft2"_s,
                                            controls.butLeft2, u"butRight2"_s, controls.butRight2}),
                          }),
                          PageBinder::row({
                              make.checkBox(u"TexPathLabel"_s, controls.TexPathLabel),
                              make.toolButton(controls.AuxButton, 9, u"Browse for the hi-res location"_s),
                          }),
                          purge(controls, make, 1, 0),
                          purge(controls, make, 0, 1),
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
