#!/bin/sh
# Renders the application icon in its sizes. Run: sh icons.sh  (Debian: librsvg2-bin, imagemagick)
set -e
cd "$(dirname "$0")/../icons"
for size in 16 32 48 64 128 256; do
    rsvg-convert --width=$size --height=$size --output=VYKlauncher-$size.png VYKlauncher.svg
done
convert VYKlauncher-16.png VYKlauncher-32.png VYKlauncher-48.png VYKlauncher-64.png VYKlauncher-256.png VYKlauncher.ico
