#pragma once

#include <QDir>
#include <QString>
#include <string>

// For the system's own calls on Windows: with '\', and in the form that a path of more than 259 characters
// needs. `path` is absolute.
inline std::wstring WidePath(const QString& path)
{
    constexpr qsizetype longestPlain = 247; // what a folder's path may have
    const QString native = QDir::toNativeSeparators(path);
    const bool plain = native.size() <= longestPlain || native.startsWith(QStringLiteral("\\\\"));
    return (plain ? native : QStringLiteral("\\\\?\\") + native).toStdWString();
}
