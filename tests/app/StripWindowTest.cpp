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
    void init()
    {
        m_binder.reset();
        m_controls = std::make_unique<Controls>();
        m_controls->FrameGlobal[Panel::Whole].visible = true;
        m_binder = std::make_unique<ControlBinder>();
        m_strip = std::make_unique<StripBar>(*m_controls, *m_binder);
        m_binder->write();
        m_strip->show();
    }

    void anEmptyCommandLineSaysWhy()
    {
        m_controls->CommandPreview.placeholder = u"No game is selected"_s;
        m_binder->write();
        const auto* preview = m_strip->findChild<QLineEdit*>(u"CommandPreview"_s);
        QCOMPARE(preview->placeholderText(), u"No game is selected"_s);
        const auto* custom = m_strip->findChild<QLineEdit*>(u"edCustom"_s);
        QVERIFY(!custom->placeholderText().isEmpty()); // keeps its own
    }

    void theLightLevelTakesDigits()
    {
        m_controls->FrameGlobal[Panel::EditMode].visible = m_controls->LightText.visible = true;
        m_controls->LightText.enabled = true;
        m_binder->write();
        auto* light = m_strip->findChild<QLineEdit*>(u"LightText"_s);
        light->clear();
        QTest::keyClicks(light, u"-1a2 8"_s);
        QCOMPARE(m_controls->LightText.text, u"128"_s);
    }

private:
    std::unique_ptr<Controls> m_controls;
    std::unique_ptr<ControlBinder> m_binder;
    std::unique_ptr<StripBar> m_strip;
};

QTEST_MAIN(StripWindowTest)
#include "StripWindowTest.moc"
