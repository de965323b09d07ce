#include "iwads/IwadForm.h"

#include "platform/Paths.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

// The labels of the warning, in the order in which they are read.
const struct
{
    int index;
    const char16_t* text;
} warningLabels[] = {
    {0, u"IMPORTANT:"},
    {2, u"No Iwad locations were detected, read the launcher docs for "},
    {1, u"a list of compliant locations. Alternatively you can add your own"},
    {4, u"user defined locations by using the 'Add Iwad' button below."},
};

} // namespace

IwadForm::IwadForm(Launcher& launcher, QWidget* parent)
    : QDialog(parent),
      m_launcher(launcher),
      m_dialog(launcher),
      m_warning(warningFrame()),
      m_boxes(new QWidget)
{
    setWindowTitle(u" Iwad Locations"_s);
    setObjectName(u"IwadForm"_s);
    SetUpToolTips(m_toolTips, this);

    auto* boxes = new QVBoxLayout(m_boxes);
    boxes->setContentsMargins(0, 0, 0, 0);
    for (size_t i = 0; i < m_showIwads.size(); ++i) {
        auto* box = m_showIwads[i] = new QLineEdit;
        box->setReadOnly(true);
        box->setMinimumWidth(460);
        box->setObjectName(u"ShowIwads_"_s + QString::number(i));
        box->setAccessibleName(u"IWAD %1"_s.arg(i + 1));
        boxes->addWidget(box);
    }

    auto* buttons = new QHBoxLayout;
    const auto button = [&](const QString& name, const QString& caption, const QString& toolTip,
                            auto pressed) {
        auto* widget = new QPushButton(caption);
        widget->setObjectName(name);
        widget->setAutoDefault(false);
        m_tips << std::pair<QWidget*, QString>(widget, toolTip);
        connect(widget, &QPushButton::clicked, this, pressed);
        buttons->addWidget(widget);
        return widget;
    };
    const auto then = [this](void (IwadDialog::*command)()) {
        return [this, command] {
            (m_dialog.*command)();
            write();
        };
    };
    m_search = button(u"butSearchIwad"_s, u"Search"_s, u"Scan for compliant Iwad locations."_s,
                      then(&IwadDialog::search));
    m_reset =
        button(u"butReset"_s, u"Reset"_s, u"Clears Iwad locations from list."_s, then(&IwadDialog::reset));
    m_add = button(u"butAddIwad"_s, u"Add Iwad"_s,
                   u"User can add Iwads if a compliant\r\nIwad location is not detected."_s,
                   then(&IwadDialog::addIwad));
    buttons->addStretch();
    m_ok = button(u"butOK"_s, u"OK"_s, u"Accept changes if any and exit."_s, [this] { acceptChanges(); });
    m_ok->setDefault(true);

    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(m_warning);
    rows->addWidget(m_boxes);
    rows->addLayout(buttons);
}

QFrame* IwadForm::warningFrame()
{
    auto* frame = new QFrame;
    frame->setObjectName(u"IwadsWarning"_s);
    frame->setMinimumWidth(460);
    auto* rows = new QVBoxLayout(frame);
    rows->setContentsMargins(0, 0, 0, 8);
    rows->setSpacing(0);
    for (const auto& row : warningLabels) {
        // A flat button, so that the help opens from the keyboard too.
        auto* label = new QPushButton(QString::fromUtf16(row.text));
        label->setObjectName(u"Warning_"_s + QString::number(row.index));
        label->setFlat(true);
        label->setAutoDefault(false);
        QFont font = label->font();
        font.setBold(row.index == 0);
        label->setFont(font);
        label->setFocusPolicy(row.index == 0 ? Qt::TabFocus : Qt::NoFocus);
        connect(label, &QPushButton::clicked, this, [this] { m_dialog.openHelp(); });
        rows->addWidget(label, 0, Qt::AlignLeft);
    }
    return frame;
}

void IwadForm::show()
{
    m_dialog.activate();
    ToolTipText();
    write();
    m_ok->setFocus();
    exec();
}

void IwadForm::ToolTipText()
{
    for (const auto& [control, text] : std::as_const(m_tips)) {
        if (m_launcher.settings.DisableToolTips)
            m_toolTips.RemoveTool(control);
        else
            m_toolTips.AddTool(control, text);
    }
}

void IwadForm::acceptChanges()
{
    if (m_launcher.startUp.ShuttingDown || m_dialog.accept())
        accept();
    else
        write();
}

void IwadForm::write()
{
    m_warning->setVisible(m_dialog.warningShown());
    m_boxes->setVisible(!m_dialog.warningShown());
    for (size_t i = 0; i < m_showIwads.size(); ++i)
        m_showIwads[i]->setText(NativePath(m_launcher.facts.iwads.ShowIwads[i]));
    m_search->setEnabled(m_dialog.canSearch());
    m_add->setEnabled(m_dialog.canAdd());
    m_launcher.window.refresh();
}
