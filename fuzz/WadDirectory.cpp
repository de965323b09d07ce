#include "tools/wadreader/WadDirectory.h"

#include "fuzz/Fuzz.h"

void Try(const QByteArray& bytes)
{
    const QString path = OnDisk(QStringLiteral("a.wad"), bytes);
    if (const auto directory = readWadDirectory(path.toStdString()))
        Require(directory->header.lumps * 16LL <= bytes.size() && directory->maps.size() <= 181);
}
