#include "ui/TitleView.h"

#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>

namespace {

// The picture at the smallest size that covers `size` (pixels); null when it cannot be read.
QPixmap covering(const QString& path, QSize size)
{
    constexpr int largestSide = 16384; // a picture that claims more is not shown
    QImageReader reader(path);
    const QSize own = reader.size();
    if (own.isEmpty() || own.width() > largestSide || own.height() > largestSide)
        return {};
    reader.setScaledSize(own.scaled(size, Qt::KeepAspectRatioByExpanding));
    return QPixmap::fromImageReader(&reader);
}

} // namespace

TitleView::TitleView(QWidget* parent) : QWidget(parent)
{
    setFixedHeight(height);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TitleView::showPicture(const QString& path)
{
    if (path == m_path || path.isEmpty())
        return;
    if (!QImageReader(path).canRead())
        return;
    m_path = path;
    m_scaled = {};
    update();
}

void TitleView::paintEvent(QPaintEvent*)
{
    const QSize pixels = size() * devicePixelRatioF();
    if (!m_path.isEmpty() && (m_scaled.width() < pixels.width() || m_scaled.height() < pixels.height()))
        m_scaled = covering(m_path, pixels);
    QPainter painter(this);
    painter.fillRect(rect(), QColor(16, 8, 8));
    if (m_scaled.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize shown = m_scaled.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    const double scale = static_cast<double>(m_scaled.width()) / shown.width();
    const QSizeF crop = QSizeF(pixels) * scale;
    painter.drawPixmap(QRectF(rect()), m_scaled,
        QRectF(QPointF((m_scaled.width() - crop.width()) / 2, (m_scaled.height() - crop.height()) / 2), crop));
}

void TitleView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}
