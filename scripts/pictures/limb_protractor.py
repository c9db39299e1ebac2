"""How a picture tells the angle of a limb beside its own limit: an arrow leads away from that."""

from pictures.inks import EDGE, GUIDE
from pictures.protractor import HALO, LIMIT, SHORTEST, STEP, Protractor
from pictures.svg import number, polygon, polyline

ONWARD = 14.0  # degrees from the limb to the arrow's head
SHAFT = 2.0  # width of the arrow from the limb to its head


class LimbProtractor(Protractor):
    """Measures a limb: on an open rim a thick arrow goes from it, and before it, onward."""

    SIDE = 1.2
    HEAD = [(0, -3.9), (3.5, 1.6), (-3.5, 1.6)]

    def _asked_room(self):
        """Room for the rim, and for the head of the arrow where it has one."""
        if self.range.far is not None:
            return super()._asked_room()
        last = self.angle + ONWARD * self._open_end()[1]
        room = min(self._room(angle) for angle in self._angles(self.range.near, last))
        return min(room, self._room(last) - self.HEAD[1][0])

    def _draw_rim(self):
        """From the limit of an open sector to an arrow, as far as there is room."""
        away = self._open_end()[1]
        track = self._angles(self.range.near, self.angle + away * ONWARD)
        while len(track) > SHORTEST and not self._is_inside(self._head(track[-1], away)):
            track.pop()
        onward = [angle for angle in track if away * (angle - self.angle) > -STEP]
        path, shaft = (polyline([self.at(self.radius, angle) for angle in angles])
                       for angles in (track, onward if len(onward) > 1 else track))
        head = polygon(self._head(track[-1], away))
        raw = self.drawing.raw
        raw(f'<path d="{path}" fill="none" stroke="{EDGE}" '
            f'stroke-width="{number(LIMIT + 2 * HALO)}"/>')
        raw(f'<path d="{head}" fill="{EDGE}" stroke="{EDGE}" stroke-width="{number(2 * HALO)}" '
            f'stroke-linejoin="round"/>')
        raw(f'<path id="rim" d="{path}" fill="none" stroke="{GUIDE}" stroke-width="{LIMIT}"/>')
        raw(f'<path d="{shaft}" fill="none" stroke="{GUIDE}" stroke-width="{number(SHAFT)}"/>')
        raw(f'<path id="open" d="{head}" fill="{GUIDE}"/>')

    def _draw_open_end_behind(self):
        """Nothing: the arrow lies before the limb."""

    def draw_axis(self):
        """What lies before the limb: its axis, the arc's way over it, an open end."""
        if self.range is not None and self.range.far is None:
            self._draw_rim()
        super().draw_axis()
