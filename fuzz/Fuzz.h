#pragma once

#include "platform/DiskFileSystem.h"
#include "platform/ReadOnlyFileSystem.h"

#include <QBuffer>

// What each fuzzer has of its own: reads the bytes as what it is for. It ends the program when what must hold
// of anything does not.
void Try(const QByteArray& bytes);

void Require(bool holds);

// A file of those bytes in a folder of its own, which only this program uses.
QString OnDisk(const QString& name, const QByteArray& bytes);

// A disk on which every file is there and holds the same bytes. Folders are empty.
class OneFile : public ReadOnlyFileSystem
{
public:
    explicit OneFile(const QByteArray& bytes)
        : ReadOnlyFileSystem(m_disk, QStringLiteral("/")), m_bytes(bytes)
    {
    }

    QString actualPath(const QString& path) const override { return path; }
    bool fileExists(const QString& path) const override { return !path.isEmpty(); }
    bool folderExists(const QString&) const override { return true; }
    QStringList files(const QString&) const override { return {}; }
    QStringList folders(const QString&) const override { return {}; }
    FileStamp stamp(const QString&) const override { return {m_bytes.size(), 0, 0}; }
    QByteArray read(const QString&, qint64 limit) const override
    {
        return m_bytes.first(qMin(limit, m_bytes.size()));
    }
    std::unique_ptr<QIODevice> open(const QString&) const override
    {
        auto file = std::make_unique<QBuffer>();
        file->setData(m_bytes);
        file->open(QIODevice::ReadOnly);
        return file;
    }
    void write(const QString&, const QByteArray&) override {}
    void overwrite(const QString&, const QByteArray&) override {}
    void copy(const QString&, const QString&) override {}
    void move(const QString&, const QString&) override {}
    void remove(const QString&) override {}
    void createFolder(const QString&) override {}

private:
    DiskFileSystem m_disk;
    QByteArray m_bytes;
};
