"""The open right hand that the main window has the shape of, seen from its back, fingers up.

Its outline is one closed curve through nodes: points with the direction in which the curve passes
them. Going round clockwise, the inside is always on the right of that direction.
"""

import math

from pictures.svg import Drawing, Frame, number, points, polar

WIDTH, HEIGHT = 306, 501  # logical pixels of the main window

SKIN = "#94a8ca"
SHADE = "#33435f"  # contour, shadows and everything outside, so that no fringe shows at the edge
DUSK = "#566a93"  # where the rounding of the hand ends and the contour begins
NAIL = "#bccae3"

RIM = 36  # width of the widest of the strokes that round the hand off; half of it is inside
LEAN = 0.13  # how far each leans to the upper left, where the light comes from


class Finger:
    """A finger: middle of its root, direction from straight up, length, half widths, bend.

    Half widths are those at the stations below and at the beginning of the round tip; `bend` is
    how far the tip lies to the right of a straight finger.
    """

    # Root, proximal bone, middle joint, middle bone, last joint, as shares of the visible length.
    STATIONS = (0, 0.2, 0.40, 0.57, 0.71)
    MIDDLE_JOINT, LAST_JOINT = 0.40, 0.71

    def __init__(self, root, turn, length, halves, bend=0.0):
        self.root, self.length, self.halves, self.bend = root, length, halves, bend
        self.frame = Frame(root, 1, turn)

    def at(self, side, distance):
        """The point `side` pixels to the right of the axis, `distance` from the root."""
        return self.frame.at(side + self.bend * (distance / self.length) ** 2, -distance)

    def along(self, distance):
        """The direction of the finger there."""
        lean = 2 * self.bend * distance / self.length**2
        return self.frame.turn + math.degrees(math.atan(lean))

    def local(self, distance):
        """A frame on the axis there, fingertip up."""
        return Frame(self.at(0, distance), 1, self.along(distance))

    def nodes(self):
        """Up the left side, round the tip, down the right side."""
        tip = self.halves[-1]
        sides = [(share * self.length, half) for share, half in zip(self.STATIONS, self.halves)]
        sides.append((self.length - 1.14 * tip, tip))
        # How the half width changes leans the sides away from the axis.
        leans = []
        for i, (distance, _) in enumerate(sides):
            (a, wide), (b, narrow) = sides[max(i - 1, 0)], sides[min(i + 1, len(sides) - 1)]
            leans.append(math.degrees(math.atan((wide - narrow) / (b - a))))
        leans[-1] += 3
        left = [(self.at(-half, d), self.along(d) + lean)
                for (d, half), lean in zip(sides, leans)]
        right = [(self.at(half, d), self.along(d) + 180 - lean)
                 for (d, half), lean in zip(sides, leans)]
        up = self.along(self.length)
        shoulder = self.length - 0.27 * tip
        cap = [
            (self.at(-0.64 * tip, shoulder), up + 46),
            (self.at(0, self.length), up + 90),
            (self.at(0.64 * tip, shoulder), up + 134),
        ]
        return left + cap + right[::-1]


INDEX = Finger((94.5, 183), -7.5, 159, (25.2, 24, 24.2, 22.2, 21.6, 19.4), 3)
MIDDLE = Finger((153, 178), -1, 176, (25.8, 24.6, 25, 22.8, 22.2, 20), 0.5)
RING = Finger((211.5, 181), 5, 162, (25.4, 24, 24.3, 22.2, 21.4, 19), -2)
LITTLE = Finger((265.5, 193), 9.5, 128, (23.2, 21.2, 21, 19.2, 18.4, 16.6), -4)
FINGERS = [INDEX, MIDDLE, RING, LITTLE]
WEB = 10

# From the little finger down its side of the hand to the wrist, and out at the lower edge.
OUTER_SIDE = [
    ((293.5, 238), 173), ((301.5, 300), 176), ((302.5, 358), 182), ((291, 438), 195),
    ((275, 480), 202), ((268, 503), 192),
]
# From the wrist round ball and thumb to the web, and up to the index finger.
THUMB_SIDE = [
    ((92, 503), 356), ((86.5, 476), 337), ((63, 444), 314), ((33, 410), 322), ((15.5, 376), 341),
    ((8.2, 338), 353), ((5, 308), 354), ((1.4, 281), 356), ((5, 256), 26), ((20.5, 245.5), 84),
    ((37.5, 254), 136), ((47.5, 280), 168), ((49.8, 308), 178), ((50.6, 331), 175),
    ((57.2, 346), 94), ((63.2, 336), 14), ((67.6, 298), 4), ((66.4, 246), 354),
]
THUMB_NAIL = Frame((21.5, 251.5), 1, -10)


def _handle(turn):
    """Share of the chord that makes a curve of this turn nearly circular."""
    half = math.radians(min(abs(turn), 170)) / 2
    return 1 / 3 if half < 1e-3 else 2 / 3 * math.tan(half / 2) / math.sin(half)


def curve(nodes, closed=True):
    """A path through nodes (point, direction from straight up, clockwise)."""
    out = "M" + points(nodes[0][0])
    pairs = list(zip(nodes, nodes[1:]))
    if closed:
        pairs.append((nodes[-1], nodes[0]))
    for (p, leave), (q, arrive) in pairs:
        turn = (arrive - leave + 180) % 360 - 180
        reach = math.dist(p, q) * _handle(turn)
        out += "C" + points(polar(p, reach, leave), polar(q, -reach, arrive), q)
    return out + ("Z" if closed else "")


def hand_nodes(fingers, web, outer_side, thumb_side):
    """All nodes of a hand; `web` is how far the skin between two fingers lies below their roots."""
    nodes = []
    for left, right in zip(fingers, fingers[1:]):
        nodes += left.nodes()
        a, b = left.nodes()[-1][0], right.nodes()[0][0]
        slope = math.degrees(math.atan2(right.root[1] - left.root[1], right.root[0] - left.root[0]))
        nodes.append((((a[0] + b[0]) / 2, (a[1] + b[1]) / 2 + web), 90 + slope))
    return nodes + fingers[-1].nodes() + outer_side + thumb_side


def _mix(a, b, share):
    parts = [(int(a[i:i + 2], 16), int(b[i:i + 2], 16)) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(p + (q - p) * share):02x}" for p, q in parts)


def _rim(drawing):
    """The roundness of the hand: strokes on strokes, each narrower and a shade darker."""
    drawing.raw('<g fill="none" xmlns:xlink="http://www.w3.org/1999/xlink">')
    for i in range(RIM):
        width = RIM - i
        shift = number(-LEAN * width)
        colour = _mix(SKIN, DUSK, ((i + 1) / RIM) ** 1.7)
        drawing.raw(f'<use xlink:href="#outline" transform="translate({shift} {shift})" '
                    f'stroke="{colour}" stroke-width="{width}"/>')
    drawing.raw("</g>")


def _nail(drawing, frame, half, length):
    """A nail; the origin of the frame is the middle of its free edge."""
    nodes = [
        (frame.at(-half, 0.66 * length), frame.turn + 1),
        (frame.at(-0.93 * half, 0.28 * length), frame.turn + 8),
        (frame.at(0, 0), frame.turn + 90),
        (frame.at(0.93 * half, 0.28 * length), frame.turn + 172),
        (frame.at(half, 0.66 * length), frame.turn + 179),
        (frame.at(0, length), frame.turn + 270),
    ]
    path = curve(nodes)
    drawing.raw(f'<path d="{path}" fill="{NAIL}" stroke="{_mix(SKIN, DUSK, 0.75)}" '
                f'stroke-width="1.2"/>')


def _crease(drawing, finger, distance, half, sag, colour):
    """A fold of skin across a joint."""
    up = finger.along(distance)
    ends = [(finger.at(-half, distance), up + 90 - 26 * sag), (finger.at(0, distance + 1.6 * sag),
            up + 90), (finger.at(half, distance), up + 90 + 26 * sag)]
    drawing.raw(f'<path d="{curve(ends, closed=False)}" fill="none" stroke="{colour}" '
                f'stroke-width="1.3" stroke-linecap="round"/>')


def open_hand(title):
    drawing = Drawing(title, WIDTH, HEIGHT)
    path = curve(hand_nodes(FINGERS, WEB, OUTER_SIDE, THUMB_SIDE))
    drawing.raw(f'<rect width="{WIDTH}" height="{HEIGHT}" fill="{SHADE}"/>')
    drawing.raw(f'<path d="{path}" fill="{SKIN}"/>')
    drawing.raw(f'<defs><path id="outline" d="{path}"/></defs>')
    _rim(drawing)
    fold = _mix(SKIN, DUSK, 0.62)
    for finger in FINGERS:
        joint, tip = finger.MIDDLE_JOINT * finger.length, finger.halves[-1]
        for offset, half, sag in ((4.2, 9, 1), (0, 12, 0.35), (-4.2, 9, -0.7)):
            _crease(drawing, finger, joint + offset, half * finger.halves[2] / 25, sag, fold)
        _crease(drawing, finger, finger.LAST_JOINT * finger.length, 0.42 * tip, 0.5, fold)
        _nail(drawing, finger.local(finger.length - 0.3 * tip), 0.58 * tip, 1.34 * tip)
    _nail(drawing, THUMB_NAIL, 11.6, 27)
    drawing.raw(f'<path d="{path}" fill="none" stroke="{SHADE}" stroke-width="3.2"/>')
    # What fell outside is covered, so that all of it is one plain colour.
    drawing.raw(f'<path d="M0 0H{WIDTH}V{HEIGHT}H0Z{path}" fill-rule="evenodd" fill="{SHADE}"/>')
    return drawing
