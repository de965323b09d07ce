#include "app/StripBar.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QtTest>

using namespace Qt::StringLiterals;

// The strip below the tabs over plain controls: no rule is in force.
class StripWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theCommandLineIsRead();
    void anEmptyCommandLineSaysWhy();
    void theLightLevelTakesDigits();

private:
    std::unique_ptr<Controls> m_controls;
    std::unique_ptr<ControlBinder> m_binder;
    std::unique_ptr<StripBar> m_strip;
};

void StripWindowTest::init()
{
    m_binder.reset();
    m_controls = std::make_unique<Controls>();
    m_controls->FrameGlobal[0].visible = true;
    m_binder = std::make_unique<ControlBinder>();
    m_strip = std::make_unique<StripBar>(*m_controls, *m_binder);
    m_binder->write();
    m_strip->show();
}

void StripWindowTest::theCommandLineIsRead()
{
    // What goes into a line is found out right before it is shown.
    connect(m_binder.get(), &ControlBinder::aboutToWrite, this,
            [this] { m_controls->CommandPreview.text = u"Bin\\Keldrax -Doom2 "_s + QString(300, u'x'); });
    m_binder->write();
    auto* preview = m_strip->findChild<QLineEdit*>(u"CommandPreview"_s);
    QCOMPARE(preview->text(), m_controls->CommandPreview.text);
    QCOMPARE(preview->cursorPosition(), 0);
    QTest::keyClicks(preview, u"y"_s);
    QCOMPARE(preview->text(), m_controls->CommandPreview.text);
    preview->selectAll();
    QVERIFY(preview->hasSelectedText());

    int copies = 0;
    m_controls->CopyPreview.clicked = [&] { ++copies; };
    m_strip->findChild<QAbstractButton*>(u"CopyPreview"_s)->click();
    QCOMPARE(copies, 1);
}

void StripWindowTest::anEmptyCommandLineSaysWhy()
{
    m_controls->CommandPreview.toolTip = u"No game\r\nis selected"_s;
    m_binder->write();
    const auto* preview = m_strip->findChild<QLineEdit*>(u"CommandPreview"_s);
    QCOMPARE(preview->placeholderText(), u"No game is selected"_s);
    const auto* custom = m_strip->findChild<QLineEdit*>(u"edCustom"_s);
    QVERIFY(!custom->placeholderText().isEmpty()); // keeps its own
}

void StripWindowTest::theLightLevelTakesDigits()
{
    m_controls->FrameGlobal[2].visible = m_controls->LightText.visible = true;
    m_controls->LightText.enabled = true;
    m_binder->write();
    auto* light = m_strip->findChild<QLineEdit*>(u"LightText"_s);
    light->clear();
    QTest::keyClicks(light, u"-1a2 8"_s);
    QCOMPARE(m_controls->LightText.text, u"128"_s);
}

QTEST_MAIN(StripWindowTest)
#include "StripWindowTest.moc"
