"""Four ways to hold something; the fingers that hold are drawn in the accent colour.

It is the right hand throughout, with the forearm on the right and the thumb on top. The hand lies
over the roots of its fingers, so that they grow from it.
"""

import math

from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE, OBJECT
from pictures.svg import Drawing, capsule, curl, disc, limb, polar, polygon, polyline, smooth

THUMB = [4.4, 3.9, 3.2, 2.4]
CREASE = 0.62  # of a finger's thickness


def _object(drawing, paths):
    """What is held: light, with an outline that keeps it visible on every ground."""
    data = "".join(f'<path d="{path}"/>' for path in paths)
    drawing.solid(paths, OBJECT)
    drawing.raw(f'<g fill="{OBJECT}" stroke="{GUIDE}" stroke-width="2.2" '
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
    path = capsule(polar(tip, radius * 0.5, degrees + 180), radius * 0.6,
                   polar(tip, radius * 0.3, degrees), radius * 0.6)
    drawing.raw(f'<path d="{path}" fill="{EDGE}"/>')


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


# The hand of the other pinches, from its thumb's side, from which fingers go to the left.
BACK = [
    (48, 26.6), (42, 23.6), (36.4, 20.2), (32.4, 19.2), (29.8, 22), (29.6, 26.4), (32.6, 29.8),
    (35.6, 34.6), (38, 42), (42, 44), (48, 41.6),
]
BACK_FOREARM = [(46, 26.4), (55.4, 28.4), (55.4, 43), (46, 41.8)]
PINCHING_THUMB = [4.4, 4, 3.2, 2.2]
PINCHING_FINGER = [4, 3.4, 2.8, 2.1]


def _back(drawing):
    drawing.solid([smooth(BACK), polygon(BACK_FOREARM)], FIGURE)


def _soft(drawing, joints, radii, colour=ACCENT):
    """A finger or thumb with straight bones, round joints and a crease on each one's inner side."""
    spine, widths = [joints[0]], [radii[0]]
    for (start, end), (thick, thin) in zip(zip(joints, joints[1:]), zip(radii, radii[1:])):
        for share in (0.3, 0.7, 1):
            spine.append(tuple(a + (b - a) * share for a, b in zip(start, end)))
            widths.append(thick + (thin - thick) * share)
    drawing.solid([curl(spine, widths)], colour, edge=0.8)
    for before, at, after, radius in zip(joints, joints[1:], joints[2:], radii[1:]):
        inner = math.degrees(math.atan2((before[0] + after[0]) / 2 - at[0],
                                        at[1] - (before[1] + after[1]) / 2))
        drawing.line(polyline([polar(at, radius * share, inner) for share in (0.1, 0.9)]),
                     EDGE, 0.8)
    # The nail, seen from its side.
    tip, radius = joints[-1], radii[-1]
    along = math.degrees(math.atan2(tip[0] - joints[-2][0], joints[-2][1] - tip[1]))
    back = polar(tip, radius * 0.55, inner + 180)
    nail = capsule(polar(back, radius * 0.9, along + 180), radius * 0.34,
                   polar(back, radius * 0.2, along), radius * 0.34)
    drawing.raw(f'<path d="{nail}" fill="{EDGE}"/>')


def two_point_pinch(title):
    """A small ball between the pads of thumb and index finger; the others keep away."""
    drawing = Drawing(title)
    for joints, radii in (
            ([(38, 24), (37, 13.6), (34, 7), (30.6, 3.8)], [2.8, 2.5, 2.2, 1.7]),
            ([(35, 23), (30, 11), (24, 5.4), (18.6, 3.8)], [3.2, 2.8, 2.4, 1.9]),
            ([(32, 23.4), (23.4, 12), (15.6, 8.4), (9, 8.6)], [3.4, 2.9, 2.4, 1.9])):
        _soft(drawing, joints, radii, FIGURE)
    _object(drawing, [disc((8.4, 35), 4.9)])
    _soft(drawing, [(31.4, 24), (18.6, 15.6), (10.6, 20.8), (9.4, 28.2)], PINCHING_FINGER)
    _back(drawing)
    _soft(drawing, [(44.6, 36.4), (33.4, 44.6), (21.6, 46.2), (11.2, 42)], PINCHING_THUMB)
    return drawing


def chuck_pinch(title):
    """A ball between the pads of thumb, index and middle finger; the other two keep away."""
    drawing = Drawing(title)
    for joints, radii in (
            ([(41, 24), (42.4, 14), (41.4, 8), (39, 4.2)], [2.8, 2.5, 2.2, 1.7]),
            ([(37, 22), (35.4, 11.6), (31.6, 6), (27, 3.6)], [3.2, 2.8, 2.4, 1.9])):
        _soft(drawing, joints, radii, FIGURE)
    _soft(drawing, [(30.4, 19), (15, 5.4), (4.6, 11), (3.6, 27.4)], PINCHING_FINGER)
    _object(drawing, [disc((10, 36.4), 7.6)])
    _soft(drawing, [(34.4, 27), (25.6, 19.8), (17.8, 22.6), (16, 30.4)], PINCHING_FINGER)
    _back(drawing)
    _soft(drawing, [(44.6, 37), (34, 47), (22.6, 50), (12, 46.4)], PINCHING_THUMB)
    return drawing
