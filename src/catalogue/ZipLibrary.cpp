#include "catalogue/ZipLibrary.h"

#include "platform/Archive.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

const QString notAZip = u"This file does not appear to be a valid zip file.    "_s;

void fileError(Prompts& prompts, const QString& text)
{
    prompts.MsgboxPos(text, Msg::Ok, u" File error"_s);
}

void emptyFolder(FileSystem& files, const QString& folder)
{
    for (const QString& name : files.files(folder))
        files.remove(folder + name);
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
        launcher.files.createFolder(folder);
        emptyFolder(launcher.files, folder);
        if (ExtractZip(launcher, path, folder))
            return true;
        emptyFolder(launcher.files, folder);
    } catch (const FileError& error) {
        const bool missing = error.kind() == FileError::Kind::NotFound;
        fileError(launcher.prompts, missing ? notAZip
                                    : error.isDenied()
                                        ? u"The zip file can not be unpacked, a file may be in use.    "_s
                                        : u"The zip file can not be unpacked, the disk may be full.    "_s);
        try {
            emptyFolder(launcher.files, folder);
        } catch (const FileError&) {
            // What is left belongs to no game: the next zip replaces it.
        }
    }
    return false;
}

} // namespace

QString ZipFolder(const InstallationPaths& paths)
{
    return paths.LaunchPath + u"Zips/"_s;
}

QString ArchivePath(const InstallationPaths& paths, const QString& name)
{
    return paths.ArchivesPath + u'/' + name + u".zip"_s;
}

bool OpenArchive(Launcher& launcher, const QString& name)
{
    const FileSystem& files = launcher.files;
    const QString path = ArchivePath(launcher.paths, name);
    const QString folder = ZipFolder(launcher.paths);
    OpenedArchive& opened = launcher.facts.opened;
    if (opened == OpenedArchive{path, files.stamp(path), files.stamp(folder)})
        return true;
    opened = {};
    if (!unpack(launcher, path, folder))
        return false;
    opened = {path, files.stamp(path), files.stamp(folder)};
    return true;
}

bool ExtractZip(Launcher& launcher, const QString& ZipSourcePath, const QString& ZipTargetFolder)
{
    const std::unique_ptr<Progress> progress =
        launcher.prompts.showProgress(u"Unpacking "_s + FileNameOf(ZipSourcePath));
    const ExtractionCalls calls{
        .password = [&launcher] { return askPassword(launcher); },
        .progress = [&progress](qint64 done, qint64 total) { return progress->advance(done, total); },
    };
    switch (ExtractArchive(launcher.files, ZipSourcePath, ZipTargetFolder, calls)) {
    case Extraction::Done:
        return true;
    case Extraction::Cancelled:
        return false;
    case Extraction::TooLarge:
        fileError(launcher.prompts,
                  u"This zip file unpacks to more than any game holds, it is left alone.    "_s);
        return false;
    case Extraction::NotAZip:
        break;
    }
    fileError(launcher.prompts, notAZip);
    return false;
}
