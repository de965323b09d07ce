#pragma once

#include <QString>

// The launcher's icon: a name in the icon theme, and what the files of its pictures begin with.
inline const QString LauncherIcon = QStringLiteral("VYKlauncher");

// The folders of an installation, with '/'. All but RootPath and ArchivesPath end in one.
struct InstallationPaths
{
    InstallationPaths() = default;

    // `root` is the folder above `Bin`.
    explicit InstallationPaths(const QString& root);

    // The folder of a launcher whose executable is `programPath`: the parent of its `Bin`.
    static QString rootOf(const QString& programPath);

    QString RootPath;
    QString ArchivesPath; // the only one that changes: archives.vyk may name another folder
    QString LaunchPath;
    QString LaunchDataPath;
    QString MusicLaunchPath;
    QString IconsPath;
    QString GamesPath;
    QString Md2Path;
    QString BaseDefsPath;
    QString ModelDefsPath;
    QString AddonDefsPath;
    QString TovrensDefsPath;
    QString KelspackDefsPath;
    QString CustomDefsPath;
};
