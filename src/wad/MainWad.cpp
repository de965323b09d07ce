#include "wad/MainWad.h"

#include "platform/Paths.h"
#include "wad/ToolBridge.h"

using namespace Qt::StringLiterals;

QString ChooseMainWad(Launcher& launcher, const GameFacts& game)
{
    QStringList wads = game.files;
    wads.removeIf([](const QString& name) { return !EndsWith(name, u".wad"_s); });
    if (wads.size() == 1)
        return wads.first();
    QString mainWad;
    int most = 0;
    for (const QString& name : wads) // ascending: of equals the last stays
        if (const int key = CountWadMaps(launcher, game.folder + name); key >= most) {
            most = key;
            mainWad = name;
        }
    return mainWad;
}

Warp UpdateWarp(const Truth& truth)
{
    const QString map = truth.chosenMap();
    const QString deciding = map.isEmpty() ? truth.facts.file.maps.value(0) : map;
    Warp warp;
    if (deciding.startsWith(u'M', Qt::CaseInsensitive))
        warp = {.WarpArgument = map.right(2), .family = GameFamily::Doom2};
    else if (deciding.startsWith(u'E', Qt::CaseInsensitive))
        warp = {.WarpArgument = map.isEmpty() ? QString() : map.mid(1, 1) + u' ' + map.mid(3, 1),
                .family = GameFamily::Doom};
    if (warp.family && SameName(truth.chosenFile(), u"Twzone.wad"_s))
        warp.family = GameFamily::Doom2;
    return warp;
}
