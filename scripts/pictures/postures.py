"""Whole postures of the figure: one function a kind of picture, the angle as its argument."""

from pictures.figure import (
    BENDING,
    BOTH_ARMS_FRONT,
    FOREARM,
    HAND,
    THIGH,
    UPPER_ARM,
    UPPER_SIDE,
    WAIST_SIDE,
    Pose,
    SideFigure,
    front,
    hanging,
    measure,
)
from pictures.svg import PIXELS, Drawing, Frame, polar

ARM = frozenset({"upper_arm", "forearm"})
UPPER_BODY = frozenset({"trunk", "head", "upper_arm", "forearm"})


def side_arm(title, view, angle, mirrored=False):
    """The whole arm raised by `angle` in front of the body or behind it."""
    drawing = Drawing(title.format(abs(angle)), mirrored=mirrored)
    if angle < 0:
        view = view.moved_to(view.hip[0] + 9)
    figure = SideFigure(Pose(arm=angle, elbow=8, moving=ARM), view)
    length = (UPPER_ARM + FOREARM + HAND + 1) * view.scale

    def guides():
        measure(drawing, figure.shoulder, 180, 180 - angle, 25 * view.scale, length,
                clear=4.6 * view.scale)

    figure.draw(drawing, guides)
    if angle == 0:
        drawing.axis(figure.shoulder, polar(figure.shoulder, length, 180))
    return drawing


def side_arm_range(title, view, low, high):
    """The arm in the middle of a range that is marked by two reference lines."""
    drawing = Drawing(title.format(low, high))
    view = view.moved_to(view.hip[0] + 7)
    figure = SideFigure(Pose(elbow=8, moving=ARM), view)
    length = (UPPER_ARM + FOREARM + HAND) * view.scale

    def guides():
        for limit in (low, high):
            measure(drawing, figure.shoulder, 180 - limit, 180, 31 * view.scale, length,
                    clear=3.4 * view.scale)

    figure.draw(drawing, guides)
    return drawing


def side_elbow(title, view, elbow, reference, mirrored=False):
    """The forearm, bent by `elbow` from the upper arm's line; the arc starts at `reference`."""
    drawing = Drawing(title.format(abs(elbow - reference)), mirrored=mirrored)
    figure = SideFigure(Pose(elbow=elbow, moving=frozenset({"forearm"})), view)

    def guides():
        measure(drawing, figure.elbow, 180 - reference, 180 - elbow,
                *((15 * view.scale, 18.5 * view.scale, 3.4 * view.scale) if reference == 0
                  else (25.5 * view.scale, 30 * view.scale, 1.2 * view.scale)))

    figure.draw(drawing, guides)
    if reference == elbow:
        drawing.axis(figure.elbow, polar(figure.elbow, 22 * view.scale, 180 - elbow))
    return drawing


def side_trunk(title, view, angle):
    """The trunk leaning by `angle`; head and arms go with it."""
    drawing = Drawing(title.format(abs(angle)))
    if angle < 0:
        view = view.moved_to(PIXELS - view.hip[0])
    elbow = 28 + max(0, angle - 60) * 2  # keeps the hand in the picture
    figure = SideFigure(Pose(trunk=angle, neck=-angle / 4, arm=12, elbow=elbow,
                             moving=UPPER_BODY), view)

    def guides():
        measure(drawing, figure.hip, 0, angle, 58 * view.scale, 61.5 * view.scale)

    figure.draw(drawing, guides)
    drawing.axis(figure.hip, polar(figure.hip, (50 if angle == 0 else 20) * view.scale, angle))
    return drawing


def side_neck(title, view, angle):
    """Head and neck bent by `angle` on an upright trunk."""
    drawing = Drawing(title.format(abs(angle)))
    if angle < 0:
        view = view.moved_to(view.hip[0] + 11)
    figure = SideFigure(Pose(neck=angle, elbow=8, moving=frozenset({"head"})), view)

    def guides():
        measure(drawing, figure.neck, 0, angle, 24 * view.scale, 26 * view.scale,
                clear=3 * view.scale)

    figure.draw(drawing, guides)
    if abs(angle) <= 5:
        drawing.axis(figure.neck, polar(figure.neck, 19 * view.scale, angle))
    return drawing


def front_arm(title, view, angle, mirrored=False):
    """The right arm spread sideways by `angle`."""
    drawing = Drawing(title.format(angle), mirrored=mirrored)
    shoulder = Frame(view.hip, view.scale).at(-12.2, -28)
    length = (UPPER_ARM + FOREARM + HAND + 1) * view.scale

    def guides():
        measure(drawing, shoulder, 180, 180 + angle, 25 * view.scale, length,
                clear=4.4 * view.scale)

    front(drawing, view, right=angle or 4, left=4, moving=("right",), between=guides)
    if angle == 0:
        drawing.axis(shoulder, polar(shoulder, length - 6, 180))
    return drawing


def side_legs(title, view, legs, knee=0):
    """The whole figure with its legs marked; a bent knee is measured from the thigh's own line."""
    drawing = Drawing(title.format(knee))
    figure = SideFigure(Pose(legs=legs, knee=knee, elbow=8, moving=frozenset({"legs"})), view)
    figure.draw(drawing)
    if knee:
        joint = hanging(figure.hip, THIGH * view.scale, knee / 2)
        measure(drawing, joint, 180 - knee / 2, 180 + knee / 2, 18 * view.scale, 26 * view.scale,
                clear=4.6 * view.scale, start=6 * view.scale)
    return drawing


def front_forearm(title, view, direction):
    """The right forearm in front of the body, across its middle line."""
    drawing = Drawing(title)
    x, y = view.hip

    def guides():
        drawing.reference((x, y - 33 * view.scale), (x, view.cut))

    front(drawing, view, right=3, crossing=direction, between=guides)
    return drawing


def part_arm_forward(title):
    """Selector: the arm swings forward and back."""
    drawing = Drawing(title)
    view = UPPER_SIDE
    figure = SideFigure(Pose(arm=58, elbow=8, moving=ARM), view)
    figure.draw(drawing)
    drawing.arc_arrow(figure.shoulder, 36, 82, 156)
    return drawing


def part_arms_sideways(title):
    """Selector: the arms spread."""
    drawing = Drawing(title)
    view = BOTH_ARMS_FRONT
    front(drawing, view, right=36, left=36, moving=("right", "left"))
    for side in (-1, 1):
        start, end = sorted((180 - side * 54, 180 - side * 112))
        drawing.arc_arrow(Frame(view.hip, view.scale).at(side * 12.2, -28), 17.4, start, end)
    return drawing


def part_elbow(title):
    """Selector: the elbow bends."""
    drawing = Drawing(title)
    figure = SideFigure(Pose(elbow=90, moving=frozenset({"forearm"})), WAIST_SIDE)
    figure.draw(drawing)
    drawing.arc_arrow(figure.elbow, 23.5, 56, 124)
    return drawing


def part_neck_and_back(title):
    """Selector: neck and back bend."""
    drawing = Drawing(title)
    view = BENDING
    figure = SideFigure(Pose(trunk=26, neck=14, arm=12, elbow=28,
                             moving=frozenset({"trunk", "head"})), view)
    figure.draw(drawing)
    drawing.arc_arrow(figure.hip, 40.5, 27, 66)
    return drawing
