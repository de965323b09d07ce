#include "wad/MainWad.h"

#include "platform/Paths.h"
#include "wad/GameFiles.h"
#include "wad/ToolBridge.h"

using namespace Qt::StringLiterals;

QString MainWadOf(Launcher& launcher, const QString& folder)
{
    QStringList wads = GameFilesOf(launcher.files, folder, launcher.settings.WadFilesOnly);
    wads.removeIf([](const QString& name) { return !EndsWith(name, u".wad"_s); });
    if (wads.size() == 1)
        return folder + wads.first();
    QString mainWad;
    int most = 0;
    for (const QString& name : wads) // ascending: of equals the last stays
        if (const int key = CountWadMaps(launcher, folder + name); key >= most) {
            most = key;
            mainWad = folder + name;
        }
    return mainWad;
}

void ChooseMainWad(Launcher& launcher, const QString& folder)
{
    Selection& selection = launcher.selection;
    if (selection.GwadSelected)
        return;
    const QString mainWad = MainWadOf(launcher, folder);
    if (!mainWad.isEmpty())
        selection.SelectedGameFile = mainWad;

    ListBox& shown = launcher.controls.PwadShowlist;
    const int entry = mainWad.isEmpty() ? -1 : shown.find(FileNameOf(mainWad));
    if (entry < 0)
        launcher.controls.LaunchButton.enabled = false;
    else
        shown.select(entry);
    UpdateWarp(launcher);
}

void UpdateWarp(Launcher& launcher)
{
    const ListBox& maps = launcher.controls.MapList;
    const QString first = maps.entry(0);
    LaunchState& launch = launcher.launch;
    const QString map = maps.selectedText();
    if (first.startsWith(u'M', Qt::CaseInsensitive)) {
        launch.WarpArgument = map.right(2);
        launch.SelectedIwadPath = launcher.iwads.of(GameFamily::Doom2);
    } else if (first.startsWith(u'E', Qt::CaseInsensitive)) {
        launch.WarpArgument = map.isEmpty() ? QString() : map.mid(1, 1) + u' ' + map.mid(3, 1);
        launch.SelectedIwadPath = launcher.iwads.of(GameFamily::Doom);
    } else {
        return;
    }
    if (SameName(FileNameOf(launcher.selection.SelectedGameFile), u"Twzone.wad"_s))
        launch.SelectedIwadPath = launcher.iwads.of(GameFamily::Doom2);
}
