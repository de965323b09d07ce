#pragma once

#include "platform/Processes.h"

#include <QList>

// Starts nothing: remembers what it was asked to start.
class RecordingProcesses : public Processes
{
public:
    struct Call
    {
        QString commandLine;
        QString folder;
        bool operator==(const Call&) const = default;
    };

    QList<Call> starts;
    bool startResult = true; // what start() returns

    QList<Call> captures;
    QList<QByteArray> outputs; // the answers to the next capture() calls, the first one first
    // Runs the captures in place of `outputs` when it is set; it must outlive this object.
    Processes* delegate = nullptr;

    // With neither an answer nor a delegate left the program counts as not started ("2": no such file).
    Captured capture(const QString& commandLine, const QString& folder) override
    {
        captures += {commandLine, folder};
        if (delegate)
            return delegate->capture(commandLine, folder);
        if (outputs.isEmpty())
            return {false, QStringLiteral("2"), {}};
        return {true, {}, outputs.takeFirst()};
    }

    bool start(const QString& commandLine, const QString& folder) override
    {
        starts += {commandLine, folder};
        return startResult;
    }

    // Remembers the watch too: a test tells how the program fared.
    bool startWatched(const QString& commandLine, const QString& folder, const ProgramWatch& watch) override
    {
        watches += watch;
        return start(commandLine, folder);
    }
    QList<ProgramWatch> watches;

    QString lastCommandLine() const { return starts.isEmpty() ? QString() : starts.last().commandLine; }
};
