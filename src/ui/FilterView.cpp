#include "ui/FilterView.h"

#include "ui/ListView.h"

#include <QAbstractButton>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

FilterView::FilterView(const QString& whatItDoes, ListView* list, QWidget* parent)
    : QLineEdit(parent), m_list(list)
{
    setPlaceholderText(whatItDoes);
    setAccessibleName(whatItDoes);
}

void FilterView::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (isClearButtonEnabled())
        return;
    // Not before: finding its icon takes several milliseconds, which the start can do without.
    setClearButtonEnabled(true);
    auto* clearButton = findChild<QAbstractButton*>();
    clearButton->setObjectName(u"edFilterClear"_s);
    clearButton->setAccessibleName(u"Clear"_s);
}

void FilterView::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (!text().isEmpty()) {
            clear();
            Q_EMIT textEdited(QString());
        }
        m_list->setFocus();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToList(!text().trimmed().isEmpty());
        break;
    case Qt::Key_Down:
        goToList(!m_list->showsSelection());
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void FilterView::goToList(bool selectFirst)
{
    if (m_list->isEmpty())
        return;
    m_list->setFocus();
    if (selectFirst)
        m_list->pickFirst();
}
