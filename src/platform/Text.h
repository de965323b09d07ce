#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// The launcher's small text files: Windows-1252 (the WHATWG "windows-1252" index), lines that end in
// CR LF. A text that these 8 bits cannot hold is written as UTF-8 with a byte order mark instead, so
// that no name is lost; reading recognises the mark.

QString FromAnsi(const QByteArray& bytes);
QByteArray ToAnsi(const QString& text); // UTF-8 with a mark when the text needs it

// The lines of a text; CR LF, LF and CR end a line, and a line end at the very end adds no empty line.
QStringList LinesOf(const QString& text);

// The fields of a text: separated by commas and line ends, blanks around a field and one pair of
// enclosing double quotes removed; inside quotes a comma is part of the field. Empty lines give no field.
QStringList FieldsOf(const QString& text);

// A text as a field that is read back whole: in double quotes where it holds a comma.
QString AsField(const QString& text);

// The first field of a line: the text up to its first comma outside quotes, trimmed, without enclosing
// quotes.
QString FirstField(const QString& line);

// The lines of a file, up to its first mebibyte. Throws FileError.
QStringList ReadLines(const FileSystem& files, const QString& path);

// Writes the lines, each followed by CR LF, atomically. Throws FileError.
void WriteLines(FileSystem& files, const QString& path, const QStringList& lines);
