// Savegames under the launcher's and the engine's names: nothing is lost, whatever stops the adapter.
#include "tools/engine/EngineSavegames.h"
#include "platform/DiskFileSystem.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/TemporaryInstallation.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;

class EngineSavegamesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TemporaryInstallation> m_folder;
    DiskFileSystem m_disk;
    FailingFileSystem m_files{m_disk};

    // Savegames as words: K2=content is the launcher's of slot 2, K2.old the one put aside, e2 the engine's.
    // `age` in seconds: the time of the last change, so that no test waits for a clock.
    void put(const QString& savegames, int age) const
    {
        for (const QString& word : savegames.split(u' ')) {
            const QString name = word[0] == u'K' ? u"KeldraxSav%1.vyksg"_s : u"doomsav%1.dsg"_s;
            QFile file(m_folder->path(name.arg(word.sliced(1).section(u'=', 0, 0))));
            QVERIFY(file.open(QFile::WriteOnly) && file.write(word.section(u'=', 1).toUtf8()) >= 0);
            const QDateTime time = QDateTime::currentDateTime().addSecs(-age);
            QVERIFY(file.flush() && file.setFileTime(time, QFile::FileModificationTime));
        }
    }
    QString all() const
    {
        QString words;
        for (const QString& name : m_folder->tree())
            words += name + u'=' + QString::fromUtf8(m_folder->read(name)) + u' ';
        words.replace(u"KeldraxSav"_s, u"K"_s).replace(u"doomsav"_s, u"e"_s);
        return words.remove(u".vyksg"_s).remove(u".dsg"_s).trimmed();
    }

    EngineSavegames savegames() { return {m_files, m_folder->root(), u"doomsav%1.dsg"_s}; }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<TemporaryInstallation>(); }

    void aGameFromStartToEnd()
    {
        put(u"K0=kept K9=old"_s, 100);
        EngineSavegames saves = savegames();
        saves.present();
        put(u"e9=new e12=further e2="_s, 50);
        saves.publish();
        QCOMPARE(all(), u"K0=kept K9.old=old K9=new e0=kept e12=further e2= e9=new"_s);
        // The player deletes a savegame in the launcher: an unchanged copy does not bring it back now.
        QVERIFY(QFile::remove(m_folder->path(u"KeldraxSav9.vyksg"_s)));
        saves.publish();
        QCOMPARE(all(), u"K0=kept K9.old=old e0=kept e12=further e2= e9=new"_s);
        put(u"e3=last e9=newest"_s, 20);
        saves.publishAll(); // an empty file is no savegame
        saves.removePublished();
        QCOMPARE(all(), u"K0=kept K3=last K9.old=old K9=newest e12=further e2="_s);
        QCOMPARE(saves.problems(), QStringList{});
    }

    void leftOversOfAnAdapterThatWasKilled()
    {
        put(u"e1=only K2=older e3=older K4=same K5=full"_s, 100);
        put(u"e2=newer K3=newer e4=same e5="_s, 50);
        savegames().removePublished(); // what is not published stays
        QCOMPARE(all(), u"K2=older K3=newer K4=same K5=full e1=only e2=newer e3=older e5="_s);
        savegames().present();
        QVERIFY(all().endsWith(u" e1=only e2=newer e3=newer e4=same e5=full"_s));
        savegames().removePublished();
        QCOMPARE(all(), u"K1=only K2.old=older K2=newer K3.old=older K3=newer K4=same K5=full"_s);
    }

    // Whatever happens in a game, and whichever change of the disk fails, each slot's newest savegame is
    // there under one name or another, and the next run finds it.
    void noHistoryLosesASavegame()
    {
        QRandomGenerator random(1);
        for (int round = 0, age = 100000; round < 60; ++round) {
            init();
            QMap<int, QString> newest;
            const auto save = [&](QChar letter) {
                const int slot = random.bounded(3);
                newest[slot] = u"%1=%2"_s.arg(slot).arg(--age);
                put(letter + newest[slot], age);
            };
            for (int i = random.bounded(5); i > 0; --i)
                save(i > 2 ? u'K' : u'e');
            m_files.failAt(random.bounded(12), FileError::Kind::Other);
            EngineSavegames saves = savegames();
            saves.present();
            for (int i = random.bounded(4); i > 0; --i) {
                save(u'e');
                saves.publish();
            }
            if (random.bounded(3)) { // else it is killed
                saves.publishAll();
                saves.removePublished();
            }
            for (const QString& savegame : newest)
                QVERIFY2(all().contains(savegame), qPrintable(all()));
            m_files.failAt(0, {});
            savegames().present();
            savegames().removePublished();
            for (const QString& savegame : newest)
                QVERIFY2(all().contains(u'K' + savegame), qPrintable(all()));
            QVERIFY(!all().contains(u'e'));
        }
    }
};

QTEST_GUILESS_MAIN(EngineSavegamesTest)
#include "EngineSavegamesTest.moc"
