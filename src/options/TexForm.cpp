#include "options/TexForm.h"

#include "options/TexturePath.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

TexForm::TexForm(Launcher& launcher, QWidget* parent)
    : QDialog(parent), m_launcher(launcher), m_path(new QLineEdit)
{
    setObjectName(u"TexForm"_s);
    setWindowTitle(u"Custom Hi-Res Textures and Patches Location"_s);
    m_path->setObjectName(u"HiResText"_s);
    m_path->setAccessibleName(u"Location of Parent Directory"_s);
    m_path->setMinimumWidth(420);
    auto* button = new QPushButton(u"Browse"_s);
    button->setObjectName(u"TexButton"_s);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, &TexForm::browse);

    auto* frame = new QGroupBox(u"  Location of Parent Directory "_s);
    frame->setObjectName(u"GraphicFrames_6"_s);
    auto* row = new QHBoxLayout(frame);
    row->addWidget(m_path);
    row->addWidget(button);

    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(frame);
    const QString texts[] = {
        u"IMPORTANT"_s,
        u"Both textures and patches folders need to be located in the same parent directory"_s,
        u"An example of this could be D:\\Doom\\Hires Stuff"_s};
    for (int i = 0; i < 3; ++i) {
        auto* label = new QLabel(texts[i]);
        label->setObjectName(u"ReadLabel_"_s + QString::number(i));
        rows->addWidget(label);
    }

    if (!launcher.settings.DisableToolTips) {
        SetUpToolTips(m_toolTips, this);
        m_toolTips.AddTool(button, u"Browse for a custom hires texture folder."_s);
        m_toolTips.AddTool(m_path, u"Specify a custom hi-res texture path, as a rule\r\n"
                                   "you don't need to worry about this as the default\r\n"
                                   "paths used by the pack installation are adequate."_s);
    }
    m_path->setText(ShowTexturePath(launcher));
}

void TexForm::done(int result)
{
    KeepTexturePath(m_launcher, m_path->text());
    QDialog::done(result);
}

void TexForm::browse()
{
    m_path->setText(SetTexPath(m_launcher, m_path->text()));
}
