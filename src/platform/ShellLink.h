#pragma once

#include <QByteArray>
#include <QString>

// A Windows shell link (".lnk") after the published format [MS-SHLLINK]: it names its target by path alone,
// so that it can be written where the target's volume and shell are not known. Paths are with the separators
// that shall stand in it.
struct ShellLink
{
    QString target;           // absolute
    QString relativeTarget;   // from the link's own folder
    QString workingDirectory; // of what it starts
    QString arguments;        // as they follow the program's name on a command line
    QString iconLocation;
    int windowStyle = 1; // 1 normal, 3 maximised, 7 minimised; any other is written as 1
};

// The bytes of the file. Throws std::length_error for a text of more than 65535 characters.
QByteArray ShellLinkBytes(const ShellLink& link);
