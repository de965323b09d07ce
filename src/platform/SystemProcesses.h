#pragma once

#include "platform/FileSystem.h"
#include "platform/Processes.h"

#include <expected>

// The system's processes.
class SystemProcesses : public Processes
{
public:
    // `files` finds the programs; it must outlive this object.
    explicit SystemProcesses(const FileSystem& files) : m_files(files) {}

    Captured capture(const QString& commandLine, const QString& folder) override;
    bool start(const QString& commandLine, const QString& folder) override;

private:
    const FileSystem& m_files;
};

// The path of the program that `name` means in `folder` (see Processes); empty when there is none.
QString FindProgram(const FileSystem& files, const QString& name, const QString& folder);

// A program by its path, with its arguments and its working folder.
struct Command
{
    QString program;
    QStringList arguments;
    QString folder;
};

// What starting the program `name` in `folder` with these arguments starts, or the system's error number.
std::expected<Command, int> ResolveCommand(const FileSystem& files, const QString& name,
                                           const QStringList& arguments, const QString& folder);
