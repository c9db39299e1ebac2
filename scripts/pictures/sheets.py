"""Sheets of pictures with their names below, drawn as one SVG document each."""

import base64
import hashlib
import re
import shutil
import subprocess
import sys
from html import escape
from pathlib import Path

from pictures import inks, png
from pictures.svg import PIXELS

# Sheet, and which pictures of the assets folder stand on it, in this order.
SHEETS = {
    "main-window": ["main_window/[!h]*.svg", "main_window/help.svg", "main_window/hand*"],
    "icons": ["icon/**/*.svg", "icon/hicolor/*/mimetypes/*.png", "icon/hicolor/*/apps/*.png"],
    "ctd": ["ctd/[!r]*.svg"],
    "rula": ["rula/*.svg"],
    "reba": ["reba/*.svg"],
    "charts": ["ocra/*", "strain_index/*", "ctd/report.svg"],
}
TRAYS = {"icons": ["apps/halvane-tools.png", "mimetypes/application-x-halvane-job.png"]}
KINDS = {".svg": "image/svg+xml", ".png": "image/png", ".jpg": "image/jpeg"}
# Ground, ink of the words on it, whether it is a dark one.
WHITE, BUTTON, DARK = (("#ffffff", "#202124", False), ("#efefef", "#202124", False),
                       ("#2d2d30", "#e8eaed", True))
ON_BUTTONS = ("ctd", "rula", "reba")  # sheets of what the program shows on buttons
SCALES = (1, 2)
MOST_BYTES = 500_000  # of a sheet

WIDTH = 1080  # of a sheet at 100 %
GAP, MARGIN = 10, 14
TRAY = (16, 22, 24, 32, 48, 64, 128)  # sizes of an icon that stand side by side
LINE = 11  # height of a line of a caption
LETTERS = 18  # of a line of a caption
LEAST = 104  # width of a cell


class Picture:
    """One picture: name, logical size, and its bytes at a scale."""

    def __init__(self, name, width, height, data, kind):
        self.name, self.width, self.height = name, width, height
        self.data, self.kind = data, kind

    def element(self, x, y):
        data = base64.b64encode(self.data).decode()
        return (f'<image x="{x}" y="{y}" width="{self.width}" height="{self.height}" '
                f'xlink:href="data:{self.kind};base64,{data}"/>')


class Tray:
    """One icon in many sizes beside each other, as panels and lists of files show it."""

    def __init__(self, folder, icon):
        self.name = f"{Path(icon).stem} in {', '.join(map(str, TRAY))}"
        self.pictures = [Picture("", side, side, (folder / f"{side}x{side}" / icon).read_bytes(),
                                 KINDS[".png"]) for side in TRAY]
        self.width, self.height = sum(TRAY) + GAP * (len(TRAY) - 1), max(TRAY)

    def element(self, x, y):
        elements = []
        for picture in self.pictures:
            elements.append(picture.element(x, y + self.height - picture.height))
            x += picture.width + GAP
        return "".join(elements)


def _size_of(path, data):
    """Logical width and height."""
    if path.suffix == ".svg":
        head = re.search(r'<svg [^>]* width="(\d+)" height="(\d+)"', data.decode())
        return int(head.group(1)), int(head.group(2))
    if path.suffix == ".jpg":
        # The report's charts are three times their logical size.
        at = re.search(rb"\xff\xc0.{3}(..)(..)", data, re.S)
        return tuple(int.from_bytes(at.group(i), "big") // 3 for i in (2, 1))
    zoom = 2 if path.stem.endswith("@2x") else 1
    return tuple(int.from_bytes(data[i:i + 4], "big") // zoom for i in (16, 20))


def _rendered(svg, scale):
    return subprocess.run(["rsvg-convert", "--zoom", str(scale)], input=svg,
                          stdout=subprocess.PIPE, check=True).stdout


def _masked(path):
    """The hand as the window shows it: nothing of what its mask leaves out."""
    mask = path.with_name(path.name.replace("hand", "hand_mask"))
    width, _, colours = png.read(path.read_bytes())
    _, _, inside = png.read(mask.read_bytes())
    rows = [b"".join(row[4 * x:4 * x + 3] + bytes([within[4 * x]]) for x in range(width))
            for row, within in zip(colours, inside)]
    return png.packed_rgba(width, rows)


def files_of(assets, patterns):
    """The files of a sheet; those of the theme's folders by size, all others by name."""
    def order(path):
        size = re.search(r"/(\d+)x\d+/", str(path))
        return int(size.group(1)) if size else 0, str(path)
    return [path for pattern in patterns for path in sorted(assets.glob(pattern), key=order)]


def checksum(assets, patterns):
    """One checksum of all files of a sheet, names included."""
    total = hashlib.sha256()
    for path in sorted(files_of(assets, patterns), key=lambda path: str(path.relative_to(assets))):
        total.update(str(path.relative_to(assets)).encode() + b"\0" + path.read_bytes())
    return total.hexdigest()


def _pictures(assets, patterns, scale, ground, dark):
    for path in files_of(assets, patterns):
        # At each scale the picture that the window takes there.
        if path.parent.name == "main_window" and path.suffix == ".png":
            if path.stem.endswith("@2x") != (scale == 2):
                continue
        data, kind = path.read_bytes(), KINDS[path.suffix]
        width, height = _size_of(path, data)
        if path.name in ("hand.png", "hand@2x.png"):
            data = _masked(path)
        if (width, height) == (PIXELS, PIXELS):
            data = inks.on_ground(data.decode(), ground, dark).encode()
        if path.suffix == ".svg":
            # Taken as it is, a drawing would be enlarged from its pixels at 100 %.
            data, kind = _rendered(data, scale), KINDS[".png"]
        name = str(path.relative_to(assets))
        name = re.sub(r"^icon/hicolor/(.*)/(apps|mimetypes)/", r"\1/", name)
        name = re.sub(r"^(ctd|rula|reba|main_window)/", "", name)
        yield Picture(name, width, height, data, kind)


def _lines(caption):
    """The caption in lines that are parted behind a "_", "-" or "/"."""
    lines = [""]
    for part in re.findall(r"[^_/-]*[_/-]?", caption):
        if len(lines[-1] + part) > LETTERS and lines[-1]:
            lines.append("")
        lines[-1] += part
    return lines


def _block(pictures, top, ground, ink, least=LEAST):
    """Elements of all pictures in rows from `top` on, and the height that they take."""
    elements, row, x, y = [], [], MARGIN, top + MARGIN

    def finish():
        nonlocal y
        tallest = max(picture.height for picture, _, _ in row)
        lines = 0
        for picture, left, cell in row:
            elements.append(picture.element(left + (cell - picture.width) // 2,
                                            y + tallest - picture.height))
            for i, line in enumerate(_lines(picture.name)):
                elements.append(f'<text x="{left + cell / 2}" y="{y + tallest + 12 + i * LINE}" '
                                f'fill="{ink}">{escape(line)}</text>')
                lines = max(lines, i + 1)
        y += tallest + 6 + lines * LINE + GAP
        row.clear()

    for picture in pictures:
        cell = max(least, picture.width + GAP)
        heights = [other.height for other, _, _ in row] + [picture.height]
        # Among tall pictures small ones would be lost.
        if row and (x + cell > WIDTH - MARGIN or max(heights) > 8 * min(heights[-2:])):
            finish()
            x = MARGIN
        row.append((picture, x, cell))
        x += cell
    finish()
    height = y + MARGIN - GAP - top
    return [f'<rect x="0" y="{top}" width="{WIDTH}" height="{height}" fill="{ground}"/>',
            *elements], height


def _write(path, elements, height, scale, comment):
    """Renders the sheet with a palette, so that it stays small."""
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
           f'width="{WIDTH}" height="{height}" viewBox="0 0 {WIDTH} {height}" '
           f'font-family="DejaVu Sans" font-size="9" text-anchor="middle">'
           + "".join(elements) + "</svg>")
    drawn = subprocess.run(["rsvg-convert", "--unlimited", "--zoom", str(scale)],
                           input=svg.encode(), stdout=subprocess.PIPE, check=True).stdout
    small = subprocess.run(["convert", "png:-", "-strip", "+dither", "-colors", "255", "-define",
                            "png:include-chunk=none", "-quality", "95", "PNG8:-"],
                           input=drawn, stdout=subprocess.PIPE, check=True).stdout
    path.write_bytes(png.with_comment(small, comment))


def need_programs():
    """Ends with a word where one is missing."""
    for program, package in (("rsvg-convert", "librsvg2-bin"), ("convert", "imagemagick")):
        if not shutil.which(program):
            sys.exit(f"{program} is missing; install the Debian package {package}")


def make_sheets(assets, folder):
    """Every sheet at both scales, the light ground above the dark one."""
    for name, patterns in SHEETS.items():
        comment = "sha256 of the pictures: " + checksum(assets, patterns)
        for scale in SCALES:
            elements, top = [], 0
            grounds = (WHITE, BUTTON, DARK) if name in ON_BUTTONS else (WHITE, DARK)
            for ground, ink, dark in grounds:
                pictures = list(_pictures(assets, patterns, scale, ground, dark))
                trays = [Tray(assets / "icon/hicolor", icon) for icon in TRAYS.get(name, ())]
                block, height = _block(trays + pictures, top, ground, ink)
                elements += block
                top += height
            _write(folder / f"sheet-{name}-{scale}00.png", elements, top, scale, comment)


def complaints(assets, folder):
    """What is wrong with the sheets of a folder, a line each."""
    everything = {path for path in assets.rglob("*") if path.suffix in KINDS}
    for patterns in SHEETS.values():
        everything -= set(files_of(assets, patterns))
    found = [f"{path.relative_to(assets)} stands on no sheet" for path in sorted(everything)]
    for name, patterns in SHEETS.items():
        for scale in SCALES:
            sheet = folder / f"sheet-{name}-{scale}00.png"
            data = sheet.read_bytes() if sheet.exists() else b""
            if checksum(assets, patterns).encode() not in data:
                found.append(f"{sheet.name} is not of today's pictures: run scripts/contact_sheets")
            elif data[25] != 3 or len(data) >= MOST_BYTES:
                found.append(f"{sheet.name} is larger than a sheet may be")
    return found


def make_form_sheet(shots, folder):
    """The windows of a folder, three in a row, each as large as its cell allows."""
    room = (WIDTH - 2 * MARGIN) // 3 - GAP
    pictures = []
    for path in sorted(shots.glob("*.png")):
        data = path.read_bytes()
        width, height = _size_of(path, data)
        share = min(1.0, room / width, 0.7 * room / height)
        pictures.append(Picture(path.stem, round(width * share), round(height * share), data,
                                KINDS[".png"]))
    if not pictures:
        sys.exit(f"no PNG file in {shots}")
    elements, height = _block(pictures, 0, "#c8ccd2", "#202124", room + GAP)
    _write(folder / "sheet-forms.png", elements, height, 2, "windows of the program")
