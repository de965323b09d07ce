#pragma once

#include "platform/FileSystem.h"
#include "state/InstallationPaths.h"

// The packs that one cleanup removes.
struct ModelCleanup
{
    bool RemoveModelPack1 = false;
    bool RemoveTovrensPack = false;
    bool RemoveKelspack = false;
};

// A file, a folder with all that is in it, or a link, that belongs to a pack.
struct ModelPackItem
{
    QString path; // as it is spelled on disk
    bool isFolder = false;
    QStringList onlyWithout; // it goes only once nothing is left at these paths
};

// What the disk holds of the packs, in the order in which it is to be removed; an item may lie in a later
// one. A name counts in every spelling that its folder has of it. A link stands for itself, and nothing
// that it leads to is listed; the folders of models and definitions themselves may be links.
QList<ModelPackItem> FindModelPackItems(const FileSystem& files, const InstallationPaths& paths,
                                        const ModelCleanup& cleanup);

// Of some paths those that lie in no other of them, each once.
QStringList OutermostPaths(const QStringList& paths);

// "2 folders and 31 files, 4.7 MB": what removing the items takes away, nothing counted twice.
QString ModelPackContents(const FileSystem& files, const QList<ModelPackItem>& items);
