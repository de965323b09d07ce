#pragma once

#include <QString>

struct archive;
struct archive_entry;

// The names of an archive's members. A name may be marked as UTF-8; where it is not, see DecodedMemberName.

// Has `archive` keep what MemberNameOf needs; to be called before it is opened.
void PrepareMemberNames(archive* archive);

// The whole name, with the folders in it; empty when there is none.
QString MemberNameOf(archive_entry* entry);
