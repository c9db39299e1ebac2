"""What lies on the open hand's light and shade: folds of skin over the joints, nails, sleeve."""

import math

from pictures.hand_outline import curve
from pictures.svg import Frame, number, points

INK = "#3a4787"
GLOSS = "#cfd8f7"
NAIL = ("#e9eefc", "#c3cef1", "#98a8dc")  # from the side of the light to the other
LINEN = ("#d3dbf6", "#eef2fd", "#b3bfe8")
SLEEVE = ("#1212a8", "#1c1cd2", "#07075c")  # the blue of the title strip
SEAM = "#6a6af0"

# Folds over the middle joint of each finger, from index to little finger: how far above the joint,
# left and right end, how far the middle bends up, thickness. No finger folds like another.
MIDDLE_FOLDS = (
    ((7.5, -9, 7, 3, 1.1), (3.2, -12.5, 10.5, 1.6, 1.5), (-1.2, -11, 13, 0.2, 1.7),
     (-5.5, -8, 9, -1.8, 1.2)),
    ((8.5, -7, 9.5, 3.2, 1.2), (4, -12, 12.5, 2, 1.6), (-0.6, -13.5, 11, 0, 1.5),
     (-4.6, -6, 11.5, -1.4, 1.3), (-8.2, -7, 6, -2.4, 0.9)),
    ((6.6, -9, 8, 2.4, 1.1), (2.4, -10.5, 13, 1.3, 1.7), (-2.2, -12.5, 9, -0.5, 1.4),
     (-6.4, -5, 8, -2, 1)),
    ((4.6, -8, 8.4, 2, 1.1), (0.6, -10, 8.5, 0.6, 1.5), (-3.4, -5.5, 9.4, -1.2, 1.1)),
)
LAST_FOLDS = (
    ((1.6, -9, 8, 1.2, 1.1), (-2.4, -6, 9, 0.3, 1)),
    ((2.4, -8.5, 10, 1.4, 1.2), (-1.8, -9.5, 6, 0.2, 1)),
    ((1.2, -6, 9.4, 1.1, 1.2), (-3, -7.5, 5, 0, 0.9)),
    ((0.8, -7, 6.4, 0.9, 1.1),),
)
# Left end, middle and right end of the thumb's, and thickness.
THUMB_FOLDS = (((5, 297), (13, 300.5), (22, 298.5), 1.2), ((4, 303), (15, 306.5), (28, 303), 1.6),
               ((4.8, 309.5), (14, 312), (24, 309.5), 1.2))

# Nails from index to little finger: to the right of the axis, turn, half width and length as shares
# of the fingertip's half width, and as such a share how far below the tip.
NAILS = ((-1.2, -2, 0.62, 1.48, 0.30), (-0.3, 0, 0.63, 1.55, 0.27), (0.5, 1, 0.62, 1.50, 0.29),
         (1.3, 3, 0.60, 1.46, 0.30))
FLESH = 1.2  # pixels by which a fingertip is wider at its nail than where its end begins

WRIST = 481  # where the cuff begins


def _spot(path, colour, opacity):
    return f'<path d="{path}" fill="{colour}" fill-opacity="{number(opacity)}"/>'


def _lens(start, middle, end, thickness):
    """A stroke that tapers to both ends."""
    length = math.dist(start, end)
    across = (start[1] - end[1]) / length, (end[0] - start[0]) / length
    one, other = (tuple(2 * m - (a + b) / 2 + side * thickness * n
                        for a, m, b, n in zip(start, middle, end, across)) for side in (1, -1))
    return f"M{points(start)}Q{points(one, end)}Q{points(other, start)}Z"


def _fold(start, middle, end, thickness, strength):
    """A dark line with the skin below it catching the light."""
    below = [(x + 0.5, y + 1.3) for x, y in (start, middle, end)]
    return [_spot(_lens(*below, thickness), GLOSS, 0.55 * strength),
            _spot(_lens(start, middle, end, thickness), INK, strength)]


def folds(fingers):
    out = []
    for i, finger in enumerate(fingers):
        for table, joint, strength in ((MIDDLE_FOLDS, finger.MIDDLE_JOINT, 0.75),
                                       (LAST_FOLDS, finger.LAST_JOINT, 0.55)):
            for above, left, right, bend, thickness in table[i]:
                distance = joint * finger.length + above
                ends = [finger.at(side, distance - 0.3 * abs(bend)) for side in (left, right)]
                middle = finger.at((left + right) / 2, distance + bend)
                out += _fold(ends[0], middle, ends[1], thickness, strength)
    for start, middle, end, thickness in THUMB_FOLDS:
        out += _fold(start, middle, end, thickness, 0.7)
    return out


def gradient(name, colours, start, end):
    """The definition of a gradient through three colours, the second one nearer to the start."""
    (x1, y1), (x2, y2) = start, end
    stops = "".join(f'<stop offset="{offset}" stop-color="{colour}"/>'
                    for offset, colour in zip((0, 0.4, 1), colours))
    return (f'<defs><linearGradient id="{name}" gradientUnits="userSpaceOnUse" '
            f'x1="{number(x1)}" y1="{number(y1)}" '
            f'x2="{number(x2)}" y2="{number(y2)}">{stops}</linearGradient></defs>')


def _plate(frame, half, length, left):
    """Outline of a nail; the origin of the frame is the middle of its free edge."""
    at, turn = frame.at, frame.turn
    return curve([
        (at(-half * left, 0.62 * length), turn + 2),
        (at(-0.9 * half * left, 0.22 * length), turn + 10),
        (at(0, 0), turn + 90), (at(0.9 * half, 0.22 * length), turn + 170),
        (at(half, 0.62 * length), turn + 178), (at(0.62 * half, 0.93 * length), turn + 236),
        (at(0, length), turn + 270), (at(-0.62 * half * left, 0.93 * length), turn + 304),
    ])


def _nail(name, frame, half, length, left=1.0):
    """A nail whose left half is `left` times as wide as its right one."""
    at, turn = frame.at, frame.turn
    bed = Frame(at(0.35, 0.3), 1, turn)
    moon = curve([(at(-0.5 * half * left, 0.86 * length), turn + 40),
                  (at(0, 0.72 * length), turn + 90),
                  (at(0.5 * half, 0.86 * length), turn + 140), (at(0, 0.97 * length), turn + 270)])
    rim = curve([(at(-0.86 * half * left, 0.2 * length), turn + 12), (at(0, 0), turn + 90),
                 (at(0.86 * half, 0.2 * length), turn + 168), (at(0, 0.12 * length), turn + 270)])
    glint = _lens(at(-0.55 * half * left, 0.62 * length), at(-0.62 * half * left, 0.4 * length),
                  at(-0.5 * half * left, 0.2 * length), 1.6)
    return [
        gradient(name, NAIL, at(-half, 0), at(half, 0.75 * length)),
        _spot(_plate(bed, half + 1.1, length + 1.2, left), INK, 0.55),
        f'<path d="{_plate(frame, half, length, left)}" fill="url(#{name})"/>',
        _spot(moon, "#f4f7ff", 0.4), _spot(rim, "#f7f9ff", 0.6), _spot(glint, "#ffffff", 0.65),
    ]


def nails(fingers, thumb):
    """The nails of the fingers, and that of the thumb, which is seen from its side."""
    out = []
    for i, (finger, (side, turn, half, length, below)) in enumerate(zip(fingers, NAILS)):
        tip = finger.halves[-1] + FLESH
        distance = finger.length - below * tip
        frame = Frame(finger.at(side, distance), 1, finger.along(distance) + turn)
        out += _nail(f"nail{i}", frame, half * tip, length * tip)
    return out + _nail("thumb_nail", thumb, 5.4, 25, 1.25)


def _across(y):
    """A line around the arm at that height, seen from a little above."""
    return f"M74 {number(y)}C110 {number(y - 3.5)} 246 {number(y - 3.5)} 282 {number(y)}"


def _shadow(y, width, layers, opacity):
    """A soft shadow around the arm."""
    return [f'<path d="{_across(y)}" fill="none" stroke="{INK}" stroke-opacity="{opacity}" '
            f'stroke-width="{number(width * (1 - i / layers))}"/>' for i in range(layers)]


def sleeve():
    """A cuff and the sleeve over it, where the window ends."""
    ends = (78, 0), (278, 0)
    cuff, hem = WRIST + 4, WRIST + 12
    return [
        gradient("cuff", LINEN, *ends), gradient("sleeve", SLEEVE, *ends),
        *_shadow(cuff - 1, 17, 8, 0.09),
        f'<path d="{_across(cuff)}V{hem + 2}H74Z" fill="url(#cuff)"/>',
        *_shadow(hem, 6, 4, 0.14),
        f'<path d="{_across(hem)}V502H74Z" fill="url(#sleeve)"/>',
        f'<path d="{_across(hem + 0.6)}" fill="none" stroke="{SEAM}" stroke-width="1"/>',
    ]
