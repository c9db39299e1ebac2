#!/usr/bin/env python3
"""Draws the postures, the charts, the main window's hand and the icons as SVG files.

Usage: make_pictures.py [FOLDER]      the folder is "assets" if not given

The table of pictures is pictures/catalog.py; the same table always gives the same bytes.
"""

import argparse
import sys
from pathlib import Path

sys.dont_write_bytecode = True  # leaves no cache folders beside the sources
sys.path.insert(0, str(Path(__file__).resolve().parent))

from pictures.catalog import pictures  # noqa: E402


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", metavar="FOLDER", nargs="?", type=Path, default=Path("assets"))
    folder = parser.parse_args().folder
    for asset, document in pictures():
        path = folder / f"{asset}.svg"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(document, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
