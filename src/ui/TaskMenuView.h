#pragma once

#include "ui/Control.h"

#include <QPoint>

class QWidget;

// A caption in which an '&' is text, not the mark of a key.
QString AsPlainCaption(const QString& caption);

// Shows the visible items of `menu` at the global position `at` and returns; no visible item, no menu. Once
// the player has picked an item and the menu is gone, `picked` runs. `over` is the widget the menu belongs
// to.
void PopUpTaskMenu(const Menu& menu, QWidget* over, QPoint at,
                   const std::function<void(const MenuItem&)>& picked);
