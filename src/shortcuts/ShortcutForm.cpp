#include "shortcuts/ShortcutForm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ShortcutForm::ShortcutForm(const CleanupQuestion& question, QWidget* parent)
    : QDialog(parent), m_delete(new QCheckBox(u"Remove all models"_s)), m_button(new QPushButton)
{
    setObjectName(u"ShortcutForm"_s);
    setWindowTitle(u"Model Pack Cleanup"_s);

    m_button->setObjectName(u"OKButton"_s);
    m_button->setDefault(true);
    connect(m_button, &QPushButton::clicked, this,
            [this] { done(m_delete->isChecked() ? Accepted : Rejected); });
    connect(m_delete, &QCheckBox::toggled, this, &ShortcutForm::CheckDelete);
    CheckDelete();

    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(modelDelFrame(question));
    rows->addWidget(m_button, 0, Qt::AlignRight);
}

QWidget* ShortcutForm::modelDelFrame(const CleanupQuestion& question)
{
    constexpr int textWidth = 400;
    m_delete->setObjectName(u"chkModDel"_s);
    SetUpToolTips(m_toolTips, this);
    if (question.toolTips)
        m_toolTips.AddTool(m_delete, u"Remove all traces of the models pack."_s);

    const auto text = [](const QString& name, const QString& words) {
        auto* label = new QLabel(words);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText); // folder names are no markup
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

void ShortcutForm::CheckDelete()
{
    m_button->setText(m_delete->isChecked() ? u"Cleanup"_s : u"Cancel"_s);
}
