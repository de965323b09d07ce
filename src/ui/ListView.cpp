#include "ui/ListView.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include <algorithm>

bool ListRows::take(const ListBox& list)
{
    if (m_entries == list.entries() && m_filter == list.filter())
        return false;
    beginResetModel();
    m_entries = list.entries();
    m_filter = list.filter();
    m_rows.clear();
    m_rows.reserve(list.count());
    for (int entry = 0; entry < list.count(); ++entry)
        if (list.isInSight(entry))
            m_rows << entry;
    endResetModel();
    return true;
}

QModelIndex ListRows::rowOf(int entry) const
{
    const auto found = std::ranges::lower_bound(m_rows, entry);
    const bool inSight = found != m_rows.cend() && *found == entry;
    return inSight ? index(static_cast<int>(found - m_rows.cbegin())) : QModelIndex();
}

int ListRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ListRows::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? m_entries.value(entryOf(index)) : QVariant();
}

ListView::ListView(const QString& whyEmpty, const QString& whyNoneInSight, QWidget* parent)
    : QListView(parent), m_whyEmpty(whyEmpty), m_whyNoneInSight(whyNoneInSight)
{
    setModel(&m_rows);
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
}

void ListView::showList(const ListBox& list)
{
    const QScopedValueRollback quiet(m_quiet, true);
    const bool rowsAreNew = m_rows.take(list);
    const QModelIndex selected = m_rows.rowOf(list.selected());
    if (!rowsAreNew && selected == currentIndex())
        return;
    showCurrent(selected);
    if (selected.isValid())
        scrollTo(selected);
    else if (rowsAreNew)
        scrollToTop();
}

void ListView::showCurrent(const QModelIndex& row)
{
    if (!row.isValid())
        clearSelection();
    setCurrentIndex(row);
}

void ListView::pickFirst()
{
    setCurrentIndex(m_rows.index(0));
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex& index, const QEvent*) const
{
    // No key or button takes the selection away from the current row.
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    if (current.isValid() && !m_quiet)
        Q_EMIT picked(m_rows.entryOf(current));
}

void ListView::mousePressEvent(QMouseEvent* event)
{
    const QModelIndex before = currentIndex();
    const QModelIndex pressed = indexAt(event->position().toPoint());
    {
        // The pick may change the list: it has to wait until the view is done with the press.
        const QScopedValueRollback quiet(m_quiet, true);
        QListView::mousePressEvent(event);
    }
    if (pressed.isValid() && (pressed != before || event->button() == Qt::LeftButton))
        Q_EMIT picked(m_rows.entryOf(pressed));
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && pressed.isValid() && pressed == currentIndex())
        Q_EMIT doublePicked(m_rows.entryOf(pressed));
    else
        mousePressEvent(event);
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    // The menu key itself arrives as a context menu event.
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        askMenuByKey();
    else
        QListView::keyPressEvent(event);
}

void ListView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        askMenuByKey();
    else if (indexAt(event->pos()) == currentIndex())
        askMenu(event->pos());
}

void ListView::askMenu(QPoint at)
{
    if (currentIndex().isValid())
        Q_EMIT menuAsked(m_rows.entryOf(currentIndex()), viewport()->mapToGlobal(at));
}

void ListView::askMenuByKey()
{
    scrollTo(currentIndex());
    askMenu(visualRect(currentIndex()).bottomLeft());
}

void ListView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QListView::initViewItemOption(option);
    // What is chosen stays in sight while the keyboard is elsewhere: some systems pale it into the
    // background.
    option->state |= QStyle::State_Active;
}

void ListView::focusInEvent(QFocusEvent* event)
{
    // The keyboard coming by chooses nothing: without this the first row would become the current one.
    const QScopedValueRollback quiet(m_quiet, true);
    const bool nothingChosen = !currentIndex().isValid();
    QListView::focusInEvent(event);
    if (nothingChosen)
        showCurrent({});
}

void ListView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (m_rows.rowCount() > 0)
        return;
    constexpr int margin = 8;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap,
                     m_rows.hasEntries() ? m_whyNoneInSight : m_whyEmpty);
}
