"""The outline of an open hand: one closed curve through nodes.

A node is a point with the direction in which the curve passes it, in degrees from straight up.
Going round clockwise, the inside is always on the right of that direction.
"""

import math

from pictures.svg import Frame, points, polar


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


def _handle(turn):
    """Share of the chord that makes a curve of this turn nearly circular."""
    half = math.radians(min(abs(turn), 170)) / 2
    return 1 / 3 if half < 1e-3 else 2 / 3 * math.tan(half / 2) / math.sin(half)


def _pieces(nodes):
    """Start, both handles and end of the curve from each node to the next."""
    for (p, leave), (q, arrive) in zip(nodes, nodes[1:] + nodes[:1]):
        turn = (arrive - leave + 180) % 360 - 180
        reach = math.dist(p, q) * _handle(turn)
        yield p, polar(p, reach, leave), polar(q, -reach, arrive), q


def curve(nodes):
    """The path through nodes."""
    return ("M" + points(nodes[0][0])
            + "".join("C" + points(*rest) for _, *rest in _pieces(nodes)) + "Z")


def corners(nodes, steps=10):
    """The curve as a polygon, so many corners a node."""
    out = []
    for piece in _pieces(nodes):
        for t in (i / steps for i in range(steps)):
            weights = (1 - t)**3, 3 * (1 - t)**2 * t, 3 * (1 - t) * t**2, t**3
            out.append(tuple(sum(w * at for w, at in zip(weights, place))
                             for place in zip(*piece)))
    return out


def hand_nodes(fingers, web, outer_side, thumb_side):
    """All nodes of a hand; `web` is how far the skin between two fingers lies below their roots."""
    nodes = []
    for left, right in zip(fingers, fingers[1:]):
        nodes += left.nodes()
        a, b = left.nodes()[-1][0], right.nodes()[0][0]
        slope = math.degrees(math.atan2(right.root[1] - left.root[1], right.root[0] - left.root[0]))
        nodes.append((((a[0] + b[0]) / 2, (a[1] + b[1]) / 2 + web), 90 + slope))
    return nodes + fingers[-1].nodes() + outer_side + thumb_side
