#include "options/GraphicsPage.h"
#include "options/ModelsPage.h"
#include "options/OptionsPage.h"
#include "options/SoundPage.h"
#include "state/VisitControls.h"
#include "ui/FrameView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

// The four pages of options over plain controls: no rule is in force.
class OptionPagesWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_binder.reset();
        m_window = std::make_unique<QWidget>();
        m_controls = std::make_unique<Controls>();
        m_binder = std::make_unique<ControlBinder>(m_window.get());
        Controls& controls = *m_controls;
        auto* rows = new QVBoxLayout(m_window.get());
        rows->addWidget(new OptionsPage(controls, *m_binder));
        rows->addWidget(new GraphicsPage(controls, *m_binder));
        rows->addWidget(new SoundPage(controls, *m_binder));
        rows->addWidget(new ModelsPage(controls, *m_binder));

        m_binder->write();
        m_window->show();
    }

    void everyWidgetIsItsControl()
    {
        QStringList withoutBox, pressed, expected;
        int captions = 0;
        const auto prepare = [&](const QString& name, auto& control, QWidget* widget) {
            control.caption = u" & "_s + name;
            if constexpr (requires { control.ticked(); }) {
                const auto* box = qobject_cast<const QAbstractButton*>(widget);
                QVERIFY2(box && box->isVisible() == control.visible && box->isEnabled() == control.enabled &&
                             box->isChecked() == control.ticked(),
                         qPrintable(name));
            } else if constexpr (std::is_same_v<Button&, decltype(control)>) {
                if (name == u"DevMode"_s || name.startsWith(u"ImageDG"_s))
                    return; // have no caption, and their own kinds of clicks
                control.clicked = [&pressed, name] { pressed << name; };
                expected << name;
            }
            control.enabled = control.visible = true;
        };
        const auto note = [&]<class Type>(const QString& name, const Type&) {
            if constexpr (std::is_same_v<Type, CheckBox>)
                withoutBox << name;
        };
        const auto check = [&](const QString& name, auto& control, QWidget* widget) {
            const QString caption = u" && "_s + name;
            if constexpr (requires { control.ticked(); }) {
                const bool before = control.ticked();
                qobject_cast<QAbstractButton*>(widget)->click();
                QVERIFY2(control.ticked() != before, qPrintable(name));
            }
            if (auto* button = qobject_cast<QAbstractButton*>(widget); button && expected.contains(name))
                button->click();
            if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
                QCOMPARE(button->text(), caption);
            else if (const auto* label = qobject_cast<const QLabel*>(widget))
                QCOMPARE(label->text(), control.caption);
            else if (const auto* frame = qobject_cast<const FrameView*>(widget))
                QCOMPARE(frame->title(), caption.trimmed());
            else
                return;
            ++captions;
        };
        visitWidgets(prepare, note);
        m_binder->write();
        visitWidgets(check, [](const QString&, const Control&) {});
        QCOMPARE(withoutBox.join(u' '), // which are in the strip, or in no place
                 u"ChkCM chkAutoSelect chkMain_0 chkMain_2 chkMain_3 chkMain_4 chkMain_5 chkMain_6 "
                 "ChkModelOpts_0 ChkModelOpts_2 ChkModelOpts_3"_s);
        QCOMPARE(pressed, expected);
        QCOMPARE(pressed.join(u' '),
                 u"AuxButton_9 butleft butRight butLeft2 butRight2 RicoButton_0 RicoButton_1 "
                 "butMusic_0 butMusic_1 butMusic_2 ButPurge_0 ButPurge_1 ButPurge_2"_s);
        QVERIFY(captions > 85);
    }

    void everyOptionButtonIsItsControl()
    {
        const std::pair<QString, OptionButtons&> arrays[] = {{u"ExitOption"_s, m_controls->ExitOption},
                                                             {u"SkyOpt"_s, m_controls->SkyOpt},
                                                             {u"Smoke"_s, m_controls->Smoke}};
        for (const auto& [name, control] : arrays)
            for (int i = control.count() - 1; i >= 0; --i) {
                control.button(i).enabled = control.button(i).visible = true;
                m_binder->write();
                find<QAbstractButton>(NameOf(name, i))->click();
                QCOMPARE(control.selected(), i);
            }
    }

    void inputsHaveAName()
    {
        QStringList names;
        for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
            if (widget->focusPolicy() == Qt::NoFocus || widget->window() != m_window.get())
                continue;
            const QString name = widget->accessibleName();
            QVERIFY2(name.size() > 1, qPrintable(widget->objectName()));
            QVERIFY2(name == u"Spare"_s || !names.contains(name),
                     qPrintable(name)); // read aloud, each is itself
            names << name;
        }
        QCOMPARE(find(u"butleft"_s)->accessibleName(), u"Corpse fade down"_s);
        QCOMPARE(find(u"ButPurge_0"_s)->accessibleName(), u"Delete all saved games"_s); // as its label says
    }

    void theHotSpotTakesADoubleClick()
    {
        m_controls->DevMode.clicked = [this] { m_controls->chkTesting.visible = true; };
        m_controls->chkTesting.visible = false;
        m_binder->write();
        QTest::mouseClick(find(u"DevMode"_s), Qt::LeftButton);
        QVERIFY(!find(u"chkTesting"_s)->isVisible());
        QTest::mouseDClick(find(u"DevMode"_s), Qt::LeftButton);
        QVERIFY(find(u"chkTesting"_s)->isVisible());
    }

private:
    template <class Widget = QWidget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }
    // Calls visit(name, control, widget) for each control that has a widget, and one for each that has none.
    template <class Visit, class Missing>
    void visitWidgets(Visit visit, Missing missing)
    {
        VisitControls(*m_controls, [&](QStringView array, int index, auto& control) {
            const QString name = index < 0 ? array.toString() : NameOf(array.toString(), index);
            if constexpr (std::is_base_of_v<Control, std::remove_cvref_t<decltype(control)>>) {
                if (QWidget* widget = find(name))
                    visit(name, control, widget);
                else
                    missing(name, control);
            }
        });
    }

    std::unique_ptr<Controls> m_controls;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ControlBinder> m_binder;
};

QTEST_MAIN(OptionPagesWindowTest)
#include "OptionPagesWindowTest.moc"
