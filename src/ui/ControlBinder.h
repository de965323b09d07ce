#pragma once

#include "ui/Control.h"

#include <QObject>
#include <QWidget>
#include <functional>
#include <vector>

class ListView;
class QAbstractButton;
class QCheckBox;
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
    explicit ControlBinder(QObject* parent = nullptr) : QObject(parent) {}

    // A frame, a label, a picture: shown and greyed, and its caption goes to `setCaption` if there is one.
    void bind(const QString& name, Control& control, QWidget* widget,
              std::function<void(const QString&)> setCaption = {});
    void bind(const QString& name, Control& control, QLabel* label);
    void bind(const QString& name, Button& control, QAbstractButton* button);
    void bind(const QString& name, CheckBox& control, QCheckBox* box);
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
    void written();

private:
    std::vector<std::function<void()>> m_writers;
    std::vector<std::function<void()>> m_waiting; // until nothing runs
    int m_running = 0;                            // events within each other
};

// The name of a control of an array.
QString NameOf(const QString& array, int index);
