#include "ui/StyleView.h"

#include <QApplication>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* marker = "vykColour";

const QString filledButton = u"QPushButton:enabled { background: rgb(192, 0, 0); color: rgb(255, 244, 240);"
                             " border: 1px solid rgb(112, 0, 0); border-radius: 3px; padding: 3px 12px; }"
                             "QPushButton:enabled:hover { background: rgb(214, 16, 16); }"
                             "QPushButton:enabled:pressed { background: rgb(144, 0, 0); }"
                             "QPushButton:enabled:focus { border: 2px solid rgb(255, 196, 176); }"_s;

// On a dark background both reds are too dark to read as a text.
QColor readable(Colour colour)
{
    constexpr int middle = 128;
    if (QApplication::palette().color(QPalette::Window).lightness() < middle)
        return {255, 96, 80};
    return colour == Colour::Accent ? QColor(192, 0, 0) : QColor(255, 0, 0);
}

} // namespace

void ShowColour(QWidget* widget, Colour colour)
{
    const int shown = widget->property(marker).toInt();
    if (shown == static_cast<int>(colour))
        return;
    widget->setProperty(marker, static_cast<int>(colour));
    if (qobject_cast<QPushButton*>(widget)) {
        const bool fill = colour == Colour::Accent;
        if (fill || shown == static_cast<int>(Colour::Accent))
            widget->setStyleSheet(fill ? filledButton : QString());
        if (fill)
            return;
    }
    QPalette palette;
    if (colour != Colour::Normal)
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            for (const QPalette::ColorRole role :
                 {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
                palette.setColor(group, role, readable(colour));
    widget->setPalette(palette);
}
