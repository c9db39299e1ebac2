#!/usr/bin/env python3
"""Unpacks PNG files into bare pixels, which a program shows without decoding them first.

unpack_pngs.py FOLDER FILE.png...

Writes FOLDER/FILE.pixels for each, its rows from the top, and FOLDER/pixels.qrc with all of them. A picture in colours has
four bytes a pixel, blue first and the last one full, which a screen takes as they are; one of grey levels is packed as in
the file. Knows what the program's own pictures are: no transparency and no palette.
"""

import pathlib
import sys

from pictures import png


def for_the_screen(row):
    """A row of red, green and blue as the screen has it."""
    out = bytearray(b"\xff" * (len(row) // 3 * 4))
    for place in range(3):
        out[2 - place :: 4] = row[place::3]
    return bytes(out)


def pixels_of(data):
    _, _, _, colour, _, _, rows = png.stored(data)
    if colour == png.GREY:
        return b"".join(rows)
    if colour == png.RGB:
        return b"".join(map(for_the_screen, rows))
    sys.exit("unpack_pngs.py: a PNG file of a kind that it does not know")


def main():
    folder, *files = map(pathlib.Path, sys.argv[1:])
    folder.mkdir(parents=True, exist_ok=True)
    lines = []
    for file in files:
        (folder / f"{file.stem}.pixels").write_bytes(pixels_of(file.read_bytes()))
        # The larger ones are for some screens alone, and most of the program's size if not packed.
        packed = "" if file.stem.endswith("@2x") else ' compression-algorithm="none"'
        lines.append(f"<file{packed}>{file.stem}.pixels</file>\n")
    resources = '<RCC><qresource prefix="/pixels">\n' + "".join(lines) + "</qresource></RCC>\n"
    (folder / "pixels.qrc").write_text(resources, encoding="utf-8")


main()
