#pragma once

#include "platform/FileSystem.h"

#include <QSet>

// Another file system whose changing calls (all but the const ones) can be made
// to fail before they change anything: tests may run as root, where permissions stop nothing.
class FailingFileSystem : public FileSystem
{
public:
    // `disk` must outlive this object.
    explicit FailingFileSystem(FileSystem& disk) : m_disk(disk) {}

    bool trash = false; // what is deleted goes there
    bool trashTakes = true;
    std::function<void()> beforeCall; // each that changes something
    QSet<QString> called;             // the names of those so far

    // Lets the n-th changing call from here on (counting from 1) throw, that one only; 0 lets none.
    void failAt(int n, FileError::Kind kind)
    {
        m_calls = 0;
        m_failingCall = n;
        m_callKind = kind;
    }

    // Lets every changing call throw whose path contains `pathPart`, without regard to case; for a copy
    // either path counts. Empty lets none.
    void failOn(const QString& pathPart, FileError::Kind kind)
    {
        m_failingPart = pathPart;
        m_partKind = kind;
    }

    // The changing calls so far, those that failed included, since the last failAt.
    int calls() const { return m_calls; }

    QString actualPath(const QString& path) const override { return m_disk.actualPath(path); }
    bool fileExists(const QString& path) const override { return m_disk.fileExists(path); }
    bool folderExists(const QString& path) const override { return m_disk.folderExists(path); }
    QStringList files(const QString& folder) const override { return m_disk.files(folder); }
    QStringList folders(const QString& folder) const override { return m_disk.folders(folder); }
    QStringList foldersHolding(const QString& folder, const QStringList& names) const override
    {
        return m_disk.foldersHolding(folder, names);
    }
    QList<FolderEntry> entries(const QString& folder) const override { return m_disk.entries(folder); }
    TreeContents contents(const QString& path) const override { return m_disk.contents(path); }
    QDateTime modified(const QString& path) const override { return m_disk.modified(path); }
    FileStamp stamp(const QString& path) const override { return m_disk.stamp(path); }
    bool isReadOnly(const QString& path) const override { return m_disk.isReadOnly(path); }
    std::unique_ptr<QIODevice> open(const QString& path) const override { return m_disk.open(path); }
    QByteArray read(const QString& path, qint64 limit) const override { return m_disk.read(path, limit); }

    void write(const QString& path, const QByteArray& bytes) override
    {
        count("write", {path});
        m_disk.write(path, bytes);
    }
    void overwrite(const QString& path, const QByteArray& bytes) override
    {
        count("overwrite", {path});
        m_disk.overwrite(path, bytes);
    }
    void copy(const QString& from, const QString& to) override
    {
        count("copy", {to, from});
        m_disk.copy(from, to);
    }
    void create(const QString& path, const std::function<QByteArray()>& next,
                const QDateTime& modified) override
    {
        count("create", {path});
        m_disk.create(path, next, modified);
    }
    void move(const QString& from, const QString& to) override
    {
        count("move", {to, from});
        m_disk.move(from, to);
    }
    void remove(const QString& path) override
    {
        count("remove", {path});
        m_disk.remove(path);
    }
    void createFolder(const QString& path) override
    {
        count("createFolder", {path});
        m_disk.createFolder(path);
    }
    void removeTree(const QString& path) override
    {
        count("removeTree", {path});
        m_disk.removeTree(path);
    }
    bool hasTrash() const override { return trash; }
    bool moveToTrash(const QString& path) override
    {
        count("moveToTrash", {path});
        if (!trashTakes)
            return false;
        return m_disk.moveToTrash(path);
    }
    void removeFolder(const QString& path) override
    {
        count("removeFolder", {path});
        m_disk.removeFolder(path);
    }

private:
    void count(const char* name, const QStringList& paths)
    {
        called.insert(QString::fromLatin1(name));
        if (beforeCall)
            beforeCall();
        if (++m_calls == m_failingCall)
            throw FileError(m_callKind, paths.first(), QStringLiteral("a test's failing call"));
        if (m_failingPart.isEmpty())
            return;
        for (const QString& path : paths)
            if (path.contains(m_failingPart, Qt::CaseInsensitive))
                throw FileError(m_partKind, path, QStringLiteral("a test's failing path"));
    }

    FileSystem& m_disk;
    int m_calls = 0;
    int m_failingCall = 0;
    FileError::Kind m_callKind = FileError::Kind::Other;
    QString m_failingPart;
    FileError::Kind m_partKind = FileError::Kind::Other;
};
