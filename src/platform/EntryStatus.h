#pragma once

#include <QString>

// What stands under a path. A link to a folder is a link and a folder; one that leads nowhere is a link
// alone. Shortcut files are files, wherever they lead.
struct EntryStatus
{
    bool isFile = false;
    bool isFolder = false;
    bool isLink = false;
    bool isThere = false; // a link that leads nowhere is; so are pipes and devices
};

EntryStatus StatusOf(const QString& path);
