#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>

// One running launcher for each installation.
class SingleInstance : public QObject
{
public:
    // `key` names the installation: its root folder.
    explicit SingleInstance(const QString& key);
    ~SingleInstance() override;

    // Takes the installation's place when nobody holds it, and from then on runs `activated` whenever
    // another start asks for the window. Returns false when a running launcher holds the place.
    bool claim(std::function<void()> activated);

    // Like `claim`, but while the place is held by a launcher that is just ending, tries again until it
    // is free: for a restart.
    void claimWhenFree(std::function<void()> activated);

    // Asks the launcher that holds the place to come to the front. Returns true when it answered; waits
    // two seconds (2000 ms) at most.
    bool activateRunning();

private:
    struct System;
    std::unique_ptr<System> m_system;
};
