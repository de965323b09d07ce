#pragma once

#include "platform/FileSystem.h"

// The real disk.
class DiskFileSystem : public FileSystem
{
public:
    QString actualPath(const QString& path) const override;
    bool fileExists(const QString& path) const override;
    bool folderExists(const QString& path) const override;
    QStringList files(const QString& folder) const override;
    QStringList folders(const QString& folder) const override;
    QStringList foldersHolding(const QString& folder, const QStringList& names) const override;
    QList<FolderEntry> entries(const QString& folder) const override;
    TreeContents contents(const QString& path) const override;
    QDateTime modified(const QString& path) const override;
    FileStamp stamp(const QString& path) const override;
    bool isReadOnly(const QString& path) const override;
    std::unique_ptr<QIODevice> open(const QString& path) const override;
    QByteArray read(const QString& path, qint64 limit) const override;
    void write(const QString& path, const QByteArray& bytes) override;
    void overwrite(const QString& path, const QByteArray& bytes) override;
    void copy(const QString& from, const QString& to) override;
    void create(const QString& path, const std::function<QByteArray()>& next,
                const QDateTime& modified) override;
    void move(const QString& from, const QString& to) override;
    void remove(const QString& path) override;
    void createFolder(const QString& path) override;
    void removeTree(const QString& path) override;
    bool hasTrash() const override;
    bool moveToTrash(const QString& path) override;
    void removeFolder(const QString& path) override;
};
