#include "catalogue/Leftovers.h"

#include "platform/FileNames.h"

using namespace Qt::StringLiterals;

void DeleteFilesBeginningWith(FileSystem& files, const InstallationPaths& paths, const QString& base,
                              std::initializer_list<const char16_t*> folders)
{
    if (!IsUsableName(base))
        return;
    for (const char16_t* name : folders) {
        const QString folder = paths.RootPath + u'/' + QString::fromUtf16(name) + u'/';
        for (const QString& file : files.files(folder))
            if (file.startsWith(base, Qt::CaseInsensitive))
                files.remove(folder + file);
    }
}

void DeleteGameResources(FileSystem& files, const InstallationPaths& paths, const QString& base)
{
    if (!IsUsableName(base))
        return;
    for (const QString& folder : {u"/MD2/"_s, u"/Data/Custom.hires/"_s, u"/Data/Custom.music/"_s})
        if (files.folderExists(paths.RootPath + folder + base))
            files.removeTree(paths.RootPath + folder + base);
}
