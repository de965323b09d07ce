#include "launch/CommandPreview.h"

void ConnectCommandPreview(Launcher& launcher)
{
    launcher.controls.CopyPreview.clicked = [&launcher] {
        launcher.window.copyText(launcher.controls.CommandPreview.text);
    };
}

void UpdateCommandPreview(Launcher&) {}
