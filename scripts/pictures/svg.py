"""Shapes and the small part of SVG that the pictures are written in.

Coordinates are picture pixels, x to the right and y down. Only features of SVG Tiny are used,
since the desktop program renders no more than that: no elliptical arcs in paths, no clipping.
"""

import math

from pictures.inks import ACCENT, EDGE

EDGE_WIDTH = 0.9
ARROW_HEAD = [(0, -3.2), (3, 2), (-3, 2)]

PIXELS = 56  # width and height of a posture picture


def number(value):
    """A coordinate with at most two decimals, the same on every machine."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def points(*pairs):
    return " ".join(f"{number(x)} {number(y)}" for x, y in pairs)


def polar(centre, radius, degrees):
    """A point at `degrees` from straight up, clockwise."""
    angle = math.radians(degrees)
    return centre[0] + radius * math.sin(angle), centre[1] - radius * math.cos(angle)


class Frame:
    """A place to draw in: own origin, scale and turn (degrees, clockwise)."""

    def __init__(self, origin, scale=1.0, turn=0.0):
        self.origin = origin
        self.scale = scale
        self.turn = turn
        self._cos = math.cos(math.radians(turn))
        self._sin = math.sin(math.radians(turn))

    def at(self, x, y):
        x, y = x * self.scale, y * self.scale
        return (
            self.origin[0] + x * self._cos - y * self._sin,
            self.origin[1] + x * self._sin + y * self._cos,
        )

    def all(self, pairs):
        return [self.at(x, y) for x, y in pairs]


def _sweep(centre, radius, start, end):
    """Cubic curves along a circle, from `start` to `end` degrees; the pen stands at the start."""
    steps = max(1, math.ceil(abs(end - start) / 90 - 1e-9))
    step = (end - start) / steps
    reach = 4 / 3 * math.tan(math.radians(step) / 4) * radius
    out = []
    for i in range(steps):
        a, b = start + i * step, start + (i + 1) * step
        p, q = polar(centre, radius, a), polar(centre, radius, b)
        ra, rb = math.radians(a), math.radians(b)
        first = p[0] + reach * math.cos(ra), p[1] + reach * math.sin(ra)
        second = q[0] - reach * math.cos(rb), q[1] - reach * math.sin(rb)
        out.append("C" + points(first, second, q))
    return "".join(out)


def arc(centre, radius, start, end):
    """Path of an open arc; degrees from straight up, clockwise."""
    return "M" + points(polar(centre, radius, start)) + _sweep(centre, radius, start, end)


def disc(centre, radius):
    return arc(centre, radius, 0, 360) + "Z"


def capsule(a, radius_a, b, radius_b):
    """Outline around two circles: a limb that narrows from joint to joint."""
    distance = math.hypot(b[0] - a[0], b[1] - a[1])
    if distance <= abs(radius_a - radius_b):
        return disc(a, radius_a) if radius_a > radius_b else disc(b, radius_b)
    along = math.degrees(math.atan2(b[0] - a[0], a[1] - b[1]))
    lean = math.degrees(math.acos((radius_a - radius_b) / distance))
    start = polar(a, radius_a, along + lean)
    return (
        "M" + points(start)
        + _sweep(a, radius_a, along + lean, along + 360 - lean)
        + "L" + points(polar(b, radius_b, along - lean))
        + _sweep(b, radius_b, along - lean, along + lean)
        + "Z"
    )


def limb(joints, radii):
    """Capsules along a chain of joints."""
    return [
        capsule(joints[i], radii[i], joints[i + 1], radii[i + 1]) for i in range(len(joints) - 1)
    ]


def curl(joints, radii):
    """A bent finger: one outline along a soft line through the joints, with round ends."""
    last = len(joints) - 1
    spine, widths = [], []
    for i in range(last):
        p0, p1, p2, p3 = (joints[min(max(i + k, 0), last)] for k in (-1, 0, 1, 2))
        for step in range(2 if i < last - 1 else 3):
            t = step / 2
            spine.append(tuple(_between(p0[k], p1[k], p2[k], p3[k], t) for k in (0, 1)))
            widths.append(radii[i] + (radii[i + 1] - radii[i]) * t)
    left, right, directions = [], [], []
    for i, point in enumerate(spine):
        before, after = spine[max(i - 1, 0)], spine[min(i + 1, len(spine) - 1)]
        along = math.degrees(math.atan2(after[0] - before[0], before[1] - after[1]))
        directions.append(along)
        left.append(polar(point, widths[i], along - 90))
        right.append(polar(point, widths[i], along + 90))
    tip, root = directions[-1], directions[0]
    return (
        smooth(left, closed=False)
        + _sweep(spine[-1], widths[-1], tip - 90, tip + 90)
        + smooth(right[::-1], closed=False).replace("M", "L", 1)
        + _sweep(spine[0], widths[0], root + 90, root + 270)
        + "Z"
    )


def _between(p0, p1, p2, p3, t):
    """A point of the soft curve from p1 to p2."""
    return 0.5 * (2 * p1 + (p2 - p0) * t + (2 * p0 - 5 * p1 + 4 * p2 - p3) * t**2
                  + (3 * p1 - p0 - 3 * p2 + p3) * t**3)


def polygon(corners):
    return "M" + "L".join(points(corner) for corner in corners) + "Z"


def polyline(corners):
    return "M" + "L".join(points(corner) for corner in corners)


def smooth(corners, closed=True, tension=6.0):
    """A soft curve through all corners."""
    n = len(corners)
    out = ["M" + points(corners[0])]
    for i in range(n if closed else n - 1):
        if closed:
            p0, p1, p2, p3 = (corners[(i + k) % n] for k in (-1, 0, 1, 2))
        else:
            p0, p1, p2, p3 = (corners[min(max(i + k, 0), n - 1)] for k in (-1, 0, 1, 2))
        first = p1[0] + (p2[0] - p0[0]) / tension, p1[1] + (p2[1] - p0[1]) / tension
        second = p2[0] - (p3[0] - p1[0]) / tension, p2[1] - (p3[1] - p1[1]) / tension
        out.append("C" + points(first, second, p2))
    return "".join(out) + ("Z" if closed else "")


class Drawing:
    """Collects shapes from back to front and writes them as one SVG document."""

    def __init__(self, title, width=PIXELS, height=PIXELS, mirrored=False):
        self.title = title
        self.width = width
        self.height = height
        self.mirrored = mirrored
        self._body = []

    def raw(self, element):
        self._body.append(element)

    def solid(self, paths, colour, edge=EDGE_WIDTH):
        """One silhouette of several paths, with a thin border around the whole."""
        data = "".join(f'<path d="{path}"/>' for path in paths)
        if edge:
            self.raw(
                f'<g fill="none" stroke="{EDGE}" stroke-width="{number(2 * edge)}" '
                f'stroke-linejoin="round">{data}</g>'
            )
        self.raw(f'<g fill="{colour}">{data}</g>')

    def line(self, path, colour, width, edge=0.0):
        """A line; with an edge it stays visible on limbs and coloured buttons."""
        strokes = [(colour, width)]
        if edge:
            strokes.insert(0, (EDGE, width + 2 * edge))
        for stroke, thickness in strokes:
            self.raw(
                f'<path d="{path}" fill="none" stroke="{stroke}" '
                f'stroke-width="{number(thickness)}" stroke-linecap="round" '
                f'stroke-linejoin="round"/>'
            )

    def arrow(self, path, *tips, head=ARROW_HEAD, width=1.7):
        """A line with a head at each (tip, degrees from straight up that it points to)."""
        shapes = "".join(polygon(Frame(tip, 1, degrees).all(head)) for tip, degrees in tips)
        self.raw(f'<path d="{shapes}" fill="{EDGE}" stroke="{EDGE}" stroke-width="1.4" '
                 f'stroke-linejoin="round"/>')
        self.line(path, ACCENT, width, edge=0.7)
        self.raw(f'<path d="{shapes}" fill="{ACCENT}"/>')

    def contents(self):
        """The elements of the document, in order."""
        if self.mirrored:
            return [f'<g transform="translate({self.width} 0) scale(-1 1)">', *self._body, "</g>"]
        return self._body

    def text(self):
        """The document."""
        head = (
            f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
            f'width="{self.width}" height="{self.height}" '
            f'viewBox="0 0 {self.width} {self.height}">'
        )
        return "\n".join([head, f"<title>{self.title}</title>", *self.contents(), "</svg>"]) + "\n"
