#include "launch/LaunchButton.h"

#include "catalogue/GameSelection.h"
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
    Controls& controls = launcher.controls;
    const QString map = controls.MapList.selectedText();
    const QString savegame = controls.SaveGameList.selectedText();
    SelectGameAgain(launcher);
    controls.PwadShowlist.select(controls.PwadShowlist.find(FileNameOf(mainWad)));
    controls.MapList.select(controls.MapList.find(map));
    controls.SaveGameList.select(controls.SaveGameList.find(savegame));
}

} // namespace

void ConnectLaunchButton(Launcher& launcher)
{
    launcher.controls.LaunchButton.clicked = [&launcher] { LaunchSelectedGame(launcher); };
}

LaunchResult LaunchSelectedGame(Launcher& launcher)
{
    reopenArchive(launcher);
    if (launcher.controls.MapList.entry(0).isEmpty()) {
        const QString tail = FileNameOf(launcher.selection.SelectedGameFile) + u" contains no levels.    "_s;
        launcher.prompts.MsgboxPos(u"The "_s + tail.toLower(), Msg::Ok + Msg::Information, u" Wad error"_s);
        return LaunchResult::Refused;
    }
    return launcher.selection.DoomGameSelected ? LaunchCommercialGame(launcher)
                                               : LaunchInstalledGame(launcher);
}
