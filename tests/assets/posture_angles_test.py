#!/usr/bin/env python3
"""Measures the angles in the finished posture pictures, as a reader would with a protractor.

The reference line, the arc, the axis of the moving segment and the sector of a range are paths with
these names. What a caption names is typed here a second time.
"""

import math
import re
import sys
import unittest
from pathlib import Path

ASSETS = Path(__file__).resolve().parent.parent.parent / "assets"

NEAR = 0.5  # degrees that two lines may differ by and still be one
SEEN = 5.0  # degrees from a limit that an eye sees
MIDDLE = 0.55  # degrees off the middle that whole degrees leave
NARROW = 15  # the width of a step that has no room for more than its middle
LINE = 1.3  # pixels that a line is wide which has to be seen at button size
BEYOND = 5.0  # degrees that a rim goes on from the limit where it is open
SPAN = 0.85  # share of the moving segment that its axis runs through

# Joint: its reference in degrees from straight up, clockwise; which way the angle grows. The
# reference of a knee is its own thigh.
JOINTS = {
    "arm": (180, -1), "arm out": (180, 1), "elbow": (180, -1), "trunk": (0, 1), "neck": (0, 1),
    "wrist": (90, 1), "deviation": (0, 1), "either side": (0, 1), "knee": (None, 1),
}
# Angles beyond which the joint stands in another place, the same in all tools.
ROOM = {"trunk": (0, 45), "neck": (0, 45), "wrist": (-20, 20)}

# Picture, joint, least and most of its caption in degrees; None where the caption has no end. An
# elbow counts from the straight arm; captions of the CTD form count from the right angle.
ONE_SIDED = [
    ("ctd/deviation_radial_over_15", "deviation", None, -15),
    ("ctd/deviation_ulnar_over_15", "deviation", 15, None),
    ("ctd/flexion_over_35", "wrist", 35, None),
    ("ctd/extension_over_35", "wrist", None, -35),
    ("ctd/shoulder_flexion_right_20", "arm", 20, None),
    ("ctd/shoulder_flexion_right_45", "arm", 45, None),
    ("ctd/shoulder_flexion_right_90", "arm", 90, None),
    ("ctd/shoulder_abduction_right_30", "arm out", 30, None),
    ("ctd/shoulder_abduction_right_60", "arm out", 60, None),
    ("ctd/shoulder_abduction_right_90", "arm out", 90, None),
    ("ctd/elbow_right_flexion", "elbow", 90 + 10, None),
    ("ctd/elbow_right_extension", "elbow", None, 90 - 30),
    ("ctd/back_10", "trunk", 10, None),
    ("ctd/back_20", "trunk", 20, None),
    ("ctd/back_45", "trunk", 45, None),
    ("ctd/neck_30", "neck", 30, None),
    ("ctd/neck_45", "neck", 45, None),
    ("ctd/neck_60", "neck", 60, None),
    ("rula/ssribbon1_1", "arm", None, -20),
    ("rula/ssribbon1_4", "arm", 90, None),
    ("rula/ssribbon2_1", "elbow", 90, None),
    ("rula/ssribbon3_2", "wrist", None, -20),
    ("rula/ssribbon3_4", "wrist", 20, None),
    ("rula/ssribbon4_1", "neck", None, 0),
    ("rula/ssribbon4_3", "neck", 20, None),
    ("rula/ssribbon5_3", "trunk", 60, None),
    ("reba/ssribbon1_1", "arm", None, -20),
    ("reba/ssribbon1_4", "arm", 90, None),
    ("reba/ssribbon2_1", "elbow", 100, None),
    ("reba/ssribbon3_1", "wrist", 15, None),
    ("reba/ssribbon3_2", "wrist", None, -15),
    ("reba/ssribbon4_1", "neck", None, -20),
    ("reba/ssribbon4_2", "neck", 20, None),
    ("reba/ssribbon5_3", "trunk", 60, None),
    ("reba/ssribbon5_5", "trunk", None, -20),
    ("reba/ssribbon6_3", "knee", 60, None),
]
TWO_SIDED = [
    ("ctd/deviation_radial_5_15", "deviation", -15, -5),
    ("ctd/deviation_ulnar_5_15", "deviation", 5, 15),
    ("ctd/flexion_5_15", "wrist", 5, 15),
    ("ctd/extension_5_15", "wrist", -15, -5),
    ("rula/ssribbon1_0", "arm", -20, 20),
    ("rula/ssribbon1_2", "arm", 21, 45),
    ("rula/ssribbon1_3", "arm", 46, 90),
    ("rula/ssribbon2_0", "elbow", 0, 90),
    ("rula/ssribbon3_1", "wrist", -20, 0),
    ("rula/ssribbon3_3", "wrist", 0, 20),
    ("rula/ssribbon4_0", "neck", 0, 10),
    ("rula/ssribbon4_2", "neck", 11, 20),
    ("rula/ssribbon5_1", "trunk", 0, 20),
    ("rula/ssribbon5_2", "trunk", 21, 60),
    ("reba/ssribbon1_0", "arm", -20, 20),
    ("reba/ssribbon1_2", "arm", 21, 45),
    ("reba/ssribbon1_3", "arm", 46, 90),
    ("reba/ssribbon2_0", "elbow", 60, 100),
    ("reba/ssribbon2_2", "elbow", 0, 60),
    ("reba/ssribbon4_0", "neck", 0, 20),
    ("reba/ssribbon5_1", "trunk", 0, 20),
    ("reba/ssribbon5_2", "trunk", 21, 60),
    ("reba/ssribbon5_4", "trunk", -20, 0),
    ("reba/ssribbon6_2", "knee", 30, 60),
]
# No range; the angle itself, or None for any.
PLAIN = [
    ("ctd/deviation_neutral", "deviation", 0),
    ("ctd/flexion_neutral", "wrist", 0),
    ("ctd/shoulder_flexion_right_0", "arm", 0),
    ("ctd/shoulder_abduction_right_0", "arm out", 0),
    ("ctd/elbow_right_neutral", "elbow", 90),
    ("ctd/back_0", "trunk", 0),
    ("ctd/neck_0", "neck", 0),
    ("rula/ssribbon3_0", "wrist", 0),
    ("rula/ssribbon3_5", "either side", None),
    ("rula/ssribbon5_0", "trunk", 0),
    ("reba/ssribbon3_0", "wrist", 0),
    ("reba/ssribbon3_3", "either side", None),
    ("reba/ssribbon5_0", "trunk", 0),
]
# Where one caption "greater than" ends because the next begins.
STEPS = {
    "ctd/shoulder_flexion_right_20": 45, "ctd/shoulder_flexion_right_45": 90,
    "ctd/shoulder_abduction_right_30": 60, "ctd/shoulder_abduction_right_60": 90,
    "ctd/back_10": 20, "ctd/back_20": 45, "ctd/neck_30": 45, "ctd/neck_45": 60,
}


def points(path):
    numbers = [float(text) for text in re.findall(r"-?\d+(?:\.\d+)?", path)]
    return list(zip(numbers[::2], numbers[1::2]))


def direction(start, end):
    """Degrees from straight up, clockwise."""
    return math.degrees(math.atan2(end[0] - start[0], start[1] - end[1]))


def inside(point, outline):
    """Whether a point lies within a closed outline."""
    x, y = point
    crossings = 0
    for (ax, ay), (bx, by) in zip(outline, outline[1:] + outline[:1]):
        if (ay > y) != (by > y) and x < ax + (y - ay) * (bx - ax) / (by - ay):
            crossings += 1
    return crossings % 2 == 1


def turn(start, end):
    """From one direction to another, the short way."""
    return (end - start + 180) % 360 - 180


class Picture:
    """What a picture shows, read from its file alone."""

    def __init__(self, asset):
        self.text = (ASSETS / f"{asset}.svg").read_text(encoding="utf-8")

    def path(self, name):
        found = re.findall(rf'<path id="{name}" d="([^"]+)"', self.text)
        return points(found[0]) if len(found) == 1 else None

    @property
    def joint(self):
        return self.path("axis")[0]

    @property
    def reference(self):
        return direction(*self.path("reference"))

    @property
    def angle(self):
        """Of the moving segment's axis from the reference, clockwise positive."""
        return turn(self.reference, direction(*self.path("axis")))

    def reach_along_axis(self):
        """How far the moving segment goes from the joint, in the axis's direction."""
        start, end = self.path("axis")
        length = math.dist(start, end)
        unit = (end[0] - start[0]) / length, (end[1] - start[1]) / length
        return max((x - start[0]) * unit[0] + (y - start[1]) * unit[1]
                   for outline in self.moving() for x, y in outline)

    def moving(self):
        """Outlines of the moving segment."""
        groups = re.findall(r'<g fill="#082a84">(.*)</g>', self.text)
        return [points(data) for group in groups for data in re.findall(r' d="([^"]+)"', group)]

    def figure(self):
        """The solid parts, without lines and sectors."""
        return re.findall(r"<g fill=.*", self.text)


ALL = [(row[0], row[1]) for row in [*ONE_SIDED, *TWO_SIDED, *PLAIN]]


class PostureAngles(unittest.TestCase):
    def each(self, rows):
        for row in rows:
            yield (Picture(row[0]), *row)

    def from_reference(self, picture, joint, at):
        """The angle of a place as a caption counts it."""
        return JOINTS[joint][1] * turn(picture.reference, direction(picture.joint, at))

    def angle(self, picture, joint):
        return picture.angle * JOINTS[joint][1]

    def test_every_picture_with_an_axis_is_measured(self):
        drawn = {str(path.relative_to(ASSETS))[:-4] for path in ASSETS.glob("*/*.svg")
                 if 'id="axis"' in path.read_text(encoding="utf-8")}
        # The left side is the mirror image of the right; the crossing forearm has no angle.
        drawn = {name for name in drawn if "_left_" not in name} - {"rula/ssribbon2_2"}
        self.assertEqual(drawn, {asset for asset, _ in ALL})
        self.assertEqual(len(ALL), len(set(ALL)))

    def test_reference_is_that_of_the_joint(self):
        for picture, asset, joint in self.each(ALL):
            start, _ = picture.path("reference")
            self.assertLess(math.dist(start, picture.joint), 0.02, msg=asset)
            if JOINTS[joint][0] is not None:
                self.assertAlmostEqual(turn(picture.reference, JOINTS[joint][0]), 0, delta=0.1,
                                       msg=asset)

    def test_joint_stands_where_it_does_in_all_tools(self):
        places, heights = {}, {}
        for picture, asset, joint in self.each(ALL):
            if joint == "knee":
                continue
            # What bends far needs room on its side, and stands away from it.
            back, far = ROOM.get(joint, (-180, 180))
            angle = self.angle(picture, joint)
            side = -1 if angle < back - NEAR else 1 if angle > far + NEAR else 0
            place = places.setdefault((joint, side), picture.joint)
            self.assertLess(math.dist(place, picture.joint), 0.02, msg=asset)
            if joint != "wrist":
                height = heights.setdefault(joint, place[1])
                self.assertAlmostEqual(height, place[1], delta=0.02, msg=asset)
        self.assertEqual(len({joint for joint, _ in places}), len(JOINTS) - 1)
        self.assertEqual(len(places), len(JOINTS) - 1 + 2 * len(ROOM))

    def test_arc_goes_from_the_reference_to_the_axis(self):
        for picture, asset, joint in self.each(ALL):
            arc = picture.path("arc")
            if abs(picture.angle) < NEAR:
                self.assertIsNone(arc, msg=asset)
                continue
            start, end = arc[0], arc[-1]
            radius = math.dist(picture.joint, start)
            self.assertAlmostEqual(turn(picture.reference, direction(picture.joint, start)), 0,
                                   delta=NEAR, msg=asset)
            self.assertLessEqual(radius, math.dist(*picture.path("reference")) + 0.02, msg=asset)
            self.assertAlmostEqual(math.dist(picture.joint, end), radius, delta=0.05, msg=asset)
            self.assertAlmostEqual(turn(picture.reference, direction(picture.joint, end)),
                                   picture.angle, delta=NEAR, msg=asset)

    def test_axis_runs_through_the_moving_segment(self):
        for picture, asset, joint in self.each(ALL):
            shown = math.dist(*picture.path("axis"))
            reach = picture.reach_along_axis()
            self.assertGreaterEqual(shown, SPAN * reach, msg=asset)
            self.assertLessEqual(shown, reach + 0.1, msg=asset)
            (ax, ay), (bx, by) = picture.path("axis")
            for share in (0.3, 0.6, 0.9):
                at = ax + share * (bx - ax), ay + share * (by - ay)
                self.assertTrue(any(inside(at, each) for each in picture.moving()), msg=asset)

    def test_angle_is_the_one_of_the_title(self):
        for picture, asset, joint in self.each(ALL):
            named = re.search(r"<title>.*?(\d+) degrees", picture.text)
            if not named or asset.endswith("ssribbon1_0"):  # names its two limits
                continue
            from_neutral = 90 if asset.startswith("ctd/elbow") else 0
            self.assertAlmostEqual(abs(abs(picture.angle) - from_neutral), int(named.group(1)),
                                   delta=NEAR, msg=asset)

    def test_segment_is_clearly_beyond_a_single_limit(self):
        for picture, asset, joint, least, most in self.each(ONE_SIDED):
            angle = self.angle(picture, joint)
            beyond = angle - least if most is None else most - angle
            step = STEPS.get(asset, 180)
            if most is None and step - least <= NARROW:
                self.assertAlmostEqual(angle, (least + step) / 2, delta=MIDDLE, msg=asset)
            else:
                self.assertGreaterEqual(beyond, SEEN, msg=asset)
                self.assertGreaterEqual(step - angle, SEEN, msg=asset)

    def test_segment_stands_in_the_middle_of_its_range(self):
        for picture, asset, joint, least, most in self.each(TWO_SIDED):
            self.assertAlmostEqual(self.angle(picture, joint), (least + most) / 2, delta=MIDDLE,
                                   msg=asset)

    def test_sector_is_the_range(self):
        for picture, asset, joint, least, most in self.each(TWO_SIDED):
            _, start, *_, end = picture.path("sector")
            limits = sorted(self.from_reference(picture, joint, at) for at in (start, end))
            self.assertAlmostEqual(limits[0], least, delta=NEAR, msg=asset)
            self.assertAlmostEqual(limits[1], most, delta=NEAR, msg=asset)

    def test_open_sector_begins_at_the_limit_and_goes_beyond_the_segment(self):
        for picture, asset, joint, least, most in self.each(ONE_SIDED):
            _, start, *_, end = picture.path("sector")
            limits = sorted(self.from_reference(picture, joint, at) for at in (start, end))
            angle = self.angle(picture, joint)
            if most is None:
                self.assertAlmostEqual(limits[0], least, delta=NEAR, msg=asset)
                self.assertGreater(limits[1], angle + 4, msg=asset)
            else:
                self.assertAlmostEqual(limits[1], most, delta=NEAR, msg=asset)
                self.assertLess(limits[0], angle - 4, msg=asset)

    def test_limits_are_lines_to_the_rim_of_the_sector(self):
        for picture, asset, joint, least, most in self.each([*ONE_SIDED, *TWO_SIDED]):
            drawn = [name for name in ("near", "far") if picture.path(name)]
            # Zero is shown by the reference line, which a solid line would hide.
            named = [limit for limit in (least, most) if limit]
            self.assertEqual(len(drawn), len(named), msg=asset)
            rim = picture.path("sector")[1:]
            if 0 in (least, most):
                _, end = picture.path("reference")
                nearest = min(rim, key=lambda corner: math.dist(end, corner))
                self.assertLess(abs(turn(picture.reference, direction(picture.joint, nearest))),
                                NEAR, msg=asset)
                self.assertGreater(math.dist(picture.joint, end),
                                   math.dist(picture.joint, nearest) - 0.1, msg=asset)
            angles = []
            for name in drawn:
                style = re.search(rf'<path id="{name}"[^>]*>', picture.text).group()
                self.assertGreaterEqual(float(re.search(r'width="([\d.]+)"', style).group(1)), LINE)
                self.assertNotIn("dash", style, msg=asset)
                start, end = picture.path(name)
                angles.append(self.from_reference(picture, joint, end))
                self.assertAlmostEqual(self.from_reference(picture, joint, start), angles[-1],
                                       delta=NEAR, msg=asset)
                # Its outer end is on the outline of the sector.
                self.assertLess(min(math.dist(end, corner) for corner in rim), 0.1, msg=asset)
            for angle, limit in zip(sorted(angles), named):
                self.assertAlmostEqual(angle, limit, delta=NEAR, msg=asset)

    def test_an_open_sector_alone_has_a_rim_that_ends_in_an_arrow(self):
        for picture, asset, joint, least, most in self.each(TWO_SIDED):
            self.assertIsNone(picture.path("rim"), msg=asset)
            self.assertIsNone(picture.path("open"), msg=asset)
        for picture, asset, joint, least, most in self.each(ONE_SIDED):
            start, *_, end = picture.path("rim")
            first, last = (self.from_reference(picture, joint, at) for at in (start, end))
            limit, away = (most, -1) if least is None else (least, 1)
            self.assertAlmostEqual(first, limit, delta=NEAR, msg=asset)
            self.assertGreater(away * (last - limit), BEYOND, msg=asset)
            tip = picture.path("open")[0]
            self.assertGreater(away * (self.from_reference(picture, joint, tip) - limit), BEYOND,
                               msg=asset)

    def test_the_same_posture_is_the_same_drawing(self):
        drawings = {}
        for picture, asset, joint in self.each(ALL):
            if asset == "reba/ssribbon3_3":  # turned too
                continue
            key = joint, round(picture.angle)
            first = drawings.setdefault(key, picture.figure())
            self.assertEqual(first, picture.figure(), msg=asset)
        self.assertGreater(len(ALL) - len(drawings), 20)


if __name__ == "__main__":
    sys.exit(unittest.main())
