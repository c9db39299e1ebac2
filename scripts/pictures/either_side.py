"""The right hand bent to either side, and maybe turned: ways that have no limits."""

from pictures.hand import forearm_up, hand_above
from pictures.inks import GUIDE
from pictures.protractor import DASH, Protractor, Reach
from pictures.svg import Drawing, Frame, arc, polar, smooth

WRIST, SCALE = (28, 45), 0.83
REACH = Reach(segment=23, sector=42.4, arc=26.6, line=44, marked=False)
BOTH_WAYS = 38  # pixels from the wrist to the arrow that means either side
BEYOND = 8  # degrees from the hand to its tip
TURN = (28, 49.4)  # middle of the ring around a forearm that turns
RING = [(-14.4, 0), (-12.6, 2.8), (-7.4, 4.6), (0, 5.2), (7.4, 4.6), (12.6, 2.8), (14.4, 0)]


def to_either_side(title, angle, twisted=False):
    """The hand bent sideways, with an arrow to the other side too; maybe it turns as well."""
    drawing = Drawing(title.format(abs(angle)))
    end = angle + BEYOND
    tips = [(polar(WRIST, BOTH_WAYS, side * end), side * (86 + end)) for side in (-1, 1)]
    if twisted:
        _turn(drawing)
    else:
        forearm_up(drawing, WRIST)
    measure = Protractor(drawing, WRIST, 0, 1, angle, REACH)
    measure.draw_lines()
    hand_above(drawing, Frame(WRIST, SCALE, angle), nail=0)
    measure.draw_axis()
    drawing.arrow(arc(WRIST, BOTH_WAYS, -end, end), *tips)
    return drawing


def _turn(drawing):
    """The forearm in a ring with two arrow heads: it turns either way."""
    x, y = TURN
    near = smooth([(x + along, y + down) for along, down in RING], closed=False)
    far = smooth([(x + along, y - down) for along, down in RING], closed=False)
    drawing.raw(f'<path d="{far}" fill="none" stroke="{GUIDE}" stroke-width="1.3" '
                f'stroke-dasharray="{DASH},{DASH}"/>')
    forearm_up(drawing, WRIST)
    drawing.arrow(near, *[((x + side * 14.2, y - 2), side * 14) for side in (-1, 1)])
