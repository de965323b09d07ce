#include "platform/Text.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class TextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noByteAndNoCharacterIsLost()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += static_cast<char>(byte);
        QCOMPARE(ToAnsi(FromAnsi(all)), all);
        QCOMPARE(FromAnsi("\x80\x8A\x99\x9F\xE4\xFF\x81\x9D"_ba), u"€Š™Ÿäÿ\u0081\u009D"_s);

        // The second half has no byte of its own: a control that the table replaced, a mark, other scripts.
        const QStringList pieces{u"a"_s,      u"ä"_s,      u"€"_s,  u"ï»¿"_s, u"\r\n"_s,
                                 u"\u0080"_s, u"\uFEFF"_s, u"Ад"_s, u"日"_s,  u"\U0001F608"_s};
        QRandomGenerator random(1);
        for (int round = 0; round < 1000; ++round) {
            QString text;
            bool marked = false;
            for (int i = random.bounded(5); i > 0; --i) {
                const int piece = random.bounded(static_cast<int>(pieces.size()));
                text += pieces[piece];
                marked = marked || piece >= 5 || text.startsWith(u"ï»¿");
            }
            QCOMPARE(FromAnsi(ToAnsi(text)), text);
            QCOMPARE(ToAnsi(text).startsWith("\xEF\xBB\xBF"), marked);
        }
    }

    void linesAndFields()
    {
        const auto lines = [](const QString& text) { return LinesOf(text).join(u'|'); };
        QCOMPARE(lines(u"a\r\nb\nc\rd"_s), u"a|b|c|d"_s);
        QCOMPARE(lines(u"\r\n\n\ra\r\n"_s), u"|||a"_s);
        QCOMPARE(LinesOf({}), QStringList());

        const auto fields = [](const QString& text) { return FieldsOf(text).join(u'|'); };
        QCOMPARE(fields(u"Check5,a.wad\r\nCheck6\nb.wad"_s), u"Check5|a.wad|Check6|b.wad"_s);
        QCOMPARE(fields(u" a b ,\tc\t, \"  d \" ,e\u00A0"_s), u"a b|c|  d |e\u00A0"_s);
        QCOMPARE(fields(u"\"a,b\",c\n0The \"end, 1x"_s), u"a,b|c|0The \"end|1x"_s);
        QCOMPARE(fields(u"\"a,b\nc"_s), u"\"a,b|c"_s); // the quote is not closed
        QCOMPARE(fields(u"a,,\r\n\r\n  \r\n\"\"\r\nb"_s), u"a||||b"_s);
        QCOMPARE(FirstField(u"  \"MAP 01\" , second"_s) + FirstField(u"\""_s) + FirstField(u",a"_s),
                 u"MAP 01\""_s);
    }
};

QTEST_GUILESS_MAIN(TextTest)
#include "TextTest.moc"
