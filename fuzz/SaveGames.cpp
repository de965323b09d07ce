#include "fuzz/Fuzz.h"
#include "tools/VYKgFiles/SaveGameHeaders.h"

// One line for a savegame of any bytes, and nothing in it that ends one.
void Try(const QByteArray& bytes)
{
    const QString path = OnDisk(QStringLiteral("KeldraxSav3.vyksg"), bytes);
    const std::string report = saveGameHeaders(path.toStdString());
    Require(report.size() <= 30 && report.ends_with("\r\n"));
    for (const char c : report.substr(0, report.size() - 2))
        Require(c != '\r' && c != '\n' && c != '\0');
}
