"""Four ways to hold something; the fingers that hold are drawn in the accent colour.

The right hand comes from below with the palm to the reader, so the thumb is on the right.
"""

from pictures.inks import ACCENT, FIGURE, GUIDE, OBJECT
from pictures.svg import (
    Drawing,
    capsule,
    curl,
    disc,
    limb,
    polygon,
    smooth,
)

FIST = [
    (19.5, 44), (16.6, 37), (16.2, 28), (17.2, 17), (22, 12.6), (30, 11), (37.6, 12.6), (41, 19),
    (41.4, 30), (39, 38), (36, 44),
]
# Curled fingers from the little finger to the index: over the knuckle and down to the tip.
CURLED = [
    [(19.6, 17.2), (19.8, 27.2)],
    [(25.6, 14.8), (25.8, 28)],
    [(31.8, 14), (31.9, 28.4)],
    [(38, 15.4), (37.9, 27.8)],
]


FINGER = [2.9, 2.6]
THUMB = [3.7, 3.3, 2.8, 2.2]


def _object(drawing, paths):
    """What is held: light, with an outline that keeps it visible on white."""
    data = "".join(f'<path d="{path}"/>' for path in paths)
    drawing.solid(paths, OBJECT)
    drawing.raw(f'<g fill="{OBJECT}" stroke="{GUIDE}" stroke-width="1.1">{data}</g>')


def _fist(drawing, lower):
    """Palm and forearm, `lower` pixels further down."""
    palm = smooth([(x, y + lower) for x, y in FIST])
    forearm = polygon([(20.6, 40), (35.4, 40), (36.6, 55.4), (19.4, 55.4)])
    drawing.solid([palm, forearm], FIGURE)


def _curled(lower):
    return [[(x, y + lower) for x, y in joints] for joints in CURLED]


def power(title):
    """The whole hand around a bar, the thumb closing over the fingers."""
    drawing = Drawing(title)
    _fist(drawing, 0)
    _object(drawing, [capsule((5.4, 21), 4.7, (50.6, 21), 4.7)])
    for joints in _curled(0):
        drawing.solid(limb(joints, FINGER), ACCENT, edge=0.7)
    drawing.solid([curl([(35.4, 43), (40.8, 38.6), (39.2, 32.6), (30.8, 30.2)], THUMB)], ACCENT,
                  edge=0.8)
    return drawing


def lateral_pinch(title):
    """A key between the thumb and the side of the bent index finger."""
    drawing = Drawing(title)
    lower = 4.6
    _fist(drawing, lower)
    *resting, index = _curled(lower)
    for joints in resting:
        drawing.solid(limb(joints, FINGER), FIGURE, edge=0.7)
    drawing.solid(limb(index, [3.1, 2.8]), ACCENT, edge=0.7)
    blade = polygon([(39.8, 14), (39.8, 1.4), (42.2, 1.4), (45, 3), (42.8, 4.6), (45, 6.2),
                     (42.8, 7.8), (42.8, 14)])
    bow = disc((41.2, 16.4), 5.6)
    _object(drawing, [blade, bow])
    drawing.raw(f'<path d="{blade}" fill="{OBJECT}"/>')
    drawing.raw(f'<path d="{disc((41.2, 14.2), 1.5)}" fill="{GUIDE}"/>')
    drawing.solid([curl([(37.4, 46), (43.6, 39), (44.8, 30), (42.4, 21.4)], THUMB)], ACCENT,
                  edge=0.8)
    return drawing


PALM_SIDE = [
    (34, 46), (29.4, 38), (28.6, 29), (31, 21.4), (37, 19), (43.6, 22), (45.8, 30), (45.4, 38),
    (45, 46),
]
LITTLE = ([(43, 25), (46, 17), (48.4, 10.4)], [2.5, 2.2, 1.8])
RING = ([(39.8, 23), (41.2, 13), (42.2, 5.4)], [2.7, 2.4, 1.9])
MIDDLE = ([(36, 22), (35.2, 11.4), (34.4, 3.6)], [2.8, 2.5, 2])


def _raised_hand(drawing, resting):
    """Palm and forearm in grey, and the fingers that hold nothing."""
    body = [smooth(PALM_SIDE), polygon([(34, 42), (45.4, 42), (47.4, 55.4), (35.6, 55.4)])]
    fingers = [curl(*finger) for finger in resting]
    drawing.solid(body + fingers, FIGURE)
    for finger in fingers:
        drawing.solid([finger], FIGURE, edge=0.6)
    drawing.solid(body, FIGURE, edge=0)


def two_point_pinch(title):
    """A small ball between the tips of thumb and index finger."""
    drawing = Drawing(title)
    _raised_hand(drawing, [LITTLE, RING, MIDDLE])
    _object(drawing, [disc((12.2, 27.6), 3.5)])
    drawing.solid([curl([(35, 25), (28.4, 16.8), (20, 15.4), (13.6, 23)], [3.1, 2.8, 2.4, 1.9])],
                  ACCENT, edge=0.8)
    drawing.solid([curl([(38, 38), (29, 39.4), (20, 37), (13.4, 32)], [3.9, 3.3, 2.7, 2.1])],
                  ACCENT, edge=0.8)
    return drawing


def chuck_pinch(title):
    """A cap between the tips of thumb, index and middle finger; the others lie in the palm."""
    drawing = Drawing(title)
    palm = smooth([(50, 50), (43, 49.6), (36.4, 46), (32.8, 38), (32.4, 29), (35.4, 21),
                   (41.6, 18.6), (47, 21.4), (51, 27), (54, 38)])
    forearm = polygon([(46.8, 21.2), (55.4, 31.2), (55.4, 55.4), (45.6, 55.4), (37.4, 46.8)])
    drawing.solid([palm, forearm], FIGURE)
    drawing.solid([curl([(38, 31), (33, 31.2), (28.6, 32)], [4.4, 4.2, 3.6])], FIGURE, edge=0.8)
    drawing.solid([curl([(40.6, 21.4), (32, 8.4), (18.4, 6), (10.4, 15)], [3.3, 3, 2.6, 2.1])],
                  ACCENT, edge=0.8)
    _object(drawing, [disc((12, 26.6), 8.2)])
    drawing.solid([curl([(39.4, 26), (32, 17), (24.2, 13.4), (16.8, 19.4)], [3.4, 3.1, 2.6, 2.1])],
                  ACCENT, edge=0.8)
    drawing.solid([curl([(42, 41.6), (31.4, 43.4), (22, 41), (15, 34)], [4.1, 3.6, 2.9, 2.3])],
                  ACCENT, edge=0.8)
    return drawing
