#include "ui/ListView.h"

#include <QPainter>
#include <QSignalBlocker>

ListView::ListView(const QString& whyEmpty, QWidget* parent) : QListWidget(parent), m_whyEmpty(whyEmpty)
{
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
}

void ListView::focusInEvent(QFocusEvent* event)
{
    // The keyboard coming by chooses nothing: without this the first entry would become the current one.
    const QSignalBlocker quiet(this);
    const bool nothingChosen = currentRow() < 0;
    QListWidget::focusInEvent(event);
    if (nothingChosen)
        setCurrentRow(-1);
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
