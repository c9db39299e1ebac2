"""Every picture: asset name, kind of drawing, its angles, title.

An asset name with "{side}" stands for two files: the right side, and the left one as its mirror
image. Where a caption names a range, the angle lies well inside it, so that neighbours in a row
of buttons differ at a glance. Angles are those of `postures.py` and `hand.py`, which put them
where "{}" stands in a title.
"""

from pictures import charts, grip, hand, icon, open_hand, symbols
from pictures.either_side import to_either_side
from pictures.postures import (
    front_arm,
    front_forearm,
    part_arm_forward,
    part_arms_sideways,
    part_elbow,
    part_neck_and_back,
    side_arm,
    side_elbow,
    side_knees,
    side_neck,
    side_trunk,
    stance,
)
from pictures.protractor import Range

# asset, kind, arguments, title
CTD = [
    ("ctd/grip_power", grip.power, (), "Power grip"),
    ("ctd/grip_lateral_pinch", grip.lateral_pinch, (), "Lateral pinch"),
    ("ctd/grip_chuck_pinch", grip.chuck_pinch, (), "Chuck pinch"),
    ("ctd/grip_two_point_pinch", grip.two_point_pinch, (), "Two-point pinch"),
    ("ctd/wrist_neutral", hand.turned, ("edge",), "Forearm in mid-position"),
    ("ctd/wrist_pronation", hand.turned, ("back",), "Forearm pronated"),
    ("ctd/wrist_supination", hand.turned, ("palm",), "Forearm supinated"),
    ("ctd/deviation_neutral", hand.from_above, (0,), "Hand straight"),
    ("ctd/deviation_radial_over_15", hand.from_above, (-22, Range(-15)),
     "Radial deviation, {} degrees"),
    ("ctd/deviation_radial_5_15", hand.from_above, (-10, Range(-5, -15)),
     "Radial deviation, {} degrees"),
    ("ctd/deviation_ulnar_over_15", hand.from_above, (22, Range(15)),
     "Ulnar deviation, {} degrees"),
    ("ctd/deviation_ulnar_5_15", hand.from_above, (10, Range(5, 15)),
     "Ulnar deviation, {} degrees"),
    ("ctd/flexion_neutral", hand.from_side, (0,), "Wrist straight"),
    ("ctd/flexion_over_35", hand.from_side, (57, Range(35)), "Wrist flexed, {} degrees"),
    ("ctd/flexion_5_15", hand.from_side, (10, Range(5, 15)), "Wrist flexed, {} degrees"),
    ("ctd/extension_over_35", hand.from_side, (-57, Range(-35)), "Wrist extended, {} degrees"),
    ("ctd/extension_5_15", hand.from_side, (-10, Range(-5, -15)), "Wrist extended, {} degrees"),
    ("ctd/shoulder_flexion_{side}_0", side_arm, (0,), "Arm hanging"),
    ("ctd/shoulder_flexion_{side}_20", side_arm, (33, Range(20)), "Arm forward, {} degrees"),
    ("ctd/shoulder_flexion_{side}_45", side_arm, (68, Range(45)), "Arm forward, {} degrees"),
    ("ctd/shoulder_flexion_{side}_90", side_arm, (115, Range(90)), "Arm forward, {} degrees"),
    ("ctd/shoulder_abduction_{side}_0", front_arm, (0,), "Arm hanging"),
    ("ctd/shoulder_abduction_{side}_30", front_arm, (45, Range(30)), "Arm out, {} degrees"),
    ("ctd/shoulder_abduction_{side}_60", front_arm, (75, Range(60)), "Arm out, {} degrees"),
    ("ctd/shoulder_abduction_{side}_90", front_arm, (115, Range(90)), "Arm out, {} degrees"),
    # Neutral is the elbow at a right angle, from which captions and titles count; the picture
    # counts from the straight arm, as those of all tools do.
    ("ctd/elbow_{side}_neutral", side_elbow, (90, None, 90), "Forearm level"),
    ("ctd/elbow_{side}_flexion", side_elbow, (122, Range(100), 90), "Forearm {} degrees up"),
    ("ctd/elbow_{side}_extension", side_elbow, (40, Range(60), 90), "Forearm {} degrees down"),
    ("ctd/back_0", side_trunk, (0,), "Back upright"),
    ("ctd/back_10", side_trunk, (15, Range(10)), "Back bent, {} degrees"),
    ("ctd/back_20", side_trunk, (33, Range(20)), "Back bent, {} degrees"),
    ("ctd/back_45", side_trunk, (60, Range(45)), "Back bent, {} degrees"),
    ("ctd/neck_0", side_neck, (0,), "Neck upright"),
    ("ctd/neck_30", side_neck, (38, Range(30)), "Neck bent, {} degrees"),
    ("ctd/neck_45", side_neck, (53, Range(45)), "Neck bent, {} degrees"),
    ("ctd/neck_60", side_neck, (67, Range(60)), "Neck bent, {} degrees"),
    ("ctd/part_shoulder_flexion", part_arm_forward, (), "Shoulder flexion and extension"),
    ("ctd/part_shoulder_abduction", part_arms_sideways, (), "Shoulder abduction"),
    ("ctd/part_elbow", part_elbow, (), "Elbow flexion and extension"),
    ("ctd/part_neck_back", part_neck_and_back, (), "Neck and back"),
    ("ctd/task", charts.task_icon, (), "Task"),
    ("ctd/report", charts.ctd_report, (), "From two factors to the Grand Score"),
]

OCRA = [
    ("ocra/zones", charts.ocra_zones, (), "Zones of the OCRA index"),
    ("ocra/multipliers", charts.ocra_multipliers, (), "Force and recovery multipliers"),
]

RULA = [
    ("rula/ssribbon1_0", side_arm, (0, Range(-20, 20)), "Upper arm, {} to {} degrees"),
    ("rula/ssribbon1_1", side_arm, (-35, Range(-20)), "Upper arm back, {} degrees"),
    ("rula/ssribbon1_2", side_arm, (33, Range(21, 45)), "Upper arm forward, {} degrees"),
    ("rula/ssribbon1_3", side_arm, (68, Range(46, 90)), "Upper arm forward, {} degrees"),
    ("rula/ssribbon1_4", side_arm, (115, Range(90)), "Upper arm forward, {} degrees"),
    ("rula/ssribbon2_0", side_elbow, (45, Range(0, 90)), "Elbow bent, {} degrees"),
    ("rula/ssribbon2_1", side_elbow, (122, Range(90)), "Elbow bent, {} degrees"),
    ("rula/ssribbon2_2", front_forearm, (76,), "Forearm across the middle"),
    ("rula/ssribbon3_0", hand.from_side, (0,), "Wrist straight"),
    ("rula/ssribbon3_1", hand.from_side, (-10, Range(0, -20)), "Wrist extended, {} degrees"),
    ("rula/ssribbon3_2", hand.from_side, (-40, Range(-20)), "Wrist extended, {} degrees"),
    ("rula/ssribbon3_3", hand.from_side, (10, Range(0, 20)), "Wrist flexed, {} degrees"),
    ("rula/ssribbon3_4", hand.from_side, (40, Range(20)), "Wrist flexed, {} degrees"),
    ("rula/ssribbon3_5", to_either_side, (20,), "Hand bent sideways, {} degrees"),
    ("rula/ssribbon4_0", side_neck, (5, Range(0, 10)), "Neck bent, {} degrees"),
    ("rula/ssribbon4_1", side_neck, (-30, Range(0)), "Neck bent back, {} degrees"),
    ("rula/ssribbon4_2", side_neck, (16, Range(11, 20)), "Neck bent, {} degrees"),
    ("rula/ssribbon4_3", side_neck, (40, Range(20)), "Neck bent, {} degrees"),
    ("rula/ssribbon5_0", side_trunk, (0,), "Trunk upright"),
    ("rula/ssribbon5_1", side_trunk, (10, Range(0, 20)), "Trunk bent, {} degrees"),
    ("rula/ssribbon5_2", side_trunk, (40, Range(21, 60)), "Trunk bent, {} degrees"),
    ("rula/ssribbon5_3", side_trunk, (75, Range(60)), "Trunk bent, {} degrees"),
]

REBA = [
    ("reba/ssribbon1_0", side_arm, (0, Range(-20, 20)), "Upper arm, {} to {} degrees"),
    ("reba/ssribbon1_1", side_arm, (-35, Range(-20)), "Upper arm back, {} degrees"),
    ("reba/ssribbon1_2", side_arm, (33, Range(21, 45)), "Upper arm forward, {} degrees"),
    ("reba/ssribbon1_3", side_arm, (68, Range(46, 90)), "Upper arm forward, {} degrees"),
    ("reba/ssribbon1_4", side_arm, (115, Range(90)), "Upper arm forward, {} degrees"),
    ("reba/ssribbon2_0", side_elbow, (80, Range(60, 100)), "Elbow bent, {} degrees"),
    ("reba/ssribbon2_1", side_elbow, (122, Range(100)), "Elbow bent, {} degrees"),
    ("reba/ssribbon2_2", side_elbow, (30, Range(0, 60)), "Elbow bent, {} degrees"),
    ("reba/ssribbon3_0", hand.from_side, (0,), "Wrist straight"),
    ("reba/ssribbon3_1", hand.from_side, (35, Range(15)), "Wrist flexed, {} degrees"),
    ("reba/ssribbon3_2", hand.from_side, (-35, Range(-15)), "Wrist extended, {} degrees"),
    ("reba/ssribbon3_3", to_either_side, (20, True), "Hand bent sideways or turned"),
    ("reba/ssribbon4_0", side_neck, (10, Range(0, 20)), "Neck bent, {} degrees"),
    ("reba/ssribbon4_1", side_neck, (-36, Range(-20)), "Neck bent back, {} degrees"),
    ("reba/ssribbon4_2", side_neck, (40, Range(20)), "Neck bent, {} degrees"),
    ("reba/ssribbon5_0", side_trunk, (0,), "Trunk upright"),
    ("reba/ssribbon5_1", side_trunk, (10, Range(0, 20)), "Trunk bent, {} degrees"),
    ("reba/ssribbon5_2", side_trunk, (40, Range(21, 60)), "Trunk bent, {} degrees"),
    ("reba/ssribbon5_3", side_trunk, (75, Range(60)), "Trunk bent, {} degrees"),
    ("reba/ssribbon5_4", side_trunk, (-10, Range(-20, 0)), "Trunk bent back, {} degrees"),
    ("reba/ssribbon5_5", side_trunk, (-29, Range(-20)), "Trunk bent back, {} degrees"),
    ("reba/ssribbon6_0", stance, (False,), "Weight on both legs"),
    ("reba/ssribbon6_1", stance, (True,), "Weight on one leg"),
    ("reba/ssribbon6_2", side_knees, (45, Range(30, 60)), "Knees bent, {} degrees"),
    ("reba/ssribbon6_3", side_knees, (85, Range(60)), "Knees bent, {} degrees"),
]


STRAIN_INDEX = [
    ("strain_index/risk_chart", charts.strain_index_risk, (), "Strain Index score and risk"),
]

MAIN_WINDOW = [
    ("main_window/hand", open_hand.open_hand, (), "Open right hand"),
    ("main_window/file", symbols.written_page, (), "File"),
    ("main_window/help", symbols.question_mark, (), "Help"),
    ("main_window/close", symbols.cross, (), "Close"),
    ("main_window/minimize", symbols.low_bar, (), "Minimize"),
]

ICONS = [
    ("icon/hicolor/scalable/apps/halvane-tools", icon.large, (), "Halvane Tools"),
    ("icon/hicolor/scalable/mimetypes/application-x-halvane-job", icon.job_file, (), "Job file"),
    *((f"icon/small/halvane-tools-{size}", icon.small, (size,), "Halvane Tools")
      for size in icon.SMALL),
    *((f"icon/small/application-x-halvane-job-{size}", icon.small_job_file, (size,), "Job file")
      for size in icon.SMALL_JOB),
]


def pictures():
    """Yields (asset name, document) of every picture."""
    for asset, kind, arguments, title in [*CTD, *OCRA, *STRAIN_INDEX, *RULA, *REBA,
                                           *MAIN_WINDOW, *ICONS]:
        if "{side}" in asset:
            for side in ("right", "left"):
                drawing = kind(f"{title}, {side}", *arguments, mirrored=side == "left")
                yield asset.format(side=side), drawing.text()
        else:
            yield asset, kind(title, *arguments).text()
