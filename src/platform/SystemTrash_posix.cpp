#include "platform/SystemTrash.h"

#include <QFileInfo>
#include <QStandardPaths>

bool HasTrash()
{
    // It is made there when it is needed first, with the folders above it.
    QFileInfo place(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    while (!place.exists() && !place.isRoot())
        place.setFile(place.path());
    return place.isDir() && place.isWritable();
}
