#pragma once

#include "platform/FileError.h"

#include <QByteArray>
#include <QDateTime>
#include <QIODevice>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

// What tells whether a file is still the one that was seen before: its size in bytes, and the times of its
// last change and of its last change of any kind in milliseconds since 1970. -1 where nothing is there.
struct FileStamp
{
    qint64 size = -1;
    qint64 modified = -1;
    qint64 changed = -1;
    bool operator==(const FileStamp&) const = default;
};

// An entry of a folder as it stands there: a link is a link, whatever it leads to.
struct FolderEntry
{
    enum class Kind { File, Folder, Link, Other };
    QString name;
    Kind kind;
};

// How much there is at a path, in files (links among them), folders and the bytes of the files.
struct TreeContents
{
    qint64 folders = 0;
    qint64 files = 0;
    qint64 bytes = 0;
};

// The disk. Every path is absolute and written with '/'; a '\' is accepted and means the same. Names
// compare without regard to case: a path that does not exist as it is spelled is looked for folder by
// folder (the exact spelling is tried first, so the common case costs one call). Where two names of a
// folder differ in case alone and neither is spelled exactly, the first in ascending order is taken.
//
// The functions that change something, and `read`, throw FileError. Tests put a double in its place.
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    // The path as it is spelled on disk; empty when nothing exists there or `path` is empty.
    virtual QString actualPath(const QString& path) const = 0;
    virtual bool fileExists(const QString& path) const = 0;
    virtual bool folderExists(const QString& path) const = 0;

    // The names (not paths) of the files or folders directly in `folder`, ascending without regard to
    // case; empty when the folder does not exist. Hidden entries are included, "." and ".." are not.
    virtual QStringList files(const QString& folder) const = 0;
    virtual QStringList folders(const QString& folder) const = 0;

    // Of the folders directly in `folder`, in the same order, those that hold a folder with one of the names.
    virtual QStringList foldersHolding(const QString& folder, const QStringList& names) const = 0;

    // All that is directly in `folder`, in the same order; none when it does not exist or cannot be read.
    virtual QList<FolderEntry> entries(const QString& folder) const = 0;

    // What is at `path` and below it, a folder itself included. A link counts as one file without bytes,
    // not as what it leads to; a folder that cannot be read counts as one folder.
    virtual TreeContents contents(const QString& path) const = 0;

    // The time of the last change; invalid when the file does not exist.
    virtual QDateTime modified(const QString& path) const = 0;

    virtual FileStamp stamp(const QString& path) const = 0;

    // True for a file that `write` would refuse to replace.
    virtual bool isReadOnly(const QString& path) const = 0;

    // The file, opened for reading. Throws FileError.
    virtual std::unique_ptr<QIODevice> open(const QString& path) const = 0;

    // The file's bytes, at most `limit` of them. Throws FileError.
    virtual QByteArray read(const QString& path, qint64 limit = maximumSize) const = 0;

    // Replaces the file by `bytes`, or creates it: after a crash there is the old file or the new one.
    // A read-only file is refused with PermissionDenied. The folder must exist. Throws FileError.
    virtual void write(const QString& path, const QByteArray& bytes) = 0;

    // Replaces the file's contents in place, without waiting for the disk: for a file whose loss matters to
    // nobody. A crash may leave a part of it. Throws FileError.
    virtual void overwrite(const QString& path, const QByteArray& bytes) = 0;

    // Copies a file whole, with its time of the last change, replacing `to`, under the same promise as
    // `write`. Throws FileError.
    virtual void copy(const QString& from, const QString& to) = 0;

    // Creates a file of that very spelling, or replaces it in place, of the pieces that `next` returns until
    // one is empty, without waiting for the disk: for files in a folder that nobody uses yet. `modified`, if
    // valid, becomes the time of its last change. A failure, also what `next` throws, leaves no such file.
    // Throws FileError.
    virtual void create(const QString& path, const std::function<QByteArray()>& next,
                        const QDateTime& modified) = 0;

    // Moves or renames a file or a folder, in one step. A file replaces a file; a folder, or a file in a
    // folder's place, needs `to` to be free (FileError of the kind Exists). A name may change its case alone.
    // Throws FileError; then everything is as it was.
    virtual void move(const QString& from, const QString& to) = 0;

    // Deletes a file, also when it is read-only; one that does not exist is no failure. Throws FileError.
    virtual void remove(const QString& path) = 0;

    // Creates the folder and the folders above it; one that exists is no failure. Throws FileError.
    virtual void createFolder(const QString& path) = 0;

    // Deletes a folder with all that is in it, also what is read-only; a link is deleted, not what it leads
    // to. One that does not exist is no failure. Throws FileError; then some of it may be gone, and its
    // read-only folders may have become writable.
    virtual void removeTree(const QString& path) = 0;

    // Whether the system has a trash for what is deleted.
    virtual bool hasTrash() const = 0;

    // Moves a file or a folder with all that is in it there, whole or not at all; a link is deleted, not what
    // it leads to. False, and nothing has changed, when the trash does not take it. Throws FileError when
    // nothing is at `path`.
    virtual bool moveToTrash(const QString& path) = 0;

    // Deletes an empty folder; throws FileError, also when the folder holds something.
    virtual void removeFolder(const QString& path) = 0;

    // No file that the launcher reads whole is larger (bytes).
    static constexpr qint64 maximumSize = 64 * 1024 * 1024;
};
