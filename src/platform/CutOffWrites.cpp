#include "platform/CutOffWrites.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

void DiscardCutOffWrites(FileSystem& files, const QString& folder)
{
    static const QRegularExpression unfinished(u"\\.(vyk|vym|cfg|vyksg)\\.[A-Za-z]{6}$"_s);
    const QDateTime hourAgo = QDateTime::currentDateTime().addSecs(-3600);
    for (const QString& name : files.files(folder)) {
        if (!unfinished.match(name).hasMatch() || files.modified(folder + name) > hourAgo)
            continue;
        try {
            if (!files.hasTrash() || !files.moveToTrash(folder + name))
                return;
        } catch (const FileError&) {
            // Another launcher was faster.
        }
    }
}
