#include "state/GameFamily.h"

#include "platform/Paths.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

std::optional<GameFamily> familyWhere(const std::function<bool(const GameFamilyRow&)>& matches)
{
    for (const GameFamilyRow& row : GameFamilies)
        if (matches(row))
            return row.family;
    return std::nullopt;
}

} // namespace

std::optional<GameFamily> FamilyOfIwad(const QString& path)
{
    const QString name = FileNameOf(path);
    return familyWhere(
        [&](const GameFamilyRow& row) { return SameName(name, QString::fromUtf16(row.iwadName)); });
}

std::optional<GameFamily> FamilyOfTitle(const QString& title)
{
    return familyWhere(
        [&](const GameFamilyRow& row) { return SameName(title, QString::fromUtf16(row.title)); });
}

QString DisplayTitle(GameFamily family, bool customFontOn)
{
    const QString title = QString::fromUtf16(RowOf(family).title);
    return customFontOn ? title : title.toUpper();
}

QString RecordKeyOf(const QString& title)
{
    const std::optional<GameFamily> family = FamilyOfTitle(title);
    if (!family || *family == GameFamily::Shareware)
        return title;
    return QString::fromUtf16(RowOf(*family).key);
}
