#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

// Where names in a folder differ in more than their case and hold no '"', and where links to files and
// folders are not for everybody.
#ifdef Q_OS_WIN
inline constexpr bool OnWindows = true;
#else
inline constexpr bool OnWindows = false;
#endif

// A folder of its own for one test, gone with this object. Paths are relative to root(), with '/'. What
// cannot be done on the disk throws std::runtime_error.
class TemporaryInstallation
{
public:
    TemporaryInstallation();

    QString root() const { return m_folder.path(); }
    QString path(const QString& relativePath) const { return m_folder.filePath(relativePath); }
    // The same, as the system spells it on command lines and in files.
    QString nativePath(const QString& relativePath) const;

    // Writes the file, with the folders that it needs.
    void add(const QString& relativePath, const QByteArray& bytes = {});
    // The same, for a file that can be started.
    void addProgram(const QString& relativePath, const QByteArray& bytes = {});
    // A program that was built for the tests, under the name that the system's programs have.
    void addBuilt(const QString& relativePath, const char* program);
    void addFolder(const QString& relativePath);

    // The spelling counts in both.
    QByteArray read(const QString& relativePath) const;
    bool exists(const QString& relativePath) const;

    // The relative paths of all files, hidden ones too, in the order of their characters' numbers.
    QStringList tree() const;

    // Adds what start-up asks for: the programs and libraries of Bin (empty), Data and VYKLaunch/Data.
    void makeComplete();

    // A WAD of `type` ("IWAD" or "PWAD") with one lump of some bytes for each name (8 bytes at most).
    static QByteArray wad(const QByteArray& type, const QStringList& lumpNames);

private:
    QTemporaryDir m_folder;
};
