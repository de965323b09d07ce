#include "tests/support/TemporaryInstallation.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <filesystem>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

void Require(bool done, const QString& path)
{
    if (!done)
        throw std::runtime_error("temporary installation: " + path.toStdString());
}

QByteArray LittleEndian(qsizetype number)
{
    QByteArray bytes(4, 0);
    qToLittleEndian(static_cast<qint32>(number), bytes.data());
    return bytes;
}

} // namespace

TemporaryInstallation::TemporaryInstallation()
{
    Require(m_folder.isValid(), m_folder.path());
    // What is deleted does not go to the trash of whoever runs the tests, and to one on this disk.
    static const QTemporaryDir home;
    static const bool isSet = [] {
        return qputenv("HOME", QFile::encodeName(home.path())) &&
               qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    }();
    Require(isSet, home.path());
}

QString TemporaryInstallation::nativePath(const QString& relativePath) const
{
    return QDir::toNativeSeparators(path(relativePath));
}

void TemporaryInstallation::add(const QString& relativePath, const QByteArray& bytes)
{
    QFile file(path(relativePath));
    addFolder(QFileInfo(relativePath).path());
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush(),
            relativePath);
}

void TemporaryInstallation::addProgram(const QString& relativePath, const QByteArray& bytes)
{
    add(relativePath, bytes);
    QFile file(path(relativePath));
    Require(file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther),
            relativePath);
}

void TemporaryInstallation::addBuilt(const QString& relativePath, const char* program)
{
    const QFileInfo source(QString::fromUtf8(program));
    const QFileInfo target(path(relativePath + QStringLiteral(PROGRAM_ENDING)));
    addFolder(QFileInfo(relativePath).path());
    QFile::remove(target.filePath());
    std::error_code error; // another disk takes a copy
    std::filesystem::create_hard_link(source.filesystemFilePath(), target.filesystemFilePath(), error);
    Require(!error || QFile::copy(source.filePath(), target.filePath()), relativePath);
}

void TemporaryInstallation::addFolder(const QString& relativePath)
{
    Require(QDir(root()).mkpath(relativePath), relativePath);
}

QByteArray TemporaryInstallation::read(const QString& relativePath) const
{
    QFile file(path(relativePath));
    Require(file.open(QIODevice::ReadOnly), relativePath);
    return file.readAll();
}

bool TemporaryInstallation::exists(const QString& relativePath) const
{
    // Of a shortcut itself, not of what it leads to.
    return std::filesystem::exists(QFileInfo(path(relativePath)).filesystemFilePath());
}

QStringList TemporaryInstallation::tree() const
{
    QStringList paths;
    const QDir top(root());
    QDirIterator entries(root(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths += top.relativeFilePath(entries.next());
    std::ranges::sort(paths);
    return paths;
}

void TemporaryInstallation::makeComplete()
{
    for (const QString& program : {u"Bin/Keldrax"_s, u"Bin/VYKgFiles"_s})
        addProgram(program);
    for (const QString& library : {u"Bin/unzip32.dll"_s, u"Bin/fmodex.dll"_s})
        add(library);
    for (const QString& folder : {u"Data"_s, u"VYKLaunch/Data"_s})
        addFolder(folder);
}

QByteArray TemporaryInstallation::wad(const QByteArray& type, const QStringList& lumpNames)
{
    constexpr qsizetype headerSize = 12;
    constexpr qsizetype nameSize = 8;
    const QByteArray lump = "lump";
    QByteArray lumps;
    QByteArray directory;
    for (const QString& name : lumpNames) {
        directory += LittleEndian(headerSize + lumps.size()) + LittleEndian(lump.size()) +
                     name.toLatin1().leftJustified(nameSize, '\0', true);
        lumps += lump;
    }
    return type + LittleEndian(lumpNames.size()) + LittleEndian(headerSize + lumps.size()) + lumps +
           directory;
}
