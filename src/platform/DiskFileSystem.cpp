#include "platform/DiskFileSystem.h"

#include "platform/EntryStatus.h"
#include "platform/FolderScan.h"
#include "platform/FolderTree.h"
#include "platform/Paths.h"
#include "platform/RemovalRights.h"
#include "platform/Rename.h"
#include "platform/Spelling.h"
#include "platform/SystemError.h"
#include "platform/SystemTrash.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <filesystem>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Kind = FileError::Kind;

// Qt's own error classes keep little of the reason, so the system's number decides; the caller clears it
// before.
[[noreturn]] void Fail(const QString& path, const QFileDevice& file)
{
    const Kind kind = KindOfSystemError(SystemError());
    const bool refused = kind == Kind::Other && file.error() == QFileDevice::PermissionsError;
    throw FileError(refused ? Kind::PermissionDenied : kind, path, file.errorString());
}

[[noreturn]] void Fail(const QString& path)
{
    const int error = SystemError();
    throw FileError(KindOfSystemError(error), path, qt_error_string(error));
}

[[noreturn]] void Fail(const QString& path, const std::error_code& error)
{
    throw FileError(KindOfSystemError(error), path, QString::fromStdString(error.message()));
}

std::filesystem::path NativeOf(const QString& path)
{
    return QFileInfo(path).filesystemFilePath();
}

FolderEntry::Kind KindOf(const EntryStatus& entry)
{
    using enum FolderEntry::Kind;
    return entry.isLink ? Link : entry.isFolder ? Folder : entry.isFile ? File : Other;
}

// Ascending without regard to case; the exact spelling decides between names that differ in nothing else.
QStringList Sorted(const QStringList& names)
{
    std::vector<std::pair<QString, QString>> folded;
    folded.reserve(static_cast<size_t>(names.size()));
    for (const QString& name : names)
        folded.emplace_back(name.toCaseFolded(), name);
    std::ranges::sort(folded);
    QStringList sorted;
    sorted.reserve(names.size());
    for (const auto& [key, name] : folded)
        sorted << name;
    return sorted;
}

QString Joined(const QString& folder, const QString& name)
{
    return folder.isEmpty() || folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

struct Found
{
    QString path; // spelled as on disk as far as it exists there, with '/', without one at its end
    bool whole;   // all of it exists
};

bool IsPath(const QString& text)
{
    constexpr qsizetype longest = 32767; // no system takes more
    return !text.isEmpty() && text.size() <= longest && !text.contains(QChar::Null);
}

Found Find(const QString& wanted)
{
    if (!IsPath(wanted))
        return {{}, false};
    QString path = WithSlashes(wanted);
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);

    QStringList missing; // the deepest first
    while (!path.isEmpty() && !StatusOf(path).isThere) {
        missing += FileNameOf(path);
        path = FolderOf(path);
    }
    while (!missing.isEmpty()) {
        const QString name = OtherSpelling(path, missing.last());
        if (name.isEmpty())
            break;
        path = Joined(path, name);
        missing.removeLast();
        // Below a folder that was found under another spelling the exact names come first again.
        while (!missing.isEmpty() && StatusOf(Joined(path, missing.last())).isThere)
            path = Joined(path, missing.takeLast());
    }
    const bool whole = missing.isEmpty();
    path = SpelledAsOnDisk(path);
    while (!missing.isEmpty())
        path = Joined(path, missing.takeLast());
    return {path, whole};
}

// Find for the functions that change something.
Found FindTarget(const QString& path)
{
    if (!IsPath(path))
        throw FileError(Kind::Other, path, u"not a path"_s);
    return Find(path);
}

QString ExistingFile(const QString& path)
{
    const Found found = Find(path);
    if (!found.whole)
        throw FileError(IsPath(path) ? Kind::NotFound : Kind::Other, path, u"no such file"_s);
    // Opening a pipe would wait for a writer.
    if (!StatusOf(found.path).isFile)
        throw FileError(Kind::Other, found.path, u"not a file"_s);
    return found.path;
}

// The bits count, not only the user's rights: an administrator's read-only file stays as it is.
bool IsReadOnly(const QFileInfo& file)
{
    const auto anyone = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return !(file.permissions() & anyone) || !file.isWritable();
}

void RequireWritable(const QString& path)
{
    const EntryStatus status = StatusOf(path);
    if (!status.isThere || (status.isLink && !status.isFile && !status.isFolder))
        return;
    if (!status.isFile)
        throw FileError(Kind::Other, path, u"not a file"_s);
    if (IsReadOnly(QFileInfo(path)))
        throw FileError(Kind::PermissionDenied, path, u"the file is read-only"_s);
}

// Replaces the file by what `fill` writes into it.
void Replace(const QString& wanted, const std::function<void(QSaveFile&)>& fill)
{
    const QString path = FindTarget(wanted).path;
    if (!StatusOf(FolderOf(path)).isFolder)
        throw FileError(Kind::NotFound, path, u"no such folder"_s);
    RequireWritable(path);
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    ClearSystemError();
    if (!file.open(QIODevice::WriteOnly))
        Fail(path, file);
    fill(file);
    ClearSystemError();
    // commit() does not tell that the last bytes found no room.
    if (!file.flush() || !file.commit())
        Fail(path, file);
}

void Append(QFileDevice& file, const QByteArray& bytes)
{
    ClearSystemError();
    if (file.write(bytes) != bytes.size())
        Fail(file.fileName(), file);
}

// A time that cannot be set is no failure: nothing of the file itself is lost.
void SetTime(QFileDevice& file, const QDateTime& modified)
{
    if (modified.isValid() && file.flush())
        file.setFileTime(modified, QFileDevice::FileModificationTime);
}

void OpenForReading(QFile& file)
{
    ClearSystemError();
    if (!file.open(QIODevice::ReadOnly))
        Fail(file.fileName(), file);
}

QByteArray ReadSome(QFile& file, qint64 size)
{
    ClearSystemError();
    const QByteArray bytes = file.read(size);
    if (file.error() != QFileDevice::NoError)
        Fail(file.fileName(), file);
    return bytes;
}

} // namespace

QString DiskFileSystem::actualPath(const QString& path) const
{
    const Found found = Find(path);
    return found.whole ? found.path : QString();
}

bool DiskFileSystem::fileExists(const QString& path) const
{
    const Found found = Find(path);
    return found.whole && StatusOf(found.path).isFile;
}

bool DiskFileSystem::folderExists(const QString& path) const
{
    const Found found = Find(path);
    return found.whole && StatusOf(found.path).isFolder;
}

QStringList DiskFileSystem::files(const QString& folder) const
{
    return Sorted(EntriesOf(actualPath(folder), EntryKind::File));
}

QStringList DiskFileSystem::folders(const QString& folder) const
{
    return Sorted(EntriesOf(actualPath(folder), EntryKind::Folder));
}

QStringList DiskFileSystem::foldersHolding(const QString& folder, const QStringList& names) const
{
    return Sorted(FoldersHolding(actualPath(folder), names));
}

QList<FolderEntry> DiskFileSystem::entries(const QString& folder) const
{
    const QString parent = actualPath(folder);
    QList<FolderEntry> found;
    for (const QString& name : Sorted(EntriesOf(parent, EntryKind::Any)))
        found.append({name, KindOf(StatusOf(Joined(parent, name)))});
    return found;
}

TreeContents DiskFileSystem::contents(const QString& path) const
{
    const Found found = Find(path);
    return found.whole ? ContentsOf(NativeOf(found.path)) : TreeContents();
}

QDateTime DiskFileSystem::modified(const QString& path) const
{
    const Found found = Find(path);
    return found.whole ? QFileInfo(found.path).lastModified() : QDateTime();
}

FileStamp DiskFileSystem::stamp(const QString& path) const
{
    const Found found = Find(path);
    if (!found.whole)
        return {};
    const QFileInfo file(found.path);
    return {file.size(), file.lastModified().toMSecsSinceEpoch(),
            file.metadataChangeTime().toMSecsSinceEpoch()};
}

bool DiskFileSystem::isReadOnly(const QString& path) const
{
    const Found found = Find(path);
    return found.whole && IsReadOnly(QFileInfo(found.path));
}

std::unique_ptr<QIODevice> DiskFileSystem::open(const QString& path) const
{
    auto file = std::make_unique<QFile>(ExistingFile(path));
    OpenForReading(*file);
    return file;
}

QByteArray DiskFileSystem::read(const QString& path, qint64 limit) const
{
    QFile file(ExistingFile(path));
    OpenForReading(file);
    return ReadSome(file, std::clamp<qint64>(limit, 0, file.size()));
}

void DiskFileSystem::write(const QString& path, const QByteArray& bytes)
{
    Replace(path, [&bytes](QSaveFile& file) { Append(file, bytes); });
}

void DiskFileSystem::overwrite(const QString& path, const QByteArray& bytes)
{
    const QString target = FindTarget(path).path;
    RequireWritable(target);
    QFile file(target);
    ClearSystemError();
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        Fail(target, file);
}

void DiskFileSystem::copy(const QString& from, const QString& to)
{
    constexpr qint64 pieceSize = 1024 * 1024;
    QFile source(ExistingFile(from));
    OpenForReading(source);
    Replace(to, [&source](QSaveFile& file) {
        for (QByteArray piece = ReadSome(source, pieceSize); !piece.isEmpty();
             piece = ReadSome(source, pieceSize))
            Append(file, piece);
        SetTime(file, QFileInfo(source).lastModified());
    });
}

void DiskFileSystem::create(const QString& path, const std::function<QByteArray()>& next,
                            const QDateTime& modified)
{
    // Other spellings are not looked for: among thousands of files that costs more than to write them.
    const QString target = Joined(FindTarget(FolderOf(path)).path, FileNameOf(path));
    if (StatusOf(target).isLink)
        QFile::remove(target); // what it leads to is another file
    RequireWritable(target);
    QFile file(target);
    ClearSystemError();
    if (!file.open(QIODevice::WriteOnly))
        Fail(target, file);
    try {
        for (QByteArray piece = next(); !piece.isEmpty(); piece = next())
            Append(file, piece);
        SetTime(file, modified);
        ClearSystemError();
        file.close();
        if (file.error() != QFileDevice::NoError)
            Fail(target, file);
    } catch (...) {
        file.close();
        QFile::remove(target);
        throw;
    }
}

void DiskFileSystem::move(const QString& from, const QString& to)
{
    const Found source = FindTarget(from);
    if (!source.whole)
        throw FileError(Kind::NotFound, from, u"no such file or folder"_s);
    const Found target = FindTarget(to);
    const bool onlyCase = target.whole && target.path == source.path;
    const QString wanted = onlyCase ? Joined(FolderOf(source.path), FileNameOf(to)) : target.path;
    const EntryStatus status = StatusOf(source.path);
    const bool isFolder = status.isFolder && !status.isLink;
    if (!onlyCase && target.whole && (isFolder || StatusOf(target.path).isFolder))
        throw FileError(Kind::Exists, target.path, u"the name is taken"_s);
    if (!isFolder && !onlyCase)
        RequireWritable(target.path);
    ClearSystemError();
    if (!Rename(source.path, wanted))
        Fail(source.path);
}

void DiskFileSystem::remove(const QString& path)
{
    const Found found = FindTarget(path);
    if (!found.whole)
        return;
    if (const EntryStatus entry = StatusOf(found.path); entry.isFolder && !entry.isLink)
        throw FileError(Kind::Other, found.path, u"not a file"_s);
    QFile file(found.path);
    ClearSystemError();
    bool removed = file.remove();
    if (!removed) {
        AllowRemoval(NativeOf(found.path));
        ClearSystemError();
        removed = file.remove();
    }
    if (!removed)
        Fail(found.path, file);
}

void DiskFileSystem::createFolder(const QString& path)
{
    const Found found = FindTarget(path);
    if (found.whole && !StatusOf(found.path).isFolder)
        throw FileError(Kind::Exists, found.path, u"a file has the folder's name"_s);
    ClearSystemError();
    if (!found.whole && !QDir().mkpath(found.path))
        Fail(found.path);
}

void DiskFileSystem::removeTree(const QString& path)
{
    const Found found = FindTarget(path);
    if (!found.whole)
        return;
    const EntryStatus entry = StatusOf(found.path);
    if (!entry.isFolder && !entry.isLink)
        throw FileError(Kind::Other, found.path, u"not a folder"_s);
    std::error_code error;
    const std::filesystem::path top = NativeOf(found.path);
    std::filesystem::remove_all(top, error);
    if (error && KindOfSystemError(error) == Kind::PermissionDenied && !entry.isLink) {
        AllowRemovalOfTree(top);
        std::filesystem::remove_all(top, error);
    }
    if (error)
        Fail(found.path, error);
}

bool DiskFileSystem::hasTrash() const
{
    return HasTrash();
}

bool DiskFileSystem::moveToTrash(const QString& path)
{
    const Found found = FindTarget(path);
    if (!found.whole)
        throw FileError(Kind::NotFound, path, u"no such file or folder"_s);
    if (StatusOf(found.path).isLink) { // by which nothing is lost
        remove(found.path);
        return true;
    }
    QFile entry(found.path);
    if (HasTrash() && entry.moveToTrash())
        return true;
    // A system that could not keep it may say no and have deleted it all the same.
    if (!StatusOf(found.path).isThere)
        throw FileError(Kind::Other, found.path, u"gone without reaching the trash"_s);
    return false;
}

void DiskFileSystem::removeFolder(const QString& path)
{
    const Found found = FindTarget(path);
    ClearSystemError();
    if (!QDir().rmdir(found.path))
        Fail(found.path);
}
