#include "tests/support/ZipMaker.h"

#include <QtEndian>

#include <archive.h>
#include <archive_entry.h>

namespace {

template <class Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), 0);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0);
    }
    return ~crc;
}

QByteArray deflated(const QByteArray& bytes)
{
    // Qt's own format is a length of 4 bytes, a zlib header of 2, the deflated bytes and a sum of 4.
    return qCompress(bytes, 9).mid(6).chopped(4);
}

} // namespace

ZipMaker& ZipMaker::add(const Member& member)
{
    const QByteArray packed = member.packing == Deflated ? deflated(member.bytes) : member.bytes;
    const quint32 size = member.claimedSize ? member.claimedSize : static_cast<quint32>(member.bytes.size());
    const QByteArray shared =
        littleEndian<quint16>(member.isUtf8 ? 0x800 : 0) + littleEndian<quint16>(member.packing) +
        littleEndian<quint16>(0) + littleEndian(member.dosDate) + littleEndian(crc32(member.bytes)) +
        littleEndian(static_cast<quint32>(packed.size())) + littleEndian(size) +
        littleEndian(static_cast<quint16>(member.name.size())) + littleEndian<quint16>(0);
    const auto offset = static_cast<quint32>(m_members.size());
    m_members += "PK\3\4" + littleEndian<quint16>(20) + shared + member.name + packed;
    m_directory += "PK\1\2" + littleEndian<quint16>(0x314) + littleEndian<quint16>(20) + shared +
                   littleEndian<quint16>(0) + littleEndian<quint16>(0) + littleEndian<quint16>(0) +
                   littleEndian<quint32>(member.unixMode << 16) + littleEndian(offset) + member.name;
    ++m_count;
    return *this;
}

QByteArray ZipMaker::bytes() const
{
    return m_members + m_directory + QByteArray("PK\5\6") + littleEndian<quint32>(0) + littleEndian(m_count) +
           littleEndian(m_count) + littleEndian(static_cast<quint32>(m_directory.size())) +
           littleEndian(static_cast<quint32>(m_members.size())) + littleEndian<quint16>(0);
}

QByteArray LockedZip(const QByteArray& name, const QByteArray& bytes, const QByteArray& password,
                     const char* encryption)
{
    QByteArray zip(64 * 1024 + 2 * bytes.size(), 0);
    size_t used = 0;
    archive* writer = archive_write_new();
    archive_write_set_format_zip(writer);
    archive_write_set_format_option(writer, "zip", "encryption", encryption);
    archive_write_set_passphrase(writer, password.constData());
    archive_write_open_memory(writer, zip.data(), static_cast<size_t>(zip.size()), &used);
    archive_entry* entry = archive_entry_new();
    archive_entry_set_pathname(entry, name.constData());
    archive_entry_set_filetype(entry, AE_IFREG);
    archive_entry_set_size(entry, bytes.size());
    archive_write_header(writer, entry);
    archive_write_data(writer, bytes.constData(), static_cast<size_t>(bytes.size()));
    archive_entry_free(entry);
    archive_write_close(writer);
    archive_write_free(writer);
    return zip.first(static_cast<qsizetype>(used));
}
