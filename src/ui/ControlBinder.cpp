#include "ui/ControlBinder.h"

#include "ui/FrameView.h"
#include "ui/ListView.h"
#include "ui/StyleView.h"
#include "ui/TaskMenuView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

void writeCaption(const Control& control, QAbstractButton* button)
{
    const QString caption = AsPlainCaption(control.caption);
    if (button->text() != caption)
        button->setText(caption);
}

} // namespace

QString NameOf(const QString& array, int index)
{
    return array + u'_' + QString::number(index);
}

ControlBinder::ControlBinder(QWidget* window) : QObject(window)
{
    SetUpToolTips(m_toolTips, window);
}

void ControlBinder::name(QWidget* widget, const QString& objectName)
{
    widget->setObjectName(objectName);
    if (!widget->accessibleName().isEmpty())
        return;
    widget->setAccessibleName(objectName);
    m_namedByCaption.insert(widget);
}

void ControlBinder::writeName(const Control& control, QWidget* widget)
{
    const QString caption = control.caption.trimmed();
    if (!caption.isEmpty() && m_namedByCaption.contains(widget) && widget->accessibleName() != caption)
        widget->setAccessibleName(caption);
}

void ControlBinder::writePart(const Control& control, QWidget* widget)
{
    // A widget of a page that is not shown keeps its own flag, so ask for it, not for what is seen.
    if (widget->isVisibleTo(widget->parentWidget()) != control.visible)
        widget->setVisible(control.visible);
    writeName(control, widget);
    writeToolTip(control, widget);
    ShowColour(widget, control.colour);
}

void ControlBinder::writeShared(const Control& control, QWidget* widget)
{
    writePart(control, widget);
    if (widget->testAttribute(Qt::WA_ForceDisabled) == control.enabled)
        widget->setEnabled(control.enabled);
}

void ControlBinder::writeToolTip(const Control& control, QWidget* widget)
{
    const QString& text = control.toolTip;
    if (!clsToolTip::fIsWindow(widget)) {
        if (widget->toolTip() != text)
            widget->setToolTip(text);
    } else if (text.isEmpty()) {
        m_toolTips.RemoveTool(widget);
    } else if (!m_toolTips.AddTool(widget, text) && m_toolTips.ToolText(widget) != text) {
        m_toolTips.setToolText(widget, text);
    }
}

void ControlBinder::bind(const QString& objectName, Control& control, QWidget* widget,
                         std::function<void()> writeRest)
{
    name(widget, objectName);
    m_writers.emplace_back([this, &control, widget, writeRest = std::move(writeRest)] {
        writePart(control, widget);
        if (writeRest)
            writeRest();
    });
}

void ControlBinder::bind(const QString& objectName, Control& control, FrameView* frame)
{
    bind(objectName, control, frame, [&control, frame] {
        const QString title = AsPlainCaption(control.caption.trimmed());
        if (frame->title() != title)
            frame->setTitle(title);
        frame->setGreyed(!control.enabled);
    });
}

void ControlBinder::bind(const QString& objectName, Control& control, QLabel* label)
{
    name(label, objectName);
    label->setTextFormat(Qt::PlainText);
    m_writers.emplace_back([this, &control, label] {
        writeShared(control, label);
        if (label->text() != control.caption)
            label->setText(control.caption);
    });
}

void ControlBinder::bind(const QString& objectName, Button& control, QAbstractButton* button)
{
    name(button, objectName);
    m_writers.emplace_back([this, &control, button] {
        writeShared(control, button);
        writeCaption(control, button);
    });
    connect(button, &QAbstractButton::clicked, this, [this, &control] {
        run([&control] {
            if (control.clicked)
                control.clicked();
        });
    });
}

void ControlBinder::bind(const QString& objectName, CheckBox& control, QAbstractButton* box)
{
    name(box, objectName);
    m_writers.emplace_back([this, &control, box] {
        writeShared(control, box);
        writeCaption(control, box);
        if (box->isChecked() != control.ticked())
            box->setChecked(control.ticked());
    });
    connect(box, &QAbstractButton::clicked, this,
            [this, &control](bool on) { run([&control, on] { control.setTicked(on); }); });
}

void ControlBinder::bind(const QString& objectName, OptionButtons& control,
                         const QList<QAbstractButton*>& buttons)
{
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
        QAbstractButton* button = buttons.at(i);
        name(button, NameOf(objectName, i));
        m_writers.emplace_back([this, &control, i, button] {
            writeShared(control.button(i), button);
            writeCaption(control.button(i), button);
            if (button->isChecked() != (control.selected() == i))
                button->setChecked(control.selected() == i);
        });
        connect(button, &QAbstractButton::clicked, this,
                [this, &control, i] { run([&control, i] { control.click(i); }); });
    }
}

void ControlBinder::bind(const QString& objectName, TextBox& control, QLineEdit* edit)
{
    name(edit, objectName);
    edit->setAcceptDrops(false); // files dropped on it are for the window
    m_writers.emplace_back([this, &control, edit] {
        writeShared(control, edit);
        if (edit->text() != control.text) {
            edit->setText(control.text);
            if (edit->isReadOnly())
                edit->setCursorPosition(0); // a text that is too long shows its start
        }
        if (edit->isReadOnly() && edit->placeholderText() != control.placeholder)
            edit->setPlaceholderText(control.placeholder);
    });
    connect(edit, &QLineEdit::textEdited, this, [this, &control](const QString& text) {
        run([&control, text] {
            control.text = text;
            if (control.typed)
                control.typed();
        });
    });
}

void ControlBinder::bind(const QString& objectName, ListBox& control, ListView* list)
{
    name(list, objectName);
    m_writers.emplace_back([this, &control, list] {
        writeShared(control, list);
        list->showList(control);
    });
    connect(list, &ListView::picked, this,
            [this, &control](int entry) { run([&control, entry] { control.click(entry); }); });
    connect(list, &ListView::doublePicked, this, [this, &control](int entry) {
        if (control.doubleClicked && control.selected() == entry)
            run(control.doubleClicked);
    });
    connect(list, &ListView::menuAsked, this, [this, &control, list](int entry, QPoint at) {
        const bool isSelected = control.selected() == entry;
        const Menu* menu = control.taskMenu && isSelected && !isRunning() ? control.taskMenu() : nullptr;
        if (menu)
            PopUpTaskMenu(*menu, list, at, [this](const MenuItem& item) {
                if (item.clicked)
                    run(item.clicked);
            });
    });
}

void ControlBinder::bind(const QString& objectName, ListBox& control, QComboBox* list)
{
    name(list, objectName);
    m_writers.emplace_back([this, &control, list, shown = QStringList()]() mutable {
        writeShared(control, list);
        if (shown != control.entries()) {
            shown = control.entries();
            list->clear();
            list->addItems(shown);
        }
        if (list->currentIndex() != control.selected())
            list->setCurrentIndex(control.selected());
        if (list->placeholderText() != control.text)
            list->setPlaceholderText(control.text);
    });
    connect(list, &QComboBox::activated, this,
            [this, &control](int row) { run([&control, row] { control.click(row); }); });
}

void ControlBinder::run(const std::function<void()>& event)
{
    if (isRunning() && !QApplication::activeModalWidget())
        return;
    {
        const QScopedValueRollback running(m_running, m_running + 1);
        event();
    }
    write();
    if (!isRunning())
        for (const auto& waiting : std::exchange(m_waiting, {}))
            run(waiting);
}

void ControlBinder::runAfter(std::function<void()> event)
{
    if (isRunning())
        m_waiting.push_back(std::move(event));
    else
        run(event);
}

void ControlBinder::write()
{
    Q_EMIT aboutToWrite();
    for (const auto& writer : m_writers)
        writer();
    Q_EMIT written();
}
