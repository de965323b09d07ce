#include "tools/engine/MusicPack.h"

#include "music/PlaylistEntries.h"
#include "music/PlaylistFile.h"
#include "platform/Paths.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QtEndian>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 pieceSize = 1024 * 1024;
constexpr qint64 largestPack = 1024 * pieceSize; // a WAD's offsets are 32 bits, signed

QByteArray sha1(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

// A Standard MIDI File of one track: the text, and a rest that is longer than anybody waits.
QByteArray silentMidi(const QByteArray& text)
{
    const QByteArray restAndEnd("\xFF\xFF\x7F\xFF\x2F\x00", 6);
    const QByteArray track =
        QByteArray("\x00\xFF\x01", 3) + static_cast<char>(text.size()) + text + restAndEnd;
    QByteArray length(4, 0);
    qToBigEndian(static_cast<quint32>(track.size()), length.data());
    return QByteArray("MThd\x00\x00\x00\x06\x00\x00\x00\x01\x00\x60MTrk", 18) + length + track;
}

// The file of an entry, or why there is none.
struct Music
{
    QString file, why;
};

// `music` is as the entry names it: "\OggVorbis\a.ogg", or a path with its drive.
Music musicFile(const FileSystem& files, const QString& root, const QString& music)
{
    if (music.startsWith(u"CD "_s))
        return {{}, u"other engines play no CD tracks"_s};
    const QString given = WithSlashes(music);
    const bool withDrive = given.section(u'/', 0, 0).endsWith(u':') && QDir::isAbsolutePath(given);
    const QString path = QDir::cleanPath(withDrive ? given : root + u'/' + given);
    if (!withDrive && !path.startsWith(root + u'/'))
        return {{}, u"it lies outside the installation"_s};
    if (!CheckMusicExt(path.section(u'.', -1)))
        return {{}, u"it is no music file"_s};
    if (!files.fileExists(path))
        return {{}, u"there is no such file"_s};
    return {files.actualPath(path), {}};
}

// A line of a music pack's list ends where a comment begins, and loses the blanks at its ends.
bool canBeListed(const QString& path)
{
    return !path.contains(u'#') && path.trimmed() == path;
}

QString relativeToPacks(const QString& root, const QString& path)
{
    return QDir(root + u'/' + MusicPackFolder).relativeFilePath(path);
}

QString playlistPath(const QString& root, const QString& playlist)
{
    return root + u"/VYKLaunch/Music/"_s + playlist + u".vym"_s;
}

// Four bytes of the header and the directory.
QByteArray number(qint64 value)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(static_cast<qint32>(value), bytes.data());
    return bytes;
}

// The pieces of a WAD, one after the other; empty at its end.
class WadPieces
{
public:
    WadPieces(const FileSystem& files, const MusicPack& pack) : m_files(files), m_pack(pack) {}

    QByteArray next()
    {
        if (!std::exchange(m_begun, true))
            return "PWAD" + number(m_pack.lumps.size()) + number(bodySize() + headerSize);
        if (m_left > 0)
            return fromFile();
        if (m_at == m_pack.lumps.size())
            return std::exchange(m_ended, true) ? QByteArray() : directory();
        const MusicLump& lump = m_pack.lumps[m_at++];
        if (!isFile(lump))
            return lump.silent;
        m_source = m_files.open(lump.file);
        m_left = lump.size;
        return fromFile();
    }

private:
    static constexpr qint64 headerSize = 12;

    bool isFile(const MusicLump& lump) const { return m_pack.ownFiles && !lump.file.isEmpty(); }
    qint64 sizeOf(const MusicLump& lump) const { return isFile(lump) ? lump.size : lump.silent.size(); }

    qint64 bodySize() const
    {
        qint64 size = 0;
        for (const MusicLump& lump : m_pack.lumps)
            size += sizeOf(lump);
        return size;
    }

    QByteArray fromFile()
    {
        const QByteArray piece = m_source->read(qMin(m_left, pieceSize));
        if (piece.isEmpty())
            throw FileError(FileError::Kind::Other, m_pack.lumps[m_at - 1].file, u"it became shorter"_s);
        m_left -= piece.size();
        return piece;
    }

    QByteArray directory() const
    {
        QByteArray bytes;
        qint64 offset = headerSize;
        for (const MusicLump& lump : m_pack.lumps) {
            bytes += number(offset) + number(sizeOf(lump)) + lump.name.toLatin1().leftJustified(8, 0, true);
            offset += sizeOf(lump);
        }
        return bytes;
    }

    const FileSystem& m_files;
    const MusicPack& m_pack;
    std::unique_ptr<QIODevice> m_source;
    qint64 m_left = 0; // of the source
    qsizetype m_at = 0;
    bool m_begun = false, m_ended = false;
};

QString listPath(const MusicPack& pack)
{
    return pack.wad.chopped(3) + u"cfg"_s;
}

// The list of a music pack: the SHA-1 of a lump, " = ", and a path from the list's own folder.
QByteArray listOf(const QString& root, const MusicPack& pack)
{
    QByteArray text;
    for (const MusicLump& lump : pack.lumps)
        if (!lump.file.isEmpty())
            text += sha1(lump.silent) + " = " + relativeToPacks(root, lump.file).toUtf8() + '\n';
    return text;
}

// All but the newest packs, what a kill left unfinished among them; one that is played lives on, or cannot be
// deleted.
void removeOldPacks(FileSystem& files, const QString& folder)
{
    constexpr qsizetype kept = 8;
    QStringList packs = files.files(folder);
    packs.removeIf([](const QString& name) { return EndsWith(name, u".cfg"_s); });
    std::ranges::sort(packs, [&](const QString& a, const QString& b) {
        return files.modified(folder + u'/' + a) > files.modified(folder + u'/' + b);
    });
    for (const QString& name : packs.mid(kept))
        try {
            files.remove(folder + u'/' + name);
            files.remove(folder + u'/' + name.chopped(3) + u"cfg"_s);
        } catch (const FileError&) { // another time
        }
}

} // namespace

MusicPack PlanMusicPack(const FileSystem& files, const QString& root, const QString& playlist, MusicWay way)
{
    MusicPack pack{.wad = {}, .ownFiles = way == MusicWay::Lumps, .lumps = {}, .silences = {}};
    QStringList lines;
    try {
        if (playlist.contains(u'/') || playlist.contains(u'\\'))
            throw FileError(FileError::Kind::NotFound, playlist, u"no name of a playlist"_s);
        lines = ReadPlaylist(files, playlistPath(root, playlist)).lines;
    } catch (const FileError& error) {
        pack.silences += QString::fromUtf8(error.what());
        return pack;
    }

    qint64 total = 0;
    QByteArray identity = pack.ownFiles ? "files\n" : "list\n";
    const auto add = [&](const MusicKey& key) {
        const QString entry = ReplaceInterMusic(lines, key.key);
        const QString music = GetMusicString(entry).trimmed();
        if (music.isEmpty())
            return;
        const QString name = key.lump.toString().toUpper();
        const auto silence = [&](const QString& why) {
            pack.silences += u"%1 %2: %3"_s.arg(key.key, music, why);
        };
        if (std::ranges::any_of(pack.lumps, [&](const MusicLump& lump) { return lump.name == name; })) {
            silence(u"other engines play the music of another map there"_s);
            return;
        }
        MusicLump lump{.name = name, .file = {}, .size = 0, .silent = {}};
        Music found = musicFile(files, root, music);
        if (const qint64 size = files.stamp(found.file).size; found.why.isEmpty()) {
            if (!pack.ownFiles && !canBeListed(relativeToPacks(root, found.file)))
                found.why = u"the engine's lists cannot carry its name"_s;
            else if (pack.ownFiles && (size <= 0 || total + size > largestPack))
                found.why = u"it is empty, or there is too much music"_s;
            else
                lump.file = found.file, lump.size = size;
        }
        if (!found.why.isEmpty())
            silence(found.why);
        total += lump.size;
        lump.silent = silentMidi(sha1(lump.file.toUtf8()));
        const FileStamp stamp = files.stamp(lump.file);
        identity += name.toLatin1() + ' ' + lump.file.toUtf8() + ' ' + QByteArray::number(stamp.size) + ' ' +
                    QByteArray::number(stamp.modified) + '\n';
        pack.lumps += lump;
    };
    for (const MusicGame game : {MusicGame::Doom, MusicGame::Doom2}) {
        std::ranges::for_each(IntermissionKeys(game), add);
        std::ranges::for_each(MapKeys(game), add);
    }
    if (!pack.lumps.isEmpty())
        pack.wad = root + u'/' + MusicPackFolder + u'/' + QString::fromLatin1(sha1(identity)) + u".wad"_s;
    return pack;
}

void WriteMusicPack(FileSystem& files, const QString& root, const MusicPack& pack)
{
    if (pack.wad.isEmpty())
        return;
    const QString folder = FolderOf(pack.wad);
    files.createFolder(folder);
    if (!pack.ownFiles)
        files.write(listPath(pack), listOf(root, pack));
    if (files.fileExists(pack.wad))
        return;
    const QString unfinished = pack.wad + u'.' + QString::number(QCoreApplication::applicationPid());
    WadPieces pieces(files, pack);
    files.create(unfinished, [&pieces] { return pieces.next(); }, {});
    files.move(unfinished, pack.wad);
    removeOldPacks(files, folder);
}
