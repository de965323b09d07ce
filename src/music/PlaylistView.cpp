#include "music/PlaylistView.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace {

// The one file that is dragged; empty when it is another number, or none on a disk.
QString draggedFile(const QMimeData& dragged)
{
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

} // namespace

PlaylistView::PlaylistView(QWidget* parent) : QListView(parent)
{
    setModel(&m_lines);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setAcceptDrops(true);
}

void PlaylistView::showLines(const QStringList& lines)
{
    if (m_lines.stringList().size() != lines.size()) {
        const int current = currentLine();
        m_lines.setStringList(lines);
        setCurrentIndex(m_lines.index(qMin(current, static_cast<int>(lines.size()) - 1)));
    }
    for (int line = 0; line < lines.size(); ++line)
        if (const QModelIndex index = m_lines.index(line); index.data().toString() != lines.at(line))
            m_lines.setData(index, lines.at(line));
    scrollTo(currentIndex());
}

QList<int> PlaylistView::selectedLines() const
{
    QList<int> lines;
    for (const QModelIndex& index : selectedIndexes())
        lines << index.row();
    std::ranges::sort(lines);
    return lines;
}

void PlaylistView::goTo(const QString& text)
{
    const QModelIndex from = currentIndex().isValid() ? currentIndex() : m_lines.index(0);
    const QModelIndexList found =
        m_lines.match(from, Qt::DisplayRole, text, 1, Qt::MatchStartsWith | Qt::MatchWrap);
    if (!text.isEmpty() && !found.isEmpty())
        setCurrentIndex(found.first());
}

void PlaylistView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT addAsked(currentLine());
    else if (event->key() == Qt::Key_Delete)
        Q_EMIT removeAsked();
    else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        Q_EMIT menuAsked(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
    else
        QListView::keyPressEvent(event);
}

void PlaylistView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        Q_EMIT addAsked(indexAt(event->position().toPoint()).row());
}

void PlaylistView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    scrollTo(currentIndex());
    Q_EMIT menuAsked(byKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                           : event->globalPos());
}

void PlaylistView::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(!draggedFile(*event->mimeData()).isEmpty());
}

void PlaylistView::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::CopyAction); // the file stays where it is
    event->setAccepted(indexAt(event->position().toPoint()).isValid());
}

void PlaylistView::dropEvent(QDropEvent* event)
{
    const QModelIndex line = indexAt(event->position().toPoint());
    const QString path = draggedFile(*event->mimeData());
    if (!line.isValid() || path.isEmpty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setCurrentIndex(line);
    // Later: the program that it comes from waits until the drop has returned.
    QMetaObject::invokeMethod(
        this, [this, row = line.row(), path] { Q_EMIT fileDropped(row, path); }, Qt::QueuedConnection);
}

void PlaylistView::resizeEvent(QResizeEvent* event)
{
    QListView::resizeEvent(event);
    scrollTo(currentIndex());
}
