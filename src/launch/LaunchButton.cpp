#include "launch/LaunchButton.h"

#include "launch/LaunchInstalledGame.h"
#include "platform/Paths.h"

using namespace Qt::StringLiterals;

void ConnectLaunchButton(Launcher& launcher)
{
    launcher.controls.LaunchButton.clicked = [&launcher] { LaunchSelectedGame(launcher); };
}

LaunchResult LaunchSelectedGame(Launcher& launcher)
{
    if (launcher.controls.MapList.entry(0).isEmpty()) {
        const QString tail = FileNameOf(launcher.selection.SelectedGameFile) + u" contains no levels.    "_s;
        launcher.prompts.MsgboxPos(u"The "_s + tail.toLower(), Msg::Ok + Msg::Information, u" Wad error"_s);
        return LaunchResult::Refused;
    }
    return launcher.selection.DoomGameSelected ? LaunchCommercialGame(launcher)
                                               : LaunchInstalledGame(launcher);
}
