#include "ui/Control.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace {

bool comesBefore(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

} // namespace

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

void ListBox::add(const ListEntry& entry)
{
    qsizetype position = m_entries.size();
    if (m_order == Order::Sorted)
        position =
            std::ranges::upper_bound(std::as_const(m_entries), entry.text, comesBefore) - m_entries.cbegin();
    m_shown.clear();
    m_entries.insert(position, entry.text);
    m_names.insert(position, entry.name);
    if (m_selected >= position)
        ++m_selected;
}

void ListBox::setEntries(QList<ListEntry> entries)
{
    const auto inOrder = [](const ListEntry& a, const ListEntry& b) { return comesBefore(a.text, b.text); };
    // Mostly they come in order: a folder's names do.
    if (m_order == Order::Sorted && !std::ranges::is_sorted(entries, inOrder))
        std::ranges::stable_sort(entries, inOrder);
    clear();
    m_entries.reserve(entries.size());
    m_names.reserve(entries.size());
    for (const ListEntry& entry : entries) {
        m_entries << entry.text;
        m_names << entry.name;
    }
}

void ListBox::clear()
{
    m_entries.clear();
    m_names.clear();
    m_shown.clear();
    m_selected = -1;
}

void ListBox::show(const QList<ListEntry>& entries)
{
    if (entries == m_shown)
        return;
    setEntries(entries);
    m_shown = entries;
}

void ListBox::show(const QStringList& entries)
{
    QList<ListEntry> same;
    for (const QString& entry : entries)
        same << ListEntry{entry, entry};
    show(same);
}

int ListBox::find(const QString& name) const
{
    for (const QStringList& list : {m_names, m_entries})
        for (int i = 0; i < count(); ++i)
            if (list.at(i).compare(name, Qt::CaseInsensitive) == 0)
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
}

void ListBox::showText(const QString& value)
{
    m_selected = find(value);
    text = m_selected >= 0 ? QString() : value;
}
