"""Paints the theme pictures. Run: python3 themes.py  (Debian: python3-pil, python3-numpy)"""
import pathlib
import sys

import numpy as np
from PIL import Image

import base
import hell
from lettering import Word
from paint import develop

THEMES = {"default.jpg": (hell, 1993), "cold-base.jpg": (base, 41)}  # scene and seed
TARGET = pathlib.Path(__file__).resolve().parent.parent / "VYKLaunch" / "Themes"


def main(names):
    TARGET.mkdir(parents=True, exist_ok=True)
    word = Word(left=112, top=85, unit=1.26)
    for name in names or THEMES:
        scene, seed = THEMES[name]
        rng = np.random.default_rng(seed)
        light = scene.foreground(word.paint(scene.paint(rng), rng, scene.STYLE), rng)
        picture = develop(light, rng, grain=0.012)
        # As large as the window needs at 200 %: every start of the launcher reads it.
        picture.resize((1920, 240), Image.LANCZOS).save(TARGET / name, quality=84, subsampling=2, optimize=True)
        print(name, (TARGET / name).stat().st_size // 1024, "KiB")


main(sys.argv[1:])
