#pragma once

#include "tests/support/TemporaryInstallation.h"

// The optional packs of an installation, combined by addition.
namespace Packs {
constexpr int None = 0;
constexpr int CoreEffects = 1;
constexpr int Models = 2;
constexpr int Tovrens = 4;
constexpr int Kelspack = 8;
constexpr int Graphics = 16;
constexpr int Music = 32;
constexpr int All = 63;

inline QStringList filesOf(int packs)
{
    using namespace Qt::StringLiterals;
    const struct
    {
        int pack;
        QStringList files;
    } contents[] = {
        {CoreEffects, {u"Md2/CoreEffects/a.md2"_s, u"Defs/Base/CoreEffects.ded"_s}},
        {Models,
         {u"Md2/HudWeapons/SuperShotgun/db-shells.md2"_s, u"Md2/Monsters/Imp/imp.md2"_s,
          u"Defs/Model/FlameModels.ded"_s, u"Defs/Model/ExtraFX.ded"_s, u"Defs/Model/WeapSmoke.ded"_s}},
        {Tovrens,
         {u"Md2/Tovrens/Gore/Gore6.dmd"_s, u"Md2/Tovrens/Gore/Gore3.dmd"_s, u"Md2/Tovrens/Gore/hang1.jpg"_s}},
        {Kelspack,
         {u"Md2/Kelspack/AK47/AK47.md2"_s, u"Md2/Kelspack/kelspack.wad"_s,
          u"Defs/Model/Kelspack/Fullpack.ded"_s, u"Defs/Model/Kelspack/Alternative.ded"_s}},
        {Graphics,
         {u"Data/patches/stbar.png"_s, u"Data/Textures/a.png"_s, u"Data/dtex/detail.wad"_s,
          u"Data/Skyboxes/a.png"_s, u"Data/hv_doom_sfx.wad"_s}},
        {Music, {u"VYKLaunch/Music/rock.vym"_s, u"VYKLaunch/Music/metal.vym"_s}},
    };
    QStringList files;
    for (const auto& row : contents)
        if (packs & row.pack)
            files << row.files;
    return files;
}

inline void add(TemporaryInstallation& installation, int packs)
{
    for (const QString& file : filesOf(packs))
        installation.add(file);
}
} // namespace Packs
