#pragma once

#include "app/Connect.h"
#include "app/SettingsFile.h"
#include "platform/DiskFileSystem.h"
#include "platform/Text.h"
#include "state/OptionTable.h"
#include "tests/support/FailingFileSystem.h"
#include "tests/support/FakeWindow.h"
#include "tests/support/QueuedPrompts.h"
#include "tests/support/RecordingProcesses.h"
#include "tests/support/TemporaryInstallation.h"

#include <QMap>

// A launcher over a complete temporary installation of its own, with doubles for all that it works with.
// The environment names no IWAD folder.
class LauncherFixture
{
public:
    LauncherFixture()
    {
        installation.makeComplete();
        launcher.environment = {};
        launcher.shortcutFolders = {path(QStringLiteral("Desktop/Keldrax Shortcuts")),
                                    path(QStringLiteral("Menu/Keldrax Shortcuts"))};
    }

    TemporaryInstallation installation;
    DiskFileSystem disk;
    FailingFileSystem files{disk};
    RecordingProcesses processes;
    QueuedPrompts prompts;
    FakeWindow window;
    ConnectedLauncher launcher{files, processes, prompts, window, installation.root()};

    QString path(const QString& relativePath) const { return installation.path(relativePath); }
    QString nativePath(const QString& relativePath) const { return installation.nativePath(relativePath); }

    // An empty IWAD, and enough reports of the game-file tool to list its one map again and again.
    QString addIwad(const QString& relativePath)
    {
        constexpr int reports = 40;
        installation.add(relativePath);
        processes.outputs = QList<QByteArray>(reports, "VYKgFiles,1,1,MAP01\r\n");
        return path(relativePath);
    }

    static constexpr auto Config = "VYKLaunch/config.vyk";

    // The bytes of a config.vyk that holds the defaults but for some lines (counted from 1).
    static QByteArray configWith(const QMap<int, QString>& changed, bool withPosition = true)
    {
        QStringList lines = SettingsLines(DefaultSettings(), withPosition);
        for (auto line = changed.cbegin(); line != changed.cend(); ++line)
            lines[line.key() - 1] = line.value();
        return ToAnsi(lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
    }
    void setConfig(const QByteArray& bytes) { installation.add(QLatin1String(Config), bytes); }
    QByteArray config() const { return installation.read(QLatin1String(Config)); }
    bool hasConfig() const { return installation.exists(QLatin1String(Config)); }
};
