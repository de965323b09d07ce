#pragma once

#include "state/MainWindowHost.h"

#include <QRect>
#include <QStringList>
#include <functional>

// A main window that records what is asked of it.
class FakeWindow : public MainWindowHost
{
public:
    QSize screenSize() const override { return screen; }
    QSize size() const override { return ownSize; }
    QPoint position() const override { return topLeft; }
    void moveTo(QPoint to) override { topLeft = to; }
    bool isInNormalState() const override { return normal; }
    bool isShown() const override { return shown; }
    void show() override { record(u"show"), shown = true; }
    void hide() override { record(u"hide"), shown = false; }
    void minimise() override { record(u"minimise"), normal = false; }
    void bringToFront() override { record(u"bringToFront"), shown = normal = true; }
    void refresh() override {}
    void checkFont(const FontSetting& setting) override { font = setting; }
    bool isReachableAt(QPoint to) const override { return QRect({}, screen).intersects({to, ownSize}); }
    void showIwadForm() override
    {
        record(u"showIwadForm");
        if (onIwadForm)
            onIwadForm();
    }
    void showTexForm() override { record(u"showTexForm"); }
    void showFontForm() override { record(u"showFontForm"); }
    void showMusicForm(PlaylistEditor& editor) override
    {
        record(u"showMusicForm");
        if (onMusicForm)
            onMusicForm(editor);
    }
    void copyText(const QString& text) override { copied = text; }
    int logicalDpi() const override { return dpi; }
    void closeLauncher() override { record(u"closeLauncher"); }
    void endProgram() override { record(u"endProgram"); }

    QSize screen{1920, 1080};
    QSize ownSize{940, 620};
    QPoint topLeft;
    bool normal = true;
    bool shown = false;
    FontSetting font;
    QString copied;
    int dpi = 96;
    QStringList calls;
    std::function<void()> onIwadForm; // what the player does in the dialog
    std::function<void(PlaylistEditor&)> onMusicForm;

private:
    void record(QStringView call) { calls << call.toString(); }
};
