"""Four ways to hold something; the fingers that hold are drawn in the accent colour.

It is the right hand throughout, with the forearm on the right and the thumb on top. The hand lies
over the roots of its fingers, so that they grow from it.
"""

import math

from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE, OBJECT
from pictures.svg import Drawing, capsule, disc, limb, polar, polygon, polyline, smooth

THUMB = [4.4, 3.9, 3.2, 2.4]
CREASE = 0.62  # of a finger's thickness


def _object(drawing, paths):
    """What is held: light, with an outline that keeps it visible on every ground."""
    data = "".join(f'<path d="{path}"/>' for path in paths)
    drawing.solid(paths, OBJECT)
    drawing.raw(f'<g fill="{OBJECT}" stroke="{GUIDE}" stroke-width="1.1" '
                f'stroke-linejoin="round">{data}</g>')
    drawing.raw(f'<g fill="{OBJECT}">{data}</g>')


def _bent(drawing, joints, radii, colour=ACCENT):
    """A finger or thumb with a crease over each joint between root and tip."""
    drawing.solid(limb(joints, radii), colour, edge=0.8)
    for before, at, after, radius in zip(joints, joints[1:], joints[2:], radii[1:]):
        along = math.degrees(math.atan2(after[0] - before[0], before[1] - after[1]))
        ends = [polar(at, radius * CREASE, along + side) for side in (-90, 90)]
        drawing.line(polyline(ends), EDGE, 0.6)


def _nail(drawing, tip, degrees, radius):
    """A nail near the tip of a finger that points to `degrees` from straight up."""
    path = capsule(polar(tip, radius * 0.5, degrees + 180), radius * 0.62,
                   polar(tip, radius * 0.35, degrees), radius * 0.62)
    drawing.raw(f'<path d="{path}" fill="{EDGE}" fill-opacity="0.75"/>')


FIST = [
    (24, 13), (33, 9.6), (42, 12.6), (48, 21), (49.6, 30), (47.6, 40), (41, 46.4), (30, 47.6),
    (23, 44), (19, 30),
]
FIST_FOREARM = [(44, 17), (55.4, 20.6), (55.4, 43.4), (43, 45)]
# Height of each curled finger, and where it bends and where its tip lies.
FIST_FINGERS = [(20.4, 13.4, 34.4), (28, 12.4, 34.8), (35.4, 13, 33.2), (42, 15, 30.6)]
FIST_RADII = [3.8, 3.75, 3.5, 3.1]
FIST_THUMB = [(46, 31.4), (43.4, 20.4), (36, 13), (26.6, 13)]


def _fist(drawing):
    drawing.solid([smooth(FIST), polygon(FIST_FOREARM)], FIGURE)


def _curled(drawing, index, colour, lower=0.0):
    """A finger that comes around from behind, the last bone towards the reader."""
    (y, left, right), radius = FIST_FINGERS[index], FIST_RADII[index]
    y += lower
    drawing.solid([capsule((left, y), radius, (right, y), radius * 0.86)], colour, edge=0.75)
    bend = left + (right - left) * 0.34
    drawing.line(polyline([(bend, y - radius * 0.6), (bend, y + radius * 0.6)]), EDGE, 0.6)
    _nail(drawing, (right, y), 90, radius * 0.86)


def power(title):
    """The whole hand around a bar, the thumb closing over the fingers."""
    drawing = Drawing(title)
    _fist(drawing)
    _object(drawing, [capsule((23, 5.6), 4.8, (23, 50.4), 4.8)])
    for index in (3, 2, 1, 0):
        _curled(drawing, index, ACCENT)
    _bent(drawing, FIST_THUMB, THUMB)
    _nail(drawing, FIST_THUMB[-1], -92, 2.4)
    return drawing


def lateral_pinch(title):
    """A key between the pad of the thumb and the side of the bent index finger."""
    drawing = Drawing(title)
    _fist(drawing)
    for index in (3, 2, 1):
        _curled(drawing, index, FIGURE, 2)
    blade = polygon([(20, 14.4), (3, 14.4), (3, 16.6), (4.6, 18.6), (6.2, 16.8), (7.8, 18.6),
                     (9.4, 16.8), (20, 16.8)])
    _object(drawing, [blade, disc((22.6, 15.4), 5.2)])
    _curled(drawing, 0, ACCENT, 3.4)
    _bent(drawing, [(46.4, 30), (43, 17.6), (34.6, 9.8), (24, 10.2)], THUMB)
    _nail(drawing, (24, 10.2), -88, 2.4)
    return drawing


# The open hand of the pinches: back of the hand and forearm, from which fingers go to the left.
BACK = [
    (37.4, 15.4), (41.4, 14.4), (45.6, 17.4), (50.4, 24.4), (52.6, 33), (51.4, 42), (46, 46.4),
    (41.4, 45), (40.6, 40.4), (42.4, 34), (40.6, 27), (36.4, 21),
]
BACK_FOREARM = [(50, 24), (55.4, 30), (55.4, 52), (45, 46.2)]


def _back(drawing):
    drawing.solid([smooth(BACK), polygon(BACK_FOREARM)], FIGURE)


def two_point_pinch(title):
    """A small ball between the pads of thumb and index finger."""
    drawing = Drawing(title)
    for joints, radii in (
            ([(47, 24), (51, 15.4), (51.4, 8.6)], [2.7, 2.3, 1.7]),
            ([(44.4, 22), (46, 11.4), (44.6, 3.8)], [3, 2.6, 1.9]),
            ([(40.6, 21), (38, 9.6), (34.4, 3.4)], [3.2, 2.7, 2])):
        _bent(drawing, joints, radii, FIGURE)
    _object(drawing, [disc((12.4, 28.6), 3.6)])
    _bent(drawing, [(40.4, 20.6), (26.6, 12.6), (17.4, 16.4), (13, 23.8)], [3.6, 3, 2.4, 1.9])
    _bent(drawing, [(45, 40.6), (34, 41.4), (22.6, 38.4), (14.6, 33)], [4.6, 3.6, 2.9, 2])
    _back(drawing)
    return drawing


def chuck_pinch(title):
    """A cap between the pads of thumb, index and middle finger; the others lie in the palm."""
    drawing = Drawing(title)
    _bent(drawing, [(44, 29), (34, 26.4), (32, 31), (37, 33)], [3.3, 3, 2.7, 2.3], FIGURE)
    _bent(drawing, [(41, 19), (24.6, 5.6), (13.4, 9), (8.8, 18)], [3.6, 3, 2.5, 2])
    _object(drawing, [disc((12, 27.6), 7.4)])
    _bent(drawing, [(41, 22.6), (29, 12.6), (20.4, 16.2), (16.6, 23)], [3.5, 2.9, 2.4, 1.9])
    _bent(drawing, [(45, 41.6), (34, 44.4), (22.6, 41.8), (15, 35.6)], [4.6, 3.6, 2.9, 2])
    _back(drawing)
    return drawing
