"""The right hand, large: from above, from its little-finger side, and turned about the forearm.

Each hand has its own frame with the wrist as origin and the fingers pointing up (y negative);
from above, the thumb of the right hand is on the left.
"""

from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE, RANGE
from pictures.protractor import DASH, Protractor, Reach
from pictures.svg import (
    Drawing,
    Frame,
    arc,
    capsule,
    curl,
    disc,
    polar,
    polygon,
    polyline,
    sector,
    smooth,
)

# Fingers of the back view, from the far one to the near one: joints and radii.
FINGERS_ABOVE = [
    ([(6.1, -11.5), (7.1, -16.8), (7.5, -21.6)], [2.05, 1.85, 1.5]),
    ([(2.6, -13), (3, -20), (3.1, -26.6)], [2.2, 2.0, 1.65]),
    ([(-1.5, -13.4), (-1.5, -21.2), (-1.4, -28.8)], [2.25, 2.05, 1.7]),
    ([(-5.4, -12.6), (-5.8, -19.6), (-5.8, -26.2)], [2.2, 2.0, 1.65]),
]
THUMB_ABOVE = ([(-2.6, -2.6), (-8.8, -4.8), (-14.2, -7.4), (-18.6, -11.4)], [3.8, 3.6, 3.2, 2.5])
KNUCKLES = [(6, -11.6), (2.5, -13), (-1.5, -13.4), (-5.2, -12.6)]
PALM_ABOVE = [
    (-4.4, 1), (-5.6, -3), (-7.2, -7), (-7.4, -11.5), (-6.2, -15), (-2, -16.2), (2.6, -15.6),
    (6.4, -13.8), (8.1, -11), (7.4, -5.5), (5.2, -1.5), (4.4, 1),
]


TURN = (28, 45)  # middle of the ring around a forearm that turns
ABOVE_WRIST, ABOVE = (28, 45), 0.83  # and the hand's scale
BOTH_WAYS = 38  # pixels from the wrist to the arrow that means either side
ABOVE_REACH = Reach(segment=23, sector=42.4, arc=26.6, line=44, marked=False)


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
            near = bx + (ax - bx) * 0.18, by + (ay - by) * 0.18
            r = radii[-1] * 0.62 * frame.scale
            nail = capsule(frame.at(*near), r, frame.at(bx, by), r)
            drawing.raw(f'<path d="{nail}" fill="{EDGE}"/>')
        for x, y in KNUCKLES:
            drawing.line(smooth(frame.all([(x - 1.3, y + 0.5), (x, y - 0.3), (x + 1.3, y + 0.5)]),
                                closed=False), EDGE, 0.8)


def from_above(title, angle, shown=None):
    """The hand bent sideways by `angle`: ulnar positive, radial negative."""
    drawing = Drawing(title.format(abs(angle)))
    forearm_up(drawing, ABOVE_WRIST)
    _bent_sideways(drawing, angle, shown)
    return drawing


def to_either_side(title, angle, twisted=False):
    """The hand bent sideways, with an arrow to the other side too; maybe it turns as well."""
    drawing = Drawing(title.format(abs(angle)))
    tips = [(polar(ABOVE_WRIST, BOTH_WAYS, side * (angle + 8)), side * (94 + angle))
            for side in (-1, 1)]
    path = sector(ABOVE_WRIST, BOTH_WAYS, -angle - 8, angle + 8)
    drawing.raw(f'<path d="{path}" fill="{RANGE}"/>')
    if twisted:
        _turn(drawing, (28, 49.4), (-1, 1), lambda: forearm_up(drawing, ABOVE_WRIST))
    else:
        forearm_up(drawing, ABOVE_WRIST)
    _bent_sideways(drawing, angle)
    drawing.arrow(arc(ABOVE_WRIST, BOTH_WAYS, -angle - 8, angle + 8), *tips)
    return drawing


def _dashed(drawing, path):
    drawing.raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="2.4"/>')
    drawing.raw(f'<path d="{path}" fill="none" stroke="{GUIDE}" stroke-width="1.1" '
                f'stroke-dasharray="{DASH},{DASH}"/>')


def _bent_sideways(drawing, angle, shown=None):
    measure = Protractor(drawing, ABOVE_WRIST, 0, 1, angle, ABOVE_REACH, shown)
    measure.draw_range()
    measure.draw_lines()
    hand_above(drawing, Frame(ABOVE_WRIST, ABOVE, angle), nails=False)
    measure.draw_axis()


# Side view from the thumb's side, fingers to the right, back of the hand up. Index finger and back
# of the hand are one outline; the other fingers come out under it.
BACK_OF_SIDE = [
    (-2.4, -4), (3, -4.4), (9.4, -4.9), (14.6, -4.6), (20.8, -3.9), (27, -3.1), (31.8, -2.1),
    (33.2, -0.6), (31.8, 0.7), (27, 0.5), (21, 0.8), (16.4, 2), (12.6, 3.8), (8.4, 4.6), (3, 4.6),
    (-2.4, 4),
]
FINGERS_SIDE = [
    ([(13, 0.4), (20, 1.2), (26.4, 1.5), (31.2, 1.9)], [2.3, 2, 1.8, 1.5]),
    ([(12, 1.6), (18.6, 3.1), (24, 3.6), (28, 4.2)], [2.1, 1.8, 1.6, 1.4]),
]
THUMB_SIDE = ([(3.4, 3), (8.6, 6.8), (13.4, 8.6), (17.8, 8.6)], [2.9, 2.4, 2.1, 1.7])
SIDE_WRIST = (11, 28.2)


def from_side(title, angle, shown=None):
    """The palm-down hand bent at the wrist by `angle`: flexion positive, extension negative."""
    drawing = Drawing(title.format(abs(angle)))
    wrist = SIDE_WRIST
    frame = Frame(wrist, 0.78, angle)
    x, y = wrist
    reach = Reach(segment=23.2, sector=43, arc=27.4, line=44.4, marked=False)
    measure = Protractor(drawing, wrist, 90, 1, angle, reach, shown)
    measure.draw_range()
    drawing.solid([polygon([(0.6, y - 5.6), (x, y - 4.2), (x, y + 4.2), (0.6, y + 5.6)]),
                   disc(wrist, 4.2)], FIGURE)
    measure.draw_lines()
    _side_hand(drawing, smooth(frame.all(BACK_OF_SIDE)),
               [(frame.all(joints), [r * frame.scale for r in radii])
                for joints, radii in [*FINGERS_SIDE[::-1], THUMB_SIDE]])
    measure.draw_axis()
    return drawing


def _side_hand(drawing, back, parts):
    """A hand seen from its thumb's side: fingers under the back of the hand, the thumb above."""
    drawing.solid([back, *(curl(*part) for part in parts)], ACCENT)
    for part in parts:
        drawing.solid([curl(*part)], ACCENT, edge=0.5)
        if part is parts[-2]:
            drawing.solid([back], ACCENT, edge=0.5)


def turned(title, shows):
    """The hand turned about the forearm, seen by its owner: "edge", "back" or "palm"."""
    drawing = Drawing(title)
    wrist = (28, 33.5)
    frame = Frame(wrist)
    sides = {"edge": (), "back": (-1,), "palm": (1,)}[shows]
    _turn(drawing, TURN, sides, lambda: forearm_up(drawing, wrist))
    if shows == "edge":
        thumb_edge(drawing, frame)
    elif shows == "back":
        hand_above(drawing, frame)
    else:
        open_palm(drawing, frame)
    return drawing


def _turn(drawing, middle, sides, forearm):
    """A ring around the forearm, its far half behind what `forearm` draws.

    An arrow on the near half goes to the left (-1) or to the right (1), which is where the thumb
    went; where both ways are meant, it has two heads. Without a turn the ring has no arrow.
    """
    x, y = middle
    half = [(-14.4, 0), (-12.6, 2.8), (-7.4, 4.6), (0, 5.2), (7.4, 4.6), (12.6, 2.8), (14.4, 0)]
    near = smooth([(x + along, y + down) for along, down in half], closed=False)
    far = smooth([(x + along, y - down) for along, down in half], closed=False)
    drawing.raw(f'<path d="{far}" fill="none" stroke="{GUIDE}" stroke-width="1.3" '
                f'stroke-dasharray="{DASH},{DASH}"/>')
    forearm()
    if not sides:
        _dashed(drawing, near)
        return
    drawing.arrow(near, *[((x + side * 14.2, y - 2), side * 14) for side in sides])


def thumb_edge(drawing, frame):
    """The straight hand on edge: thumb towards the reader, palm to the left."""
    def upright(corners):
        return frame.all([(-y, -x) for x, y in corners])

    _side_hand(drawing, smooth(upright(BACK_OF_SIDE)),
               [(upright(joints), radii) for joints, radii in [*FINGERS_SIDE[::-1], THUMB_SIDE]])
    # The nail of a thumb that points at the reader, and the joints of the index finger beside it.
    nail = [(upright([(x, 8.6)])[0]) for x in (15.8, 17.6)]
    drawing.line(capsule(nail[0], 1, nail[1], 1), EDGE, 0.6)
    for x, across in ((20.4, (-2.6, 0)), (26, (-1.6, 0.4))):
        drawing.line(polyline(upright([(x, y) for y in across])), EDGE, 0.6)


def open_palm(drawing, frame):
    """The palm of the hand: thumb on the right, creases instead of nails."""
    flipped = Flipped(frame)
    hand_above(drawing, flipped, nails=False)
    for crease in ([(7, -10.2), (3.4, -9.2), (1, -5.8), (1, -1)],
                   [(7, -10.2), (2.4, -8.8), (-2, -7), (-5.6, -6.6)],
                   [(3.6, -13.4), (0.4, -11.4), (-3.6, -10.4), (-7, -10.8)]):
        drawing.line(smooth(frame.all(crease), closed=False), EDGE, 1.2)
    for joints, radii in FINGERS_ABOVE:
        for share, across in ((0.5, 0.75), (1.0, 0.7)):
            (ax, ay), (bx, by) = joints[1] if share == 1 else joints[0], joints[1]
            x, y = (ax + bx) / 2, (ay + by) / 2 - (0 if share == 1 else 0.6)
            half = radii[1] * across
            drawing.line(polyline(flipped.all([(x - half, y), (x + half, y)])), EDGE, 0.8)


class Flipped:
    """A frame seen from the other side: left and right change places."""

    def __init__(self, frame):
        self._frame = frame
        self.scale = frame.scale

    def at(self, x, y):
        return self._frame.at(-x, y)

    def all(self, pairs):
        return [self.at(x, y) for x, y in pairs]
