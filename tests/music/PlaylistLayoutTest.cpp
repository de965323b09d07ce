#include "music/PlaylistLayout.h"
#include "music/MapConversion.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int playlists = 200; // generated for each property

using Random = QRandomGenerator;

bool isEntryOf(const QString& line, MusicGame game)
{
    const auto hasKey = [&](const MusicKey& key) { return HasKey(line, key.key); };
    return std::ranges::any_of(MapKeys(game), hasKey) || std::ranges::any_of(IntermissionKeys(game), hasKey);
}

QString someMusic(Random& random)
{
    const QString music[] = {QString(), u" CD 0%1"_s.arg(random.bounded(1, 10)),
                             u" \\OggVorbis\\Own\\%1.ogg"_s.arg(random.bounded(1000)),
                             u" \"/home/Jürgen's music/100% %1.mp3\""_s.arg(random.bounded(1000))};
    return music[random.bounded(4)];
}

QStringList withMusic(QStringList lines, Random& random)
{
    for (QString& line : lines)
        if (IsEntry(line))
            line += someMusic(random);
    return lines;
}

QStringList mixed(MusicGame first)
{
    return StandardLayout(first) + StandardLayout(OtherGame(first));
}

// As older launchers and players write them: lines missing, twice, elsewhere, in other letters, with notes.
QStringList disturbed(QStringList lines, Random& random)
{
    for (int i = random.bounded(12); i > 0; --i) {
        const int line = random.bounded(static_cast<int>(lines.size()));
        switch (random.bounded(5)) {
        case 0:
            lines.removeAt(line);
            break;
        case 1:
            lines.insert(random.bounded(static_cast<int>(lines.size())), lines.at(line));
            break;
        case 2:
            lines.move(line, random.bounded(static_cast<int>(lines.size())));
            break;
        case 3:
            lines[line] = lines.at(line).toLower();
            break;
        default:
            lines.insert(line, u" # a note of mine"_s);
        }
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
    void standardLayouts();
    void repairKeepsAllMapMusic();
    void whatTheRepairDrops();
    void toggling();
    void cloning();
    void entries();
};

void PlaylistLayoutTest::standardLayouts()
{
    const QStringList doom = StandardLayout(MusicGame::Doom);
    QCOMPARE(doom.size(), 47);
    QCOMPARE(doom.mid(0, 12).join(u'|'),
             u"| # INTERMISSION MUSIC FOR DOOM||D_BUNNY|D_INTRO|D_INTROA|D_INTER|D_VICTOR|"
             "| # MAP MUSIC FOR DOOM||E1M1"_s);
    QCOMPARE(doom.at(38), u"E4M1"_s);
    QCOMPARE(doom.last(), u"E4M9"_s);

    const QStringList doom2 = StandardLayout(MusicGame::Doom2);
    QCOMPARE(doom2.size(), 43);
    QCOMPARE(doom2.mid(0, 12).join(u'|'),
             u"| # INTERMISSION MUSIC FOR DOOM II||D_DM2TTL|D_DM2INT|D_READ_M|D_EVIL||"
             "| # MAP MUSIC FOR DOOM II||MAP01"_s);
    QCOMPARE(doom2.last(), u"MAP32"_s);

    for (const MusicGame game : {MusicGame::Doom, MusicGame::Doom2}) {
        QVERIFY(IsStandardFormat(StandardLayout(game), *MapTypeOf(StandardLayout(game))));
        QVERIFY(IsStandardFormat(mixed(game), *MapTypeOf(mixed(game))));
    }
    QVERIFY(!IsStandardFormat(doom2.mid(0, 42), MapType::Doom2));
    QVERIFY(!MapTypeOf({u" # Music"_s, QString(), u"D_EVIL"_s}));
}

void PlaylistLayoutTest::repairKeepsAllMapMusic()
{
    Random random(5);
    const QList<QStringList> layouts{StandardLayout(MusicGame::Doom), StandardLayout(MusicGame::Doom2),
                                     mixed(MusicGame::Doom), mixed(MusicGame::Doom2)};
    for (int i = 0; i < playlists; ++i) {
        const QStringList lines = disturbed(withMusic(layouts.at(i % layouts.size()), random), random);
        const MapType type = *MapTypeOf(lines);
        const QStringList converted = Converted(lines, type);
        QVERIFY2(IsStandardFormat(converted, type), qPrintable(lines.join(u'\n')));
        QCOMPARE(mapMusic(converted), mapMusic(lines));
        QCOMPARE(Converted(converted, type), converted);
        QStringList checked = converted;
        CheckMapStructure(checked, type);
        QCOMPARE(checked, converted);
        for (const QString& line : converted) // each line stands there as it was
            QVERIFY(!IsEntry(line) || lines.contains(line) || GetMusicString(line).isEmpty());
    }
}

void PlaylistLayoutTest::whatTheRepairDrops()
{
    // The key of one piece of music begins like another's.
    const QStringList lines{u"E1M1"_s,
                            u"E1M2 CD 07"_s,
                            u"D_INTRO \\a.ogg"_s,
                            u"D_INTROA \\b.ogg"_s,
                            u"D_EVIL \\of-the-other-game.ogg"_s,
                            u"# note"_s};
    const QStringList converted = Converted(lines, MapType::Doom);
    QCOMPARE(converted.size(), 47);
    QCOMPARE(converted.at(4), u"D_INTRO \\a.ogg"_s);
    QCOMPARE(converted.at(5), u"D_INTROA \\b.ogg"_s);
    QCOMPARE(converted.mid(11, 3), QStringList({u"E1M1"_s, u"E1M2 CD 07"_s, u"E1M3"_s}));
    QCOMPARE(converted.filter(u"other"_s).size() + converted.filter(u"note"_s).size(), 0);
}

void PlaylistLayoutTest::toggling()
{
    Random random(6);
    for (int i = 0; i < playlists; ++i) {
        const MusicGame game = i % 2 == 0 ? MusicGame::Doom : MusicGame::Doom2;
        const QStringList lines = withMusic(StandardLayout(game), random);
        const QStringList toggled = Toggled(lines, game);
        QCOMPARE(toggled.size(), StandardLayout(OtherGame(game)).size());
        for (int line = 0; line < toggled.size(); ++line) // the same layout but for the music
            QCOMPARE(KeyOf(toggled.at(line)), KeyOf(StandardLayout(OtherGame(game)).at(line)));
        for (int line = 3; line < qMin(lines.size(), toggled.size()); ++line)
            if (IsEntry(lines.at(line)) && line != 7 && line < 43)
                QCOMPARE(GetMusicString(toggled.at(line)), GetMusicString(lines.at(line)));

        QStringList expected = lines;
        if (game == MusicGame::Doom)
            for (const int line : {7, 43, 44, 45, 46}) // what Doom II has no place for
                expected[line] = KeyOf(expected.at(line));
        QCOMPARE(Toggled(toggled, OtherGame(game)), expected);
    }
    QCOMPARE(GetNewMap(u"e4m5"_s), u"MAP32"_s);
    QCOMPARE(GetNewMap(u"MAP19"_s), u"E3M1"_s);
    QCOMPARE(GetNewMap(u"E4M6"_s), QString());
}

void PlaylistLayoutTest::cloning()
{
    Random random(7);
    for (int i = 0; i < playlists; ++i) {
        const MusicGame game = i % 2 == 0 ? MusicGame::Doom : MusicGame::Doom2;
        const QStringList lines = withMusic(StandardLayout(game), random);
        const QStringList cloned = Cloned(lines, game);
        QCOMPARE(cloned.mid(0, lines.size()), lines);
        QVERIFY(IsStandardFormat(cloned, MapType::Mixed));
        QStringList other = Toggled(lines, game);
        QCOMPARE(cloned.mid(lines.size()), other);
        for (const QString& line : cloned)
            if (IsEntry(line))
                QVERIFY(isEntryOf(line, MusicGame::Doom) || isEntryOf(line, MusicGame::Doom2));
    }
}

void PlaylistLayoutTest::entries()
{
    QCOMPARE(GetMusicString(u"E1M1"_s), QString());
    QCOMPARE(GetMusicString(u"E1M1 CD 07"_s), u" CD 07"_s);
    QCOMPARE(GetInterMusic(u"d_read_m x"_s), u"d_read_m x"_s);
    QCOMPARE(GetInterMusic(u"D_RUNNIN x"_s), QString());
    QCOMPARE(ReplaceInterMusic({u"D_EVIL a"_s, u"D_EVIL b"_s}, u"D_EVIL"), u"D_EVIL b"_s);
    QVERIFY(CheckMusicExt(u"S3M"_s));
    QVERIFY(!CheckMusicExt(u"wav"_s));
    QVERIFY(!IsEntry(u" # MAP MUSIC FOR DOOM"_s));
}

QTEST_GUILESS_MAIN(PlaylistLayoutTest)
#include "PlaylistLayoutTest.moc"
