#pragma once

#include "state/Launcher.h"

// The shortcut tool: its button of the toolbar.
void ConnectShortcuts(Launcher& launcher);

// Asks which shortcuts to make of what is selected, and makes them: they start the engine with the command
// line of a launch, without the launcher. None is made of a zip, nor while another tab is showing.
void MakeShortcut(Launcher& launcher);

// Makes the chosen shortcuts, called `name`, with the engine's arguments. One that cannot be written gives a
// message and is left out.
void CreateShortcuts(Launcher& launcher, const ShortcutChoice& choice, const QString& name,
                     const QString& arguments);
