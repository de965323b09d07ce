#include "ui/TitleView.h"

#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace {

// The picture at the smallest size that covers `size` (pixels); null when it cannot be read.
QImage covering(const QString& path, QSize size)
{
    constexpr int largestSide = 16384; // a picture that claims more is not shown
    QImageReader reader(path);
    const QSize own = reader.size();
    if (own.isEmpty() || own.width() > largestSide || own.height() > largestSide)
        return {};
    reader.setScaledSize(own.scaled(size, Qt::KeepAspectRatioByExpanding));
    return reader.read();
}

} // namespace

TitleView::TitleView(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(height);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize TitleView::pixels() const
{
    return QSize(std::max(width(), sizeHint().width()), height) * devicePixelRatioF();
}

void TitleView::read(const QString& path)
{
    m_path = path;
    m_reading = std::async(std::launch::async, covering, path, pixels());
    update();
}

void TitleView::showPicture(const QString& path)
{
    if (path != m_path && !path.isEmpty())
        read(path);
}

void TitleView::paintEvent(QPaintEvent*)
{
    if (m_reading.valid()) {
        const QImage picture = m_reading.get();
        if (!picture.isNull()) {
            m_picture = QPixmap::fromImage(picture);
            m_shownPath = m_path;
        }
    }
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.fillRect(rect(), QColor(16, 8, 8));
        return;
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize needed = size() * devicePixelRatioF();
    const QSize shown = m_picture.size().scaled(needed, Qt::KeepAspectRatioByExpanding);
    const double scale = static_cast<double>(m_picture.width()) / shown.width();
    const QSizeF crop = QSizeF(needed) * scale;
    const QPointF corner((m_picture.width() - crop.width()) / 2, (m_picture.height() - crop.height()) / 2);
    painter.drawPixmap(QRectF(rect()), m_picture, QRectF(corner, crop));
    if (shown.width() > m_picture.width())
        read(m_shownPath); // the window has grown: read the picture at its new size
}

void TitleView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}
