#include "platform/FileError.h"

FileError::FileError(Kind kind, const QString& path, const QString& detail)
    : std::runtime_error((path + QStringLiteral(": ") + detail).toStdString()),
      m_kind(kind),
      m_path(path),
      m_detail(detail)
{
}
