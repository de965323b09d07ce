#pragma once

#include "app/Launcher.h"

// The tab strip: which page is shown, and what that allows. A game starts from the games tab only.
void ConnectOptionTabs(Launcher& launcher);
