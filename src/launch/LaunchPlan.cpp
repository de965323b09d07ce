#include "launch/LaunchPlan.h"

#include "app/StartUp.h"
#include "launch/LaunchSteps.h"
#include "platform/Text.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int minimiseMode = 1;
constexpr int exitMode = 2;

void writeLog(Launcher& launcher, const QString& commandLine)
{
    try {
        WriteLines(launcher.files, launcher.paths.LaunchPath + u"launch.log"_s, {commandLine});
    } catch (const FileError&) {
        // The log is for the player to read; a game starts without it.
    }
}

void show(Launcher& launcher, const LaunchMessage& message)
{
    launcher.prompts.MsgboxPos(message.text, Msg::Ok + Msg::Information, message.title);
}

LaunchResult start(Launcher& launcher, const QString& commandLine)
{
    LaunchState& launch = launcher.launch;
    writeLog(launcher, commandLine);
    launcher.settings.WindowTop = launcher.window.position().y();
    launcher.settings.WindowLeft = launcher.window.position().x();
    if (launcher.settings.LastLaunchMode == minimiseMode)
        launcher.window.minimise();
    launch.RicochetOn = false;
    if (!launcher.processes.start(commandLine, launcher.paths.RootPath)) {
        launch.AfterLaunch = false;
        launcher.window.bringToFront(); // a message over a minimised window may not be seen
        launcher.prompts.MsgboxPos(u"Cannot execute! The command line was:\r\n"_s + commandLine, Msg::Ok,
                                   QString());
        return LaunchResult::Refused;
    }
    if (launcher.settings.LastLaunchMode == exitMode)
        ShutDownLauncher(launcher);
    return LaunchResult::Started;
}

} // namespace

LaunchPlan Refused(const LaunchMessage& message)
{
    LaunchPlan plan;
    plan.refusal = message;
    return plan;
}

LaunchResult RunPlan(Launcher& launcher, const LaunchPlan& plan)
{
    LaunchState& launch = launcher.launch;
    const bool forShortcut = std::exchange(launch.ShortcutMode, false);
    const int mode = launcher.settings.LaunchMode;
    if (!forShortcut && mode >= 0 && mode <= exitMode)
        launcher.settings.LastLaunchMode = mode;
    for (const LaunchMessage& notice : plan.notices)
        show(launcher, notice);
    if (plan.refusal) {
        show(launcher, *plan.refusal);
        if (plan.iwadGone)
            launcher.window.showIwadForm();
        return LaunchResult::Refused;
    }
    if (forShortcut) {
        launch.AfterLaunch = false;
        launch.ShortcutArguments = plan.commandLine.mid(Engine.size() + 1);
        return LaunchResult::HandedOver;
    }
    launch.AfterLaunch = true;
    return start(launcher, plan.commandLine);
}
