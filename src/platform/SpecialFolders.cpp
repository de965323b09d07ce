#include "platform/SpecialFolders.h"

#include <QDir>
#include <QStandardPaths>

QString DesktopFolder()
{
    const QString folder = QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::DesktopLocation));
    // A desktop folder that is the home folder means, by the XDG user directories' rule, that there is none.
    return folder == QDir::homePath() ? QString() : folder;
}

QString ProgramsFolder()
{
    return QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation));
}
