"""How a picture tells an angle; one rule for the whole family.

A dashed reference line, an arc from it to the axis of the moving segment, and that axis as a fine
line through the segment. Where a caption names a range, a tinted sector shows it between its
limits; where it names one limit, the sector is open beyond it and fades.
"""

import math
from dataclasses import dataclass

from pictures.inks import ACCENT, EDGE, GUIDE, RANGE
from pictures.svg import PIXELS, arc, disc, number, polar, polyline, sector

DASH = 2.2
OPEN = 8.0  # degrees that an open sector goes beyond the segment before it fades
FADING = [(5.0, 0.7), (5.0, 0.45), (5.0, 0.2)]  # degrees and opacity of what follows


@dataclass(frozen=True)
class Reach:
    """How far from the joint the parts of a measure stand, in picture pixels."""

    segment: float  # where the axis ends within the segment
    sector: float
    arc: float
    line: float  # of the reference line
    beyond: float = 0.0  # where the axis goes on, where that is not the end of the segment
    marked: bool = True  # whether the reference goes on over the segment
    half: float = 0.0  # of the segment's thickness under the arc; 0 where the arc lies beyond it


@dataclass(frozen=True)
class Range:
    """Degrees that a caption names, from the limit next to neutral on; an open one has no end."""

    near: float
    far: float = None


def reference_line(drawing, start, end):
    """The dashed line that an angle is read from."""
    drawing.raw(f'<path id="reference" d="{polyline([start, end])}" fill="none" '
                f'stroke="{GUIDE}" stroke-width="1.1" stroke-dasharray="{DASH},{DASH}"/>')


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

    def __init__(self, drawing, joint, zero, sense, angle, reach, shown=None):
        self.drawing, self.joint, self.reach = drawing, joint, reach
        self.zero, self.sense, self.angle, self.range = zero, sense, angle, shown

    def direction(self, angle):
        return self.zero + self.sense * angle

    def at(self, radius, angle):
        return polar(self.joint, radius, self.direction(angle))

    def _tint(self, start, end, opacity=1.0):
        ends = sorted((self.direction(start), self.direction(end)))
        path = sector(self.joint, self.reach.sector, *ends)
        name = ' id="sector"' if opacity == 1 else f' fill-opacity="{number(opacity)}"'
        self.drawing.raw(f'<path{name} d="{path}" fill="{RANGE}"/>')

    def draw_range(self):
        """The sector, which lies behind everything."""
        if self.range is None:
            return
        near, far = self.range.near, self.range.far
        if far is not None:
            self._tint(near, far)
            return
        away = math.copysign(1, self.angle - near)
        start = self.angle + away * OPEN
        self._tint(near, start)
        for degrees, opacity in FADING:
            end = start + away * degrees
            if all(0 <= place <= PIXELS for place in self.at(self.reach.sector, end)):
                self._tint(start, end, opacity)
            start = end

    def draw_lines(self):
        """Reference, limits and arc, which lie under the moving segment."""
        raw, reach = self.drawing.raw, self.reach
        reference_line(self.drawing, self.joint, self.at(reach.line, 0))
        inner = 0.35 * reach.sector if reach.half else reach.segment
        for limit in () if self.range is None else (self.range.near, self.range.far):
            if limit:
                edge = polyline([self.at(inner, limit),
                                 self.at(reach.sector, limit)])
                raw(f'<path d="{edge}" fill="none" stroke="{GUIDE}" stroke-width="0.7"/>')
        if self.angle:
            path = arc(self.joint, reach.arc, self.direction(0), self.direction(self.angle))
            raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="2.7"/>')
            raw(f'<path id="arc" d="{path}" fill="none" stroke="{ACCENT}" stroke-width="1.3"/>')

    def draw_axis(self):
        """The axis, which lies on the moving segment, and the arc's way over it."""
        raw, reach = self.drawing.raw, self.reach
        if self.angle and not reach.half:
            if reach.marked:
                # In the gaps of the reference's own dashes: it goes on where the segment hides it.
                hidden = polyline([self.joint, self.at(reach.segment, 0)])
                raw(f'<path d="{hidden}" fill="none" stroke="{EDGE}" stroke-width="0.8" '
                    f'stroke-dasharray="{DASH},{DASH}" stroke-dashoffset="{DASH}"/>')
            beyond = polyline([self.at(reach.beyond or reach.segment, self.angle),
                               self.at(reach.sector, self.angle)])
            raw(f'<path d="{beyond}" fill="none" stroke="{ACCENT}" stroke-width="0.9"/>')
        if self.angle and reach.half:
            gap = math.degrees(math.asin(min(1, reach.half / reach.arc)))
            begin = math.copysign(max(0, abs(self.angle) - gap), self.angle)
            path = arc(self.joint, reach.arc, self.direction(begin), self.direction(self.angle))
            raw(f'<path d="{path}" fill="none" stroke="{EDGE}" stroke-width="1.1"/>')
        axis_line(self.drawing, self.joint, self.at(reach.segment, self.angle))
