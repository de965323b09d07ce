#include "fuzz/Fuzz.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

QString OnDisk(const QString& name, const QByteArray& bytes)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QFile file(path);
    Require(file.open(QFile::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Try(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
