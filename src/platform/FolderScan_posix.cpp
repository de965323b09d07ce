#include "platform/FolderScan.h"

#include "platform/Paths.h"

#include <QFile>

#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <future>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct CloseFolder
{
    void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

bool canBeAddressed(const char* name)
{
    return !std::strchr(name, '\\') && QByteArrayView(name).isValidUtf8();
}

// Calls `take` with every entry but "." and ".." that a path can carry.
template <class Take>
void forEachEntry(DIR* folder, const Take& take)
{
    while (const dirent* entry = folder ? readdir(folder) : nullptr)
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0 &&
            canBeAddressed(entry->d_name))
            take(*entry);
}

bool isFolder(int parent, const char* path)
{
    struct stat status = {};
    return fstatat(parent, path, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

bool isFile(int parent, const char* path)
{
    struct stat status = {};
    return fstatat(parent, path, &status, 0) == 0 && S_ISREG(status.st_mode);
}

// What the folder itself says, mostly; a link or a file system that does not say costs a call.
bool isKind(int parent, const dirent& entry, EntryKind kind)
{
    if (kind == EntryKind::Any)
        return true;
    const bool known = entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK;
    if (kind == EntryKind::Folder)
        return known ? entry.d_type == DT_DIR : isFolder(parent, entry.d_name);
    return known ? entry.d_type == DT_REG : isFile(parent, entry.d_name);
}

// The same without regard to case.
bool holdsInAnyCase(int parent, const char* game, const QStringList& names)
{
    const int file = openat(parent, game, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const OpenFolder folder(file < 0 ? nullptr : fdopendir(file));
    bool found = false;
    forEachEntry(folder.get(), [&](const dirent& entry) {
        const QString name = QFile::decodeName(entry.d_name);
        for (const QString& wanted : names)
            found =
                found || (SameName(name, wanted) && isKind(dirfd(folder.get()), entry, EntryKind::Folder));
    });
    return found;
}

bool holds(int parent, const char* game, const QList<QByteArray>& exact, const QStringList& names)
{
    QByteArray path;
    for (const QByteArray& name : exact) {
        path.resize(0); // and keeps its memory
        path.append(game).append('/').append(name);
        if (isFolder(parent, path.constData()))
            return true;
    }
    return holdsInAnyCase(parent, game, names);
}

} // namespace

QStringList EntriesOf(const QString& folder, EntryKind kind)
{
    const OpenFolder open(opendir(QFile::encodeName(folder).constData()));
    QStringList names;
    forEachEntry(open.get(), [&](const dirent& entry) {
        if (isKind(dirfd(open.get()), entry, kind))
            names << QFile::decodeName(entry.d_name);
    });
    return names;
}

QStringList FoldersHolding(const QString& folder, const QStringList& names)
{
    QList<QByteArray> exact;
    for (const QString& name : names)
        exact << QFile::encodeName(name);
    const OpenFolder open(opendir(QFile::encodeName(folder).constData()));
    const int parent = open ? dirfd(open.get()) : -1;
    std::vector<QByteArray> folders;
    forEachEntry(open.get(), [&](const dirent& entry) {
        if (isKind(parent, entry, EntryKind::Folder))
            folders.emplace_back(entry.d_name);
    });

    const auto find = [&](size_t begin, size_t end) {
        QStringList found;
        for (size_t i = begin; i < end; ++i)
            if (holds(parent, folders[i].constData(), exact, names))
                found << QFile::decodeName(folders[i]);
        return found;
    };
    // Looking into thousands of folders is most of the work: two do it at the same time.
    const size_t half = folders.size() / 2;
    std::future<QStringList> first = std::async(std::launch::async, find, 0, half);
    const QStringList second = find(half, folders.size());
    return first.get() + second;
}
