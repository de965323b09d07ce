#include "ui/PageBinder.h"

#include "ui/FrameView.h"
#include "ui/ToolButtonView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int betweenRows = 6;
constexpr int inRow = 8;
constexpr int betweenFrames = 12;

void add(QBoxLayout* layout, PageItems items, int stretch = 0)
{
    for (const PageItem& item : items) {
        if (item.widget)
            layout->addWidget(item.widget, stretch);
        else
            layout->addLayout(item.layout, stretch);
    }
}

} // namespace

QCheckBox* PageBinder::checkBox(const QString& name, CheckBox& control)
{
    auto* box = new QCheckBox;
    m_binder.bind(name, control, box);
    return box;
}

QAbstractButton* PageBinder::pushBox(const QString& name, CheckBox& control, const QString& accessibleName)
{
    auto* box = new QPushButton;
    box->setCheckable(true);
    box->setAccessibleName(accessibleName);
    m_binder.bind(name, control, box);
    return box;
}

QLabel* PageBinder::label(const QString& name, Control& control)
{
    auto* label = new QLabel;
    m_binder.bind(name, control, label);
    return label;
}

QAbstractButton* PageBinder::button(const QString& name, Button& control, const QString& accessibleName)
{
    auto* button = new QPushButton;
    button->setAccessibleName(accessibleName);
    m_binder.bind(name, control, button);
    return button;
}

QAbstractButton* PageBinder::toolButton(const QString& name, Button& control, int picture,
                                        const QString& accessibleName)
{
    auto* button = new ToolButtonView(picture);
    button->setAccessibleName(accessibleName);
    m_binder.bind(name, control, button);
    return button;
}

QComboBox* PageBinder::dropDown(const QString& name, ListBox& control, const QString& accessibleName)
{
    auto* list = new QComboBox;
    list->setAccessibleName(accessibleName);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_binder.bind(name, control, list);
    return list;
}

QLineEdit* PageBinder::textBox(const QString& name, TextBox& control, const QString& accessibleName)
{
    auto* edit = new QLineEdit;
    edit->setAccessibleName(accessibleName);
    m_binder.bind(name, control, edit);
    return edit;
}

QList<QAbstractButton*> PageBinder::optionButtons(const QString& array, OptionButtons& controls,
                                                  const QStringList& accessibleNames)
{
    QList<QAbstractButton*> buttons;
    for (int i = 0; i < controls.count(); ++i) {
        buttons << new QRadioButton;
        buttons.last()->setAccessibleName(accessibleNames.value(i));
    }
    m_binder.bind(array, controls, buttons);
    return buttons;
}

QLayout* PageBinder::spinner(const Spinner& spinner)
{
    constexpr int numberWidth = 40;
    QLineEdit* number = textBox(spinner.textName, spinner.text, spinner.what);
    number->setReadOnly(true);
    number->setFocusPolicy(Qt::NoFocus);
    number->setAlignment(Qt::AlignCenter);
    number->setFixedWidth(numberWidth);
    auto* items = new QHBoxLayout;
    items->setSpacing(2);
    add(items, {number, spinnerButton(spinner.downName, spinner.down, spinner.what + u" down"_s),
                spinnerButton(spinner.upName, spinner.up, spinner.what + u" up"_s)});
    return items;
}

QAbstractButton* PageBinder::spinnerButton(const QString& name, Button& control,
                                           const QString& accessibleName)
{
    constexpr int width = 28;
    auto* button = new QToolButton;
    button->setAccessibleName(accessibleName);
    button->setFocusPolicy(Qt::TabFocus); // a click leaves no focus mark
    button->setFixedWidth(width);
    button->setAutoRepeat(true);
    m_binder.bind(name, control, button);
    return button;
}

QWidget* PageBinder::frame(const QString& name, Control& control, PageItems items)
{
    return frame(name, control, column(items));
}

QWidget* PageBinder::frame(const QString& name, Control& control, QLayout* inside)
{
    auto* frame = new FrameView;
    frame->setLayout(inside);
    m_binder.bind(name, control, frame);
    return frame;
}

QBoxLayout* PageBinder::row(PageItems items)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(inRow);
    add(row, items);
    row->addStretch();
    return row;
}

QBoxLayout* PageBinder::column(PageItems items)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(betweenRows);
    add(column, items);
    column->addStretch();
    return column;
}

QBoxLayout* PageBinder::stack(std::initializer_list<QWidget*> frames)
{
    auto* stack = new QVBoxLayout;
    stack->setSpacing(betweenRows);
    for (QWidget* frame : frames)
        stack->addWidget(frame);
    stack->setStretch(stack->count() - 1, 1);
    return stack;
}

QBoxLayout* PageBinder::beside(PageItems parts)
{
    auto* beside = new QHBoxLayout;
    beside->setSpacing(betweenFrames);
    add(beside, parts, 1);
    return beside;
}
