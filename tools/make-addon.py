#!/usr/bin/env python3
"""make-addon.py IWADS TARGET: makes the sample games of an installation out of Freedoom's maps.

IWADS is the folder with freedoom1.wad and freedoom2.wad. Below TARGET this writes
VYKGames/Freedoom Sampler/Pwads (an installed game: three maps, a text, a DeHackEd patch) and
VYKArchives/Outpost Pair.zip (a zipped game: two maps and texts, in a folder of their own).
"""

import io
import struct
import sys
import zipfile
from pathlib import Path

MAP_LUMPS = {"THINGS", "LINEDEFS", "SIDEDEFS", "VERTEXES", "SEGS", "SSECTORS", "NODES", "SECTORS",
             "REJECT", "BLOCKMAP"}

# Map there, map here, its title picture there and here, its title.
SAMPLER = [
    ("MAP05", "MAP01", "CWILV04", "CWILV00", "Sludge Burrow"),
    ("MAP12", "MAP02", "CWILV11", "CWILV01", "Railroads"),
    ("MAP20", "MAP03", "CWILV19", "CWILV02", "Blood Ember Fortress"),
]
PAIR = [
    ("E2M2", "E1M1", "WILV11", "WILV00", "Power Plant"),
    ("E3M3", "E1M2", "WILV22", "WILV01", "Derelict Temple"),
]

LICENCE = """\
The maps are Freedoom's, copyright its contributors, under the modified BSD licence:
/usr/share/doc/freedoom/copyright and https://freedoom.github.io/ have its text and their names.
"""

PATCH = """\
Patch File for DeHackEd v3.0

Doom version = 19
Patch format = 6

# What a player starts with: enough of a difference to see that the patch is on.
Misc 0
Initial Health = 150
Initial Bullets = 100

# Some engines read the titles below only with this word: *allow-extended-strings*
[STRINGS]
"""


def read_lumps(path):
    """The WAD's lumps in order, as (name, bytes)."""
    data = path.read_bytes()
    kind, count, directory = struct.unpack_from("<4sii", data)
    if kind not in (b"IWAD", b"PWAD") or min(count, directory) < 0:
        raise ValueError("not a WAD file")
    lumps = []
    for entry in range(count):
        offset, size, name = struct.unpack_from("<ii8s", data, directory + 16 * entry)
        if min(offset, size) < 0 or offset + size > len(data):
            raise ValueError(f"lump {entry} lies outside the file")
        lumps.append((name.split(b"\0")[0].decode("ascii"), data[offset:offset + size]))
    return lumps


def cut_maps(lumps, maps):
    """The lumps of a PWAD that holds these maps under their new names."""
    names = [name for name, _ in lumps]
    result = []
    for source, name, *_ in maps:
        start = names.index(source)
        end = start + 1
        while end < len(names) and names[end] in MAP_LUMPS:
            end += 1
        if set(names[start + 1:end]) != MAP_LUMPS:
            raise ValueError(f"{source} is not a complete map")
        result += [(name, lumps[start][1]), *lumps[start + 1:end]]
    for _, _, source, name, _ in maps:
        result.append((name, lumps[names.index(source)][1]))
    return result


def wad_bytes(lumps):
    body = io.BytesIO()
    directory = b""
    for name, data in lumps:
        directory += struct.pack("<ii8s", 12 + body.tell(), len(data), name.encode("ascii"))
        body.write(data)
    header = struct.pack("<4sii", b"PWAD", len(lumps), 12 + body.tell())
    return header + body.getvalue() + directory


def text_bytes(text):
    return text.replace("\n", "\r\n").encode("cp1252")


def description(title, maps):
    listed = "".join(f"  {name}  {map_title} (Freedoom's {source})\n"
                     for source, name, _, _, map_title in maps)
    return text_bytes(f"{title}\n\n{listed}\nAfter the last of them the IWAD's own maps go on.\n\n{LICENCE}")


def write_sampler(lumps, folder):
    titles = "".join(f"HUSTR_{number} = {name}: {title}\n"
                     for number, (_, name, _, _, title) in enumerate(SAMPLER, 1))
    folder.mkdir(parents=True)
    (folder / "sampler.wad").write_bytes(wad_bytes(cut_maps(lumps, SAMPLER)))
    (folder / "sampler.deh").write_bytes(text_bytes(PATCH + titles))
    (folder / "sampler.txt").write_bytes(description("Freedoom Sampler", SAMPLER))


def write_pair(lumps, folder):
    folder.mkdir(parents=True)
    with zipfile.ZipFile(folder / "Outpost Pair.zip", "w", zipfile.ZIP_DEFLATED) as archive:
        archive.writestr("Outpost Pair/pair.wad", wad_bytes(cut_maps(lumps, PAIR)))
        archive.writestr("Outpost Pair/pair.txt", description("Outpost Pair", PAIR))
        archive.writestr("Outpost Pair/Docs/licence.txt", text_bytes(LICENCE))


def main():
    if len(sys.argv) != 3:
        sys.exit("Usage: make-addon.py IWADS TARGET")
    iwads, target = map(Path, sys.argv[1:])
    for name, write, folder in (
            ("freedoom2.wad", write_sampler, "VYKGames/Freedoom Sampler/Pwads"),
            ("freedoom1.wad", write_pair, "VYKArchives")):
        try:
            lumps = read_lumps(iwads / name)
            write(lumps, target / folder)
        except (OSError, ValueError, struct.error) as error:
            sys.exit(f"make-addon.py: {iwads / name}: {error}")


if __name__ == "__main__":
    main()
