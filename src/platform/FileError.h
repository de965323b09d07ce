#pragma once

#include <QString>
#include <stdexcept>

// A file operation that failed. Commands catch it once, show their one message and end.
class FileError : public std::runtime_error
{
public:
    enum class Kind { PermissionDenied, NotFound, Exists, InUse, Held, DiskFull, Other };

    // `path` is the file or folder that the operation stumbled over; `detail` is the system's own text.
    FileError(Kind kind, const QString& path, const QString& detail);

    Kind kind() const { return m_kind; }
    // The player may not, or another program has it open: one message says both.
    bool isDenied() const { return m_kind == Kind::PermissionDenied || m_kind == Kind::InUse; }
    // Another launcher works there at the moment; `detail` says which.
    bool isHeld() const { return m_kind == Kind::Held; }
    const QString& path() const { return m_path; }
    const QString& detail() const { return m_detail; }

private:
    Kind m_kind;
    QString m_path;
    QString m_detail;
};
