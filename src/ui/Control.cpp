#include "ui/Control.h"

#include <algorithm>
#include <limits>

int TextBox::number() const
{
    const QString trimmed = text.trimmed();
    qsizetype end = trimmed.startsWith(u'-') ? 1 : 0;
    while (end < trimmed.size() && trimmed.at(end) >= u'0' && trimmed.at(end) <= u'9')
        ++end;
    using Limits = std::numeric_limits<qint16>;
    return static_cast<int>(
        std::clamp(trimmed.left(end).toDouble(), double{Limits::min()}, double{Limits::max()}));
}

void CheckBox::setValue(int value)
{
    if (value == m_value)
        return;
    m_value = value;
    if (clicked)
        clicked();
}

void OptionButtons::select(int index)
{
    if (index != m_selected)
        click(index);
}

void OptionButtons::click(int index)
{
    if (index < 0 || index >= count())
        return;
    m_selected = index;
    if (clicked)
        clicked(index);
}

void ListBox::add(const QString& entry)
{
    qsizetype position = m_entries.size();
    if (m_order == Order::Sorted) {
        const auto after = std::upper_bound(
            m_entries.cbegin(), m_entries.cend(), entry,
            [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
        position = after - m_entries.cbegin();
    }
    m_entries.insert(position, entry);
    if (m_selected >= position)
        ++m_selected;
}

void ListBox::clear()
{
    m_entries.clear();
    m_selected = -1;
}

void ListBox::removeLast()
{
    m_entries.removeLast();
    m_selected = std::min(m_selected, count() - 1);
}

int ListBox::find(const QString& name) const
{
    for (int i = 0; i < count(); ++i)
        if (m_entries.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

void ListBox::select(int index)
{
    if (index < 0 || index >= count() || index == m_selected)
        return;
    m_selected = index;
    if (clicked)
        clicked();
}

void ListBox::click(int index)
{
    if (index < 0 || index >= count())
        return;
    m_selected = index;
    if (clicked)
        clicked();
    if (chosen)
        chosen();
}

void ListBox::setCurrentText(const QString& value)
{
    text = value;
    const int index = find(value);
    if (index >= 0)
        select(index);
    else
        deselect();
}
