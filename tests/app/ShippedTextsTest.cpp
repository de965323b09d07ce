#include "app/Tips.h"
#include "engines/EngineSwitches.h"
#include "tests/support/LauncherFixture.h"

#include <QDirIterator>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

// The texts that an installation brings are what the launcher can show, and agree with the code.

namespace {

QString assets()
{
    return QFINDTESTDATA("../../assets") + u'/';
}

QByteArray shipped(const QString& name)
{
    QFile file(assets() + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class ShippedTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tips()
    {
        constexpr int longest = 200; // characters that the dialog shows without scrolling
        LauncherFixture f;
        f.installation.add(u"VYKLaunch/Data/tips.txt"_s, shipped(u"VYKLaunch/Data/tips.txt"_s));
        Tips tips(f.launcher);
        QSet<QString> seen;
        for (; !seen.contains(tips.text()); tips.next()) {
            const QString tip = tips.text();
            seen << tip;
            QVERIFY2(!tip.isEmpty() && tip.size() <= longest, qPrintable(tip));
            QVERIFY2(std::ranges::all_of(tip, [](QChar c) { return c >= u' ' && c <= u'~'; }),
                     qPrintable(tip));
        }
        QCOMPARE(f.launcher.settings.TipNumber, 1); // no tip stands there twice
        QVERIFY(seen.size() >= 30);
    }

    // Where the launcher, its explanations and its dialogs say that they are.
    void plainTexts_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"VYKLaunch/Data/playlist.txt", "VYK_Docs/Help/Iwad location.txt",
                                 "VYK_Docs/Help/VYK_Cmdline.txt", "VYK_Docs/Help/VYK_sound.txt"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void plainTexts()
    {
        QFETCH(const QString, name);
        const QByteArray text = shipped(name);
        QVERIFY(!text.isEmpty());
        QVERIFY(std::ranges::all_of(text,
                                    [](char c) { return c == '\n' || c == '\r' || (c >= ' ' && c <= '~'); }));
    }

    // The help names no switch that there is not, and the asterisk stands where other engines know it.
    void engineSwitches()
    {
        static const QRegularExpression name(u"(?<=^|\\s)-[a-z0-9_]+"_s,
                                             QRegularExpression::CaseInsensitiveOption);
        const QString help = QString::fromLatin1(shipped(u"VYK_Docs/Help/VYK_Cmdline.txt"_s));
        int count = 0;
        for (const QString& line : help.split(u"\r\n"_s)) {
            for (auto found = name.globalMatch(line); found.hasNext(); ++count) {
                const QString text = found.next().captured();
                const EngineSwitch* known = FindEngineSwitch(text);
                QVERIFY2(known, qPrintable(text));
                QVERIFY2((known->use != SwitchUse::LeaveOut) == line.startsWith(u" * "_s), qPrintable(line));
            }
        }
        QVERIFY(count > 50);
    }
};

QTEST_GUILESS_MAIN(ShippedTextsTest)
#include "ShippedTextsTest.moc"
