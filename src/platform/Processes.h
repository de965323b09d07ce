#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

// Splits a command line into its arguments: blanks and tabs separate, double quotes group (anywhere in
// an argument), nothing escapes; "" is an empty argument. A missing closing quote reaches to the end.
QStringList SplitCommandLine(const QString& commandLine);

struct Captured
{
    bool started = false;
    QString error;     // when it was not started: the system's error number (its words if that is unknown)
    QByteArray output; // both streams, in the order written; at most 256 KiB
};

// What is told of a program that was started; from the event loop, while the `Processes` lives.
struct ProgramWatch
{
    // Once: it goes on after its first seconds, or has ended without an error.
    std::function<void()> settled;
    // It ended with an error; `lastWords` are the last lines that it wrote, empty when it wrote none.
    std::function<void(const QString& lastWords)> failed;
};

// The last lines of what a program wrote, in its order; blank ones and more than a message can hold left out.
QString LastWords(const QByteArray& output);

// Starting programs. The first argument of a command line names the program relative to `folder`, with
// '/' or '\'; case does not matter and ".exe" may be missing or stand where the disk has none. A Windows
// executable is started through Wine where the system is not Windows and Wine is installed; otherwise it
// counts as not started.
class Processes
{
public:
    virtual ~Processes() = default;

    // Runs a console program in `folder`, without a window, waits for its end however long it takes, and
    // returns what it wrote to its standard output and its standard error.
    virtual Captured capture(const QString& commandLine, const QString& folder) = 0;

    // Starts a program with `folder` as its working folder and does not wait for it. Returns false when
    // it could not be started.
    virtual bool start(const QString& commandLine, const QString& folder) = 0;

    // The same, and tells how it fares. The program goes on when this object, or this program, ends.
    virtual bool startWatched(const QString& commandLine, const QString& folder,
                              const ProgramWatch& watch) = 0;
};
