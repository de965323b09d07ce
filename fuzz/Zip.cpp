#include "fuzz/Fuzz.h"
#include "platform/Archive.h"
#include "platform/FileNames.h"
#include "platform/Paths.h"

// A zip of any bytes writes into its folder only, and under names that every system takes.
void Try(const QByteArray& bytes)
{
    static DiskFileSystem files;
    const QString zip = OnDisk(QStringLiteral("a.zip"), bytes);
    const QString folder = FolderOf(zip) + QStringLiteral("/in/");
    files.createFolder(folder);
    try {
        int passwords = 2;
        ExtractArchive(files, zip, folder,
                       {.password = [&] { return passwords-- > 0 ? QStringLiteral("x") : QString(); },
                        .progress = [](qint64, qint64) { return true; }});
    } catch (const FileError&) {
    }
    for (const FolderEntry& entry : files.entries(folder))
        Require(entry.kind == FolderEntry::Kind::File && IsUsableName(entry.name));
    Require(files.entries(FolderOf(zip)).size() == 2);
    files.removeTree(folder);
}
