#pragma once

#include "platform/FileSystem.h"

#include <QString>
#include <functional>

// Zip files, by the published .ZIP format (APPNOTE), its two encryptions included.

enum class Extraction {
    Done,
    Cancelled,    // `progress` returned false
    NotAZip,      // no zip, or damaged
    TooLarge,     // it unpacks to more than any game holds, or has more members
    NoFiles,      // no member is a file with a usable name
    NoPassword,   // its password is not known
    LongComment,  // longer than what finds the directory before it
    Deflate64,    // packed in that way
    Imploded,     // ... that a DOS program packed in
    OtherPacking, // in another that is not known, or whose dictionary could fill the memory
};

struct ExtractionCalls
{
    // Called for a password until the right one comes; an empty one gives up.
    std::function<QString()> password;

    // Called often, with the bytes of the archive read so far and its size; false cancels.
    std::function<bool(qint64 done, qint64 total)> progress;
};

// Extracts every file of an archive directly into a folder, which must exist: the folders in the members'
// names are dropped, a later member replaces an earlier one of its name, and times are kept. Links, devices
// and members without a usable name are skipped; characters that some system takes in no name become '_',
// and a device's name (CON, AUX, ...) or a '-' gets a '_' before it. What was extracted before a failure
// stays. Throws FileError when the archive cannot be opened or a file cannot be written.
Extraction ExtractArchive(FileSystem& files, const QString& archive, const QString& folder,
                          const ExtractionCalls& calls);
