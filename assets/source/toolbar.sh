#!/bin/sh
# Renders the toolbar's pictures in both sizes. Run: sh toolbar.sh  (Debian: librsvg2-bin)
set -e
cd "$(dirname "$0")/../toolbar"
for drawing in *.svg; do
    name=${drawing%.svg}
    rsvg-convert --width=24 --height=24 --output="$name.png" "$drawing"
    rsvg-convert --width=48 --height=48 --output="$name@2x.png" "$drawing"
done
