#include "platform/DiskFileSystem.h"
#include "platform/Paths.h"
#include "tools/engine/EngineAdapter.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    DiskFileSystem files;
    // The program lies in the Bin folder of its installation.
    const QString root = FolderOf(QCoreApplication::applicationDirPath());
    return RunEngineAdapter(files, root, QCoreApplication::arguments().sliced(1),
                            QProcessEnvironment::systemEnvironment());
}
