#pragma once

#include <QWidget>

// The launcher's own colours over the player's palette.

// A push button is filled with the accent, (192, 0, 0), and has a light text; other widgets show their text
// in it. Without accent the widget looks as the player's palette says.
void ShowAccent(QWidget* widget, bool accent);
