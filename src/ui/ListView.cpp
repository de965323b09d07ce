#include "ui/ListView.h"

#include <QPainter>

ListView::ListView(const QString& whyEmpty, QWidget* parent) : QListWidget(parent), m_whyEmpty(whyEmpty)
{
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
}

void ListView::paintEvent(QPaintEvent* event)
{
    QListWidget::paintEvent(event);
    if (count() > 0)
        return;
    constexpr int margin = 8;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
        Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap, m_whyEmpty);
}
