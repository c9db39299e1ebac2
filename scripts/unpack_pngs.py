#!/usr/bin/env python3
"""Unpacks PNG files into bare pixels, which a program shows without decoding them first.

unpack_pngs.py FOLDER FILE.png...

Writes FOLDER/FILE.pixels for each, its rows from the top, and FOLDER/pixels.qrc with all of them. A picture in colours has
four bytes a pixel, blue first and the last one full, which a screen takes as they are; one of grey levels is packed as in
the file. Knows what the program's own pictures are: no interlacing, no palette, no more than 8 bits a channel.
"""

import pathlib
import struct
import sys
import zlib

CHANNELS = {0: 1, 2: 3}  # by the colour type: grey, red-green-blue


def chunks(data):
    """(kind, content) of each chunk of a PNG file."""
    at = 8
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at : at + 8])
        yield kind, data[at + 8 : at + 8 + length]
        at += length + 12


def nearest(left, above, corner):
    """Of the three neighbours the one that is nearest to left + above - corner."""
    guess = left + above - corner
    return min((left, above, corner), key=lambda value: abs(guess - value))


def unfiltered(kind, row, above, step):
    """A row of bytes from its differences to its neighbours; `step` is the distance to the pixel before."""
    out = bytearray(row)
    for i, value in enumerate(row):
        left = out[i - step] if i >= step else 0
        corner = above[i - step] if i >= step else 0
        add = (0, left, above[i], (left + above[i]) // 2, nearest(left, above[i], corner))[kind]
        out[i] = (value + add) & 0xFF
    return out


def for_the_screen(row):
    """A row of red, green and blue as the screen has it."""
    out = bytearray(b"\xff" * (len(row) // 3 * 4))
    for place in range(3):
        out[2 - place :: 4] = row[place::3]
    return bytes(out)


def pixels_of(data):
    content = {}
    for kind, part in chunks(data):
        content[kind] = content.get(kind, b"") + part
    width, height, depth, colour, _, _, interlaced = struct.unpack(">IIBBBBB", content[b"IHDR"])
    if colour not in CHANNELS or interlaced or depth > 8:
        sys.exit("unpack_pngs.py: a PNG file of a kind that it does not know")
    bits = depth * CHANNELS[colour]
    length = (width * bits + 7) // 8
    raw = zlib.decompress(content[b"IDAT"])
    above, rows = bytes(length), []
    for at in range(0, height * (length + 1), length + 1):
        above = unfiltered(raw[at], raw[at + 1 : at + 1 + length], above, max(1, bits // 8))
        rows.append(bytes(above))
    return b"".join(map(for_the_screen, rows) if CHANNELS[colour] == 3 else rows)


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
