#include "options/ConfirmForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

ConfirmForm::ConfirmForm(const std::function<void(bool)>& neverAgain, QWidget* parent) : QDialog(parent)
{
    setObjectName(u"ConfirmForm"_s);
    setWindowTitle(u"Model pack cleanup"_s);

    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->setSpacing(4);
    const struct
    {
        QString name, text;
    } labels[] = {
        {u"CautionLab_1"_s,
         u"CAUTION: continuing will permanently remove all traces of the selected packs"_s},
        {u"CautionLab_2"_s, u" including any custom changes or tweaks you may have made to these packs."_s},
    };
    for (const auto& row : labels) {
        auto* label = new QLabel(row.text);
        label->setObjectName(row.name);
        rows->addWidget(label);
    }

    auto* never = new QCheckBox(u"Don't ask this in the future"_s);
    never->setObjectName(u"ChkConfirm"_s);
    connect(never, &QCheckBox::toggled, this, neverAgain);

    const auto button = [this](const QString& name, const QString& caption, auto pressed) {
        auto* widget = new QPushButton(caption);
        widget->setObjectName(name);
        connect(widget, &QPushButton::clicked, this, pressed);
        return widget;
    };
    QPushButton* cancel = button(u"CancelButton"_s, u"Cancel"_s, &QDialog::reject);
    cancel->setDefault(true);
    QPushButton* go = button(u"OKButton"_s, u"Continue"_s, &QDialog::accept);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(never);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(go);
    rows->addSpacing(12);
    rows->addLayout(buttons);
    cancel->setFocus();
}
