"""The product's icon: the open hand, light on a tile of the accent colour.

The large drawing serves from 48 pixels on. Below, fingers would run together, so that each smaller
size has a drawing of its own whose edges stand on whole pixels. A job file is a page with the hand.
"""

from pictures.hand_outline import Finger, curve, hand_nodes
from pictures.inks import EDGE, SIGN_FIGURE
from pictures.svg import Drawing, Frame, capsule, number, polygon

LARGE = 256
TILE_TOP, TILE_BOTTOM = "#4b82f4", "#2550bd"
HAND, HAND_LOW = "#ffffff", "#d5e0f8"
NAIL = "#a3bbf0"

FINGERS = [
    Finger((90, 142), -13, 87, (13, 12.8, 13.2, 12.4, 12, 10.8), 3),
    Finger((122.5, 135), -2, 101, (13.2, 13, 13.4, 12.6, 12.2, 11), 0.5),
    Finger((155, 138), 8, 93, (13, 12.8, 13.2, 12.2, 11.8, 10.6), -2),
    Finger((184, 151), 19, 72, (12, 11.8, 11.8, 11, 10.6, 9.4), -3),
]
WEB = 7
# The last nodes of the one and the first of the other make the corners at the tile's lower edge.
OUTER_SIDE = [
    ((196, 178), 184), ((190, 207), 197), ((178, 233), 201), ((173, 250), 190),
    ((173, 250), 270),
]
THUMB_SIDE = [
    ((102, 250), 270), ((102, 250), 354), ((97, 231), 334), ((79, 208), 317), ((55, 182), 319),
    ((35, 150), 333), ((30, 131), 358), ((42, 121), 82), ((55, 130), 144), ((65, 148), 150),
    ((73.5, 154.5), 92), ((77.6, 146.5), 352),
]


def _gradient(name, top, bottom, height):
    return (f'<linearGradient id="{name}" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="0" '
            f'y2="{height}"><stop offset="0" stop-color="{top}"/>'
            f'<stop offset="1" stop-color="{bottom}"/></linearGradient>')


def _tile(drawing, size, margin, radius):
    drawing.raw("<defs>" + _gradient("tile", TILE_TOP, TILE_BOTTOM, size)
                + _gradient("hand", HAND, HAND_LOW, size) + "</defs>")
    side = size - 2 * margin
    drawing.raw(f'<rect x="{margin}" y="{margin}" width="{side}" height="{side}" rx="{radius}" '
                f'fill="url(#tile)"/>')


def _nail(drawing, frame, half, length):
    at = frame.at
    nodes = [(at(-half, 0.6 * length), frame.turn), (at(0, 0), frame.turn + 90),
             (at(half, 0.6 * length), frame.turn + 180), (at(0, length), frame.turn + 270)]
    drawing.raw(f'<path d="{curve(nodes)}" fill="{NAIL}"/>')


def large(title):
    """The whole hand with its nails."""
    drawing = Drawing(title, LARGE, LARGE)
    _tile(drawing, LARGE, 6, 52)
    path = curve(hand_nodes(FINGERS, WEB, OUTER_SIDE, THUMB_SIDE))
    drawing.raw(f'<path d="{path}" fill="url(#hand)"/>')
    for finger in FINGERS:
        tip = finger.halves[-1]
        _nail(drawing, finger.local(finger.length - 0.34 * tip), 0.58 * tip, 1.45 * tip)
    _nail(drawing, Frame((41, 126), 1, -24), 7, 17)
    return drawing


# Size: corner of the tile; left, right and top of each finger; where fingers and palm end; left and
# right of the wrist; thumb from tip to root with both radii.
SMALL = {
    16: (3, [(4, 6, 4), (7, 9, 2), (10, 12, 3), (13, 14.5, 5.5)], 9, 13, (5.5, 12),
         ((2.2, 8.2), 1.1, (5.4, 11.4), 1.5)),
    22: (4, [(6, 8, 5), (9, 12, 2.5), (13, 16, 3.5), (17, 19, 7)], 12, 17.5, (8, 16),
         ((3.4, 11.4), 1.4, (7.6, 15.6), 2)),
    24: (4.5, [(6, 9, 5), (10, 13, 3), (14, 17, 4), (18, 20.5, 7.5)], 13, 19, (8, 18),
         ((3.6, 12.4), 1.5, (8, 17), 2.2)),
    32: (6, [(9, 12, 7), (14, 17, 4), (19, 22, 5), (24, 27, 10)], 17, 25, (12, 23),
         ((5, 16.6), 1.9, (11.5, 23), 3)),
}


def small(title, size):
    """The hand of one of the small sizes."""
    drawing = Drawing(title, size, size)
    radius, fingers, web, heel, wrist, thumb = SMALL[size]
    _tile(drawing, size, 0, radius)
    left, right = fingers[0][0], fingers[-1][1]
    palm = polygon([(left, web), (right, web), (right, heel - 0.24 * size + 1),
                    (wrist[1], heel), (wrist[1], size), (wrist[0], size), (wrist[0], heel)])
    rounds = "".join(
        f'<rect x="{number(a)}" y="{number(top)}" width="{number(b - a)}" '
        f'height="{number(web + 1 - top)}" rx="{number((b - a) / 2.4)}"/>'
        for a, b, top in fingers)
    drawing.raw(f'<g fill="{HAND}">{rounds}<path d="{palm}"/><path d="{capsule(*thumb)}"/></g>')
    return drawing


def job_file(title):
    """A job file: a page with the product's tile on it."""
    drawing = Drawing(title, LARGE, LARGE)
    page = [(42, 14), (158, 14), (214, 70), (214, 242), (42, 242)]
    drawing.solid([polygon(page)], SIGN_FIGURE, edge=5)
    sheet = [(54, 26), (146, 26), (146, 82), (202, 82), (202, 230), (54, 230)]
    drawing.raw(f'<path d="{polygon(sheet)}" fill="{EDGE}"/>')
    drawing.raw('<g transform="translate(66 100) scale(0.484)">')
    for element in large(title).contents():
        drawing.raw(element)
    drawing.raw("</g>")
    return drawing


# Size: left, top, right and bottom of the page, its border, its folded corner; left, top, right and
# bottom of the tile; left, right and top of each finger, where they end; left, top and height of
# the thumb; how far above the lower edge of the tile the palm narrows to the wrist.
SMALL_JOB = {
    16: ((2, 0, 14, 16), 1, 4, (3, 6, 13, 15),
         [(5, 6, 9), (7, 8, 7), (9, 10, 8), (11, 12, 10)], 11, (4, 11, 2), 1),
    22: ((3, 0, 19, 22), 1, 5, (4, 9, 18, 21),
         [(6, 8, 12), (9, 11, 10), (12, 14, 11), (15, 17, 13)], 15, (5, 15, 3), 2),
    24: ((3, 0, 21, 24), 1, 6, (4, 9, 20, 23),
         [(7, 9, 13), (10, 12, 11), (13, 15, 12), (16, 18, 14)], 17, (5, 16, 4), 2),
    32: ((4, 1, 28, 31), 2, 8, (6, 12, 26, 29),
         [(10, 12, 16), (13, 15, 14), (16, 18, 15), (19, 21, 17)], 21, (8, 20, 5), 2),
}


def _box(left, top, right, bottom, fill):
    return (f'<rect x="{left}" y="{top}" width="{right - left}" height="{bottom - top}" '
            f'fill="{fill}"/>')


def small_job_file(title, size):
    """The page of one of the small sizes; the tile takes all its width."""
    drawing = Drawing(title, size, size)
    page, border, fold, tile, fingers, web, thumb, wrist = SMALL_JOB[size]
    left, top, right, bottom = page
    outer = [(left, top), (right - fold, top), (right, top + fold), (right, bottom),
             (left, bottom)]
    drawing.solid([polygon(outer)], SIGN_FIGURE, edge=0)
    left, top, right, bottom = left + border, top + border, right - border, bottom - border
    inner = [(left, top), (right - fold, top), (right - fold, top + fold), (right, top + fold),
             (right, bottom), (left, bottom)]
    drawing.solid([polygon(inner)], EDGE, edge=0)
    drawing.raw("<defs>" + _gradient("tile", TILE_TOP, TILE_BOTTOM, size) + "</defs>")
    drawing.raw(_box(*tile, "url(#tile)"))
    for start, end, tip in fingers:
        drawing.raw(_box(start, tip, end, web, HAND))
    first, last, ground = fingers[0][0], fingers[-1][1], tile[3]
    drawing.raw(_box(first, web, last, ground - wrist, HAND))
    drawing.raw(_box(first + 1, ground - wrist, last - 1, ground, HAND))
    drawing.raw(_box(thumb[0], thumb[1], first, thumb[1] + thumb[2], HAND))
    return drawing
