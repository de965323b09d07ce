#include "launch/CommandPreview.h"

#include "app/ControlStates.h"
#include "launch/LaunchButton.h"
#include "wad/ToolBridge.h"

namespace {

// What planning a launch changes on the way, put back.
class Untouched
{
public:
    explicit Untouched(Launcher& launcher)
        : m_launcher(launcher),
          m_controls(launcher.controls),
          m_settings(launcher.settings),
          m_selection(launcher.selection),
          m_launch(launcher.launch),
          m_modelPacks(launcher.modelPacks),
          m_resources(launcher.resources)
    {
    }
    ~Untouched()
    {
        m_controls.restore(m_launcher.controls);
        m_launcher.settings = m_settings;
        m_launcher.selection = m_selection;
        m_launcher.launch = m_launch;
        m_launcher.modelPacks = m_modelPacks;
        m_launcher.resources = m_resources;
    }
    Untouched(const Untouched&) = delete;
    Untouched& operator=(const Untouched&) = delete;

private:
    Launcher& m_launcher;
    ControlStates m_controls;
    Settings m_settings;
    Selection m_selection;
    LaunchState m_launch;
    ModelPacks m_modelPacks;
    ResourcePacks m_resources;
};

LaunchPlan planned(Launcher& launcher)
{
    const Untouched untouched(launcher);
    return PlanSelectedGame(launcher,
                            [&launcher](const QString& path) { return KnownWadMaps(launcher, path); });
}

} // namespace

void ConnectCommandPreview(Launcher& launcher)
{
    launcher.controls.CopyPreview.clicked = [&launcher] {
        launcher.window.copyText(launcher.controls.CommandPreview.text);
    };
}

void UpdateCommandPreview(Launcher& launcher)
{
    Controls& controls = launcher.controls;
    if (!launcher.settings.AdvancedOptions)
        return;
    const LaunchPlan plan = planned(launcher);
    controls.CommandPreview.text = plan.commandLine;
    const bool hasChoice = !launcher.selection.SelectedGameFile.isEmpty();
    controls.CommandPreview.toolTip =
        plan.refusal && hasChoice ? plan.refusal->text.simplified() : QString();
    controls.CopyPreview.enabled = !plan.commandLine.isEmpty();
}
