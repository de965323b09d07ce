#include "ui/StyleView.h"

#include <QApplication>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor accentColour(192, 0, 0);
constexpr const char* marker = "vykAccent";

const QString filledButton = u"QPushButton:enabled { background: rgb(192, 0, 0); color: rgb(255, 244, 240);"
                             " border: 1px solid rgb(112, 0, 0); border-radius: 3px; padding: 3px 12px; }"
                             "QPushButton:enabled:hover { background: rgb(214, 16, 16); }"
                             "QPushButton:enabled:pressed { background: rgb(144, 0, 0); }"
                             "QPushButton:enabled:focus { border: 2px solid rgb(255, 196, 176); }"_s;

// On a dark background the accent itself is too dark to read as a text.
QColor readableAccent()
{
    constexpr int middle = 128;
    const bool dark = QApplication::palette().color(QPalette::Window).lightness() < middle;
    return dark ? QColor(255, 96, 80) : accentColour;
}

} // namespace

void ShowAccent(QWidget* widget, bool accent)
{
    if (widget->property(marker).toBool() == accent)
        return;
    widget->setProperty(marker, accent);
    if (qobject_cast<QPushButton*>(widget)) {
        widget->setStyleSheet(accent ? filledButton : QString());
        return;
    }
    QPalette palette;
    if (accent)
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text})
                palette.setColor(group, role, readableAccent());
    widget->setPalette(palette);
}
