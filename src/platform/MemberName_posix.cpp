#include "platform/MemberName.h"

#include "platform/FileNames.h"

#include <archive_entry.h>

void PrepareMemberNames(archive* /*archive*/)
{
    // The bytes come as they are.
}

QString MemberNameOf(archive_entry* entry)
{
    const char* name = archive_entry_pathname(entry);
    return name ? DecodedMemberName(QByteArray(name)) : QString();
}
