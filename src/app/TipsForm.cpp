#include "app/TipsForm.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

TipsForm::TipsForm(Launcher& launcher, QWidget* parent) : QDialog(parent), m_tips(launcher)
{
    constexpr int pictureSize = 64;
    constexpr QSize tipSize(380, 130);
    setObjectName(u"TipsForm"_s);
    setWindowTitle(u"Tips for running the launcher"_s);

    auto* picture = new QLabel;
    picture->setPixmap(
        QApplication::windowIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatio()));
    picture->setAlignment(Qt::AlignTop);
    auto* heading = new QLabel(u"Did you know..."_s);
    heading->setObjectName(u"Label1"_s);
    QFont bold = heading->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.3);
    heading->setFont(bold);
    auto* tip = new QLabel;
    tip->setObjectName(u"lblTipText"_s);
    tip->setTextFormat(Qt::PlainText);
    tip->setTextInteractionFlags(Qt::TextSelectableByMouse);
    tip->setWordWrap(true);
    tip->setAlignment(Qt::AlignTop);
    tip->setMinimumSize(tipSize);
    const auto show = [this, tip] { tip->setText(m_tips.text().replace(u"\r\n"_s, u"\n"_s)); };
    show();

    auto* atStartup = new QCheckBox(u"&Show Tips at Startup"_s);
    atStartup->setObjectName(u"chkShowTips"_s);
    atStartup->setChecked(true);
    connect(atStartup, &QCheckBox::toggled, this, [this](bool on) { m_tips.showAtStartup(on); });
    auto* next = new QPushButton(u"&Next Tip"_s);
    next->setObjectName(u"cmdNextTip"_s);
    next->setAutoDefault(false);
    connect(next, &QPushButton::clicked, this, [this, show] {
        m_tips.next();
        show();
    });
    auto* ok = new QPushButton(u"OK"_s);
    ok->setObjectName(u"cmdOK"_s);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* texts = new QVBoxLayout;
    texts->addWidget(heading);
    texts->addWidget(tip, 1);
    auto* above = new QHBoxLayout;
    above->setSpacing(16);
    above->addWidget(picture);
    above->addLayout(texts, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(atStartup);
    buttons->addStretch();
    buttons->addWidget(next);
    buttons->addWidget(ok);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(above, 1);
    rows->addLayout(buttons);
    ok->setFocus();
}
