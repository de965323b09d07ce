#include "app/StripBar.h"

#include "ui/PageBinder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class DigitsOnly : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override
    {
        const bool digits = std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
        return digits ? Acceptable : Invalid;
    }
};

} // namespace

StripBar::StripBar(Controls& controls, ControlBinder& binder, QWidget* parent) : QWidget(parent)
{
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    PageBinder make(binder);
    rows->addLayout(playRow(controls, make, binder));
    rows->addWidget(commandPanel(controls, make, binder));
    rows->addLayout(launchRow(controls, make));
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

QBoxLayout* StripBar::playRow(Controls& controls, PageBinder& make, ControlBinder& binder)
{
    auto* skillFrame = new QWidget;
    auto* inFrame = new QHBoxLayout(skillFrame);
    inFrame->setContentsMargins(0, 0, 0, 0);
    binder.bind(u"SkillFrame"_s, controls.SkillFrame, skillFrame);

    QBoxLayout* row = PageBinder::row({
        make.checkBox(u"chkMain"_s, controls.chkMain, Main::BasicDoom),
        make.checkBox(u"ChkModelOpts"_s, controls.ChkModelOpts, ModelOpts::Fx),
        make.checkBox(u"ChkModelOpts"_s, controls.ChkModelOpts, ModelOpts::CoreEffects),
        make.checkBox(u"chkMain"_s, controls.chkMain, Main::NoMonsters),
    });
    row->setSpacing(16);
    row->addWidget(new QLabel(u"Skill"_s));
    row->addWidget(make.dropDown(u"SkillsLevel_0"_s, controls.SkillsLevel[SkillList::Advanced], u"Skill"_s));
    inFrame->addWidget(make.dropDown(u"SkillsLevel_1"_s, controls.SkillsLevel[SkillList::Basic], u"Skill"_s));
    row->addWidget(skillFrame);
    return row;
}

QWidget* StripBar::commandPanel(Controls& controls, PageBinder& make, ControlBinder& binder)
{
    auto* commandLine = new QWidget;
    auto* commandRow = new QHBoxLayout(commandLine);
    commandRow->setContentsMargins(0, 0, 0, 0);
    QLineEdit* edit = make.textBox(u"edCustom"_s, controls.edCustom, u"Command Line"_s);
    edit->setPlaceholderText(u"Extra engine parameters"_s);
    commandRow->addWidget(edit);
    binder.bind(u"FrameGlobal_1"_s, controls.FrameGlobal[Panel::CommandLine], commandLine);

    auto* editing = new QWidget;
    QBoxLayout* editRow = PageBinder::row({
        make.checkBox(u"chkMain"_s, controls.chkMain, Main::EditMode),
        make.checkBox(u"chkMain"_s, controls.chkMain, Main::NoObjects),
        make.checkBox(u"chkMain"_s, controls.chkMain, Main::Light),
        lightLevel(controls, make),
    });
    editRow->setContentsMargins(0, 0, 0, 0);
    editing->setLayout(editRow);
    binder.bind(u"FrameGlobal_2"_s, controls.FrameGlobal[Panel::EditMode], editing);

    auto* toggle = new QToolButton;
    toggle->setAccessibleName(u"Toggle between VYK edit and the command line"_s);
    toggle->setArrowType(Qt::RightArrow);
    toggle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    binder.bind(u"SelButton"_s, controls.SelButton, toggle);

    QLineEdit* preview =
        make.textBox(u"CommandPreview"_s, controls.CommandPreview, u"Command line preview"_s);
    preview->setReadOnly(true);
    QAbstractButton* copy = make.button(u"CopyPreview"_s, controls.CopyPreview, u"Copy the command line"_s);

    auto* rows = new QGridLayout;
    rows->setVerticalSpacing(6);
    rows->setColumnStretch(0, 1);
    rows->addWidget(commandLine, 0, 0);
    rows->addWidget(editing, 0, 0);
    rows->addWidget(toggle, 0, 1);
    rows->addWidget(preview, 1, 0);
    rows->addWidget(copy, 1, 1);
    return make.frame(u"FrameGlobal_0"_s, controls.FrameGlobal[Panel::Whole], rows);
}

QWidget* StripBar::lightLevel(Controls& controls, PageBinder& make)
{
    QLineEdit* light = make.textBox(u"LightText"_s, controls.LightText, u"Light level"_s);
    light->setMaximumWidth(64);
    light->setValidator(new DigitsOnly(light));
    return light;
}

QBoxLayout* StripBar::launchRow(Controls& controls, PageBinder& make)
{
    QBoxLayout* row = PageBinder::row({make.checkBox(u"chkMain"_s, controls.chkMain, Main::AdvancedOptions)});
    QAbstractButton* launch = make.button(u"LaunchButton"_s, controls.LaunchButton);
    launch->setMinimumSize(200, 40);
    m_launch = launch;
    enlargeLaunch();
    row->addWidget(launch);
    return row;
}
