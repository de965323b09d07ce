#!/bin/sh
# Renders the application icon in its sizes. Run: sh icons.sh  (Debian: librsvg2-bin)
set -e
cd "$(dirname "$0")/../icons"
for size in 16 32 48 64 128 256; do
    rsvg-convert --width=$size --height=$size --output=VYKlauncher-$size.png VYKlauncher.svg
done
