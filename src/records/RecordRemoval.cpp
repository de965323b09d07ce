#include "records/RecordRemoval.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

QString records(const InstallationPaths& paths)
{
    return paths.LaunchPath + u"GameInfo/"_s;
}

void clearFolder(FileSystem& files, const QString& folder)
{
    try {
        if (files.folderExists(folder))
            files.removeTree(folder);
    } catch (const FileError&) {
        // Records that stay are read as before: nothing else depends on them.
    }
}

} // namespace

void DeleteRecordsOfGame(FileSystem& files, const InstallationPaths& paths, const QString& name, bool isGwad)
{
    const QString folder = records(paths);
    const QString key = name.toLower();
    if (isGwad) {
        files.remove(folder + u"Gwads/"_s + key + u".vykg"_s);
        files.remove(folder + u"Gwads/"_s + key + u".vykm"_s);
        files.remove(folder + u"Save/Gwads/"_s + key + u".vyks"_s);
        files.removeTree(folder + u"Save/Gwads/"_s + key);
    } else {
        files.remove(folder + u"Pwads/"_s + key + u".vykm"_s);
        files.remove(folder + u"Save/"_s + key + u".vyks"_s);
    }
}

void DeleteRecordsOfArchive(FileSystem& files, const InstallationPaths& paths, const QString& name)
{
    const QString key = name.toLower();
    files.remove(records(paths) + u"Save/Zip/"_s + key + u".vyks"_s);
    files.remove(records(paths) + u"Zips/"_s + key + u".vykm"_s);
}

void ClearRememberedMaps(FileSystem& files, const InstallationPaths& paths)
{
    const QString folder = records(paths);
    for (const QString& kind : {u"Iwads"_s, u"Pwads"_s, u"Zips"_s})
        clearFolder(files, folder + kind);
    const QString gwads = folder + u"Gwads/"_s;
    for (const QString& name : files.files(gwads)) {
        try {
            if (EndsWith(name, u".vykm"_s))
                files.remove(gwads + name);
        } catch (const FileError&) {
        }
    }
}

void ClearRememberedSavegames(FileSystem& files, const InstallationPaths& paths)
{
    clearFolder(files, records(paths) + u"Save"_s);
}
