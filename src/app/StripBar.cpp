#include "app/StripBar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

QCheckBox* checkBox(ControlBinder& binder, CheckBox& control, const QString& name)
{
    auto* box = new QCheckBox;
    binder.bind(name, control, box);
    return box;
}

QComboBox* skillList(ControlBinder& binder, ListBox& control, const QString& name)
{
    auto* list = new QComboBox;
    list->setAccessibleName(u"Skill"_s);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    binder.bind(name, control, list);
    return list;
}

} // namespace

StripBar::StripBar(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addLayout(playRow(controls, binder));
    rows->addWidget(commandPanel(controls, binder));
    rows->addLayout(launchRow(controls, binder));
}

void StripBar::enlargeLaunch()
{
    constexpr double larger = 1.25;
    QFont font;
    font.setBold(true);
    font.setPointSizeF(this->font().pointSizeF() * larger);
    m_launch->setFont(font);
}

void StripBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange && m_launch)
        enlargeLaunch();
}

QBoxLayout* StripBar::playRow(Controls& controls, ControlBinder& binder)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(checkBox(binder, controls.chkMain[0], u"chkMain_0"_s));
    row->addWidget(checkBox(binder, controls.ChkModelOpts[2], u"ChkModelOpts_2"_s));
    row->addWidget(checkBox(binder, controls.ChkModelOpts[3], u"ChkModelOpts_3"_s));
    row->addWidget(checkBox(binder, controls.chkMain[6], u"chkMain_6"_s));
    row->addStretch();

    auto* skillFrame = new QWidget;
    auto* inFrame = new QHBoxLayout(skillFrame);
    inFrame->setContentsMargins(0, 0, 0, 0);
    inFrame->addWidget(skillList(binder, controls.SkillsLevel[1], u"SkillsLevel_1"_s));
    binder.bind(u"SkillFrame"_s, controls.SkillFrame, skillFrame);

    row->addWidget(new QLabel(u"Skill"_s));
    row->addWidget(skillList(binder, controls.SkillsLevel[0], u"SkillsLevel_0"_s));
    row->addWidget(skillFrame);
    return row;
}

QWidget* StripBar::commandPanel(Controls& controls, ControlBinder& binder)
{
    auto* commandLine = new QWidget;
    auto* commandRow = new QHBoxLayout(commandLine);
    commandRow->setContentsMargins(0, 0, 0, 0);
    auto* edit = new QLineEdit;
    edit->setAccessibleName(u"Command Line"_s);
    edit->setPlaceholderText(u"Extra engine parameters"_s);
    binder.bind(u"edCustom"_s, controls.edCustom, edit);
    commandRow->addWidget(edit);
    binder.bind(u"FrameGlobal_1"_s, controls.FrameGlobal[1], commandLine);

    auto* editing = new QWidget;
    auto* editRow = new QHBoxLayout(editing);
    editRow->setContentsMargins(0, 0, 0, 0);
    editRow->addWidget(checkBox(binder, controls.chkMain[5], u"chkMain_5"_s));
    editRow->addWidget(checkBox(binder, controls.chkMain[4], u"chkMain_4"_s));
    editRow->addWidget(checkBox(binder, controls.chkMain[3], u"chkMain_3"_s));
    auto* light = new QLineEdit;
    light->setAccessibleName(u"Light level"_s);
    light->setMaximumWidth(64);
    binder.bind(u"LightText"_s, controls.LightText, light);
    editRow->addWidget(light);
    editRow->addStretch();
    binder.bind(u"FrameGlobal_2"_s, controls.FrameGlobal[2], editing);

    auto* toggle = new QToolButton;
    toggle->setAccessibleName(u"Toggle between VYK edit and the command line"_s);
    toggle->setArrowType(Qt::RightArrow);
    binder.bind(u"SelButton"_s, controls.SelButton, toggle);

    auto* panel = new QGroupBox;
    auto* row = new QHBoxLayout(panel);
    row->addWidget(commandLine);
    row->addWidget(editing);
    row->addWidget(toggle);
    binder.bind(u"FrameGlobal_0"_s, controls.FrameGlobal[0], panel, [panel](const QString& caption) {
        if (panel->title() != caption.trimmed())
            panel->setTitle(caption.trimmed());
    });
    return panel;
}

QBoxLayout* StripBar::launchRow(Controls& controls, ControlBinder& binder)
{
    auto* launch = new QPushButton;
    launch->setMinimumSize(200, 40);
    m_launch = launch;
    enlargeLaunch();
    binder.bind(u"LaunchButton"_s, controls.LaunchButton, launch);

    auto* row = new QHBoxLayout;
    row->addWidget(checkBox(binder, controls.chkMain[2], u"chkMain_2"_s));
    row->addStretch();
    row->addWidget(launch);
    return row;
}
