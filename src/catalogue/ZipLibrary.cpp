#include "catalogue/ZipLibrary.h"

#include "platform/Archive.h"
#include "platform/Locks.h"
#include "platform/Paths.h"
#include "ui/FileErrorReport.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString notAZip = u"This file does not appear to be a valid zip file.    "_s;

void fileError(Prompts& prompts, const QString& text)
{
    prompts.MsgboxPos(text, Msg::Ok, u" File error"_s);
}

const struct
{
    Extraction result;
    QString text;
} extractionErrors[] = {
    {Extraction::NotAZip, notAZip},
    {Extraction::TooLarge, u"This zip file unpacks to more than any game holds, it is left alone.    "_s},
    {Extraction::NoFiles, u"This zip file holds no files.    "_s},
    {Extraction::NoPassword, u"This zip file can not be unpacked without its password.    "_s},
    {Extraction::LongComment,
     u"The comment at the end of this zip file is too long, it can not be unpacked.    "_s},
    {Extraction::Deflate64, u"This zip file is packed with Deflate64, which can not be unpacked.    \r\n"
                            "Pack it again as an ordinary zip file.    "_s},
    {Extraction::Imploded, u"This zip file was imploded by an old program, which can not be unpacked.    \r\n"
                           "Pack it again as an ordinary zip file.    "_s},
    {Extraction::OtherPacking, u"This zip file is packed in a way that can not be unpacked.    \r\n"
                               "Pack it again as an ordinary zip file.    "_s},
};

QString zipFolder(const InstallationPaths& paths)
{
    return paths.LaunchPath + u"Zips/"_s;
}

const QString folderEnding = u".zip"_s; // what a folder's name of an opened zip ends in
const QString lockEnding = u".lock"_s;

// A folder for the zip that no other launcher works with. Throws FileError.
OpenedFolder folderFor(Launcher& launcher, const QString& name)
{
    launcher.files.createFolder(zipFolder(launcher.paths));
    for (int number = 1;; ++number) {
        const QString other = number == 1 ? QString() : u" (%1)"_s.arg(number);
        // In small letters: two spellings of a name are one folder.
        const QString path = zipFolder(launcher.paths) + name.toLower() + other + folderEnding;
        for (const OpenedFolder& own : std::as_const(launcher.session.openedFolders))
            if (own.path == path)
                return own;
        auto lock = std::make_shared<QLockFile>(path + lockEnding);
        if (TakeLock(*lock, 0))
            return {path, lock};
        if (lock->error() != QLockFile::LockFailedError)
            throw FileError(FileError::Kind::PermissionDenied, path, u"the folder cannot be written"_s);
    }
}

void removeQuietly(FileSystem& files, const QString& folder)
{
    try {
        files.removeTree(folder);
    } catch (const FileError&) {
        // What is in use is deleted another time.
    }
}

// What other zips have left and nobody works with.
void removeUnused(Launcher& launcher)
{
    for (const QString& name : launcher.files.folders(zipFolder(launcher.paths))) {
        const QString folder = zipFolder(launcher.paths) + name;
        if (!EndsWith(name, folderEnding))
            continue;
        QLockFile lock(folder + lockEnding);
        if (TakeLock(lock, 0))
            removeQuietly(launcher.files, folder);
    }
}

QString askPassword(Launcher& launcher)
{
    bool& declined = launcher.session.passwordsDeclined;
    if (declined)
        return {};
    const QString password = launcher.prompts.askPassword(u"Please Enter The Password!"_s);
    declined = password.isEmpty();
    return password;
}

bool unpack(Launcher& launcher, const QString& path, const QString& folder)
{
    try {
        launcher.files.removeTree(folder);
        launcher.files.createFolder(folder);
        if (ExtractZip(launcher, path, folder))
            return true;
    } catch (const FileError& error) {
        const bool missing = error.kind() == FileError::Kind::NotFound;
        if (!ReportCause(launcher.prompts, error))
            fileError(launcher.prompts,
                      missing ? notAZip : u"The zip file can not be unpacked, a file may be in use.    "_s);
    }
    removeQuietly(launcher.files, folder);
    return false;
}

bool isOrHolds(const QString& folder, const QString& other)
{
    return (other + u'/').startsWith(folder + u'/', Qt::CaseInsensitive);
}

} // namespace

QString ArchivePath(const InstallationPaths& paths, const QString& name)
{
    return paths.ArchivesPath + u'/' + name + u".zip"_s;
}

bool OpenArchive(Launcher& launcher, const QString& name)
{
    const FileSystem& files = launcher.files;
    const QString path = ArchivePath(launcher.paths, name);
    OpenedArchive& opened = launcher.facts.opened;
    if (!opened.path.isEmpty() &&
        opened == OpenedArchive{path, opened.folder, files.stamp(path), files.stamp(opened.folder)})
        return true;
    opened = {};
    try {
        const OpenedFolder folder = folderFor(launcher, name);
        QList<OpenedFolder>& own = launcher.session.openedFolders;
        own.removeIf([&folder](const OpenedFolder& other) { return other.path == folder.path; });
        own.prepend(folder);
        own.resize(qMin<qsizetype>(own.size(), 2)); // a game started with the zip before may still read it
        removeUnused(launcher);
        if (unpack(launcher, path, folder.path))
            opened = {path, folder.path + u'/', files.stamp(path), files.stamp(folder.path)};
    } catch (const FileError& error) {
        if (!ReportCause(launcher.prompts, error))
            fileError(launcher.prompts, u"The zip file can not be unpacked, a file may be in use.    "_s);
    }
    return !opened.path.isEmpty();
}

void EmptyZipFolder(Launcher& launcher)
{
    const QString folder = zipFolder(launcher.paths);
    removeUnused(launcher);
    for (const QString& name : launcher.files.files(folder)) {
        try {
            launcher.files.remove(folder + name);
        } catch (const FileError&) {
            // What is in use is deleted another time.
        }
    }
}

bool IsFolderOfInstallation(const FileSystem& files, const InstallationPaths& paths, const QString& folder)
{
    const QString actual = QFileInfo(files.actualPath(folder)).canonicalFilePath();
    const QString root = QFileInfo(paths.RootPath).canonicalFilePath();
    if (actual.isEmpty() || isOrHolds(actual, root))
        return !actual.isEmpty();
    for (const char* own : {"VYKLaunch", "VYKGames", "UserSG", "Bin", "Engine", "Data", "Iwads", "Defs",
                            "Md2", "Music", "OGGVorbis", "VYK_Docs", "VYKAnFiles", "gwa"})
        if (isOrHolds(root + u'/' + QLatin1StringView(own), actual))
            return true;
    return false;
}

bool ExtractZip(Launcher& launcher, const QString& ZipSourcePath, const QString& ZipTargetFolder)
{
    const std::unique_ptr<Progress> progress =
        launcher.prompts.showProgress(u"Unpacking "_s + FileNameOf(ZipSourcePath));
    const ExtractionCalls calls{
        .password = [&launcher] { return askPassword(launcher); },
        .progress = [&progress](qint64 done, qint64 total) { return progress->advance(done, total); },
    };
    const Extraction result = ExtractArchive(launcher.files, ZipSourcePath, ZipTargetFolder, calls);
    for (const auto& error : extractionErrors)
        if (error.result == result)
            fileError(launcher.prompts, error.text);
    return result == Extraction::Done;
}
