#include "platform/Archive.h"

#include "platform/FileNames.h"
#include "platform/MemberName.h"
#include "platform/ZipEnd.h"

#include <QFile>
#include <QHash>

#include <archive.h>
#include <archive_entry.h>
#include <exception>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mebibyte = 1024 * 1024;
constexpr qint64 largest = 4096 * mebibyte; // unpacked, all files together
constexpr int mostMembers = 65536;
// From this size on a game's files do not pack any better.
constexpr qint64 ratioCounts = 64 * mebibyte;
constexpr qint64 largestRatio = 300;
// The whole directory is read at once: 256 bytes for each member.
constexpr qint64 largestDirectory = qint64{mostMembers} * 256;
// How far from the end libarchive looks for the record that leads to the directory.
constexpr qint64 endOfZip = 16 * 1024;

// What ends an extraction early.
struct Ended
{
    Extraction result;
};

class Reader
{
public:
    Reader(FileSystem& files, const QString& path, const QString& folder, const ExtractionCalls& calls)
        : m_files(files),
          m_folder(folder.endsWith(u'/') ? folder : folder + u'/'),
          m_calls(calls),
          m_file(path)
    {
        if (!m_file.open(QIODevice::ReadOnly))
            throw FileError(FileError::Kind::PermissionDenied, path, m_file.errorString());
        for (const QString& name : m_files.files(m_folder))
            m_present.insert(name.toCaseFolded(), name);
    }
    ~Reader() { archive_read_free(m_archive); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void extract()
    {
        constexpr size_t blockSize = 256 * 1024;
        checkEnd();
        // The directory at the file's end alone says what an archive holds: one that was cut off has none.
        archive_read_support_format_zip_seekable(m_archive);
        archive_read_set_passphrase_callback(m_archive, this, &Reader::passphrase);
        PrepareMemberNames(m_archive);
        goOn();
        require(archive_read_open_fd(m_archive, m_file.handle(), blockSize));
        archive_entry* entry = nullptr;
        for (int members = 0;; ++members) {
            const int result = archive_read_next_header(m_archive, &entry);
            if (result == ARCHIVE_EOF)
                break;
            require(result);
            if (members == mostMembers)
                throw Ended{Extraction::TooLarge};
            goOn();
            extractMember(entry);
        }
        if (!m_anyFile)
            throw Ended{Extraction::NoFiles};
    }

private:
    void checkEnd()
    {
        const std::optional<ZipEnd> end = ReadZipEnd(m_file);
        if (!end)
            throw Ended{Extraction::NotAZip};
        if (end->bytesAfter > endOfZip)
            throw Ended{Extraction::LongComment};
        if (end->directory > largestDirectory)
            throw Ended{Extraction::TooLarge};
        m_file.seek(0);
    }

    // libarchive tells a member's packing in its words for the format: "ZIP 2.0 (deflation)". Of what is
    // encrypted by the newer way it tells no more. It would give a
    // dictionary of LZMA and its like as much memory as the member asks for.
    void checkPacking() const
    {
        const QByteArray words = archive_format_name(m_archive);
        const auto is = [&words](const char* packing) { return words.endsWith(packing); };
        if (is("(uncompressed)") || is("(deflation)") || is("(bzip)") || is("(aes)"))
            return;
        throw Ended{is("(deflation-64-bit)") ? Extraction::Deflate64
                    : is("(imploded)")       ? Extraction::Imploded
                                             : Extraction::OtherPacking};
    }

    void extractMember(archive_entry* entry)
    {
        const QString member = MemberNameOf(entry);
        const QString name = UsableNameOf(member);
        const bool isFile = archive_entry_filetype(entry) == AE_IFREG && !archive_entry_hardlink(entry);
        if (!isFile || name.isEmpty() || member.endsWith(u'/'))
            return;
        const QDateTime modified = archive_entry_mtime_is_set(entry)
                                       ? QDateTime::fromSecsSinceEpoch(archive_entry_mtime(entry))
                                       : QDateTime();
        checkPacking();
        // What is there already may be a link: it is replaced, not written through.
        if (QString& present = m_present[name.toCaseFolded()]; present != name) {
            if (!present.isEmpty())
                m_files.remove(m_folder + present);
            present = name;
        } else {
            m_files.remove(m_folder + name);
        }
        m_files.create(
            m_folder + name, [this] { return nextPiece(); }, modified);
        m_anyFile = true;
    }

    // The bytes stay libarchive's until the next call.
    QByteArray nextPiece()
    {
        const void* bytes = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        for (;;) {
            const int result = archive_read_data_block(m_archive, &bytes, &size, &offset);
            if (result == ARCHIVE_EOF)
                return {};
            if (result == ARCHIVE_WARN)
                throw Ended{Extraction::NotAZip}; // the bytes are not those that were packed
            require(result);
            if (size > 0)
                break;
        }
        m_unpacked += static_cast<qint64>(size);
        if (m_unpacked > largest || (m_unpacked > ratioCounts && m_unpacked / largestRatio > m_file.size()))
            throw Ended{Extraction::TooLarge};
        goOn();
        return QByteArray::fromRawData(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    }

    void goOn()
    {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
        if (!m_calls.progress(archive_filter_bytes(m_archive, -1), m_file.size()))
            throw Ended{Extraction::Cancelled};
    }

    void require(int result)
    {
        if (m_thrown)
            std::rethrow_exception(m_thrown);
        if (result != ARCHIVE_OK && result != ARCHIVE_WARN) // a member's name may have warned
            throw Ended{QByteArray(archive_error_string(m_archive)).toLower().contains("passphrase")
                            ? Extraction::NoPassword
                            : Extraction::NotAZip};
    }

    // An exception must not pass through libarchive: it is thrown again behind it.
    static const char* passphrase(archive*, void* data)
    {
        constexpr qsizetype longest = 256;
        auto* reader = static_cast<Reader*>(data);
        try {
            reader->m_password = reader->m_calls.password().left(longest).toUtf8();
        } catch (...) {
            reader->m_thrown = std::current_exception();
            return nullptr;
        }
        return reader->m_password.isEmpty() ? nullptr : reader->m_password.constData();
    }

    FileSystem& m_files;
    QString m_folder;
    const ExtractionCalls& m_calls;
    QFile m_file;
    archive* m_archive = archive_read_new();
    QByteArray m_password;
    std::exception_ptr m_thrown;
    qint64 m_unpacked = 0;
    QHash<QString, QString> m_present; // names in the folder, by themselves without regard to case
    bool m_anyFile = false;            // was extracted
};

} // namespace

Extraction ExtractArchive(FileSystem& files, const QString& archive, const QString& folder,
                          const ExtractionCalls& calls)
{
    const QString path = files.actualPath(archive);
    if (path.isEmpty())
        throw FileError(FileError::Kind::NotFound, archive, u"no such file"_s);
    try {
        Reader(files, path, folder, calls).extract();
        return Extraction::Done;
    } catch (const Ended& ended) {
        return ended.result;
    }
}
