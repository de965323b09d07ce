#pragma once

#include "platform/FileSystem.h"

// Another file system that forgets every change: what a dry run works on.
class ReadOnlyFileSystem : public FileSystem
{
public:
    // `disk` must outlive this object.
    explicit ReadOnlyFileSystem(const FileSystem& disk) : m_disk(disk) {}

    QString actualPath(const QString& path) const override { return m_disk.actualPath(path); }
    bool fileExists(const QString& path) const override { return m_disk.fileExists(path); }
    bool folderExists(const QString& path) const override { return m_disk.folderExists(path); }
    QStringList files(const QString& folder) const override { return m_disk.files(folder); }
    QStringList folders(const QString& folder) const override { return m_disk.folders(folder); }
    QDateTime modified(const QString& path) const override { return m_disk.modified(path); }
    QByteArray read(const QString& path, qint64 limit) const override { return m_disk.read(path, limit); }
    void write(const QString&, const QByteArray&) override {}
    void overwrite(const QString&, const QByteArray&) override {}
    void copy(const QString&, const QString&) override {}
    void remove(const QString&) override {}
    void createFolder(const QString&) override {}
    void removeFolder(const QString&) override {}

private:
    const FileSystem& m_disk;
};
