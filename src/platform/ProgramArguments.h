#pragma once

#include <QProcess>

// Gives the program that `process` will start its arguments: those of the command line after its first,
// already split, or the text as it stands where a program receives a text.
void SetArguments(QProcess& process, const QStringList& arguments, const QString& commandLine);

// Before its start: what ends this program's session, as a closed terminal does, does not end `process`.
void Detach(QProcess& process);
