"""The right hand, large: from above, from its little-finger side, and turned about the forearm.

Each hand has its own frame with the wrist as origin and the fingers pointing up (y negative);
from above, the thumb of the right hand is on the left.
"""

import math

from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE, RANGE
from pictures.limb_protractor import LimbProtractor
from pictures.protractor import DASH, Reach
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
    ([(6.1, -11.5), (7.1, -16.8), (7.5, -21.6)], [2.05, 1.85, 1.5]),
    ([(2.6, -13), (3, -20), (3.1, -26.6)], [2.2, 2.0, 1.65]),
    ([(-1.5, -13.4), (-1.5, -21.2), (-1.4, -28.8)], [2.25, 2.05, 1.7]),
    ([(-5.4, -12.6), (-5.8, -19.6), (-5.8, -26.2)], [2.2, 2.0, 1.65]),
]
THUMB_ABOVE = ([(-2.6, -2.6), (-8.8, -4.8), (-14.2, -7.4), (-18.6, -11.4)], [3.8, 3.6, 3.2, 2.5])
NAIL = 0.62  # of a finger's end
# Where they tell one side of the hand from the other: off the others, with large nails.
SPREAD = [
    ([(-2.6, -2.6), (-8.8, -5), (-14.4, -8), (-19, -12)], [3.8, 3.6, 3.2, 2.6]),
    ([(6.1, -11.5), (7.3, -16.8), (8, -21.6)], [2.05, 1.85, 1.5]),
    *FINGERS_ABOVE[1:],
]
LARGE_NAIL = 0.68
KNUCKLES = [(6, -11.6), (2.5, -13), (-1.5, -13.4), (-5.2, -12.6)]
PALM_ABOVE = [
    (-4.4, 1), (-5.6, -3), (-7.2, -7), (-7.4, -11.5), (-6.2, -15), (-2, -16.2), (2.6, -15.6),
    (6.4, -13.8), (8.1, -11), (7.4, -5.5), (5.2, -1.5), (4.4, 1),
]


TURN = (28, 46)  # middle of the ring around a forearm that turns
ABOVE_WRIST, ABOVE = (29, 47.8), 0.95  # and the hand's scale
ABOVE_REACH = Reach(segment=26.6, sector=45.4, arc=31, line=46.4, marked=False)


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


def hand_above(drawing, frame, digits=(THUMB_ABOVE, *FINGERS_ABOVE), nail=NAIL):
    """The back of a flat hand; without nails and knuckles where `nail` is 0."""
    parts = [(frame.all(joints), [r * frame.scale for r in radii]) for joints, radii in digits]
    palm = smooth(frame.all(PALM_ABOVE))
    # One border around the whole hand first, so that the palm has no seam of its own.
    drawing.solid([palm, *(curl(*part) for part in parts)], ACCENT)
    for part in parts:
        drawing.solid([curl(*part)], ACCENT, edge=0.55)
    drawing.solid([palm], ACCENT, edge=0)
    if nail:
        for joints, radii in digits:
            (ax, ay), (bx, by) = joints[-2:]
            near = bx + (ax - bx) * 0.18, by + (ay - by) * 0.18
            r = radii[-1] * nail * frame.scale
            path = capsule(frame.at(*near), r, frame.at(bx, by), r)
            drawing.raw(f'<path d="{path}" fill="{EDGE}"/>')
        for x, y in KNUCKLES:
            drawing.line(smooth(frame.all([(x - 1.3, y + 0.5), (x, y - 0.3), (x + 1.3, y + 0.5)]),
                                closed=False), EDGE, 0.8)


def from_above(title, angle, shown=None):
    """The hand bent sideways by `angle`: ulnar positive, radial negative."""
    drawing = Drawing(title.format(abs(angle)))
    forearm_up(drawing, ABOVE_WRIST)
    measure = LimbProtractor(drawing, ABOVE_WRIST, 0, 1, angle, ABOVE_REACH, shown)
    measure.draw_range()
    measure.draw_lines()
    hand_above(drawing, Frame(ABOVE_WRIST, ABOVE, angle), SPREAD, LARGE_NAIL)
    measure.draw_axis()
    return drawing


def _dashed(drawing, path):
    drawing.raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="2.4"/>')
    drawing.raw(f'<path d="{path}" fill="none" stroke="{GUIDE}" stroke-width="1.1" '
                f'stroke-dasharray="{DASH},{DASH}"/>')


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
SIDE_WRIST = (9, 28.2)
STRONGLY = 20  # degrees from which on a bent hand needs more room on its side
MORE_ROOM = 10


def from_side(title, angle, shown=None):
    """The palm-down hand bent at the wrist by `angle`: flexion positive, extension negative."""
    drawing = Drawing(title.format(abs(angle)))
    x, y = SIDE_WRIST
    # The arc lies within the hand where it would fill the sector beyond a strongly bent one.
    arc_at, half = 27.4, 0
    if abs(angle) > STRONGLY:
        y -= math.copysign(MORE_ROOM, angle)
        arc_at, half = 17, 3.2
    wrist = x, y
    frame = Frame(wrist, 0.78, angle)
    reach = Reach(segment=23.2, sector=45.4, arc=arc_at, line=46.4, marked=False, least=0.72,
                  half=half)
    measure = LimbProtractor(drawing, wrist, 90, 1, angle, reach, shown)
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
    wrist = (28, 36)
    frame = Frame(wrist, 1 if shows == "edge" else 1.1)
    side = {"edge": 0, "back": -1, "palm": 1}[shows]
    _turn(drawing, TURN, side, lambda: forearm_up(drawing, wrist, 5))
    if shows == "edge":
        thumb_edge(drawing, frame)
    elif shows == "back":
        hand_above(drawing, frame, SPREAD, LARGE_NAIL)
    else:
        open_palm(drawing, frame)
    return drawing


# A ring around the forearm, from its middle to its end: half of the half that is near.
RING = [(0, 5.6), (6, 5.1), (11.6, 3.6), (15.2, 1.2), (16, 0)]
TURN_HEAD = [(0, -4), (3.7, 2.4), (-3.7, 2.4)]  # of the arrow
FAINT_HEAD = [(0, -3.4), (3, 2), (-3, 2)]  # of a turn that could be made


def _ring_part(middle, side, near):
    x, y = middle
    return [(x + side * along, y + near * down) for along, down in RING]


def _turn(drawing, middle, side, forearm):
    """A ring around the forearm, its far half behind what `forearm` draws.

    It starts at the dot in front, where the thumb is before a turn; an arrow goes to the side to
    which the thumb went: left (-1) or right (1). Without a turn the dot lies between faint heads.
    """
    ring = {(way, near): _ring_part(middle, way, near) for way in (-1, 1) for near in (-1, 1)}
    _dashed(drawing, smooth(ring[-1, -1][::-1] + ring[1, -1][1:], closed=False))
    forearm()
    if side:
        _dashed(drawing, smooth(ring[-side, 1], closed=False))
        x, y = ring[side, 1][-1]
        drawing.arrow(smooth(ring[side, 1], closed=False), ((x, y - 2.4), side * 6),
                      head=TURN_HEAD, width=2.2)
    else:
        _dashed(drawing, smooth(ring[-1, 1][::-1] + ring[1, 1][1:], closed=False))
        for way in (-1, 1):
            x, y = ring[way, 1][-1]
            head = polygon(Frame((x, y - 1.6), 1, way * 6).all(FAINT_HEAD))
            drawing.solid([head], FIGURE, edge=0.5)
    start = ring[1, 1][0]
    drawing.raw(f'<path d="{disc(start, 3.3)}" fill="{EDGE}"/>')
    drawing.raw(f'<path d="{disc(start, 2.5)}" fill="{ACCENT}"/>')


def thumb_edge(drawing, frame):
    """The straight hand on edge: thumb towards the reader, palm to the left."""
    def upright(corners):
        return frame.all([(-y, -x) for x, y in corners])

    _side_hand(drawing, smooth(upright(BACK_OF_SIDE)),
               [(upright(joints), [r * frame.scale for r in radii])
                for joints, radii in [*FINGERS_SIDE[::-1], THUMB_SIDE]])
    # The nail of a thumb that points at the reader, and the joints of the index finger beside it.
    nail = [(upright([(x, 8.6)])[0]) for x in (15.8, 17.6)]
    drawing.raw(f'<path d="{capsule(nail[0], 1.3, nail[1], 1.2)}" fill="{EDGE}"/>')
    for x, across in ((20.4, (-2.6, 0)), (26, (-1.6, 0.4))):
        drawing.line(polyline(upright([(x, y) for y in across])), EDGE, 0.6)


# Creases of the palm with the thumb on the right: around the ball of the thumb, and across.
PALM_CREASES = [
    [(7.6, -9.6), (3.4, -9), (0.8, -5.8), (0.6, -0.6)],
    [(4.4, -12.6), (0.6, -11.2), (-3.4, -10.2), (-7, -10.4)],
]
PALM_RIM = 0.95  # of the dark line around the light inner side of the hand


def open_palm(drawing, frame):
    """The palm of the hand: thumb on the right, light, with creases instead of nails."""
    flipped = Flipped(frame)
    parts = [(flipped.all(joints), [r * frame.scale for r in radii])
             for joints, radii in SPREAD]
    palm = smooth(flipped.all(PALM_ABOVE))
    drawing.solid([palm, *(curl(*part) for part in parts)], ACCENT)
    light = [curl(joints, [r - PALM_RIM for r in radii]) for joints, radii in parts]
    inner = smooth(flipped.all([(x * 0.88, y * 0.94 - 0.4) for x, y in PALM_ABOVE]))
    for path in [*light, inner]:
        drawing.raw(f'<path d="{path}" fill="{RANGE}"/>')
    for crease in PALM_CREASES:
        drawing.line(smooth(frame.all(crease), closed=False), ACCENT, 1.5)
    for joints, radii in SPREAD[1:]:
        for share, across in ((0.5, 0.6), (1.0, 0.55)):
            (ax, ay), (bx, by) = joints[1] if share == 1 else joints[0], joints[1]
            x, y = (ax + bx) / 2, (ay + by) / 2 - (0 if share == 1 else 0.6)
            half = radii[1] * across
            drawing.line(polyline(flipped.all([(x - half, y), (x + half, y)])), ACCENT, 0.9)


class Flipped:
    """A frame seen from the other side: left and right change places."""

    def __init__(self, frame):
        self._frame = frame
        self.scale = frame.scale

    def at(self, x, y):
        return self._frame.at(-x, y)

    def all(self, pairs):
        return [self.at(x, y) for x, y in pairs]
