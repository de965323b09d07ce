#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Names of files and folders that every system takes, and every command line.

// True for a name without separators, drive, wildcards and control characters that is no device's name, is
// neither blank nor "." nor "..", does not begin as a switch does ('-'), has neither a dot nor a blank at its
// end, and has at most 255 UTF-8 bytes.
bool IsUsableName(const QString& name);

// The usable name of an archive's member: its last component, with '_' for what a name cannot hold and
// before a device's name or a '-'; empty when nothing is left of it.
QString UsableNameOf(const QString& memberName);

// A member's name as an archive stores it without saying how: UTF-8 if it is that, else code page 437.
QString DecodedMemberName(const QByteArray& bytes);

// The bytes that are the name in code page 437; nothing when they cannot say it.
std::optional<QByteArray> CodePage437Of(const QString& name);
