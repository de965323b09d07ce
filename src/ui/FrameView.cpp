#include "ui/FrameView.h"

#include <QStyleOptionGroupBox>

void FrameView::setGreyed(bool greyed)
{
    if (greyed == m_greyed)
        return;
    m_greyed = greyed;
    update();
}

void FrameView::initStyleOption(QStyleOptionGroupBox* option) const
{
    QGroupBox::initStyleOption(option);
    if (!m_greyed)
        return;
    option->state &= ~QStyle::State_Enabled;
    option->palette.setCurrentColorGroup(QPalette::Disabled);
}
