#pragma once

#include "state/Launcher.h"

// The title picture: default.jpg and the other pictures of the Themes folder, one after the other.

// Shows picture number TitlePicIndex; a number without a picture starts again at default.jpg. Without
// default.jpg the title stays as it is.
void GetTitlePic(Launcher& launcher);

// A click on the picture shows the next one.
void ConnectThemes(Launcher& launcher);
