#include "options/GraphicsPage.h"
#include "options/ModelsPage.h"
#include "options/OptionsPage.h"
#include "options/SoundPage.h"
#include "ui/FrameView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QtTest>

using namespace Qt::StringLiterals;

// The four pages of options over plain controls: no rule is in force.
class OptionPagesWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyCheckBoxIsItsControl();
    void everyOptionButtonIsItsControl();
    void everyButtonIsItsControl();
    void listsLabelsAndFramesSayWhatTheirControlsSay();
    void inputsHaveAName();
    void aGreyedFrameLeavesWhatIsInItAlone();
    void spinnersTakeButtonsOnly();
    void theHotSpotTakesADoubleClick();
    void tipsFollowTheControls();

private:
    template <class Widget = QWidget>
    Widget* find(const QString& name) const
    {
        return m_window->findChild<Widget*>(name);
    }
    template <size_t Size>
    void addBoxes(const QString& array, std::array<CheckBox, Size>& boxes, std::initializer_list<int> indexes)
    {
        for (const int index : indexes)
            m_boxes << std::pair(NameOf(array, index), &boxes.at(static_cast<size_t>(index)));
    }

    std::unique_ptr<Controls> m_controls;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ControlBinder> m_binder;
    QList<std::pair<QString, CheckBox*>> m_boxes;
};

void OptionPagesWindowTest::init()
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

    m_boxes = {{u"chkTesting"_s, &controls.chkTesting},
               {u"ChkGL"_s, &controls.ChkGL},
               {u"GunSmoke"_s, &controls.GunSmoke},
               {u"TexPathLabel"_s, &controls.TexPathLabel}};
    addBoxes(u"chkMain"_s, controls.chkMain, {1, 7});
    addBoxes(u"chkVYKOpts"_s, controls.chkVYKOpts, {0, 1, 2, 3, 4, 5, 6, 7, 8});
    addBoxes(u"chkLaunchPrefs"_s, controls.chkLaunchPrefs, {0, 1, 2, 3, 4, 5});
    addBoxes(u"chkSound"_s, controls.chkSound, {0, 1, 2, 3, 6, 7, 8, 9, 10});
    addBoxes(u"chkGraphics"_s, controls.chkGraphics, {0, 1, 2, 3, 4});
    addBoxes(u"chkEffects"_s, controls.chkEffects, {0, 1, 2, 3});
    addBoxes(u"ChkModelOpts"_s, controls.ChkModelOpts, {1});
    addBoxes(u"chkAltModels"_s, controls.chkAltModels, {0, 1, 2, 3});

    m_binder->write();
    m_window->show();
}

void OptionPagesWindowTest::everyCheckBoxIsItsControl()
{
    QCOMPARE(m_window->findChildren<QCheckBox*>().size(), m_boxes.size());
    for (const auto& [name, control] : std::as_const(m_boxes)) {
        auto* box = find<QCheckBox>(name);
        QVERIFY2(box, qPrintable(name));
        QCOMPARE(box->text(), control->caption);
        QCOMPARE(box->isVisible(), control->visible);
        QCOMPARE(box->isEnabled(), control->enabled);
        const bool before = control->ticked();
        QCOMPARE(box->isChecked(), before);
        box->click();
        QVERIFY2(control->ticked() == (control->enabled ? !before : before), qPrintable(name));
    }
}

void OptionPagesWindowTest::everyOptionButtonIsItsControl()
{
    const QList<std::pair<QString, OptionButtons*>> arrays = {{u"ExitOption"_s, &m_controls->ExitOption},
                                                              {u"SkyOpt"_s, &m_controls->SkyOpt},
                                                              {u"Smoke"_s, &m_controls->Smoke}};
    for (const auto& [name, control] : arrays)
        for (int i = control->count() - 1; i >= 0; --i) {
            auto* button = find<QAbstractButton>(NameOf(name, i));
            QVERIFY2(button, qPrintable(NameOf(name, i)));
            QCOMPARE(button->text(), (*control)[i].caption);
            (*control)[i].enabled = true;
            m_binder->write();
            button->click();
            QCOMPARE(control->selected(), i);
        }
}

void OptionPagesWindowTest::everyButtonIsItsControl()
{
    Controls& controls = *m_controls;
    const QList<std::pair<QString, Button*>> buttons = {{u"butleft"_s, &controls.butleft},
                                                        {u"butRight"_s, &controls.butRight},
                                                        {u"butLeft2"_s, &controls.butLeft2},
                                                        {u"butRight2"_s, &controls.butRight2},
                                                        {u"RicoButton_0"_s, &controls.RicoButton[0]},
                                                        {u"RicoButton_1"_s, &controls.RicoButton[1]},
                                                        {u"ButPurge_0"_s, &controls.ButPurge[0]},
                                                        {u"ButPurge_1"_s, &controls.ButPurge[1]},
                                                        {u"ButPurge_2"_s, &controls.ButPurge[2]},
                                                        {u"AuxButton_9"_s, &controls.AuxButton[9]}};
    QStringList clicked, expected;
    for (const auto& [name, control] : buttons) {
        control->enabled = true;
        control->clicked = [&clicked, name = name] { clicked << name; };
    }
    m_binder->write();
    for (const auto& [name, control] : buttons) {
        QCOMPARE(find<QAbstractButton>(name)->text(), control->caption);
        find<QAbstractButton>(name)->click();
        expected << name;
    }
    QCOMPARE(clicked, expected);
    // The label beside a button says what it deletes.
    QCOMPARE(find(u"ButPurge_0"_s)->accessibleName(), u"Delete all saved games"_s);
    QCOMPARE(find(u"ButPurge_1"_s)->accessibleName(), u"Delete all prior built nodes"_s);
}

void OptionPagesWindowTest::listsLabelsAndFramesSayWhatTheirControlsSay()
{
    Controls& controls = *m_controls;
    controls.cbChannels.select(1);
    controls.cbScaler.select(3);
    m_binder->write();
    QCOMPARE(find<QComboBox>(u"cbChannels"_s)->currentText(), u"128"_s);
    QCOMPARE(find<QComboBox>(u"cbScaler"_s)->currentIndex(), 3);

    const QList<std::pair<QString, Control*>> labels = {
        {u"ExpLabel"_s, &controls.ExpLabel},      {u"DelLabel_0"_s, &controls.DelLabel[0]},
        {u"DelLabel_1"_s, &controls.DelLabel[1]}, {u"TexLabel_0"_s, &controls.TexLabel[0]},
        {u"TexLabel_1"_s, &controls.TexLabel[1]}, {u"TexLabel_2"_s, &controls.TexLabel[2]},
        {u"ResLabel_0"_s, &controls.ResLabel[0]}, {u"ResLabel_1"_s, &controls.ResLabel[1]},
        {u"ResLabel_2"_s, &controls.ResLabel[2]}, {u"ResLabel_3"_s, &controls.ResLabel[3]},
        {u"ModLabel_0"_s, &controls.ModLabel[0]}, {u"ModLabel_1"_s, &controls.ModLabel[1]},
        {u"ModLabel_2"_s, &controls.ModLabel[2]}, {u"ModLabel_3"_s, &controls.ModLabel[3]}};
    const QList<std::pair<QString, Control*>> frames = {{u"OptFrame_0"_s, &controls.OptFrame[0]},
                                                        {u"OptFrame_1"_s, &controls.OptFrame[1]},
                                                        {u"OptFrame_2"_s, &controls.OptFrame[2]},
                                                        {u"OptFrame_3"_s, &controls.OptFrame[3]},
                                                        {u"GraphicFrames_0"_s, &controls.GraphicFrames[0]},
                                                        {u"GraphicFrames_1"_s, &controls.GraphicFrames[1]},
                                                        {u"GraphicFrames_3"_s, &controls.GraphicFrames[3]},
                                                        {u"GraphicFrames_4"_s, &controls.GraphicFrames[4]},
                                                        {u"GraphicFrames_5"_s, &controls.GraphicFrames[5]},
                                                        {u"SoundFrame_0"_s, &controls.SoundFrame[0]},
                                                        {u"SoundFrame_1"_s, &controls.SoundFrame[1]},
                                                        {u"FrameModel_0"_s, &controls.FrameModel[0]},
                                                        {u"FrameModel_1"_s, &controls.FrameModel[1]},
                                                        {u"ModFrame"_s, &controls.ModFrame}};
    for (const auto& [name, control] : labels + frames)
        control->caption = u" "_s + name;
    m_binder->write();
    for (const auto& [name, control] : labels) {
        QCOMPARE(find<QLabel>(name)->text(), u" "_s + name);
        QCOMPARE(find(name)->accessibleName(), name);
    }
    for (const auto& [name, control] : frames)
        QCOMPARE(find<FrameView>(name)->title(), name);
}

void OptionPagesWindowTest::inputsHaveAName()
{
    QStringList names;
    for (const QWidget* widget : m_window->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->window() != m_window.get())
            continue;
        const QString name = widget->accessibleName();
        QVERIFY2(name.size() > 1, qPrintable(widget->objectName()));
        QVERIFY2(name == u"Spare"_s || !names.contains(name), qPrintable(name)); // read aloud, each is itself
        names << name;
    }
    QCOMPARE(find(u"butleft"_s)->accessibleName(), u"Corpse fade down"_s);
}

void OptionPagesWindowTest::aGreyedFrameLeavesWhatIsInItAlone()
{
    m_controls->OptFrame[0].enabled = m_controls->GraphicFrames[3].enabled = false;
    m_binder->write();
    const auto* frame = find<FrameView>(u"OptFrame_0"_s);
    QVERIFY(frame->isGreyed());
    auto* box = find<QCheckBox>(u"chkVYKOpts_5"_s);
    QVERIFY(frame->isAncestorOf(box) && box->isEnabled());
    box->click();
    QVERIFY(m_controls->chkVYKOpts[5].ticked());
    QVERIFY(find(u"butleft"_s)->isEnabled());

    const QImage greyed = find(u"OptFrame_0"_s)->grab().toImage();
    m_controls->OptFrame[0].enabled = true;
    m_binder->write();
    const QImage normal = find(u"OptFrame_0"_s)->grab().toImage();
    const QRect inside = box->geometry();
    QVERIFY(greyed != normal);
    QCOMPARE(greyed.copy(inside), normal.copy(inside));
}

void OptionPagesWindowTest::spinnersTakeButtonsOnly()
{
    for (const QString& name : {u"Corpse"_s, u"Timeout"_s, u"Ricotext"_s}) {
        auto* number = find<QLineEdit>(name);
        QVERIFY(!number->text().isEmpty());
        QVERIFY(number->isReadOnly() && number->focusPolicy() == Qt::NoFocus);
    }
    for (const QString& name :
         {u"butleft"_s, u"butRight"_s, u"butLeft2"_s, u"butRight2"_s, u"RicoButton_0"_s, u"RicoButton_1"_s})
        QCOMPARE(find(name)->focusPolicy(), Qt::TabFocus);
    m_controls->Corpse.text = u"0"_s;
    m_controls->Corpse.colour = Colour::Accent;
    m_binder->write();
    QCOMPARE(find<QLineEdit>(u"Corpse"_s)->text(), u"0"_s);
    QCOMPARE(find(u"Corpse"_s)->palette().color(QPalette::Text), QColor(192, 0, 0));
}

void OptionPagesWindowTest::theHotSpotTakesADoubleClick()
{
    m_controls->DevMode.clicked = [this] { m_controls->chkTesting.visible = true; };
    QTest::mouseClick(find(u"DevMode"_s), Qt::LeftButton);
    QVERIFY(!find(u"chkTesting"_s)->isVisible());
    QTest::mouseDClick(find(u"DevMode"_s), Qt::LeftButton);
    QVERIFY(find(u"chkTesting"_s)->isVisible());
}

void OptionPagesWindowTest::tipsFollowTheControls()
{
    m_controls->GunSmoke.toolTip = u"Allows\r\ngunsmoke."_s;
    m_binder->write();
    const auto* smoke = find(u"GunSmoke"_s);
    const auto* label = find(u"ExpLabel"_s); // has no window of its own: a plain tip
    QCOMPARE(smoke->accessibleDescription(), u"Allows gunsmoke."_s);
    QVERIFY(smoke->toolTip().isEmpty());
    QCOMPARE(label->toolTip(), m_controls->ExpLabel.toolTip);
    m_controls->GunSmoke.toolTip.clear();
    m_controls->ExpLabel.toolTip.clear();
    m_binder->write();
    QVERIFY(smoke->accessibleDescription().isEmpty());
    QVERIFY(label->toolTip().isEmpty());
}

QTEST_MAIN(OptionPagesWindowTest)
#include "OptionPagesWindowTest.moc"
