#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <vector>

// The controls of the main window as plain data. The rules read and change them; a window, if there is
// one, shows them. `enabled` and `visible` are a control's own, never mixed with those of its frame.

enum class Colour {
    Normal, // the palette's text or button colour
    Accent, // (192, 0, 0)
    Red,    // (255, 0, 0)
};

struct Control
{
    QString caption;
    QString text;
    QString toolTip;
    bool enabled = true;
    bool visible = true;
    Colour colour = Colour::Normal;
};

// A push button or a picture that can be clicked.
struct Button : Control
{
    std::function<void()> clicked;
};

struct TextBox : Control
{
    // The whole number that the text begins with, within 16 bits; 0 when it begins with none.
    int number() const;

    QString placeholder;         // stands in an empty box
    std::function<void()> typed; // the player changed the text
};

struct MenuItem;

// A task menu: its entries from the top. They must outlive it.
using Menu = std::vector<MenuItem*>;

// An entry of a task menu.
struct MenuItem : Control
{
    bool isSeparator = false;
    Menu items; // the menu that it opens, if it does nothing else
    std::function<void()> clicked;
};

class CheckBox : public Control
{
public:
    int value() const { return m_value; } // 0 unticked, 1 ticked, 2 greyed
    bool ticked() const { return m_value == 1; }

    // Changes the value and runs `clicked`, as a user's click does. The value it already has runs nothing.
    void setValue(int value);
    void setTicked(bool on) { setValue(on ? 1 : 0); }

    // The value that the window is built with: runs nothing.
    void startAs(int value) { m_value = value; }

    std::function<void()> clicked; // the value changed

private:
    int m_value = 0;
};

// Option buttons of which one is selected.
class OptionButtons
{
public:
    explicit OptionButtons(int count) : m_buttons(static_cast<size_t>(count)) {}

    Control& button(int index) { return m_buttons.at(static_cast<size_t>(index)); }
    const Control& button(int index) const { return m_buttons.at(static_cast<size_t>(index)); }
    int count() const { return static_cast<int>(m_buttons.size()); }
    int selected() const { return m_selected; }

    // Selects a button and runs `clicked` with its index; the selected one, or an index outside the
    // array, runs nothing.
    void select(int index);

    // A user's click, which also counts on the selected button.
    void click(int index);

    // The selection that the window is built with, or one whose handler runs elsewhere: runs nothing.
    void startAs(int index) { m_selected = index; }

    std::function<void(int)> clicked;

private:
    std::vector<Control> m_buttons;
    int m_selected = 0;
};

// Controls of one kind, each found by its name: an enumeration whose last one is Count.
template <class Element, class Name>
class ControlArray
{
public:
    static constexpr int Size = static_cast<int>(Name::Count);

    Element& operator[](Name name) { return m_elements[static_cast<size_t>(name)]; }
    const Element& operator[](Name name) const { return m_elements[static_cast<size_t>(name)]; }

    auto begin() { return m_elements.begin(); }
    auto end() { return m_elements.end(); }
    auto begin() const { return m_elements.begin(); }
    auto end() const { return m_elements.end(); }

private:
    std::array<Element, static_cast<size_t>(Size)> m_elements;
};

// Option buttons that are found by their names.
template <class Name>
class OptionButtonArray : public OptionButtons
{
public:
    static constexpr int Size = static_cast<int>(Name::Count);

    OptionButtonArray() : OptionButtons(Size) {}

    Control& operator[](Name name) { return button(static_cast<int>(name)); }
    const Control& operator[](Name name) const { return button(static_cast<int>(name)); }
    bool isSelected(Name name) const { return selected() == static_cast<int>(name); }
    void click(Name name) { OptionButtons::click(static_cast<int>(name)); }
    using OptionButtons::click;
};

// What a list shows, and the name on disk that it stands for: the two differ where a list shows capitals.
struct ListEntry
{
    QString text;
    QString name;
    bool operator==(const ListEntry&) const = default;
};

// A list box or a drop-down list, with at most one selected entry.
class ListBox : public Control
{
public:
    enum class Order { AsAdded, Sorted };

    explicit ListBox(Order order = Order::AsAdded) : m_order(order) {}

    const QStringList& entries() const { return m_entries; }
    bool isEmpty() const { return m_entries.isEmpty(); }
    int count() const { return static_cast<int>(m_entries.size()); }
    QString entry(int index) const { return m_entries.value(index); }    // empty outside the list
    QString name(int index) const { return m_names.value(index); }       // empty outside the list
    int selected() const { return m_selected; }                          // -1 when none is
    QString selectedText() const { return m_entries.value(m_selected); } // empty when none is
    QString selectedName() const { return m_names.value(m_selected); }   // empty when none is

    void add(const QString& entry) { add({entry, entry}); }
    void add(const ListEntry& entry);
    void setEntries(QList<ListEntry> entries); // also clears the selection; runs nothing
    void clear();                              // also the selection; runs nothing

    // The same, and nothing at all where these are the entries already.
    void show(const QList<ListEntry>& entries);
    void show(const QStringList& entries);

    // The first entry whose name, else whose text, equals `name` without regard to case; -1 when there is
    // none.
    int find(const QString& name) const;

    // Only the entries whose text contains the filter, without regard to case, are in sight. The others
    // stay entries, and a selected one stays selected.
    const QString& filter() const { return m_filter; }
    void setFilter(const QString& filter) { m_filter = filter.trimmed(); }
    bool isInSight(int index) const { return entry(index).contains(m_filter, Qt::CaseInsensitive); }

    // Selects an entry and runs `clicked`; the selected one, or an index outside the list, runs nothing.
    void select(int index);

    // A user's click, which also counts on the selected entry.
    void click(int index);

    // Selects nothing, or an entry whose handler must not run; runs nothing.
    void deselect() { m_selected = -1; }
    void startAs(int index) { m_selected = index; }

    // A drop-down list's text: the selected entry's, else the text set last.
    QString currentText() const { return m_selected >= 0 ? selectedText() : text; }

    // Selects the entry equal to `value`, or shows it as a text that no entry has; runs nothing.
    void showText(const QString& value);

    std::function<void()> clicked;       // an entry was chosen
    std::function<void()> doubleClicked; // the user double-clicked the selected entry, after `clicked`

    // The task menu of the selected entry as it is now; null when it has none.
    std::function<const Menu*()> taskMenu;

private:
    QStringList m_entries;
    QStringList m_names;
    QList<ListEntry> m_shown; // what was to be shown last
    QString m_filter;
    int m_selected = -1;
    Order m_order;
};
