#include "options/EngineList.h"

#include "platform/Paths.h"

#include <QProcessEnvironment>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const FoundEngine& engine)
{
    return engine.version.isEmpty() ? engine.title : engine.title + u' ' + engine.version;
}

void choose(Launcher& launcher, const QString& program)
{
    try {
        SaveEngineChoice(launcher.files, launcher.paths.RootPath, program);
        launcher.settings.Engine = program;
    } catch (const FileError&) {
        launcher.prompts.MsgboxPos(u"The choice of the engine could not be saved.    "_s,
                                   Msg::Ok + Msg::Exclamation, u" Access error "_s);
    }
}

} // namespace

void ConnectEngineList(Launcher& launcher)
{
    ListBox& list = launcher.controls.EngineList;
    list.clicked = [&launcher, &list] { choose(launcher, list.selectedName()); };
}

void ReadEngines(Launcher& launcher, bool withVersions)
{
    Facts& facts = launcher.facts;
    const QString& root = launcher.paths.RootPath;
    facts.startsOtherEngines = StartsOtherEngines(launcher.files, root);
    facts.engines.clear();
    launcher.settings.Engine = LoadEngineChoice(launcher.files, root);
    if (!facts.startsOtherEngines)
        return;
    facts.engines = FindEngines(root, QProcessEnvironment::systemEnvironment());
    if (withVersions)
        for (FoundEngine& engine : facts.engines)
            engine.version = VersionOf(launcher.files, engine.program);
}

void ShowEngineList(const Truth& truth, Controls& controls)
{
    const QList<FoundEngine>& engines = truth.facts.engines;
    ListBox& list = controls.EngineList;
    list.visible = controls.EngineLabel.visible = truth.facts.startsOtherEngines;
    const QString automatic = engines.isEmpty() ? u"Automatic"_s : u"Automatic: "_s + engines.first().title;
    QList<ListEntry> entries{{automatic, {}}};
    for (const FoundEngine& engine : engines)
        entries += {textOf(engine), engine.program};
    list.show(entries);

    const FoundEngine* chosen = truth.engine();
    if (chosen && !truth.settings.Engine.isEmpty())
        list.startAs(static_cast<int>(chosen - engines.data()) + 1);
    else if (truth.settings.Engine.isEmpty() && chosen)
        list.startAs(0);
    else
        list.showText(truth.settings.Engine.isEmpty() ? u"None was found"_s
                                                      : u"Not found: "_s + BaseNameOf(truth.settings.Engine));
}
