"""How a picture tells an angle; one rule for the whole family.

A dashed reference line, an arc from it to the axis of the moving segment, and that axis as a fine
line through the segment. Where a caption names a range, a tinted sector shows it between its
limits, which are solid lines, or the reference line where zero is one; where it names one limit,
the sector is open beyond it: there it fades and its rim ends in an arrow. Both reach beyond the
segment, which would hide them, where there is room.
"""

import math
from dataclasses import dataclass

from pictures.inks import ACCENT, EDGE, GUIDE, RANGE
from pictures.svg import PIXELS, Frame, arc, disc, number, polar, polygon, polyline

DASH = 2.2
OPEN = 8.0  # degrees that an open sector goes beyond the segment before it fades
FADING = [(5.0, 0.7), (5.0, 0.45), (5.0, 0.2)]  # degrees and opacity of what follows
LIMIT = 1.3  # width of what has to be seen at button size
HALO = 0.7  # what parts it from the figure
STEP = 3.0  # degrees between the corners of a sector's rim
SHORTEST = 3  # corners that the rim of an open sector has at least
MARGIN = 0.5  # what stays free beside its arrow at the picture's edge
BESIDE = 3.5  # from an arc beyond the segment to the rim of the sector
INNER = 0.3  # share of it where the limits of a limb's sector begin
NEARLY = 0.01  # pixels


@dataclass(frozen=True)
class Reach:
    """How far from the joint the parts of a measure stand, in picture pixels."""

    segment: float  # where the axis ends within the segment
    sector: float
    arc: float
    line: float  # of the reference line
    marked: bool = True  # whether the reference goes on over the segment
    least: float = 0.82  # share of its reach that a sector keeps where there is no room
    half: float = 0.0  # of the segment's thickness under the arc; 0 where the arc lies beyond it


@dataclass(frozen=True)
class Range:
    """Degrees that a caption names, from the limit next to neutral on; an open one has no end."""

    near: float
    far: float = None


def reference_line(drawing, start, end):
    """The dashed line that an angle is read from."""
    drawing.raw(f'<path id="reference" d="{polyline([start, end])}" fill="none" '
                f'stroke="{GUIDE}" stroke-width="{LIMIT}" stroke-dasharray="{DASH},{DASH}"/>')


def axis_line(drawing, start, end):
    """The fine line through a moving segment, from its joint on."""
    drawing.raw(f'<path id="axis" d="{polyline([start, end])}" fill="none" stroke="{EDGE}" '
                f'stroke-width="0.8" stroke-linecap="round"/>')
    drawing.raw(f'<path d="{disc(start, 1.1)}" fill="{EDGE}"/>')


class Protractor:
    """Measures the angle of one segment at one joint.

    `zero` is the reference in degrees from straight up, clockwise; `sense` is 1 where the angle
    grows clockwise and -1 where it grows the other way.
    """

    SIDE = 1.6  # what stays free at the picture's edge
    HEAD = [(0, -2.6), (2.5, 1.8), (-2.5, 1.8)]  # of the arrow at an open end

    def __init__(self, drawing, joint, zero, sense, angle, reach, shown=None):
        self.drawing, self.joint, self.reach = drawing, joint, reach
        self.zero, self.sense, self.angle, self.range = zero, sense, angle, shown
        self.radius = self._fitting()

    def _fitting(self):
        """Reach of the sector: a little less than asked for where its rim so stays inside."""
        asked = self.reach.sector
        if self.range is None:
            return asked
        least = max(self.reach.least * asked, 0 if self.reach.half else self.reach.arc + BESIDE)
        return max(least, min(asked, self._asked_room()))

    def _asked_room(self):
        """How far the rim can reach along its whole way."""
        last = self.range.far
        if last is None:
            last = self.angle + OPEN / 2 * self._open_end()[1]
        return min(self._room(angle) for angle in self._angles(self.range.near, last))

    def direction(self, angle):
        return self.zero + self.sense * angle

    def at(self, radius, angle):
        return polar(self.joint, radius, self.direction(angle))

    def _room(self, angle):
        """How far a line from the joint can go before it leaves the picture."""
        way = polar((0, 0), 1, self.direction(angle))
        rooms = [((PIXELS - self.SIDE if along > 0 else self.SIDE) - start) / along
                 for start, along in zip(self.joint, way) if abs(along) > 1e-6]
        return min(rooms)

    def _rim(self, start, end):
        """Angles and reach along the outer side of a sector."""
        return [(angle, min(self.radius, self._room(angle))) for angle in self._angles(start, end)]

    @staticmethod
    def _angles(start, end):
        steps = max(1, math.ceil(abs(end - start) / STEP))
        return [start + (end - start) * i / steps for i in range(steps + 1)]

    def _tint(self, start, end, opacity=1.0):
        rim = [self.at(radius, angle) for angle, radius in self._rim(start, end)]
        name = ' id="sector"' if opacity == 1 else f' fill-opacity="{number(opacity)}"'
        self.drawing.raw(f'<path{name} d="{polygon([self.joint, *rim])}" fill="{RANGE}"/>')

    def _open_end(self):
        """Where an open sector ends, and which way it is open."""
        away = math.copysign(1, self.angle - self.range.near)
        return self.angle + away * OPEN, away

    def draw_range(self):
        """The sector, which lies behind everything."""
        if self.range is None:
            return
        near, far = self.range.near, self.range.far
        if far is not None:
            self._tint(near, far)
            return
        start, away = self._open_end()
        self._tint(near, start)
        for degrees, opacity in FADING:
            self._tint(start, start + away * degrees, opacity)
            start += away * degrees

    def _draw_limit(self, name, angle):
        if angle == 0:
            return  # the reference line shows it
        inner = INNER * self.radius if self.reach.half else self.reach.segment
        path = polyline([self.at(inner, angle),
                         self.at(min(self.radius, self._room(angle)), angle)])
        self.drawing.raw(f'<path d="{path}" fill="none" stroke="{EDGE}" '
                         f'stroke-width="{number(LIMIT + 2 * HALO)}"/>')
        self.drawing.raw(f'<path id="{name}" d="{path}" fill="none" stroke="{GUIDE}" '
                         f'stroke-width="{LIMIT}"/>')

    def _head(self, angle, away):
        """The arrow's head on the rim."""
        turn = self.direction(angle) + 90 * self.sense * away
        return Frame(self.at(self.radius, angle), 1, turn).all(self.HEAD)

    @staticmethod
    def _is_inside(corners):
        return all(MARGIN <= place <= PIXELS - MARGIN for corner in corners for place in corner)

    def _draw_rim(self):
        """From the limit of an open sector to an arrow, as far as there is room."""
        end, away = self._open_end()
        end += away * sum(degrees for degrees, _ in FADING[:2])
        track = []
        for angle, radius in self._rim(self.range.near, end):
            if radius < self.radius - NEARLY:
                break
            track.append(angle)
        while len(track) > SHORTEST and not self._is_inside(self._head(track[-1], away)):
            track.pop()
        path = polyline([self.at(self.radius, angle) for angle in track])
        self.drawing.raw(f'<path id="rim" d="{path}" fill="none" stroke="{GUIDE}" '
                         f'stroke-width="{LIMIT}"/>')
        head = polygon(self._head(track[-1], away))
        self.drawing.raw(f'<path id="open" d="{head}" fill="{GUIDE}"/>')

    def _draw_open_end_behind(self):
        """The rim of an open sector, where it lies under the segment."""
        self._draw_rim()

    def draw_lines(self):
        """Reference, limits and arc, which lie under the moving segment."""
        reach = self.reach
        is_limit = self.range is not None and 0 in (self.range.near, self.range.far)
        line = max(reach.line, self.radius) if is_limit else reach.line
        reference_line(self.drawing, self.joint, self.at(line, 0))
        if self.range is not None:
            self._draw_limit("near", self.range.near)
            if self.range.far is not None:
                self._draw_limit("far", self.range.far)
            else:
                self._draw_open_end_behind()
        if self.angle:
            path = arc(self.joint, reach.arc, self.direction(0), self.direction(self.angle))
            self.drawing.raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="3"/>')
            self.drawing.raw(f'<path id="arc" d="{path}" fill="none" stroke="{ACCENT}" '
                             f'stroke-width="1.6"/>')

    def draw_axis(self):
        """The axis, which lies on the moving segment, and the arc's way over it."""
        raw, reach = self.drawing.raw, self.reach
        if self.angle and not reach.half:
            if reach.marked:
                # In the gaps of the reference's own dashes: it goes on where the segment hides it.
                hidden = polyline([self.joint, self.at(reach.segment, 0)])
                raw(f'<path d="{hidden}" fill="none" stroke="{EDGE}" stroke-width="0.8" '
                    f'stroke-dasharray="{DASH},{DASH}" stroke-dashoffset="{DASH}"/>')
        if self.angle and reach.half:
            gap = math.degrees(math.asin(min(1, reach.half / reach.arc)))
            begin = math.copysign(max(0, abs(self.angle) - gap), self.angle)
            path = arc(self.joint, reach.arc, self.direction(begin), self.direction(self.angle))
            raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="1"/>')
        axis_line(self.drawing, self.joint, self.at(reach.segment, self.angle))
