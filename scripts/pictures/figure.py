"""The neutral figure, from the side (looking right) and from the front.

Angles are degrees. The trunk leans from upright, the neck bends from the trunk line, an upper arm
swings from hanging down, an elbow and a knee bend from straight; forward is positive.
"""

import math
from dataclasses import dataclass, field, replace

from pictures import body
from pictures.inks import ACCENT, EDGE, FIGURE, GUIDE
from pictures.svg import Frame, disc, polar, polyline, smooth

APART = 6  # degrees to the side, of legs from the front
CHIN = 0.8  # width of the line between a head and its neck from the side, body units
UPPER = 0.6  # height in the picture above which a figure is cut off
LOWER = 55.4  # height in the picture where what goes on is cut off


@dataclass(frozen=True)
class View:
    """Scale of the figure and the place of its hip."""

    scale: float
    hip: tuple
    head: float = 1.0  # larger than life where a small figure has to show which way it looks
    profile: body.Profile = body.PLAIN


# One view a joint: its pictures share scale and ground in all tools.
ARM_SIDE = View(0.68, (22, 40.4), head=1.2, profile=body.CLEAR)
TRUNK_SIDE = View(0.65, (19.4, 44.6), head=1.06, profile=body.CLEAR)
NECK_SIDE = View(1.15, (22, 80.4))
LEGS = View(0.76, (22, 5.4))
LEGS_FRONT = replace(LEGS, hip=(28, LEGS.hip[1]))
ARM_FRONT = View(0.7, (43, 38.6))
MIDDLE_FRONT = View(0.78, (28, 43))
WHOLE_FRONT = View(0.66, (28, 38.5))


@dataclass(frozen=True)
class Pose:
    """Posture of the side figure. `moving` names the segments drawn in the accent colour."""

    trunk: float = 0
    neck: float = 0
    arm: float = 0  # from straight down, whatever the trunk does
    elbow: float = 0
    moving: frozenset = field(default_factory=frozenset)


def hanging(origin, length, degrees):
    """The end of a segment that hangs at `degrees` from straight down, forward positive."""
    return polar(origin, length, 180 - degrees)


def outline(frame, corners):
    return smooth(frame.all(corners))


def below(frame, corners):
    """An outline whose part above the picture is cut off."""
    points, kept = frame.all(corners), []
    for (x, y), (next_x, next_y) in zip(points, points[1:] + points[:1]):
        if y >= UPPER:
            kept.append((x, y))
        if (y < UPPER) != (next_y < UPPER):
            kept.append((x + (next_x - x) * (UPPER - y) / (next_y - y), UPPER))
    return smooth(kept, tension=8)


def cut(frame, corners, lower=LOWER):
    """An outline whose part below the picture is cut off."""
    return smooth([(x, min(y, lower)) for x, y in frame.all(corners)], tension=8)


class SideArm:
    """Joints and outlines of an arm from the side."""

    def __init__(self, shoulder, scale, arm, elbow):
        self.shoulder = shoulder
        self.elbow = hanging(shoulder, body.UPPER_ARM * scale, arm)
        self.forearm = arm + elbow
        self.wrist = hanging(self.elbow, body.FOREARM * scale, self.forearm)
        lower = Frame(self.elbow, scale, -self.forearm)
        hand = Frame(self.wrist, scale, -self.forearm)
        self.upper_paths = [cut(Frame(shoulder, scale, -arm), body.SIDE_UPPER_ARM)]
        self.lower_paths = [cut(frame, corners) for frame, corners in
                            ((lower, body.SIDE_FOREARM), (hand, body.SIDE_HAND))
                            if frame.origin[1] < LOWER]
        if elbow > 20:
            self.upper_paths.append(disc(self.elbow, 3.2 * scale))


class ArmAlone:
    """An arm from the side, large; the upper arm hangs."""

    SHOULDER, SCALE = (13, 3), 1.15

    def __init__(self, elbow, shoulder=SHOULDER, scale=SCALE):
        self.shoulder, self.scale = shoulder, scale
        self.arm = SideArm(shoulder, scale, 0, elbow)

    def upper_paths(self):
        frame = Frame(self.shoulder, self.scale)
        return [below(frame, body.SIDE_UPPER_ARM), *self.arm.upper_paths[1:]]

    def draw(self, drawing, between):
        drawing.solid(self.upper_paths(), FIGURE)
        between()
        drawing.solid(self.arm.lower_paths, ACCENT)


class SideFigure:
    """Joints and outlines of one pose in one view."""

    def __init__(self, pose, view):
        self.pose, self.view = pose, view
        s = view.scale
        self.hip = view.hip
        self.torso = Frame(self.hip, s, pose.trunk)
        self.shoulder = self.torso.at(*body.SHOULDER)
        self.neck = self.torso.at(*body.NECK)
        self.head = Frame(self.neck, s * view.head, pose.trunk + pose.neck)
        self.arm = SideArm(self.shoulder, s, pose.arm, pose.elbow)

    def neck_path(self):
        """From the trunk to the skull, bent at its base."""
        torso, head = self.torso, self.head
        bend = Frame(self.neck, self.view.scale, self.pose.trunk + self.pose.neck / 2)
        forward = min(1, max(0, self.pose.neck / 70))
        back = [low + (high - low) * forward for low, high in zip(body.OCCIPUT, body.CREST)]
        return smooth([torso.at(*body.NAPE), bend.at(-4.2 + 0.9 * forward, -4.6), head.at(*back),
                       head.at(0, -10.4), head.at(*body.JAW), bend.at(3.4, -2.2 + 2.4 * forward),
                       torso.at(*body.THROAT), torso.at(-1, -28)])

    def head_paths(self):
        profile = self.view.profile
        return [outline(self.head, profile.head), outline(self.head, profile.cap),
                self.neck_path()]

    def leg_paths(self):
        """A standing leg, cut off at the lower edge, leaning so that the body keeps its balance."""
        s, trunk = self.view.scale, self.pose.trunk
        lean = trunk * (0.25 if trunk < 0 else 0.08)
        knee = hanging(self.hip, body.THIGH * s, lean)
        paths = [cut(Frame(self.hip, s, -lean), body.SIDE_THIGH)]
        if knee[1] < LOWER - 2:
            paths.append(cut(Frame(knee, s, -lean), body.SIDE_SHANK))
        return paths

    def pelvis_paths(self):
        """The pelvis, which follows half of what the trunk leans."""
        return [cut(Frame(self.hip, self.view.scale, self.pose.trunk / 2), body.SIDE_PELVIS)]

    def trunk_paths(self):
        return [outline(self.torso, body.SIDE_TRUNK)]

    def draw_upper(self, drawing, between=lambda: None):
        """The upper body with its near arm; what `between` adds lies under the moving parts."""
        moving = self.pose.moving
        drawing.solid([*self.leg_paths(), *self.pelvis_paths(), *self.trunk_paths(),
                       *self.head_paths()], FIGURE)
        self.draw_face(drawing, FIGURE)
        parts = {"upper_arm": self.arm.upper_paths, "forearm": self.arm.lower_paths}
        still = [path for name, paths in parts.items() if name not in moving for path in paths]
        if still:
            drawing.solid(still, FIGURE)
        between()
        drawing.solid([path for name, paths in parts.items() if name in moving
                       for path in paths], ACCENT)

    def draw_trunk(self, drawing, between=lambda: None):
        """A standing leg, the far arm and the head in grey, the trunk in the accent colour."""
        drawing.solid([*self.arm.upper_paths, *self.arm.lower_paths], FIGURE)
        between()
        drawing.solid(self.head_paths(), FIGURE)
        self.draw_face(drawing, FIGURE)
        drawing.solid(self.trunk_paths(), ACCENT)
        drawing.solid([*self.leg_paths(), *self.pelvis_paths()], FIGURE)

    def draw_face(self, drawing, colour):
        """A line under the jaw, so that a bent head stays a head, cap and hair, the ear and an eye."""
        jaw = smooth(self.head.all(self.view.profile.jaw), closed=False)
        drawing.line(jaw, EDGE, CHIN * self.view.scale)
        if colour == FIGURE:
            drawing.solid([outline(self.head, self.view.profile.cap),
                           outline(self.head, body.SIDE_HAIR)], GUIDE, edge=0.5)
        drawing.line(polyline(self.head.all(body.SIDE_EYE)), EDGE, 0.9)
        drawing.line(smooth(self.head.all(body.SIDE_EAR), closed=False), EDGE, 0.7)

    def draw_neck(self, drawing, between=lambda: None):
        """Trunk and arm in grey, neck and head in the accent colour."""
        s = self.view.scale
        drawing.solid([smooth([(x, min(y, LOWER)) for x, y in self.torso.all(body.SIDE_TRUNK)])],
                      FIGURE)
        between()
        drawing.solid(self.head_paths(), ACCENT)
        self.draw_face(drawing, ACCENT)
        # Shoulder and arm come before the root of the neck.
        drawing.solid([cut(Frame(self.shoulder, s), body.SIDE_UPPER_ARM),
                       cut(Frame(self.arm.elbow, s), body.SIDE_FOREARM)], FIGURE)


class KneesFigure:
    """Legs from the side with bent knees, both feet on the ground."""

    def __init__(self, view, bend):
        s = view.scale
        lost = (body.THIGH + body.SHANK) * (1 - math.cos(math.radians(bend / 2)))
        self.hip = view.hip[0], view.hip[1] + lost * s
        self.scale, self.thigh = s, bend / 2
        self.knee = hanging(self.hip, body.THIGH * s, bend / 2)
        self.ankle = hanging(self.knee, body.SHANK * s, -bend / 2)

    def leg_paths(self, shift=0.0):
        s = self.scale

        def at(point):
            return point[0] + shift * s, point[1]

        return [below(Frame(at(self.hip), s, -self.thigh), body.SIDE_THIGH),
                outline(Frame(at(self.knee), s, self.thigh), body.SIDE_SHANK),
                outline(Frame(at(self.ankle), s), body.SIDE_FOOT),
                disc(at(self.knee), 3.6 * s)]

    def draw(self, drawing, between=lambda: None):
        pelvis = below(Frame(self.hip, self.scale, self.thigh * 0.5), body.SIDE_PELVIS)
        lean = Frame(self.hip, self.scale, self.thigh * 0.8)
        trunk = below(Frame(lean.at(0, -4), self.scale, lean.turn), body.SIDE_TRUNK)
        drawing.solid([*self.leg_paths(-2.6), pelvis, trunk], FIGURE)
        between()
        drawing.solid(self.leg_paths(), ACCENT)


def front_half(frame, corners, side):
    """The outline's corners of the right half (-1) or the left one (1)."""
    return frame.all([(side * x, y) for x, y in corners])


def front_whole(frame, half):
    """A closed outline from its right half."""
    left = front_half(frame, half, 1)
    right = front_half(frame, half, -1)
    return smooth(left + right[::-1][1:-1])


class FrontArm:
    """An arm of the figure that faces the reader.

    `side` is -1 for its right arm, which is on the reader's left, and 1 for the left one; `spread`
    is from straight down, outward; `forearm` in the picture, from straight up, clockwise.
    """

    def __init__(self, view, side, spread, forearm=None):
        s = view.scale
        self.shoulder = Frame(view.hip, s).at(side * body.FRONT_SHOULDER[0],
                                              body.FRONT_SHOULDER[1])
        upper = 180 - side * spread
        lower = upper if forearm is None else forearm
        elbow = polar(self.shoulder, body.UPPER_ARM * s, upper)
        wrist = polar(elbow, body.FOREARM * s, lower)
        self.elbow, self.wrist = elbow, wrist
        # The thumb is towards the body where the arm hangs, and on top where it is raised.
        inner = -side if spread < 40 else side
        self.upper_paths = [outline(Frame(self.shoulder, s, upper - 180), body.SIDE_UPPER_ARM)]
        hand = Frame(wrist, s, lower - 180)
        self.lower_paths = [outline(Frame(elbow, s, lower - 180), body.SIDE_FOREARM),
                            smooth(hand.all([(inner * x, y) for x, y in body.SIDE_HAND]))]
        if forearm is not None:
            self.upper_paths.append(disc(elbow, 3.2 * s))

    def paths(self):
        return self.upper_paths + self.lower_paths


def front_body(drawing, view, facing=False):
    """Head, trunk and legs from the front, plain or with what tells that it faces the reader."""
    s, torso = view.scale, Frame(view.hip, view.scale)
    legs = [cut(torso, [(side * x, y) for x, y in body.FRONT_LEG]) for side in (-1, 1)]
    root = Frame(torso.at(0, -31), s)
    trunk = [front_whole(torso, body.FRONT_TRUNK), front_whole(root, body.FRONT_NECK)]
    head = front_whole(root, body.FRONT_HEAD)
    drawing.solid([*legs, *trunk, head], FIGURE)
    drawing.solid([head], FIGURE, edge=0.4)
    cap = body.PEAKED_CAP if facing else body.FRONT_CAP
    drawing.raw(f'<path d="{front_whole(root, cap)}" fill="{GUIDE}"/>')
    if facing:
        drawing.line(smooth(root.all(body.PEAK_ROOT), closed=False), EDGE, 0.7)
        drawing.line(polyline(root.all(body.COLLAR)), EDGE, 1.2)


def front_legs(drawing, view, lifted):
    """Pelvis and legs from the front, a little apart; the accent is on those that bear weight."""
    torso = Frame(view.hip, view.scale)
    trunk = smooth([(x, max(y, UPPER)) for x, y in _whole(torso, body.FRONT_TRUNK)], tension=8)
    right, left = (Frame(view.hip, view.scale, side * APART) for side in (1, -1))
    drawing.solid([trunk], FIGURE)
    if lifted:
        for part in (body.FRONT_RAISED_SHANK, body.FRONT_RAISED_THIGH):
            drawing.solid([smooth(front_half(left, part, 1))], FIGURE)
    else:
        drawing.solid([smooth(front_half(left, body.FRONT_LEG, 1))], ACCENT)
    drawing.solid([smooth(front_half(right, body.FRONT_LEG, -1))], ACCENT)


def _whole(frame, half):
    return front_half(frame, half, 1) + front_half(frame, half, -1)[::-1][1:-1]


def ground_line(drawing, height, start=2.0, end=54.0):
    """What feet stand on."""
    line = polyline([(start, height), (end, height)])
    drawing.raw(f'<path d="{line}" fill="none" stroke="{FIGURE}" stroke-width="1.4"/>')
