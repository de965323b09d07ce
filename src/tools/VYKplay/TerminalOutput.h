#pragma once

#include <QIODevice>

#include <cstdio>

// Writes UTF-8 to a standard stream. A name may hold what a terminal would take for a command: control
// characters, but for the end of a line and the tab, become '?'.
class TerminalOutput : public QIODevice
{
public:
    explicit TerminalOutput(std::FILE* stream);

protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 size) override;

private:
    std::FILE* m_stream;
    char m_before = 0; // the last byte that was written
};
