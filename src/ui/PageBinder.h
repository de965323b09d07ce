#pragma once

#include "ui/ControlBinder.h"

#include <QBoxLayout>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

// What can stand in a row or a column: a widget or a layout.
struct PageItem
{
    PageItem(QWidget* item) : widget(item) {}
    PageItem(QLayout* item) : layout(item) {}

    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
};
using PageItems = std::initializer_list<PageItem>;

// Makes the widgets of a page, binds each to its control, and puts them in rows, columns and frames. The
// keyboard goes through them in the order in which they are made. An accessible name is needed where a
// control's caption says too little.
class PageBinder
{
public:
    explicit PageBinder(ControlBinder& binder) : m_binder(binder) {}

    QCheckBox* checkBox(const QString& name, CheckBox& control);
    QAbstractButton* pushBox(const QString& name, CheckBox& control, const QString& accessibleName);
    QLabel* label(const QString& name, Control& control);
    QAbstractButton* button(const QString& name, Button& control, const QString& accessibleName = {});
    QAbstractButton* toolButton(const QString& name, Button& control, int picture,
                                const QString& accessibleName = {});
    QComboBox* dropDown(const QString& name, ListBox& control, const QString& accessibleName);
    QLineEdit* textBox(const QString& name, TextBox& control, const QString& accessibleName);
    QList<QAbstractButton*> optionButtons(const QString& array, OptionButtons& controls,
                                          const QStringList& accessibleNames = {});

    // One of an array.
    template <class Name>
    QCheckBox* checkBox(const QString& array, ControlArray<CheckBox, Name>& controls, Name which)
    {
        return checkBox(NameOf(array, static_cast<int>(which)), controls[which]);
    }
    template <class Name>
    QLabel* label(const QString& array, ControlArray<Control, Name>& controls, Name which)
    {
        return label(NameOf(array, static_cast<int>(which)), controls[which]);
    }

    // A number with a button to lower it and one to raise it: the number itself takes no key.
    struct Spinner
    {
        QString what; // "Corpse fade": the buttons are "Corpse fade down" and "Corpse fade up"
        QString textName;
        TextBox& text;
        QString downName;
        Button& down;
        QString upName;
        Button& up;
    };
    QLayout* spinner(const Spinner& spinner);

    // A frame with its items below each other.
    QWidget* frame(const QString& name, Control& control, PageItems items);
    QWidget* frame(const QString& name, Control& control, QLayout* inside);

    // Followed by free space.
    static QBoxLayout* row(PageItems items);
    static QBoxLayout* column(PageItems items);

    // Frames below each other; the last one takes what room there is.
    static QBoxLayout* stack(std::initializer_list<QWidget*> frames);
    // Parts of the page beside each other, equally wide if their contents allow it.
    static QBoxLayout* beside(PageItems parts);

private:
    QAbstractButton* spinnerButton(const QString& name, Button& control, const QString& accessibleName);

    ControlBinder& m_binder;
};
