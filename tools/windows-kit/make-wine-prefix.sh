#!/bin/bash
# make-wine-prefix.sh PREFIX: a quiet Wine prefix, with fonts and one virtual desktop for all windows, because
# each would wait two seconds for a window manager otherwise.
set -euo pipefail
export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
wineboot -i
wineserver -w
# Folders of its own, where Wine made links into the user's home.
user=$WINEPREFIX/drive_c/users/$(id -un)
for folder in Desktop Documents Downloads Music Pictures Videos; do
    if [[ -L $user/$folder ]]; then
        rm "$user/$folder"
        mkdir "$user/$folder"
    fi
done
wine winecfg -v win10
wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f
wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1280x900 /f
cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
wineserver -w
