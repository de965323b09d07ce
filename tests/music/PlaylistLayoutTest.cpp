#include "music/PlaylistLayout.h"
#include "music/MapConversion.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Random = QRandomGenerator;

QStringList withMusic(QStringList lines, Random& random)
{
    for (QString& line : lines)
        if (IsEntry(line) && random.bounded(4))
            line +=
                (random.bounded(2) ? u" CD 0%1"_s : u" \"/Jürgen's 100%/%1.mp3\""_s).arg(random.bounded(9));
    return lines;
}

// As older launchers and players write them: lines missing, twice, elsewhere, in other letters, with notes.
QStringList disturbed(QStringList lines, Random& random)
{
    for (int i = random.bounded(12); i > 0; --i) {
        const int line = random.bounded(static_cast<int>(lines.size()));
        const QString text = random.bounded(3) ? lines.takeAt(line) : lines.at(line);
        const QString written[] = {text, text.toLower(), u" # a note of mine"_s};
        lines.insert(random.bounded(static_cast<int>(lines.size())), written[random.bounded(3)]);
    }
    return lines;
}

// What is played where, sorted: the maps' music, and without regard to which of several lines counts.
QStringList mapMusic(const QStringList& lines)
{
    QStringList music;
    for (const QString& line : lines)
        if (IsEntry(line) && GetInterMusic(line).isEmpty() && !GetMusicString(line).isEmpty())
            music << KeyOf(line).toUpper() + GetMusicString(line);
    music.sort();
    return music;
}

} // namespace

class PlaylistLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void repairKeepsAllMapMusic()
    {
        Random random(5);
        for (int i = 0; i < 200; ++i) {
            const MusicGame game = i % 2 ? MusicGame::Doom : MusicGame::Doom2;
            QStringList lines = StandardLayout(game);
            lines << (i % 4 < 2 ? QStringList() : StandardLayout(OtherGame(game)));
            QVERIFY(IsStandardFormat(lines, *MapTypeOf(lines)));
            lines = disturbed(withMusic(lines, random), random);
            const MapType type = *MapTypeOf(lines);
            const QStringList converted = Converted(lines, type);
            QVERIFY2(IsStandardFormat(converted, type), qPrintable(lines.join(u'\n')));
            QCOMPARE(mapMusic(converted), mapMusic(lines));
            QCOMPARE(Converted(converted, type), converted);
            for (const QString& line : converted) // each line stands there as it was
                QVERIFY(!IsEntry(line) || lines.contains(line) || GetMusicString(line).isEmpty());
        }
        // Notes and the other game's go; the key of one piece of music begins like another's.
        const QString given = u"E1M2 CD 07|D_INTRO \\a.ogg|D_INTROA \\b.ogg|D_EVIL \\of-another.ogg|# note"_s;
        QStringList expected = StandardLayout(MusicGame::Doom);
        expected.replace(4, u"D_INTRO \\a.ogg"_s);
        expected.replace(5, u"D_INTROA \\b.ogg"_s);
        expected.replace(12, u"E1M2 CD 07"_s);
        QCOMPARE(Converted(given.split(u'|'), MapType::Doom), expected);
    }

    void theOtherGamePlaysTheSame()
    {
        Random random(6);
        for (int i = 0; i < 200; ++i) {
            const MusicGame game = i % 2 ? MusicGame::Doom : MusicGame::Doom2;
            const QStringList bare = StandardLayout(OtherGame(game));
            const QStringList lines = withMusic(StandardLayout(game), random);
            const QStringList toggled = Toggled(lines, game);
            QCOMPARE(toggled.size(), bare.size());
            QStringList back = lines;
            for (qsizetype line = 0; line < bare.size(); ++line) { // the same layout but for the music
                const bool shared = line != 7 && line < 43;        // Doom II has no place for the others
                QCOMPARE(KeyOf(toggled[line]), KeyOf(bare[line]));
                if (shared && IsEntry(bare[line]))
                    QCOMPARE(GetMusicString(toggled[line]), GetMusicString(lines[line]));
            }
            for (const int line : {7, 43, 44, 45, 46})
                if (game == MusicGame::Doom)
                    back[line] = KeyOf(back[line]);
            QCOMPARE(Toggled(toggled, OtherGame(game)), back);
            const QStringList cloned = Cloned(lines, game);
            QCOMPARE(cloned, lines + toggled);
            QVERIFY(IsStandardFormat(cloned, MapType::Mixed));
        }
        QCOMPARE(GetNewMap(u"e4m5"_s) + GetNewMap(u"MAP19"_s) + GetNewMap(u"E4M6"_s), u"MAP32E3M1"_s);
    }
};

QTEST_GUILESS_MAIN(PlaylistLayoutTest)
#include "PlaylistLayoutTest.moc"
