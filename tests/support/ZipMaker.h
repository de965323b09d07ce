#pragma once

#include <QByteArray>

// Zip files for tests, by the published .ZIP format: whatever a hostile hand could write.
class ZipMaker
{
public:
    enum Packing { Stored = 0, Deflated = 8 };

    struct Member
    {
        QByteArray name; // the raw bytes
        QByteArray bytes;
        Packing packing = Stored;
        bool isUtf8 = false;
        quint32 unixMode = 0100644; // what it claims to be: 0120777 is a symbolic link
        quint32 claimedSize = 0;    // unpacked; 0: the truth
        quint16 dosDate = 0x5021;   // 1 January 2020
    };

    ZipMaker& add(const Member& member);
    ZipMaker& add(const QByteArray& name, const QByteArray& bytes) { return add(Member{name, bytes}); }

    QByteArray bytes() const;

private:
    QByteArray m_members;
    QByteArray m_directory;
    quint16 m_count = 0;
};

// A zip with one member under a password; `encryption` is "traditional" or "aes256".
QByteArray LockedZip(const QByteArray& name, const QByteArray& bytes, const QByteArray& password,
                     const char* encryption = "traditional");
