"""Whole postures of the figure: one function a kind of picture, the angle as its argument."""

from dataclasses import replace

from pictures import body
from pictures.figure import (
    ARM_FRONT,
    ARM_SIDE,
    LEGS,
    LEGS_FRONT,
    MIDDLE_FRONT,
    NECK_SIDE,
    TRUNK_SIDE,
    WHOLE_FRONT,
    ArmAlone,
    FrontArm,
    KneesFigure,
    Pose,
    SideFigure,
    front_body,
    front_legs,
    ground_line,
)
from pictures.inks import ACCENT, EDGE, FIGURE, RANGE
from pictures.limb_protractor import LimbProtractor
from pictures.protractor import HALO, LIMIT, Protractor, Reach, axis_line, reference_line
from pictures.svg import Drawing, Frame, capsule, disc, number, polar, polyline

ARM = frozenset({"upper_arm", "forearm"})
WHOLE_ARM = body.UPPER_ARM + body.FOREARM + body.HAND

LEANING_BACK = 37.0  # how far right a joint stands that leans back
BENT_FAR = 9.5  # how much further left one that is bent by more than half a right angle


def side_arm(title, angle, shown=None, mirrored=False):
    """The whole arm raised by `angle` in front of the body or behind it."""
    numbers = (shown.near, shown.far) if angle == 0 and shown else (abs(angle),)
    drawing = Drawing(title.format(*numbers), mirrored=mirrored)
    s = ARM_SIDE.scale
    figure = SideFigure(Pose(arm=angle, moving=ARM), ARM_SIDE)
    reach = Reach(segment=(WHOLE_ARM - 1.5) * s, sector=33.2, arc=18 * s,
                  line=34.4, least=0.92, half=4 * s)
    measure = LimbProtractor(drawing, figure.shoulder, 180, -1, angle, reach, shown)
    measure.draw_range()
    figure.draw_upper(drawing, measure.draw_lines)
    measure.draw_axis()
    return drawing


def side_elbow(title, elbow, shown=None, neutral=0, mirrored=False):
    """The forearm, bent by `elbow` from the upper arm's line; the title counts from `neutral`."""
    drawing = Drawing(title.format(abs(elbow - neutral)), mirrored=mirrored)
    figure, s = ArmAlone(elbow), ArmAlone.SCALE
    reach = Reach(segment=(body.FOREARM + body.HAND - 1) * s, sector=41, arc=11 * s, line=31,
                  least=0.75, half=3.7 * s)
    # A forearm that sinks comes near its reference, so that an arrow has to lead it there.
    sinks = shown is not None and shown.far is None and elbow < shown.near
    kind = LimbProtractor if sinks else Protractor
    measure = kind(drawing, figure.arm.elbow, 180, -1, elbow, reach, shown)
    measure.draw_range()
    figure.draw(drawing, measure.draw_lines)
    measure.draw_axis()
    return drawing


def _moved(view, hip):
    """The view with its hip `hip` pixels from the left."""
    return replace(view, hip=(hip, view.hip[1]))


def _with_room(view, angle):
    """The view, moved away from where something leans, so that its range stands beside it."""
    if angle < 0:
        return _moved(view, LEANING_BACK)
    return _moved(view, view.hip[0] - BENT_FAR) if angle > 45 else view


def side_trunk(title, angle, shown=None):
    """The trunk leaning by `angle` over standing legs; the arms hang plumb."""
    drawing = Drawing(title.format(abs(angle)))
    s = TRUNK_SIDE.scale
    # Plumb, or behind the trunk where only a bit of a hand would be seen.
    arm = -0.6 * angle if abs(angle) <= 16 else 0
    figure = SideFigure(Pose(trunk=angle, neck=-angle / 4, arm=arm), _with_room(TRUNK_SIDE, angle))
    reach = Reach(segment=30 * s, sector=43, arc=24 * s, line=43.6, least=0.9, half=6.6 * s)
    measure = Protractor(drawing, figure.hip, 0, 1, angle, reach, shown)
    measure.draw_range()
    figure.draw_trunk(drawing, measure.draw_lines)
    measure.draw_axis()
    return drawing


def side_neck(title, angle, shown=None):
    """Head and neck bent by `angle` on an upright trunk."""
    drawing = Drawing(title.format(abs(angle)))
    s = NECK_SIDE.scale
    figure = SideFigure(Pose(neck=angle), _with_room(NECK_SIDE, angle))
    reach = Reach(segment=18.8 * s, sector=41, arc=27.4, line=43.4)
    measure = Protractor(drawing, figure.neck, 0, 1, angle, reach, shown)
    measure.draw_range()
    figure.draw_neck(drawing, measure.draw_lines)
    measure.draw_axis()
    return drawing


def front_arm(title, angle, shown=None, mirrored=False):
    """The right arm spread sideways by `angle`."""
    drawing = Drawing(title.format(angle), mirrored=mirrored)
    s = ARM_FRONT.scale
    arm = FrontArm(ARM_FRONT, -1, angle)
    reach = Reach(segment=(WHOLE_ARM - 1.5) * s, sector=33.2, arc=18 * s,
                  line=35.4, half=4 * s)
    measure = LimbProtractor(drawing, arm.shoulder, 180, 1, angle, reach, shown)
    measure.draw_range()
    front_body(drawing, ARM_FRONT, facing=True)
    drawing.solid(FrontArm(ARM_FRONT, 1, 3).paths(), FIGURE)
    measure.draw_lines()
    drawing.solid(arm.paths(), ACCENT)
    measure.draw_axis()
    return drawing


def stance(title, lifted):
    """The legs from the front, both on the ground or one lifted off it.

    A plumb line from the pelvis meets what bears the weight, or the ground beside it.
    """
    drawing = Drawing(title)
    s, (x, y) = LEGS_FRONT.scale, LEGS_FRONT.hip
    ground = y + body.GROUND * s + 0.7
    ground_line(drawing, ground)
    feet = polyline([(x - 13 * s, ground), (x - 7 * s if lifted else x + 13 * s, ground)])
    drawing.line(feet, ACCENT, 2)
    front_legs(drawing, LEGS_FRONT, lifted)
    # Thighs and sole come near it.
    top, bottom = y + 3, ground - 1 - HALO
    drawing.raw(f'<path d="{polyline([(x, top - HALO), (x, bottom)])}" fill="none" '
                f'stroke="{EDGE}" stroke-width="{number(LIMIT + 2 * HALO)}"/>')
    reference_line(drawing, (x, top), (x, bottom))
    return drawing


def side_knees(title, bend, shown):
    """The legs from the side, the knees bent by `bend` from the thigh's own line."""
    drawing = Drawing(title.format(bend))
    s = LEGS.scale
    figure = KneesFigure(LEGS, bend)
    ground = LEGS.hip[1] + body.GROUND * s + 0.7
    ground_line(drawing, ground)
    reach = Reach(segment=(body.SHANK + body.SOLE / 2) * s, sector=33, arc=12, line=22,
                  least=0.8, half=2.3 * s)
    kind = Protractor if shown.far is not None else LimbProtractor
    measure = kind(drawing, figure.knee, 180 - bend / 2, 1, bend, reach, shown)

    def guides():
        measure.draw_range()
        measure.draw_lines()

    figure.draw(drawing, guides)
    measure.draw_axis()
    return drawing


def front_forearm(title, direction):
    """The right forearm in front of the body, across its middle line."""
    drawing = Drawing(title)
    view = MIDDLE_FRONT
    x, y = view.hip
    arm = FrontArm(view, -1, 5, direction)
    front_body(drawing, view)
    drawing.solid(FrontArm(view, 1, 4).paths(), FIGURE)
    reference_line(drawing, (x, y - 33 * view.scale), (x, 55.4))
    drawing.solid(arm.upper_paths, FIGURE)
    drawing.solid(arm.lower_paths, ACCENT)
    axis_line(drawing, arm.elbow,
              polar(arm.elbow, (body.FOREARM + body.HAND - 1.5) * view.scale, direction))
    return drawing


def _ring(drawing, centre, radius, draw):
    """A region that can be chosen: what `draw` draws on a tinted disc, with a ring around it."""
    path = disc(centre, radius)
    drawing.raw(f'<path d="{path}" fill="{RANGE}"/>')
    draw()
    drawing.line(path, ACCENT, 1.6, edge=0.7)


def part_arm_forward(title):
    """Selector: the shoulder from the side."""
    drawing = Drawing(title)
    figure = SideFigure(Pose(arm=4, elbow=10, moving=ARM), _moved(ARM_SIDE, 25))
    _ring(drawing, figure.shoulder, 9.4, lambda: figure.draw_upper(drawing))
    return drawing


def part_arms_sideways(title):
    """Selector: the shoulder from the front."""
    drawing = Drawing(title)
    view = _moved(ARM_FRONT, 31)
    arm = FrontArm(view, -1, 12)

    def draw():
        front_body(drawing, view, facing=True)
        drawing.solid(FrontArm(view, 1, 6).paths(), FIGURE)
        drawing.solid(arm.paths(), ACCENT)

    _ring(drawing, arm.shoulder, 9.4, draw)
    return drawing


def part_elbow(title):
    """Selector: the elbow."""
    drawing = Drawing(title)
    figure = ArmAlone(70, (15.4, 5), 1.4)
    paths = figure.upper_paths() + figure.arm.lower_paths
    _ring(drawing, figure.arm.elbow, 13.6, lambda: drawing.solid(paths, ACCENT))
    return drawing


def part_neck_and_back(title):
    """Selector: the spine from the skull to the pelvis, from behind."""
    drawing = Drawing(title)
    view = WHOLE_FRONT
    torso = Frame(view.hip, view.scale)

    def draw():
        front_body(drawing, view)
        for side in (-1, 1):
            drawing.solid(FrontArm(view, side, 8).paths(), FIGURE)
        drawing.solid([capsule(torso.at(-half, y), 1, torso.at(half, y), 1)
                       for y, half in body.VERTEBRAE], ACCENT, edge=0.7)

    _ring(drawing, torso.at(0, -19.3), 14.2, draw)
    return drawing
