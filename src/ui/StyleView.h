#pragma once

#include "ui/Control.h"

#include <QWidget>

// Shows the widget in one of the launcher's own colours over the player's palette. In the accent a push
// button is filled and has a light text; everything else shows its text in the colour. Colour::Normal is
// what the palette says.
void ShowColour(QWidget* widget, Colour colour);
