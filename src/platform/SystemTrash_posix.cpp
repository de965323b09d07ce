#include "platform/SystemTrash.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

bool HasTrash()
{
    // Made here: where the folder is missing, Qt would take the current one in its place.
    const QDir data(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    const QString trash = data.filePath(QStringLiteral("Trash"));
    if (!QFileInfo(trash).isDir() && data.mkpath(QStringLiteral(".")))
        data.mkdir(QStringLiteral("Trash"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QFileInfo(trash).isDir() && QFileInfo(trash).isWritable();
}
