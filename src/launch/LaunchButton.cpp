#include "launch/LaunchButton.h"

#include "catalogue/GameSelection.h"
#include "iwads/IwadSearch.h"
#include "launch/LaunchSteps.h"
#include "music/Playlists.h"
#include "options/PackFacts.h"
#include "platform/Text.h"

using namespace Qt::StringLiterals;

namespace {

void writeLog(Launcher& launcher, const QString& commandLine)
{
    try {
        WriteLines(launcher.files, launcher.paths.LaunchPath + u"launch.log"_s, {commandLine});
    } catch (const FileError&) {
        // The log is for the player to read; a game starts without it.
    }
}

void show(Prompts& prompts, const LaunchMessage& message)
{
    prompts.MsgboxPos(message.text, Msg::Ok + Msg::Information, message.title);
}

void reportFailure(Launcher& launcher, const QString& lastWords)
{
    launcher.window.bringToFront();
    QString text = u"The game has ended with an error.    \r\n\r\n"_s;
    if (!lastWords.isEmpty())
        text += QString(lastWords).replace(u'\n', u"\r\n"_s) + u"\r\n\r\n"_s;
    text += u"The file Keldrax.out may tell more. Without a Doom engine nothing can be played:    \r\n"
            "install one, put one into the folder Engine, or choose another one on the tab Options.    "_s;
    show(launcher.prompts, {text, u" Launch error"_s});
}

LaunchResult start(Launcher& launcher, const QString& commandLine,
                   const std::function<void(bool played)>& known)
{
    const auto mode = static_cast<LaunchMode>(launcher.settings.LastLaunchMode);
    launcher.session.AfterLaunch = true;
    writeLog(launcher, commandLine);
    launcher.settings.WindowTop = launcher.window.position().y();
    launcher.settings.WindowLeft = launcher.window.position().x();
    if (mode == LaunchMode::Minimised)
        launcher.window.minimise();
    const ProgramWatch watch{.settled =
                                 [&launcher, mode, known] {
                                     if (mode == LaunchMode::Exit)
                                         launcher.window.closeLauncher();
                                     if (known)
                                         known(true);
                                 },
                             .failed =
                                 [&launcher, known](const QString& lastWords) {
                                     reportFailure(launcher, lastWords);
                                     if (known)
                                         known(false);
                                 }};
    if (!launcher.processes.startWatched(commandLine, launcher.paths.RootPath, watch)) {
        launcher.session.AfterLaunch = false;
        launcher.window.bringToFront(); // a message over a minimised window may not be seen
        launcher.prompts.MsgboxPos(u"Cannot execute! The command line was:\r\n"_s + commandLine, Msg::Ok,
                                   QString());
        return LaunchResult::Refused;
    }
    return LaunchResult::Started;
}

} // namespace

void ConnectLaunchButton(Launcher& launcher)
{
    launcher.controls.LaunchButton.clicked = [&launcher] { LaunchSelectedGame(launcher); };
    launcher.controls.CopyPreview.clicked = [&launcher] {
        launcher.window.copyText(launcher.controls.CommandPreview.text);
    };
}

void ReadBeforeLaunch(Launcher& launcher)
{
    ReadPacks(launcher);
    ReadPlaylists(launcher);
    launcher.facts.iwadsOnDisk =
        ReadIwadFacts(launcher.facts.iwads, launcher.files, launcher.paths, launcher.environment);
    ReadSelectedGame(launcher);
}

bool ShowMessages(Launcher& launcher, const LaunchPlan& plan)
{
    for (const LaunchMessage& notice : plan.notices)
        show(launcher.prompts, notice);
    for (const auto option : plan.switchedOff)
        launcher.settings.*option = false;
    if (!plan.refusal)
        return !plan.commandLine.isEmpty();
    show(launcher.prompts, *plan.refusal);
    if (plan.iwadGone)
        launcher.window.showIwadForm();
    return false;
}

LaunchResult LaunchSelectedGame(Launcher& launcher, const std::function<void(bool played)>& known)
{
    ReadBeforeLaunch(launcher);
    launcher.settings.LastLaunchMode = launcher.settings.LaunchMode;
    const LaunchPlan plan = PlanLaunch(launcher);
    return ShowMessages(launcher, plan) ? start(launcher, plan.commandLine, known) : LaunchResult::Refused;
}

void ShowLaunch(const Truth& truth, const LaunchPlan& plan, Controls& controls)
{
    const bool onGamesTab = truth.selection.tab == Tab::Games;
    const bool canStart = !plan.commandLine.isEmpty();
    const bool isSomethingChosen = !truth.chosenFile().isEmpty() && (canStart || plan.refusal);
    controls.LaunchButton.enabled = onGamesTab && isSomethingChosen;
    controls.AuxButton[Tool::Shortcut].enabled = onGamesTab && canStart && !truth.gameIs(GameKind::Archive);

    controls.CommandPreview.text = plan.commandLine;
    controls.CommandPreview.placeholder =
        plan.refusal && isSomethingChosen ? plan.refusal->text.simplified() : QString();
    controls.CopyPreview.enabled = canStart;
}
