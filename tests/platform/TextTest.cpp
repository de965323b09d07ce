#include "platform/Text.h"
#include "platform/DiskFileSystem.h"
#include "tests/support/TemporaryInstallation.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyByteComesBack()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
        QCOMPARE(ToAnsi(FromAnsi(all)), all);
        QCOMPARE(FromAnsi("\x80\x8A\x99\x9F\xE4\xFF"_ba), u"€Š™Ÿäÿ"_s);
        QCOMPARE(FromAnsi("\x81\x8D\x8F\x90\x9D"_ba), u"\u0081\u008D\u008F\u0090\u009D"_s);
    }

    void noCharacterIsLost_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("marked");
        QTest::newRow("plain") << u"Größe – “Doom” €"_s << false;
        QTest::newRow("Cyrillic") << u"Ад\r\n"_s << true;
        QTest::newRow("beyond the first plane") << u"\U0001F608"_s << true;
        QTest::newRow("a control that the table replaced") << u"\u0080"_s << true;
        QTest::newRow("looks like a mark") << u"ï»¿text"_s << true;
        QTest::newRow("begins with a mark") << u"\uFEFFtext"_s << true;
        QTest::newRow("empty") << u""_s << false;
    }
    void noCharacterIsLost()
    {
        QFETCH(QString, text);
        QFETCH(bool, marked);
        QCOMPARE(FromAnsi(ToAnsi(text)), text);
        QCOMPARE(ToAnsi(text).startsWith("\xEF\xBB\xBF"), marked);
    }

    void lines()
    {
        QCOMPARE(LinesOf(u"a\r\nb\nc\rd"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
        QCOMPARE(LinesOf(u"\r\n\n\ra\r\n"_s), (QStringList{u""_s, u""_s, u""_s, u"a"_s}));
        QCOMPARE(LinesOf({}), QStringList());
    }

    void fields_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("one line or two") << u"Check5,a.wad\r\nCheck6\nb.wad"_s
                                         << QStringList{u"Check5"_s, u"a.wad"_s, u"Check6"_s, u"b.wad"_s};
        QTest::newRow("blanks") << u" a b ,\tc\t, \"  d \" ,e\u00A0"_s
                                << QStringList{u"a b"_s, u"c"_s, u"  d "_s, u"e\u00A0"_s};
        QTest::newRow("a comma in quotes") << u"\"a,b\",c"_s << QStringList{u"a,b"_s, u"c"_s};
        QTest::newRow("a quote inside") << u"0The \"end, 1x"_s << QStringList{u"0The \"end"_s, u"1x"_s};
        QTest::newRow("no closing quote") << u"\"a,b\nc"_s << QStringList{u"\"a,b"_s, u"c"_s};
        QTest::newRow("empty fields and lines")
            << u"a,,\r\n\r\n  \r\n\"\"\r\n"_s << QStringList{u"a"_s, u""_s, u""_s, u""_s};
    }
    void fields()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, fields);
        QCOMPARE(FieldsOf(text), fields);
    }

    void firstFields()
    {
        QCOMPARE(FirstField(u"  \"MAP 01\" , second"_s), u"MAP 01"_s);
        QCOMPARE(FirstField(u"name"_s), u"name"_s);
        QCOMPARE(FirstField(u"\""_s), u"\""_s);
        QCOMPARE(FirstField(u",a"_s), QString());
    }

    void filesOfLines()
    {
        TemporaryInstallation disk;
        DiskFileSystem files;
        const QStringList lines{u"Überraschung"_s, u""_s, u"x"_s};
        WriteLines(files, disk.path(u"a.vyk"_s), lines);
        QCOMPARE(disk.read(u"a.vyk"_s), "\xDC"
                                        "berraschung\r\n\r\nx\r\n"_ba);
        QCOMPARE(ReadLines(files, disk.path(u"A.VYK"_s)), lines);
        QVERIFY_THROWS_EXCEPTION(FileError, ReadLines(files, disk.path(u"none"_s)));
    }
};

QTEST_GUILESS_MAIN(TextTest)
#include "TextTest.moc"
