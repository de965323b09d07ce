#pragma once

#include <QListView>
#include <QStringListModel>

// Shows the lines of a playlist, of which several can be selected. The current one is always in sight.
class PlaylistView : public QListView
{
    Q_OBJECT

public:
    explicit PlaylistView(QWidget* parent = nullptr);

    // Shows the lines; the current and the selected ones stay what they are as far as they still exist.
    void showLines(const QStringList& lines);

    int currentLine() const { return currentIndex().row(); } // -1 when there is none
    QList<int> selectedLines() const;                        // ascending

    // Makes the next line from the current one on that begins with `text`, without regard to case, the
    // current one; the search goes round.
    void goTo(const QString& text);

Q_SIGNALS:
    void addAsked(int line);                  // a double-click or Enter
    void removeAsked();                       // the Delete key
    void menuAsked(QPoint at);                // for the current line; a global position
    void fileDropped(int line, QString path); // one file, with '/'

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QStringListModel m_lines;
};
