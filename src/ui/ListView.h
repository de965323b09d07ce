#pragma once

#include "ui/Control.h"

#include <QAbstractListModel>
#include <QListView>

// The entries of a list box that its filter leaves in sight, as rows.
class ListRows : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    // Takes over the entries and the filter. Returns whether one differed: then all rows are new.
    bool take(const ListBox& list);

    bool hasEntries() const { return !m_entries.isEmpty(); }
    QModelIndex rowOf(int entry) const; // invalid when the entry is out of sight or there is none
    int entryOf(const QModelIndex& row) const { return row.isValid() ? m_rows.at(row.row()) : -1; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QStringList m_entries;
    QString m_filter;
    QList<int> m_rows; // their entries, ascending
};

// Shows a list box and says why it is empty. A press on a row selects it; a left press on the selected row
// counts as well; the keyboard's coming by selects nothing.
class ListView : public QListView
{
    Q_OBJECT

public:
    // `whyNoneInSight` is shown when there are entries and the filter hides them all.
    explicit ListView(const QString& whyEmpty, const QString& whyNoneInSight = {}, QWidget* parent = nullptr);

    // Shows the list's entries in sight and its selection, which is scrolled into sight when it is another.
    void showList(const ListBox& list);

    // Makes the first row the selected one, as the player does. Without rows nothing happens.
    void pickFirst();
    bool showsSelection() const { return currentIndex().isValid(); }
    bool isEmpty() const { return m_rows.rowCount() == 0; }

Q_SIGNALS:
    void picked(int entry);
    void doublePicked(int entry);
    void menuAsked(int entry, QPoint at); // a global position

protected:
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void showCurrent(const QModelIndex& row);
    void askMenu(QPoint at); // for the current row; a position in the viewport
    void askMenuByKey();

    ListRows m_rows;
    QString m_whyEmpty;
    QString m_whyNoneInSight;
    bool m_quiet = false; // a change of the current row is no pick
};
