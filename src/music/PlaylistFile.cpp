#include "music/PlaylistFile.h"

#include "platform/Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int maximumLines = 301;
constexpr int maximumLength = 1000;              // characters in a line
constexpr qint64 maximumBytes = 2 * 1024 * 1024; // that many lines of that length are smaller
const QByteArray byteOrderMark = "\xEF\xBB\xBF"_ba;

bool isText(const QString& line)
{
    constexpr char16_t rubout = 0x7F;
    return std::ranges::all_of(line, [](QChar c) { return c == u'\t' || (c >= u' ' && c != rubout); });
}

QByteArray encoded(const QString& text, bool asUtf8)
{
    return asUtf8 ? byteOrderMark + text.toUtf8() : ToAnsi(text);
}

} // namespace

PlaylistText ReadPlaylist(const FileSystem& files, const QString& path)
{
    const QByteArray bytes = files.read(path, maximumBytes);
    const QString text = FromAnsi(bytes);
    PlaylistText playlist{.lines = LinesOf(text), .isUtf8 = bytes.startsWith(byteOrderMark)};
    playlist.isWhole = bytes.size() < maximumBytes && playlist.lines.size() <= maximumLines &&
                       encoded(text, playlist.isUtf8) == bytes &&
                       std::ranges::all_of(playlist.lines, [](const QString& line) {
                           return line.size() <= maximumLength && isText(line);
                       });
    if (!playlist.isWhole) {
        playlist.lines = playlist.lines.mid(0, maximumLines);
        for (QString& line : playlist.lines)
            line.truncate(maximumLength);
    }
    return playlist;
}

void WritePlaylist(FileSystem& files, const QString& path, const PlaylistText& playlist)
{
    QString text;
    for (const QString& line : playlist.lines)
        text += line + u"\r\n"_s;
    files.write(path, encoded(text, playlist.isUtf8));
}
