#pragma once

#include "state/FontSetting.h"

#include <QPoint>
#include <QSize>
#include <QString>

class PlaylistEditor;

// What the launcher asks of its windows. Positions and sizes are in layout units (device-independent
// pixels), on the screen that the main window is on.
class MainWindowHost
{
public:
    virtual ~MainWindowHost() = default;

    virtual QSize screenSize() const = 0;
    virtual QSize size() const = 0;
    virtual QPoint position() const = 0;
    virtual void moveTo(QPoint topLeft) = 0;
    virtual bool isInNormalState() const = 0; // neither minimised nor maximised
    virtual bool isShown() const = 0;

    virtual void show() = 0;
    virtual void hide() = 0;
    virtual void minimise() = 0;
    virtual void bringToFront() = 0; // restores a minimised window

    // Shows every text of every window in the launcher font.
    virtual void checkFont(const FontSetting& font) = 0;

    // Whether some part of the window would be on a screen with its top left corner there.
    virtual bool isReachableAt(QPoint topLeft) const = 0;

    // Writes what changed in the controls to the widgets, as happens by itself after a user's event.
    virtual void refresh() = 0;

    virtual void showIwadForm() = 0;                        // modal
    virtual void showTexForm() = 0;                         // modal
    virtual void showFontForm() = 0;                        // modal
    virtual void showMusicForm(PlaylistEditor& editor) = 0; // modal

    virtual void copyText(const QString& text) = 0; // to the clipboard

    virtual int logicalDpi() const = 0; // horizontal, of the screen; 96 where nothing is scaled

    // Closes the launcher as the player does: the settings are saved, the program ends.
    virtual void closeLauncher() = 0;

    // Ends the program; the call returns and the caller must do nothing more.
    virtual void endProgram() = 0;
};
