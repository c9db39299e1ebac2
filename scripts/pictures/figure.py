"""The neutral figure: from the side (looking right), from the front and from above.

Angles are degrees. The trunk leans from upright, the neck bends from the trunk line, an upper arm
swings from hanging down, an elbow bends from straight; forward is positive. Lengths are body
units: a hundred of them are about one body height. The origin is the hip.
"""

import math
from dataclasses import dataclass, field, replace

from pictures.inks import ACCENT, EDGE, FIGURE
from pictures.svg import (
    Frame,
    capsule,
    disc,
    limb,
    polar,
    polygon,
    sleeve,
    smooth,
)

SHOULDER = 28.5  # height of the arm joint above the hip
NECK = 32.0  # height of the lower end of the neck
UPPER_ARM, FOREARM, HAND = 17.5, 15.0, 9.0
THIGH, SHANK = 25.0, 23.5

# Outlines, x forward, y down.
SIDE_TRUNK = [
    (-2.5, -33.5), (2.2, -32.5), (6.6, -26), (7.8, -19), (6.9, -10), (6.6, -3), (5.5, 4),
    (0, 6.5), (-6.2, 4.5), (-8, -2), (-5.9, -10), (-7, -18), (-8, -25), (-6.2, -31),
]
FRONT_TRUNK = [
    (0, -34), (-3.4, -33.5), (-9.5, -31), (-12.6, -27.5), (-11.2, -20), (-8.9, -10), (-9.6, -2),
    (-9.3, 4), (-4.5, 5.6), (0, 5.2), (4.5, 5.6), (9.3, 4), (9.6, -2), (8.9, -10), (11.2, -20),
    (12.6, -27.5), (9.5, -31), (3.4, -33.5),
]
# Trunk of a bust, from its lower front end over the shoulder to its lower back end.
BUST_TRUNK = [
    (6.8, -8.3), (7.2, -13), (7.8, -19), (6.6, -26), (2.2, -32.5), (-2.5, -33.5), (-6.2, -31),
    (-8, -25), (-7, -18), (-6.1, -12), (-6.3, -8.3),
]
# Heads around their middle.
FRONT_HEAD = [
    (0, -9), (4.9, -7.2), (6.5, -2), (5.9, 3), (3.2, 7.6), (0, 8.8), (-3.2, 7.6), (-5.9, 3),
    (-6.5, -2), (-4.9, -7.2),
]
SIDE_HEAD = [
    (0, -8.8), (4.4, -7.6), (6.5, -4), (6.7, -1.6), (8.7, 1.5), (6.9, 2.6), (7, 5), (5.6, 7.9),
    (2, 7.6), (-0.5, 5.4), (-4.6, 5.6), (-6.9, 2), (-7.4, -2.2), (-5, -7),
]


@dataclass(frozen=True)
class View:
    """Which part of the figure fills the picture: scale, place of the hip, and where it is cut."""

    scale: float
    hip: tuple
    cut: float = None  # height in the picture where the thighs end; None shows whole legs
    top: float = None  # height in the picture where the waist ends; None shows the upper body
    bust: float = None  # height in the picture where chest and upper arm end; shows no legs

    def moved_to(self, x):
        """The same view with the hip elsewhere, for postures that lean to the left."""
        return replace(self, hip=(x, self.hip[1]))


UPPER_SIDE = View(0.79, (16, 44.1), 55.4)
WAIST_SIDE = View(0.88, (15.5, 48.4), 55.4)
UPPER_FRONT = View(0.73, (41.6, 41.5), 55.4)
BOTH_ARMS_FRONT = View(0.66, (28, 38.5), 55.4)
MIDDLE_FRONT = View(0.78, (28, 44), 55.4)
BUST = View(1.04, (19.5, 64), bust=55.4)
BENDING = View(0.62, (17, 39.5), 55.4)
LEGS = View(0.82, (22, 12), top=0.6)


@dataclass(frozen=True)
class Pose:
    """Posture of the side figure. `moving` names the segments drawn in the accent colour."""

    trunk: float = 0
    neck: float = 0
    arm: float = 0  # from straight down, whatever the trunk does
    elbow: float = 0
    legs: str = "standing"  # standing, one_leg, knees
    knee: float = 0
    moving: frozenset = field(default_factory=frozenset)


def hanging(origin, length, degrees):
    """The end of a segment that hangs at `degrees` from straight down, forward positive."""
    return polar(origin, length, 180 - degrees)


def _hand(wrist, degrees, scale):
    """A side-view hand that goes on from the forearm: palm, fingers and thumb."""
    frame = Frame(wrist, scale, 180 - degrees)
    palm = capsule(frame.at(0, -1.2), 2.7 * scale, frame.at(-0.2, -HAND + 1.8), 1.9 * scale)
    thumb = capsule(frame.at(0.8, -1.8), 1.5 * scale, frame.at(3.3, -5), 1.15 * scale)
    return [palm, thumb]


class SideFigure:
    """Joints and outlines of one pose in one view."""

    def __init__(self, pose, view):
        self.pose, self.view = pose, view
        s = self.s = view.scale
        self.hip = view.hip
        if pose.legs == "knees":
            lost = (THIGH + SHANK) * (1 - math.cos(math.radians(pose.knee / 2)))
            self.hip = view.hip[0], view.hip[1] + lost * s
        self.torso = Frame(self.hip, s, pose.trunk)
        self.shoulder = self.torso.at(-0.6, -SHOULDER)
        self.neck = self.torso.at(-1.4, -NECK)
        self.head = Frame(self.neck, s, pose.trunk + pose.neck)
        self.elbow = hanging(self.shoulder, UPPER_ARM * s, pose.arm)
        self.forearm = pose.arm + pose.elbow
        self.wrist = hanging(self.elbow, FOREARM * s, self.forearm)

    def head_paths(self):
        face = smooth(self.head.all([(x + 2, y - 13.4) for x, y in SIDE_HEAD]))
        root, top = self.head.at(0, 1), self.head.at(0.6, -9)
        return [face, capsule(root, 4.2 * self.s, top, 3.9 * self.s)]

    def trunk_paths(self):
        if self.view.top:
            (x, y), s = self.hip, self.s
            return [polygon([(x - 6.2 * s, self.view.top), (x + 6.8 * s, self.view.top),
                             (x + 7 * s, y), (x - 7 * s, y)])]
        if self.view.bust:
            return [smooth(self.torso.all(BUST_TRUNK), closed=False) + "Z"]
        return [smooth(self.torso.all(SIDE_TRUNK))]

    def arm_paths(self):
        if self.view.bust:
            return [sleeve(self.shoulder, 4.6 * self.s, self.view.bust, 3.8 * self.s)], []
        upper = capsule(self.shoulder, 4.6 * self.s, self.elbow, 3.6 * self.s)
        lower = capsule(self.elbow, 3.6 * self.s, self.wrist, 2.6 * self.s)
        return [upper], [lower, *_hand(self.wrist, self.forearm, self.s)]

    def _leg(self, thigh, knee):
        """A whole leg: thigh from straight down, knee bent backwards."""
        s = self.s
        joint = hanging(self.hip, THIGH * s, thigh)
        shank = thigh - knee
        ankle = hanging(joint, SHANK * s, shank)
        # A foot on the ground lies flat; a lifted one hangs on its shank.
        toe = Frame(ankle, s, -shank if self.pose.legs == "one_leg" else 0)
        foot = capsule(toe.at(-1.2, 1), 2.6 * s, toe.at(7.2, 2), 1.7 * s)
        return limb([self.hip, joint, ankle], [7 * s, 4.8 * s, 3 * s]) + [foot]

    def leg_paths(self):
        """Legs from the far one to the near one, each its own silhouette."""
        x, s = self.hip[0], self.s
        if self.view.bust:
            return [[]]
        if self.view.cut:
            top = self.hip[1] - 2 * s
            sides = [(x - 7.4 * s, top), (x + 6.2 * s, top)]
            ends = [(x + 5.6 * s, self.view.cut), (x - 6.2 * s, self.view.cut)]
            return [[polygon(sides + ends)]]
        bent = self.pose.knee
        legs = {
            "standing": [(9, 2), (-8, 2)],
            "one_leg": [(0, 0), (58, 105)],
            "knees": [(bent / 2, bent)],
        }
        return [self._leg(thigh, knee) for thigh, knee in legs[self.pose.legs]]

    def draw(self, drawing, between=lambda: None):
        """Still parts, then what `between` adds, then the moving ones; the near arm lies on top."""
        upper, lower = self.arm_paths()
        *far, near = self.leg_paths()
        body = {"legs": near, "trunk": self.trunk_paths(), "head": self.head_paths()}
        arm = {"upper_arm": upper, "forearm": lower}
        if self.view.top:
            body.pop("head")
            arm.clear()

        def show(parts, moving):
            paths = [path for name, part in parts.items()
                     if (name in self.pose.moving) is moving for path in part]
            if paths:
                drawing.solid(paths, ACCENT if moving else FIGURE)

        for leg in far:
            show({"legs": leg}, "legs" in self.pose.moving)
        show(body, False)
        if not self.pose.moving & body.keys():
            show(arm, False)
        between()
        show(body, True)
        if self.pose.moving & body.keys():
            show(arm, False)
        show(arm, True)


def measure(drawing, pivot, reference, segment, radius, length, clear=0.0, start=0.0):
    """Dashed line at `reference` from the pivot and an arc from it to the segment's edge.

    Directions are degrees from straight up, clockwise; `clear` is half the segment's thickness.
    """
    drawing.reference(polar(pivot, start, reference), polar(pivot, length, reference))
    turn = segment - reference
    gap = math.degrees(math.asin(min(1.0, clear / radius)))
    if abs(turn) > gap + 2:
        end = segment - math.copysign(gap, turn)
        drawing.angle(pivot, radius, reference, end)


def front_arm_paths(view, side, spread, forearm):
    """Upper arm, then forearm with hand, of the figure facing the reader.

    `side` is -1 for its right arm, which is on the reader's left, and 1 for the left one. `spread`
    is from straight down, outward; `forearm` from straight up, clockwise.
    """
    s = view.scale
    shoulder = Frame(view.hip, s).at(side * 12.2, -28)
    elbow = polar(shoulder, UPPER_ARM * s, 180 - side * spread)
    wrist = polar(elbow, FOREARM * s, forearm)
    hand = Frame(wrist, s, forearm)
    return (
        [capsule(shoulder, 4.5 * s, elbow, 3.6 * s)],
        [capsule(elbow, 3.6 * s, wrist, 2.6 * s),
         capsule(hand.at(0, -1), 2.7 * s, hand.at(0, -HAND + 2), 1.9 * s),
         capsule(hand.at(0, -1.5), 1.4 * s, hand.at(side * 3.2, -5), 1.1 * s)],
    )


def front(drawing, view, right=4.0, left=4.0, moving=(), crossing=None, between=lambda: None):
    """The figure facing the reader, arms spread by `right` and `left`.

    A `crossing` right forearm points there, from straight up, clockwise, and is the moving segment.
    """
    s, (x, y) = view.scale, view.hip
    torso = Frame(view.hip, s)
    legs = [polygon([(x + side * 0.3 * s, y), (x + side * 9.4 * s, y),
                     (x + side * 8.8 * s, view.cut), (x + side * 0.9 * s, view.cut)])
            for side in (-1, 1)]
    face = Frame(torso.at(0, -45), s)
    neck = capsule(torso.at(0, -31), 4 * s, torso.at(0, -40), 3.6 * s)
    drawing.solid([*legs, smooth(torso.all(FRONT_TRUNK)), neck, smooth(face.all(FRONT_HEAD))],
                  FIGURE)
    for eye in (-2.5, 2.5):
        drawing.raw(f'<path d="{disc(face.at(eye, -0.6), 1.05 * s)}" fill="{EDGE}"/>')
    still, moved = [], []
    for name, side, spread in (("right", -1, right), ("left", 1, left)):
        crosses = crossing is not None and name == "right"
        forearm = crossing if crosses else 180 - side * (spread - 3)
        upper, lower = front_arm_paths(view, side, spread, forearm)
        if crosses:
            still.append(upper)
            moved.append(lower)
        else:
            (moved if name in moving else still).append(upper + lower)
    for paths in still:
        drawing.solid(paths, FIGURE)
    between()
    for paths in moved:
        drawing.solid(paths, ACCENT)
