#include "options/RemovalReport.h"

#include "platform/Paths.h"

using namespace Qt::StringLiterals;

QString RemovalReport(const QStringList& paths, const QString& root)
{
    constexpr qsizetype most = 10; // a message box must fit the screen
    QString text = u"What could not be removed:    "_s;
    for (const QString& path : paths.first(qMin(most, paths.size())))
        text += u"\r\n"_s + NativePath(path.startsWith(root + u'/') ? path.mid(root.size() + 1) : path);
    if (paths.size() > most)
        text += u"\r\nand %1 more"_s.arg(paths.size() - most);
    return text;
}
