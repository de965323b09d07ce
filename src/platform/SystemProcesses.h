#pragma once

#include "platform/FileSystem.h"
#include "platform/Processes.h"

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
