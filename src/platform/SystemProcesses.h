#pragma once

#include "platform/FileSystem.h"
#include "platform/Processes.h"

#include <QObject>

#include <chrono>
#include <optional>

// The system's processes.
class SystemProcesses : public Processes
{
public:
    // `files` finds the programs; it must outlive this object. A watched program is settled when it runs
    // after `firstSeconds`.
    explicit SystemProcesses(const FileSystem& files,
                             std::chrono::milliseconds firstSeconds = std::chrono::seconds(5))
        : m_files(files), m_firstSeconds(firstSeconds)
    {
    }

    Captured capture(const QString& commandLine, const QString& folder) override;
    bool start(const QString& commandLine, const QString& folder) override;
    bool startWatched(const QString& commandLine, const QString& folder, const ProgramWatch& watch) override;

private:
    const FileSystem& m_files;
    std::chrono::milliseconds m_firstSeconds;
    QObject m_watched; // the parent of the programs that are watched
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

struct ResolvedCommand
{
    std::optional<Command> command;
    int error = 0; // the system's number when there is none
};

// What starting the program `name` in `folder` with these arguments starts, or the system's error number.
ResolvedCommand ResolveCommand(const FileSystem& files, const QString& name, const QStringList& arguments,
                               const QString& folder);
