#include "shortcuts/ShortcutForm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QLabel* plainLabel(const QString& name, const QString& words)
{
    auto* label = new QLabel(words);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // names of games and folders are no markup
    return label;
}

const QString aboutShortcuts = u"\r\nThis will be located in the Keldrax shortcuts folder."
                               "\r\nNote: All current settings and options will be used."_s;

} // namespace

ShortcutForm::ShortcutForm(QWidget* parent) : QDialog(parent), m_button(new QPushButton)
{
    setObjectName(u"ShortcutForm"_s);
    m_button->setObjectName(u"OKButton"_s);
    m_button->setDefault(true);
    connect(m_button, &QPushButton::clicked, this, [this] { done(m_goesOn ? Accepted : Rejected); });
    SetUpToolTips(m_toolTips, this);
}

ShortcutForm::ShortcutForm(const ShortcutQuestion& question, QWidget* parent) : ShortcutForm(parent)
{
    setWindowTitle(u"Create Shortcut"_s);
    arrange(shortcutFrame(question));
    for (QCheckBox* place : {m_startMenu, m_desktop})
        connect(place, &QCheckBox::toggled, this, &ShortcutForm::CheckSelect);
    CheckSelect();
}

ShortcutForm::ShortcutForm(const CleanupQuestion& question, QWidget* parent) : ShortcutForm(parent)
{
    setWindowTitle(u"Model Pack Cleanup"_s);
    arrange(modelDelFrame(question));
    connect(m_delete, &QCheckBox::toggled, this, &ShortcutForm::CheckDelete);
    CheckDelete();
}

ShortcutChoice ShortcutForm::choice() const
{
    return {.StartMenuShortcut = m_startMenu->isChecked(),
            .DesktopShortcut = m_desktop->isChecked(),
            .IncludeMapInShortcut = m_map->isChecked()};
}

void ShortcutForm::arrange(QWidget* frame)
{
    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(frame);
    rows->addWidget(m_button, 0, Qt::AlignRight);
}

QCheckBox* ShortcutForm::box(const QString& name, const QString& caption, const QString& toolTip)
{
    auto* widget = new QCheckBox(caption);
    widget->setObjectName(name);
    if (!toolTip.isEmpty())
        m_toolTips.AddTool(widget, toolTip);
    return widget;
}

QWidget* ShortcutForm::shortcutFrame(const ShortcutQuestion& question)
{
    const auto tip = [&question](const QString& text) { return question.toolTips ? text : QString(); };
    m_startMenu = box(u"chkShortcut_0"_s, u" Add Start Menu Shortcut"_s,
                      tip(u"Create a Start Menu shortcut for the selected map."_s + aboutShortcuts));
    m_desktop = box(u"chkShortcut_1"_s, u" Add Desktop Shortcut"_s,
                    tip(u"Create a Desktop shortcut for the selected map."_s + aboutShortcuts));
    m_map = box(u"ChkMapNum"_s, u" Include map in Shortcut"_s,
                tip(u"Will also display the map number with the shortcut."_s));

    constexpr int textWidth = 260;
    auto* label = plainLabel(u"ShortcutLabel_1"_s, question.name);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setMinimumWidth(textWidth);
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setObjectName(u"ShortcutFrame"_s);
    auto* rows = new QVBoxLayout(frame);
    rows->addWidget(plainLabel(u"ShortcutLabel_0"_s, u"Starts without the launcher:"_s));
    rows->addWidget(label);
    rows->addSpacing(10);
    for (QCheckBox* widget : {m_startMenu, m_desktop, m_map})
        rows->addWidget(widget);
    return frame;
}

QWidget* ShortcutForm::modelDelFrame(const CleanupQuestion& question)
{
    constexpr int textWidth = 400;
    m_delete = box(u"chkModDel"_s, u"Remove all models"_s,
                   question.toolTips ? u"Remove all traces of the models pack."_s : QString());

    const auto text = [](const QString& name, const QString& words) {
        QLabel* label = plainLabel(name, words);
        label->setWordWrap(true);
        label->setMinimumWidth(textWidth);
        return label;
    };
    auto* frame = new QGroupBox(u" Remove Keldrax  Models"_s);
    frame->setObjectName(u"ModelDelFrame"_s);
    auto* rows = new QVBoxLayout(frame);
    rows->setSpacing(10);
    rows->addWidget(text(u"Label2"_s,
                         u"Cleanup all previously installed models prior to installing a new major"
                         " version or re-installing a corrupted pack."_s));
    rows->addWidget(text(u"Summary"_s, QString(question.summary).replace(u"\r\n"_s, u"\n"_s)));
    rows->addWidget(m_delete);
    return frame;
}

void ShortcutForm::CheckSelect()
{
    m_goesOn = m_startMenu->isChecked() || m_desktop->isChecked();
    m_button->setText(m_goesOn ? u"Create"_s : u"Cancel"_s);
    m_map->setEnabled(m_goesOn);
}

void ShortcutForm::CheckDelete()
{
    m_goesOn = m_delete->isChecked();
    m_button->setText(m_goesOn ? u"Cleanup"_s : u"Cancel"_s);
}
