#include "platform/Paths.h"

#include <QDir>

namespace {

QString WithoutEndingSeparators(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

} // namespace

QString FileNameOf(const QString& path)
{
    const QString whole = WithoutEndingSeparators(WithSlashes(path));
    return whole.sliced(whole.lastIndexOf(u'/') + 1);
}

QString BaseNameOf(const QString& path)
{
    const QString name = FileNameOf(path);
    const auto dot = name.lastIndexOf(u'.');
    return dot < 0 ? name : name.first(dot);
}

QString FolderOf(const QString& path)
{
    const QString whole = WithoutEndingSeparators(WithSlashes(path));
    const auto slash = whole.lastIndexOf(u'/');
    if (slash < 0 || whole.size() == 1)
        return {};
    return WithoutEndingSeparators(whole.first(slash + 1));
}

QString WithSlashes(const QString& path)
{
    return QString(path).replace(u'\\', u'/');
}

QString NativePath(const QString& path)
{
    return QDir::toNativeSeparators(WithSlashes(path));
}

bool SameName(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool EndsWith(const QString& name, const QString& ending)
{
    return name.endsWith(ending, Qt::CaseInsensitive);
}
