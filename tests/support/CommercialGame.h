#pragma once

#include "app/MainWindowLoad.h"
#include "app/ShowAll.h"
#include "catalogue/GameLists.h"
#include "platform/SystemProcesses.h"
#include "tests/support/LauncherFixture.h"

// A launcher with the IWADs of Doom and Doom II in the installation's own folder and the real game-file
// tool, showing the Doom games with Doom II selected and the skill at "Start game from New".
class CommercialGame : public LauncherFixture
{
public:
    explicit CommercialGame(const Settings& settings = DefaultSettings())
    {
        installation.addBuilt(QStringLiteral("Bin/VYKgFiles"), VYKGFILES_PROGRAM);
        processes.delegate = &programs;
        addWad(QStringLiteral("Iwads/Doom.wad"), {QStringLiteral("E1M1"), QStringLiteral("E3M2")});
        addWad(QStringLiteral("Iwads/Doom2.wad"),
               {QStringLiteral("MAP01"), QStringLiteral("MAP07"), QStringLiteral("MAP31")});
        installation.addFolder(QStringLiteral("Md2/CoreEffects")); // without them FX is in force
        installation.add(QStringLiteral("Defs/Base/CoreEffects.ded"));
        launcher.settings = settings;
        load();
        selectGame(QStringLiteral("Doom II"));
    }

    // Reads all facts anew, as a start of the launcher does.
    void load()
    {
        launcher.facts.iwads = {};
        ReadFacts(launcher);
        ShowWindow(launcher);
    }

    // A WAD whose maps are `maps`.
    void addWad(const QString& relativePath, const QStringList& maps)
    {
        QStringList lumps;
        for (const QString& map : maps)
            lumps += {map, QStringLiteral("THINGS"), QStringLiteral("LINEDEFS"), QStringLiteral("SIDEDEFS"),
                      QStringLiteral("VERTEXES")};
        installation.add(relativePath, TemporaryInstallation::wad("PWAD", lumps));
    }

    // The player's clicks.
    void show(View view) { launcher.controls.OptionUdir.click(view); }
    void selectGame(const QString& title) { click(launcher.controls.PwadList, title); }
    void pickMap(const QString& map) { click(launcher.controls.MapList, map); }
    void pickFile(const QString& file) { click(launcher.controls.PwadShowlist, file); }
    void pickSavegame(const QString& entry) { click(launcher.controls.SaveGameList, entry); }
    void pickSkill(int skill) { launcher.controls.SkillsLevel[SkillList::Basic].click(skill); }

private:
    static void click(ListBox& list, const QString& entry)
    {
        if (list.find(entry) < 0)
            qFatal("not listed: %s", qPrintable(entry));
        list.click(list.find(entry));
    }

    SystemProcesses programs{disk};
};
