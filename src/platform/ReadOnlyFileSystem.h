#pragma once

#include "platform/FileSystem.h"

// Another file system that forgets every change outside one scratch folder: what a dry run works on.
class ReadOnlyFileSystem : public FileSystem
{
public:
    // `disk` must outlive this object; `scratch` ends in '/'.
    ReadOnlyFileSystem(FileSystem& disk, const QString& scratch) : m_disk(disk), m_scratch(scratch) {}

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
        if (isScratch(path))
            m_disk.write(path, bytes);
    }
    void overwrite(const QString& path, const QByteArray& bytes) override
    {
        if (isScratch(path))
            m_disk.overwrite(path, bytes);
    }
    void copy(const QString& from, const QString& to) override
    {
        if (isScratch(to))
            m_disk.copy(from, to);
    }
    void create(const QString& path, const std::function<QByteArray()>& next,
                const QDateTime& modified) override
    {
        if (isScratch(path))
            m_disk.create(path, next, modified);
    }
    void move(const QString& from, const QString& to) override
    {
        if (isScratch(from) && isScratch(to))
            m_disk.move(from, to);
    }
    void remove(const QString& path) override
    {
        if (isScratch(path))
            m_disk.remove(path);
    }
    void createFolder(const QString& path) override
    {
        if (isScratch(path + u'/'))
            m_disk.createFolder(path);
    }
    void removeTree(const QString& path) override
    {
        if (isScratch(path))
            m_disk.removeTree(path);
    }
    bool hasTrash() const override { return m_disk.hasTrash(); }
    bool moveToTrash(const QString&) override { return true; }
    void removeFolder(const QString& path) override
    {
        if (isScratch(path))
            m_disk.removeFolder(path);
    }

private:
    bool isScratch(const QString& path) const { return path.startsWith(m_scratch); }

    FileSystem& m_disk;
    QString m_scratch;
};
