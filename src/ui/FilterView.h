#pragma once

#include <QLineEdit>

class ListView;

// The box above a list that takes a part of the names wanted. Escape empties it and leads to the list; so
// do Down and Enter, which keep what was typed, and Enter selects the first match.
class FilterView : public QLineEdit
{
    Q_OBJECT

public:
    // `list` must outlive this box.
    FilterView(const QString& whatItDoes, ListView* list, QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void goToList(bool selectFirst);

    ListView* m_list;
};
