#include "platform/Spelling.h"

#include "platform/FolderScan.h"
#include "platform/Paths.h"

namespace {

bool Before(const QString& a, const QString& b)
{
    const int order = a.compare(b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a < b;
}

} // namespace

QString OtherSpelling(const QString& folder, const QString& name)
{
    QString best;
    const QStringList names = EntriesOf(folder, EntryKind::Any);
    for (const QString& candidate : names)
        if (SameName(candidate, name) && (best.isEmpty() || Before(candidate, best)))
            best = candidate;
    return best;
}

QString SpelledAsOnDisk(const QString& path)
{
    return path; // what exists under a name is spelled so
}
