"""Outlines of the figure's parts and how long they are.

Lengths are body units: a hundred of them are about one body height. From the side the figure looks
to the right: x is forward, y is down. A limb's outline hangs down from its upper joint.
"""

from dataclasses import dataclass

SHOULDER = (-0.6, -26.4)  # joints, from the hip
NECK = (-0.2, -32.2)
UPPER_ARM, FOREARM, HAND = 17.0, 15.0, 10.5
THIGH, SHANK = 25.0, 23.5
SOLE = 2.6  # under the ankle
GROUND = THIGH + SHANK + SOLE  # under the hip of who stands

# From the hip.
SIDE_TRUNK = [
    (-3.4, -33), (1.4, -32.2), (5, -29), (7.4, -23), (7.2, -17), (6, -10), (5.9, -4),
    (4.6, 2), (0.6, 4), (-4, 2.4), (-5.4, -3), (-4.7, -9), (-6.2, -16), (-7.8, -23), (-6.8, -29.6),
]
SIDE_PELVIS = [
    (-4.4, -6.4), (0.6, -5.4), (5.4, -6.2), (6.2, -1), (5.9, 4), (4, 9), (-2, 10), (-6, 7.4),
    (-8, 3), (-7.6, -1.6), (-5.6, -4.6),
]
# From the neck's joint, face and skull in one; the neck is drawn between it and the trunk.
SIDE_HEAD = [
    (1.6, -19.8), (5.8, -18.8), (8, -15.8), (8.1, -13.2), (10.5, -9.7), (10, -8.7), (8.5, -8.4),
    (9, -6.7), (8.3, -3.4), (5.4, -2.8), (2.6, -4.6), (-1.4, -5.2), (-4.8, -7.6), (-6.2, -12.2),
    (-4, -17.6),
]
SIDE_JAW = [(8.3, -3.4), (5.4, -2.8), (2.6, -4.6), (-0.6, -5.6)]
SIDE_CAP = [  # its peak tells at button size which way a figure looks
    (-6.6, -12.4), (-6, -17), (-2, -20.6), (3, -21), (6.8, -19.2), (8.8, -16.6), (15.6, -15.6),
    (16.2, -13.6), (8.8, -13.2), (2, -13),
]

# Where the way that a mirrored figure looks must be told at button size: nose and chin stand out,
# and the peak is long and off the nose.
CLEAR_HEAD = [
    (1.6, -19.8), (5.8, -18.8), (8.2, -15.8), (8.3, -13), (12, -9.8), (12.4, -8.6), (11.3, -7.9),
    (9.4, -7.3), (9.6, -6), (9.2, -4.9), (10.3, -3.3), (9, -1.6), (5.6, -1.9), (2.6, -4.2),
    (-1.4, -5.2), (-4.8, -7.6), (-6.2, -12.2), (-4, -17.6),
]
CLEAR_JAW = [(9, -1.6), (5.6, -1.9), (2.6, -4.2), (-0.6, -5.6)]
CLEAR_CAP = [
    (-6.6, -12.4), (-6, -17), (-2, -20.6), (3, -21), (6.8, -19.4), (9.2, -17.2), (18.6, -17),
    (20, -15.4), (18.8, -14.2), (9.2, -13.9), (2, -13),
]


@dataclass(frozen=True)
class Profile:
    """Outlines of a head from the side."""

    head: list
    jaw: list
    cap: list


PLAIN = Profile(SIDE_HEAD, SIDE_JAW, SIDE_CAP)
CLEAR = Profile(CLEAR_HEAD, CLEAR_JAW, CLEAR_CAP)
# Below the cap: the dark back of a head tells at button size which way a figure looks.
SIDE_HAIR = [(-6.4, -13.2), (-6.4, -10), (-5.6, -7.4), (-3.2, -6), (-3.6, -9), (-2.6, -13.2)]
SIDE_EYE = [(5.2, -11.4), (6.9, -11.2)]
SIDE_EAR = [(-1.2, -7.8), (-2.6, -8.4), (-3.4, -10.8), (-2.4, -12.2), (-1, -11.4)]
THROAT, NAPE = (2.6, -31), (-5.2, -30.6)  # where the neck grows from the trunk
JAW, OCCIPUT = (3.2, -5.8), (-4.6, -8.2)  # and where it meets the head
CREST = (-4.9, -10.4)  # where its back meets the head that is bent far forward

SIDE_UPPER_ARM = [
    (0, -4.3), (3.1, -3.3), (4.6, 0), (4.3, 6), (3.7, 12), (3.3, 17), (2.2, 19.6), (-2.2, 19.6),
    (-3.3, 17), (-3.8, 12), (-4.4, 6), (-4.6, 0), (-3.1, -3.3),
]
SIDE_FOREARM = [
    (0, -3.3), (2.8, -1.8), (3.7, 2.6), (3.4, 7.5), (2.4, 13), (2, 16), (-2, 16), (-2.5, 12),
    (-3.3, 7), (-3.6, 2.6), (-2.8, -1.8),
]
SIDE_HAND = [  # thumb in front
    (-1.9, -1), (1.9, -1), (2.8, 0.8), (3.9, 2.6), (4.6, 4.8), (4.5, 6.4), (3.6, 6.6), (2.7, 4.8),
    (2.9, 7.2), (2.3, 9.8), (0.6, 11), (-1.4, 10.3), (-2.5, 7), (-2.7, 3),
]
SIDE_THIGH = [
    (0, -5.6), (4.6, -3.6), (6, 1), (5.6, 9), (4.6, 18), (4, 24), (3.2, 27.4), (-2.4, 27.4),
    (-3.4, 24), (-4, 18), (-5.4, 9), (-6.6, 1.5), (-5, -3.6),
]
SIDE_SHANK = [
    (0, -3.8), (3, -2.4), (2.7, 2), (2.1, 8), (1.6, 16), (1.5, 24.4), (-1.5, 24.4), (-1.8, 17),
    (-2.9, 10), (-3.2, 6), (-2.9, 1), (-2.7, -2.2),
]
SIDE_FOOT = [  # from the ankle
    (-1.9, -3), (-2.6, -0.6), (-3.4, 1), (-3, 2.6), (8.4, 2.6), (8.8, 1.5), (7, 0.4), (4, -0.8),
    (1.9, -3.4),
]

# From the front, from the hip; the right half, mirrored for the left.
FRONT_TRUNK = [
    (0, -32.6), (3.2, -32), (6.4, -30.4), (10.6, -29.4), (12.4, -26), (10.8, -20), (9, -13),
    (8.3, -7), (9.3, -1), (9.4, 3), (4.4, 4.6), (0, 3.4),
]
# Height of each piece of the spine, and half its width.
VERTEBRAE = [(-36 + 4.1 * i, 0.7 + 0.16 * i) for i in range(9)]
FRONT_SHOULDER = (11.4, -27)
FRONT_HEAD = [  # from the neck's joint
    (0, -20.6), (4.2, -19.4), (6.1, -15.8), (6, -13.4), (6.9, -12.8), (6.5, -10), (5.5, -9.8),
    (4.2, -5.6), (1.9, -3.5), (0, -3.1),
]
FRONT_CAP = [
    (0, -21.4), (4.4, -20.2), (6.5, -16.4), (7.8, -14.2), (5, -13.6), (0, -13),
]
PEAKED_CAP = [  # with a peak towards the reader
    (0, -21.4), (4.4, -20.2), (6.5, -16.4), (8.4, -13.6), (7.4, -11.8), (4.4, -12.4), (0, -12.2),
]
PEAK_ROOT = [(-6.6, -15), (-3.4, -15.8), (0, -16), (3.4, -15.8), (6.6, -15)]
COLLAR = [(-4.6, 1.2), (0, 8.4), (4.6, 1.2)]
FRONT_NECK = [(0, -9), (3.5, -9), (3.4, -2), (6.4, 2.6), (0, 3.4)]
FRONT_LEG = [
    (0.5, 3), (1, -2), (8.6, -3), (9.4, 2), (8.9, 9), (7.6, 18), (6.6, 25), (7.1, 30), (6.7, 35),
    (5.2, 43), (4.8, 46.5), (6.6, 49), (6.8, 51.1), (2.2, 51.1), (1.6, 49.6), (2.2, 46.4),
    (1.9, 41), (1.4, 34), (1.9, 27), (1.5, 18), (0.8, 9),
]
# A leg that is off the ground, its knee towards the reader.
FRONT_RAISED_THIGH = [
    (0.5, 3), (1, -2), (8.6, -3), (9.8, 2), (10.8, 7), (11.2, 12), (10.6, 15.6), (8, 17.4),
    (5.2, 16.4), (4, 13), (2.4, 8),
]
FRONT_RAISED_SHANK = [
    (4.9, 13), (10.9, 13), (11.4, 17), (10.9, 21), (9.6, 27), (9.6, 30), (11.8, 33.6), (12.2, 37.6),
    (10.2, 39.4), (6.8, 38.6), (5.8, 34.6), (6.9, 30), (6.3, 26), (5, 21), (4.6, 17),
]
