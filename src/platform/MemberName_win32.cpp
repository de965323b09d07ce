#include "platform/MemberName.h"

#include "platform/FileNames.h"

#include <archive.h>
#include <archive_entry.h>

// libarchive hands out wide characters here, and decodes the names without a mark itself: as code page 437,
// in which every byte is a character of its own, so that the bytes can be had back.

void PrepareMemberNames(archive* archive)
{
    archive_read_set_option(archive, "zip", "hdrcharset", "CP437");
}

QString MemberNameOf(archive_entry* entry)
{
    const wchar_t* wide = archive_entry_pathname_w(entry);
    if (!wide)
        return {};
    const QString name = QString::fromWCharArray(wide);
    const std::optional<QByteArray> bytes = CodePage437Of(name);
    return bytes ? DecodedMemberName(*bytes) : name;
}
