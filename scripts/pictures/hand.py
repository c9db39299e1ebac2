"""The right hand, large: from above, from its little-finger side, and turned about the forearm.

Each hand has its own frame with the wrist as origin and the fingers pointing up (y negative);
from above, the thumb of the right hand is on the left.
"""

from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE
from pictures.protractor import Protractor, Reach
from pictures.svg import (
    Drawing,
    Frame,
    capsule,
    curl,
    disc,
    polygon,
    polyline,
    smooth,
)

# Fingers of the back view, from the far one to the near one: joints and radii.
FINGERS_ABOVE = [
    ([(6, -11.5), (7.6, -16.6), (8.5, -21.4)], [2.05, 1.85, 1.5]),
    ([(2.7, -13), (3.3, -20), (3.7, -26.4)], [2.2, 2.0, 1.65]),
    ([(-1.4, -13.4), (-1.5, -21.2), (-1.5, -28.6)], [2.25, 2.05, 1.7]),
    ([(-5.2, -12.6), (-6, -19.4), (-6.7, -26)], [2.2, 2.0, 1.65]),
]
THUMB_ABOVE = ([(-3.6, -3.4), (-9.2, -9.4), (-12, -15.4)], [3.0, 2.4, 1.8])
PALM_ABOVE = [
    (-4.4, 1), (-5.6, -3), (-7.2, -7), (-7.4, -11.5), (-6.2, -15), (-2, -16.2), (2.6, -15.6),
    (6.4, -13.8), (8.1, -11), (7.4, -5.5), (5.2, -1.5), (4.4, 1),
]


def forearm_up(drawing, wrist, half=4.4):
    """The forearm from the lower edge of the picture up to the wrist."""
    x, y = wrist
    drawing.solid(
        [
            polygon([(x - half, y), (x + half, y), (x + half + 1.5, 55.4), (x - half - 1.5, 55.4)]),
            capsule((x - 0.5, y), half, (x + 0.5, y), half),
        ],
        FIGURE,
    )


def hand_above(drawing, frame, colour=ACCENT, nails=True):
    """The back of a flat hand."""
    parts = [(frame.all(joints), [r * frame.scale for r in radii])
             for joints, radii in [THUMB_ABOVE, *FINGERS_ABOVE]]
    palm = smooth(frame.all(PALM_ABOVE))
    # One border around the whole hand first, so that the palm has no seam of its own.
    drawing.solid([palm, *(curl(*part) for part in parts)], colour)
    for part in parts:
        drawing.solid([curl(*part)], colour, edge=0.55)
    drawing.solid([palm], colour, edge=0)
    if nails:
        for joints, radii in [THUMB_ABOVE, *FINGERS_ABOVE]:
            (ax, ay), (bx, by) = joints[-2:]
            near = bx + (ax - bx) * 0.12, by + (ay - by) * 0.12
            r = radii[-1] * 0.62 * frame.scale
            nail = capsule(frame.at(*near), r, frame.at(bx, by), r)
            drawing.raw(f'<path d="{nail}" fill="{EDGE}" fill-opacity="0.75"/>')


def from_above(title, angle, shown=None, twisted=False):
    """The hand bent sideways by `angle`: ulnar positive, radial negative; maybe turned too."""
    drawing = Drawing(title.format(abs(angle)))
    wrist = (28, 41)
    frame = Frame(wrist, 1.06, angle)
    reach = Reach(segment=29, sector=36, arc=36, line=38.5)
    measure = Protractor(drawing, wrist, 0, 1, angle, reach, shown)
    measure.draw_range()
    forearm_up(drawing, wrist)
    measure.draw_lines()
    hand_above(drawing, frame)
    measure.draw_axis()
    if twisted:
        _turn(drawing, (28, 50.5), (-1, 1))
    return drawing


# Side view from the thumb's side, fingers to the right, back of the hand up. Index finger and back
# of the hand are one outline; the other fingers come out under it.
BACK_OF_SIDE = [
    (-2.4, -4), (3, -4.4), (9.4, -4.9), (14.6, -4.4), (20.8, -3.4), (27, -2.2), (31.6, -0.9),
    (33, 0.7), (31.6, 1.8), (27, 1.3), (21, 1.2), (16.4, 2.2), (12.6, 3.8), (8.4, 4.6), (3, 4.6),
    (-2.4, 4),
]
FINGERS_SIDE = [
    ([(13, 0.6), (20, 2.2), (26.4, 3.2), (31, 4.6)], [2.3, 1.9, 1.7, 1.4]),
    ([(12, 2), (18.6, 4.4), (24, 6), (27.6, 8)], [2.1, 1.8, 1.6, 1.3]),
]
THUMB_SIDE = ([(3.4, 3), (8.6, 7), (13.6, 9.2), (18.4, 9.8)], [2.9, 2.3, 2, 1.6])
SIDE_WRIST = (17, 27.8)


def from_side(title, angle, shown=None):
    """The palm-down hand bent at the wrist by `angle`: flexion positive, extension negative."""
    drawing = Drawing(title.format(abs(angle)))
    wrist = SIDE_WRIST
    frame = Frame(wrist, 0.96, angle)
    x, y = wrist
    reach = Reach(segment=28.5, sector=33.5, arc=33.5, line=36)
    measure = Protractor(drawing, wrist, 90, 1, angle, reach, shown)
    measure.draw_range()
    drawing.solid([polygon([(0.6, y - 5.6), (x, y - 4.2), (x, y + 4.2), (0.6, y + 5.6)]),
                   disc(wrist, 4.2)], FIGURE)
    measure.draw_lines()
    parts = [(frame.all(joints), [r * frame.scale for r in radii])
             for joints, radii in [*FINGERS_SIDE[::-1], THUMB_SIDE]]
    back = smooth(frame.all(BACK_OF_SIDE))
    drawing.solid([back, *(curl(*part) for part in parts)], ACCENT)
    for part in parts:
        drawing.solid([curl(*part)], ACCENT, edge=0.5)
        if part is parts[1]:
            drawing.solid([back], ACCENT, edge=0.5)
    measure.draw_axis()
    return drawing


EDGE_HAND = [
    (-3.4, 1), (-4.8, -4), (-5, -9), (-4.2, -14), (-3.5, -20), (-3.1, -25.6), (-2.2, -28.2),
    (-0.3, -29.2), (1.6, -28.2), (2.4, -25.6), (2.8, -20), (4, -14), (4.8, -8), (4.4, -3), (3.4, 1),
]


def turned(title, shows):
    """The hand turned about the forearm, seen by its owner: "edge", "back" or "palm"."""
    drawing = Drawing(title)
    wrist = (28, 33.5)
    frame = Frame(wrist)
    forearm_up(drawing, wrist)
    if shows == "edge":
        thumb_edge(drawing, frame)
    elif shows == "back":
        hand_above(drawing, frame)
    else:
        open_palm(drawing, frame)
    _turn(drawing, (28, 46), {"edge": (), "back": (-1,), "palm": (1,)}[shows])
    return drawing


def _turn(drawing, middle, sides):
    """A dial around the near side of the forearm.

    Its tick is where a turn starts, with the thumb towards the reader; an arrow goes from there to
    the left (-1) or to the right (1), which is where the thumb went.
    """
    x, y = middle
    for side in sides:
        track = smooth([(x + side * along, y + down)
                        for along, down in [(0, 1.4), (5, 0.9), (9, -1.2), (11.4, -4.4)]],
                       closed=False)
        drawing.arrow(track, ((x + side * 12, y - 5.4), side * 30))
    if not sides:
        track = smooth([(x + along, y + down)
                        for along, down in [(-9, -1.2), (-5, 0.9), (0, 1.4), (5, 0.9), (9, -1.2)]],
                       closed=False)
        drawing.line(track, EDGE, 1.2)
    drawing.line(polyline([(x, y - 2.4), (x, y + 4.8)]), GUIDE, 1.3, edge=0.8)


def thumb_edge(drawing, frame):
    """The straight hand on edge: thumb towards the reader, palm to the left."""
    hand = smooth(frame.all(EDGE_HAND))
    thumb = curl(frame.all([(0.9, -2.4), (-2.2, -9), (-6, -14), (-8.4, -19.2)]), [3.5, 3, 2.4, 1.8])
    drawing.solid([hand], ACCENT)
    for knuckle in (-14.6, -20.4):
        drawing.line(polyline(frame.all([(0.4, knuckle), (2.6, knuckle + 0.4)])), EDGE, 0.8)
    drawing.solid([thumb], ACCENT, edge=0.7)
    nail = capsule(frame.at(-7.3, -17.2), 1.15, frame.at(-8.2, -18.9), 1.15)
    drawing.raw(f'<path d="{nail}" fill="{EDGE}" fill-opacity="0.75"/>')


def open_palm(drawing, frame):
    """The palm of the hand: thumb on the right, creases instead of nails."""
    flipped = Flipped(frame)
    hand_above(drawing, flipped, nails=False)
    for crease in ([(6.6, -10.6), (2.4, -11.6), (-2.6, -9.2), (-6.4, -9.6)],
                   [(6.9, -8.4), (2.6, -8.4), (0.6, -4.8), (0.6, -0.6)]):
        drawing.line(smooth(frame.all(crease), closed=False), EDGE, 0.9)


class Flipped:
    """A frame seen from the other side: left and right change places."""

    def __init__(self, frame):
        self._frame = frame
        self.scale = frame.scale

    def at(self, x, y):
        return self._frame.at(-x, y)

    def all(self, pairs):
        return [self.at(x, y) for x, y in pairs]
