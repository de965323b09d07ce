#include "launch/LaunchButton.h"

#include "catalogue/GameSelection.h"
#include "launch/LaunchCommercialGame.h"
#include "launch/LaunchInstalledGame.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

namespace {

// Another launcher may have put another zip's files into the zip folder since this one was selected.
void reopenArchive(Launcher& launcher)
{
    const QString mainWad = launcher.selection.SelectedGameFile;
    if (!launcher.selection.ArchiveSelected || mainWad.isEmpty() ||
        launcher.files.stamp(mainWad) == launcher.wadReports.value(mainWad).stamp)
        return;
    ShowSelectedGameAnew(launcher);
}

bool hasMaps(const Launcher& launcher)
{
    return !launcher.controls.MapList.entry(0).isEmpty();
}

LaunchPlan noLevels(const Launcher& launcher)
{
    const QString tail = FileNameOf(launcher.selection.SelectedGameFile) + u" contains no levels.    "_s;
    return Refused({u"The "_s + tail.toLower(), u" Wad error"_s});
}

} // namespace

void ConnectLaunchButton(Launcher& launcher)
{
    launcher.controls.LaunchButton.clicked = [&launcher] { LaunchSelectedGame(launcher); };
}

LaunchPlan PlanSelectedGame(Launcher& launcher, const MapCounter& countMaps)
{
    if (!hasMaps(launcher))
        return noLevels(launcher);
    return launcher.selection.DoomGameSelected ? PlanCommercialGame(launcher)
                                               : PlanInstalledGame(launcher, countMaps);
}

LaunchResult LaunchSelectedGame(Launcher& launcher)
{
    reopenArchive(launcher);
    if (!hasMaps(launcher))
        return RunPlan(launcher, noLevels(launcher));
    return launcher.selection.DoomGameSelected ? LaunchCommercialGame(launcher)
                                               : LaunchInstalledGame(launcher);
}
