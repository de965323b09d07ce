// A playlist made into a WAD, and the configuration that makes an engine find the music.
#include "tools/engine/MusicPack.h"
#include "engines/FoundEngines.h"
#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryInstallation.h"
#include "tools/engine/EngineAdapter.h"
#include "tools/engine/EngineConfig.h"
#include "tools/wadreader/WadDirectory.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

class MusicPackTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryInstallation> m_disk;
    DiskFileSystem m_files;

    using Lumps = QMap<QByteArray, QByteArray>;

    Lumps lumpsOf(const QString& wad) const
    {
        const QByteArray bytes = m_files.read(wad, FileSystem::maximumSize);
        const auto number = [&](qint64 at) { return qFromLittleEndian<qint32>(bytes.constData() + at); };
        Lumps lumps;
        for (int i = 0; i < number(4); ++i) {
            const qint64 at = number(8) + 16 * i;
            const QByteArray name = bytes.mid(at + 8, 8);
            lumps[name.split('\0').first()] = bytes.mid(number(at), number(at + 4));
        }
        return lumps;
    }

    // What an engine with music packs plays for each lump: all lists count.
    QMap<QByteArray, QString> heard(const Lumps& lumps) const
    {
        QMap<QByteArray, QString> files;
        for (const QString& name : m_disk->tree().filter(u".cfg"_s))
            for (const QByteArray& line : m_disk->read(name).split('\n'))
                for (auto lump = lumps.begin(); lump != lumps.end(); ++lump)
                    if (line.startsWith(QCryptographicHash::hash(*lump, QCryptographicHash::Sha1).toHex()))
                        files[lump.key()] = FileNameOf(QString::fromUtf8(line.mid(43)));
        return files;
    }

    MusicPack make(const QByteArray& playlist, MusicWay way, const QString& name = u"My v1.2"_s)
    {
        m_disk->add(u"VYKLaunch/Music/%1.vym"_s.arg(name), playlist);
        const MusicPack pack = PlanMusicPack(m_files, m_disk->root(), name, way);
        WriteMusicPack(m_files, m_disk->root(), pack);
        return pack;
    }

private Q_SLOTS:
    void init()
    {
        m_disk = std::make_unique<TemporaryInstallation>();
        for (const QString& name : {u"one.ogg"_s, u"two \u00fc.ogg"_s, u"a#b.ogg"_s})
            m_disk->add(u"Music/"_s + name, "music of " + name.toUtf8());
        m_disk->add(u"Music/empty.mp3"_s);
    }

    void bothWays()
    {
        const QByteArray playlist =
            " # MAP MUSIC FOR DOOM II\r\nD_DM2INT \\music\\ONE.ogg\r\nMAP01 \\Music\\two \xfc.ogg\r\n"
            "map02 CD 07\r\nMAP03\r\nMAP04 \\gone.ogg\r\nMAP05 \\..\\x.ogg\r\n"
            "MAP06 \\Music\r\nE3M4 \\Music\\one.ogg\r\nE4M1 \\Music\\a#b.ogg\r\nE1M1 \\Music\\a#b.ogg\r\n";
        const MusicPack files = make(playlist, MusicWay::Lumps);
        const Lumps own = lumpsOf(files.wad);
        QCOMPARE(own["D_DM2INT"], "music of one.ogg");
        QCOMPARE(own["D_RUNNIN"], u"music of two \u00fc.ogg"_s.toUtf8());
        QCOMPARE(own["D_E3M4"], "music of one.ogg");
        QCOMPARE(own["D_E1M1"], "music of a#b.ogg");
        for (const char* silent : {"D_STALKS", "D_BETWEE", "D_DOOM", "D_THE_DA"})
            QVERIFY2(own[silent].startsWith("MThd"), silent);
        QVERIFY(!own.contains("D_COUNTD"));
        QCOMPARE(files.silences.size(), 5); // ... and E4M1, which plays another map's

        const MusicPack list = make(playlist, MusicWay::Packs);
        const Lumps placeholders = lumpsOf(list.wad);
        QCOMPARE(placeholders.keys(), own.keys());
        const QMap<QByteArray, QString> played = heard(placeholders);
        QCOMPARE(played["D_RUNNIN"], u"two \u00fc.ogg"_s);
        QCOMPARE(played["D_DM2INT"], u"one.ogg"_s);
        QCOMPARE(played.size(), 3); // a name with '#' would end there
        QCOMPARE(list.silences.size(), 6);

        // Other readers agree that it is a WAD.
        const auto directory = readWadDirectory(QFileInfo(list.wad).filesystemFilePath());
        QVERIFY(directory && directory->maps.empty());
        QProcess tool;
        tool.start(QStringLiteral(VYKGFILES_PROGRAM), {u"SHOWMAPS"_s, list.wad});
        QVERIFY(tool.waitForFinished() && tool.exitStatus() == QProcess::NormalExit);
    }

    // The music of one game is not the other's, also where both have a list for the same map.
    void twoGamesAtOnce()
    {
        const MusicPack first = make("MAP01 \\Music\\one.ogg\r\n", MusicWay::Packs, u"a"_s);
        const MusicPack second = make("MAP01 \\Music\\two \xfc.ogg\r\n", MusicWay::Packs, u"b"_s);
        QCOMPARE(heard(lumpsOf(first.wad))["D_RUNNIN"], u"one.ogg"_s);
        QCOMPARE(heard(lumpsOf(second.wad))["D_RUNNIN"], u"two \u00fc.ogg"_s);
        for (int i = 0; i < 20; ++i) // old ones go
            make("MAP01 \\Music\\one.ogg\r\nMAP%1 CD 01\r\n"_ba.replace("%1", QByteArray::number(10 + i)),
                 MusicWay::Packs);
        QVERIFY(m_disk->tree().filter(u"Engines/Music"_s).size() < 30);
    }

    // Whatever a playlist holds, what comes of it can be read, and nothing lies anywhere else.
    void hostileLines()
    {
        QRandomGenerator random(7);
        const QList<QByteArray> words{"MAP01 ",
                                      "map32 ",
                                      "E1M1 ",
                                      "D_EVIL ",
                                      "\\Music\\one.ogg",
                                      "\\..\\",
                                      "../../",
                                      "C:\\a.ogg",
                                      "CD 99",
                                      "\0"_ba,
                                      "%1",
                                      "\xff\xfe",
                                      "\\Music\\empty.mp3",
                                      ".ogg",
                                      "\\",
                                      "/dev/zero",
                                      QByteArray(5000, 'x')};
        for (int round = 0; round < 40; ++round) {
            QByteArray playlist;
            for (int line = 0; line < 200; ++line, playlist += "\r\n")
                for (int word = 0; word < 4; ++word)
                    playlist += words[random.bounded(words.size())];
            for (const MusicWay way : {MusicWay::Lumps, MusicWay::Packs}) {
                const MusicPack pack = make(playlist, way);
                QCOMPARE(lumpsOf(pack.wad).size(), pack.lumps.size());
                for (const MusicLump& lump : pack.lumps)
                    QVERIFY(lump.file.isEmpty() || lump.file.startsWith(m_disk->root() + u"/Music/"_s));
            }
        }
        for (const QString& none : {u"../Music/My v1.2"_s, u"none"_s})
            QVERIFY(PlanMusicPack(m_files, m_disk->root(), none, MusicWay::Packs).wad.isEmpty());
    }

    // Each game gets the settings it needs, and afterwards the player's are as they were.
    void theEnginesSettings()
    {
        m_disk->add(u"Home/crispy-doom/default.cfg"_s, "use_joystick    1\nkey_up 72\n");
        m_disk->add(u"Home/crispy-doom/crispy-doom.cfg"_s, "crispy_hires 1\nmusic_pack_path_x \"b\"\n");
        m_disk->addFolder(u"VYKLaunch"_s);
        QProcessEnvironment environment;
        environment.insert(u"XDG_DATA_HOME"_s, m_disk->path(u"Home"_s));
        const QString folder = u"VYKLaunch/Engines/crispy-doom/"_s;
        const auto prepare = [&](const QList<EngineSetting>& needed) {
            const KnownEngine& crispy = ConventionsOf(u"crispy-doom"_s);
            return PrepareEngineConfig(m_files, m_disk->root(), u"/usr/games/crispy-doom"_s, crispy,
                                       environment, needed);
        };
        const EngineSetting joystick{u"use_joystick"_s, "0"}, music{u"music_pack_path"_s, "\"p\""};
        QCOMPARE(prepare({}).size(), 4);
        const QByteArray first = m_disk->read(folder + u"default.cfg"_s);
        const QByteArray second = m_disk->read(folder + u"crispy-doom.cfg"_s);
        QCOMPARE(first, m_disk->read(u"Home/crispy-doom/default.cfg"_s));
        for (const QList<EngineSetting>& needed :
             {QList{joystick}, QList{joystick, music}, QList{music}, QList{music}}) {
            prepare(needed);
            QCOMPARE(m_disk->read(folder + u"crispy-doom.cfg"_s).contains("music_pack_path "),
                     needed.size() == 2 || needed[0].name == music.name);
            QCOMPARE((m_disk->read(folder + u"default.cfg"_s).simplified() == first.simplified()),
                     needed[0].name == music.name);
        }
        m_disk->add(u"Home/crispy-doom/default.cfg"_s, "of later");
        prepare({});
        QCOMPARE(m_disk->read(folder + u"default.cfg"_s).simplified(), first.simplified());
        QCOMPARE(m_disk->read(folder + u"crispy-doom.cfg"_s), second);
    }

    // Nothing of this keeps anybody from playing.
    void anUnwritableInstallation()
    {
        m_disk->addBuilt(u"Engine/crispy-doom"_s, RECORDER_PROGRAM);
        m_disk->add(u"Data/Doom2.wad"_s, "IWAD");
        m_disk->add(u"VYKLaunch/Music/a.vym"_s, "MAP01 \\Music\\one.ogg\r\n");
        FailingFileSystem failing(m_files);
        // Without the list that the configuration names, the placeholders would be silence.
        for (const QString& unwritable : {u"VYKLaunch"_s, u"Engines/crispy-doom"_s}) {
            failing.failOn(unwritable, FileError::Kind::PermissionDenied);
            QCOMPARE(RunEngineAdapter(failing, m_disk->root(), {u"-doom2"_s, u"-extmus"_s, u"a"_s}, {}), 0);
            const QByteArray report = m_disk->read(u"Keldrax.out"_s);
            QVERIFY2(report.contains("Left out: the playlist: ") && !report.contains("-file"),
                     report.constData());
            QVERIFY(m_disk->exists(u"arguments.txt"_s));
        }
    }
};

QTEST_GUILESS_MAIN(MusicPackTest)
#include "MusicPackTest.moc"
