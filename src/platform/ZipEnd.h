#pragma once

#include <QIODevice>

#include <optional>

// What the end of a zip file says of the rest, by the published .ZIP format (APPNOTE 4.3.14 to 4.3.16).
// Nothing of it is checked against the rest.
struct ZipEnd
{
    qint64 bytesAfter = 0; // from the record at the end to the end of the file: itself and the comment
    qint64 directory = 0;  // bytes of the directory of its members
};

// Reads it; nothing where there is no such record. The position in the file is any afterwards.
std::optional<ZipEnd> ReadZipEnd(QIODevice& file);
