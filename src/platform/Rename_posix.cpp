#include "platform/Rename.h"

#include <QFile>
#include <cstdio>

bool Rename(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}
