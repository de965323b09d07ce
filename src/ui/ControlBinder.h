#pragma once

#include "ui/Control.h"
#include "ui/ToolTipView.h"

#include <QObject>
#include <QSet>
#include <QWidget>
#include <functional>
#include <vector>

class FrameView;
class ListView;
class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;

// Ties controls to the widgets that show them: a user's signal becomes the control's event, and after
// every event the widgets get what differs. Nothing else sets a bound widget's state. Controls and
// widgets must outlive the binder; each widget is named after its control ("chkMain_2", "PwadList").
class ControlBinder : public QObject
{
    Q_OBJECT

public:
    // `window` is the one with the widgets; their tips belong to it.
    explicit ControlBinder(QWidget* window = nullptr);

    // A part of the window or a picture: only shown and hidden, since greying a part greys nothing in it.
    // `writeRest` writes what else there is.
    void bind(const QString& name, Control& control, QWidget* widget, std::function<void()> writeRest = {});
    void bind(const QString& name, Control& control, FrameView* frame);
    void bind(const QString& name, Control& control, QLabel* label);
    void bind(const QString& name, Button& control, QAbstractButton* button);
    void bind(const QString& name, CheckBox& control, QAbstractButton* box); // a checkable one
    void bind(const QString& name, OptionButtons& control, const QList<QAbstractButton*>& buttons);
    void bind(const QString& name, TextBox& control, QLineEdit* edit);
    void bind(const QString& name, ListBox& control, ListView* list);
    void bind(const QString& name, ListBox& control, QComboBox* list);

    // Runs `event`, then writes: for events that come from no bound widget. While another one runs, only
    // a modal dialog's events get through; what else comes in meanwhile is dropped.
    void run(const std::function<void()>& event);
    bool isRunning() const { return m_running > 0; }

    // Runs `event` now, or when the one that is running has ended.
    void runAfter(std::function<void()> event);

    // Writes to the widgets what differs from their controls.
    void write();

Q_SIGNALS:
    void aboutToWrite(); // what is written may still change
    void written();

private:
    void name(QWidget* widget, const QString& objectName);
    void writeName(const Control& control, QWidget* widget);
    void writePart(const Control& control, QWidget* widget);
    void writeShared(const Control& control, QWidget* widget);
    void writeToolTip(const Control& control, QWidget* widget);

    clsToolTip m_toolTips;
    QSet<const QWidget*> m_namedByCaption; // their accessible name is the caption, as it changes
    std::vector<std::function<void()>> m_writers;
    std::vector<std::function<void()>> m_waiting; // until nothing runs
    int m_running = 0;                            // events within each other
};

// The name of a control of an array.
QString NameOf(const QString& array, int index);
