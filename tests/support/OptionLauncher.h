#pragma once

#include "app/ControlStates.h"
#include "app/SettingsControls.h"
#include "app/ToolTips.h"
#include "launch/LaunchCommercialGame.h"
#include "launch/LaunchInstalledGame.h"
#include "options/DisplayMode.h"
#include "options/LoadOptions.h"
#include "tests/support/LauncherFixture.h"

#include <QHash>

#include <memory>

// A disk on which no file comes or goes: what was looked for once is known.
class UnchangingFileSystem : public FailingFileSystem
{
public:
    using FailingFileSystem::FailingFileSystem;

    bool fileExists(const QString& path) const override
    {
        return known(m_files, path, [&] { return FailingFileSystem::fileExists(path); });
    }
    bool folderExists(const QString& path) const override
    {
        return known(m_folders, path, [&] { return FailingFileSystem::folderExists(path); });
    }

private:
    template <class Look>
    static bool known(QHash<QString, bool>& cache, const QString& path, Look look)
    {
        if (!cache.contains(path))
            cache[path] = look();
        return cache[path];
    }
    mutable QHash<QString, bool> m_files, m_folders;
};

// The optional packs of an installation, combined by addition.
namespace Packs {
constexpr int None = 0;
constexpr int CoreEffects = 1;
constexpr int Models = 2;
constexpr int Tovrens = 4;
constexpr int Kelspack = 8;
constexpr int Graphics = 16;
constexpr int All = 31;
} // namespace Packs

inline void AddPacks(TemporaryInstallation& installation, int packs)
{
    using namespace Qt::StringLiterals;
    const struct
    {
        int pack;
        QStringList files;
    } contents[] = {
        {Packs::CoreEffects, {u"Md2/CoreEffects/a.md2"_s, u"Defs/Base/CoreEffects.ded"_s}},
        {Packs::Models,
         {u"Md2/HudWeapons/SuperShotgun/db-shells.md2"_s, u"Md2/Monsters/Imp/imp.md2"_s,
          u"Defs/Model/FlameModels.ded"_s, u"Defs/Model/ExtraFX.ded"_s, u"Defs/Model/WeapSmoke.ded"_s}},
        {Packs::Tovrens,
         {u"Md2/Tovrens/Gore/Gore6.dmd"_s, u"Md2/Tovrens/Gore/Gore3.dmd"_s, u"Md2/Tovrens/Gore/hang1.jpg"_s}},
        {Packs::Kelspack,
         {u"Md2/Kelspack/AK47/AK47.md2"_s, u"Md2/Kelspack/kelspack.wad"_s,
          u"Defs/Model/Kelspack/Fullpack.ded"_s, u"Defs/Model/Kelspack/Alternative.ded"_s}},
        {Packs::Graphics,
         {u"Data/patches/stbar.png"_s, u"Data/Textures/a.png"_s, u"Data/dtex/detail.wad"_s,
          u"Data/Skyboxes/a.png"_s, u"Data/hv_doom_sfx.wad"_s}},
    };
    for (const auto& row : contents)
        if (packs & row.pack)
            for (const QString& file : row.files)
                installation.add(file);
}

// An installation with some packs, in which launchers are loaded with settings again and again. Every
// launcher has Doom II and an installed game to start, both at MAP01.
class OptionLauncher : public LauncherFixture
{
public:
    explicit OptionLauncher(int packs)
    {
        AddPacks(installation, packs);
        installation.add(QStringLiteral("Iwads/Doom2.wad"));
        installation.add(QStringLiteral("VYKGames/Game/Pwads/game.wad"));
    }

    std::unique_ptr<Launcher> load(const Settings& settings)
    {
        auto loaded =
            std::make_unique<Launcher>(m_unchanging, processes, prompts, window, installation.root());
        loaded->environment = {};
        loaded->settings = settings;
        PrepareOptions(*loaded);
        if (!settings.DisableToolTips)
            ToolTipText(*loaded);
        if (!settings.AdvancedOptions)
            DefaultMode(*loaded);
        ApplySettingsToControls(loaded->settings, loaded->controls);
        if (!settings.AdvancedOptions)
            DefaultMode(*loaded);
        SelectStartupOptions(*loaded);
        CheckOptions(*loaded);
        loaded->controls.MapList.add(QStringLiteral("MAP01"));
        loaded->iwads.of(GameFamily::Doom2) = path(QStringLiteral("Iwads/Doom2.wad"));
        loaded->selection.SelectedWadPath = loaded->launch.SelectedIwadPath =
            path(QStringLiteral("Iwads/Doom2.wad"));
        loaded->selection.SelectedGameFolder = path(QStringLiteral("VYKGames/Game/Pwads/"));
        loaded->selection.SelectedGameFile = path(QStringLiteral("VYKGames/Game/Pwads/game.wad"));
        loaded->selection.PwadSelected = true;
        return loaded;
    }

    // The same options, saved and loaded again.
    std::unique_ptr<Launcher> reload(Launcher& changed)
    {
        ReadControlsToSettings(changed.settings, changed.controls);
        Settings settings = DefaultSettings();
        if (ReadSettings(settings, SettingsLines(changed.settings, true), true) != ReadResult::Complete)
            qFatal("what was saved cannot be read");
        return load(settings);
    }

    static QString doomLine(Launcher& game) { return PlanCommercialGame(game).commandLine; }
    static QString installedLine(Launcher& game)
    {
        return PlanInstalledGame(game, [](const QString&) { return 0; }).commandLine;
    }

private:
    UnchangingFileSystem m_unchanging{disk};
};
