"""The charts that end the reports of OCRA, CTD and Strain Index, and the tree's task icon.

Their numbers and words are a second copy of what the program computes and reports; tests compare
the two.
"""

from pictures.chart import (
    BAR,
    GREEN,
    GRID,
    INK,
    ORANGE,
    PALE_YELLOW,
    RED,
    TINT,
    YELLOW,
    YELLOW_GREEN,
    Chart,
)
from pictures.figure import TRUNK_SIDE, Pose, SideFigure
from pictures.hand import forearm_up, hand_above
from pictures.inks import SIGN_ACCENT, SIGN_FIGURE
from pictures.svg import Drawing, Frame, number

WIDTH = 494  # logical pixels, of every chart
# The two of the OCRA report stand side by side in a wide pane.
OCRA_HEIGHT = 296

# First and last index of the zone on the scale, colour, name, the index in words, risk level of
# the report and what the report adds. The report names no zone between 3.9 and 4.0.
OCRA_ZONES = [
    (0.0, 1.0, GREEN, "Green", "up to 1.0", "ABSENT", ""),
    (1.0, 2.0, YELLOW_GREEN, "Yellow/Green", "over 1.0, up to 2.0", "NEGLIGIBLE",
     "predicted disorders similar to reference groups"),
    (2.0, 3.9, YELLOW, "Yellow", "over 2.0, up to 3.9", "SLIGHT",
     "slight excess of disorders predicted (up to 3 times)"),
    (4.0, 5.2, RED, "Red", "4.0 and over", "PRESENT",
     "significant excess of disorders predicted"),
]


def _zone_scale(chart):
    left, unit, top, height = 18, 88, 44, 32

    def at(index):
        return left + index * unit

    for low, high, colour, zone, *_ in OCRA_ZONES:
        if high > 4:
            # The last zone has no upper end.
            tip = at(high)
            chart.filled(
                f"M{number(at(low))} {top}H{number(tip - 14)}V{top - 6}L{number(tip + 4)} "
                f"{number(top + height / 2)}L{number(tip - 14)} {top + height + 6}V{top + height}"
                f"H{number(at(low))}Z", colour, outlined=True)
        else:
            chart.box(at(low), top, at(high) - at(low), height, colour)
        chart.words((at(low) + min(at(high), at(5))) / 2, top + 20, zone, 11)
    for tick, anchor, shift in ((0, "middle", 0), (1, "middle", 0), (2, "middle", 0),
                                (3.9, "end", 2), (4, "start", -2)):
        chart.rule(at(tick), top + height, at(tick), top + height + 5)
        chart.words(at(tick) + shift, top + height + 17, f"{tick:.1f}", 11, anchor=anchor)


def ocra_zones(title):
    """The scale of the OCRA index, and its zones with what they mean."""
    described = " ".join(
        f"{zone}: {index}, risk level {risk}{', ' + words if words else ''}."
        for _, _, _, zone, index, risk, words in OCRA_ZONES
    )
    chart = Chart(title, described, WIDTH, OCRA_HEIGHT)
    _zone_scale(chart)
    index_at, zone_at, risk_at = 42, 176, 280
    for x, heading in ((index_at, "Index"), (zone_at, "Zone"), (risk_at, "Risk level")):
        chart.words(x, 120, heading, 11, anchor="start")
    chart.rule(18, 126, WIDTH - 18, 126, GRID)
    for row, (_, _, colour, zone, index, risk, words) in enumerate(OCRA_ZONES):
        y = 143 + 33 * row
        chart.box(18, y - 11, 15, 26, colour)
        chart.words(index_at, y, index, 12, anchor="start")
        chart.words(zone_at, y, zone, 12, bold=True, anchor="start")
        chart.words(risk_at, y, risk, 12, bold=True, anchor="start")
        if words:
            chart.words(zone_at, y + 15, words, 11, anchor="start")
    chart.rule(18, 265, WIDTH - 18, 265, GRID)
    chart.words(18, 281, "Disorders: Work-related Musculoskeletal Disorders. "
                         "Between 3.9 and 4.0 lies no zone.", 10, anchor="start")
    return chart


OCRA_REFERENCE_ACTIONS = 30  # a minute
# Force rating, multiplier; the first row counts for all ratings up to it.
FORCE = [(0.5, 1.0), (1.0, 0.85), (1.5, 0.75), (2.0, 0.65), (2.5, 0.55), (3.0, 0.45),
         (3.5, 0.35), (4.0, 0.2), (4.5, 0.1), (5.0, 0.01)]
# Hours, multiplier.
RECOVERY = [(0, 1.0), (1, 0.9), (2, 0.8), (3, 0.7), (4, 0.6), (5, 0.45), (6, 0.25), (7, 0.1),
            (8, 0.0)]


def _force_label(rating):
    return f"\u2264{rating:.1f}" if rating == FORCE[0][0] else f"{rating:.1f}"


def _bars(chart, left, width, heading, axis, rows, label):
    base, tall = 228, 150
    middle = left + width / 2
    chart.words(middle, 50, heading, 13, bold=True)
    slot = width / len(rows)
    for i, (value, multiplier) in enumerate(rows):
        x = left + slot * i
        chart.box(x + 2, base - tall * multiplier, slot - 4, tall * multiplier, BAR)
        chart.words(x + slot / 2, base - tall * multiplier - 4, f"{multiplier:g}", 10)
        chart.words(x + slot / 2, base + 14, label(value), 10)
    chart.rule(left, base, left + width, base)
    chart.words(middle, base + 32, axis, 11)


def ocra_multipliers(title):
    """Force and recovery multipliers side by side."""
    force = ", ".join(f"{_force_label(rating)}: {multiplier:g}" for rating, multiplier in FORCE)
    recovery = ", ".join(f"{hours}: {multiplier:g}" for hours, multiplier in RECOVERY)
    chart = Chart(
        title,
        f"Two bar charts. Force multiplier by force rating: {force}. "
        f"Recovery multiplier by hours without adequate recovery: {recovery}.",
        WIDTH, OCRA_HEIGHT)
    _bars(chart, 10, 242, "Force multiplier", "force rating", FORCE, _force_label)
    _bars(chart, 266, 220, "Recovery multiplier", "hours without adequate recovery", RECOVERY,
          str)
    chart.words(WIDTH / 2, 282,
                f"Recommended actions = {OCRA_REFERENCE_ACTIONS} \u00d7 task minutes "
                "\u00d7 force \u00d7 posture \u00d7 recovery multiplier", 11)
    return chart


FORCE_WEIGHT, POSTURE_WEIGHT = 2.004, 3.18
FORCE_DIVISOR = 10000
# Factor, its weight in the score, and what it is.
CTD_FACTORS = [
    ("Force Frequency Factor", FORCE_WEIGHT,
     [f"all tasks: repetitions a shift \u00f7 {FORCE_DIVISOR:,},",
      "raised where the force needed is",
      "above the allowable force"]),
    ("Posture Factor", POSTURE_WEIGHT,
     ["worst task: mean of the eight scores of",
      "shoulders, elbows, back and neck",
      "(posture, load held, duration)"]),
]


def _hand_and_wrist(drawing):
    wrist = (28, 40.5)
    forearm_up(drawing, wrist)
    hand_above(drawing, Frame(wrist, 1.06, 14))


def _body_posture(drawing):
    SideFigure(Pose(trunk=33, neck=-8, arm=6, elbow=12), TRUNK_SIDE).draw_trunk(drawing)


def ctd_report(title):
    """How the two factors of the CTD model make the Grand Score."""
    formula = (f"Grand Score = {FORCE_WEIGHT:g} \u00d7 Force Frequency Factor "
               f"+ {POSTURE_WEIGHT:g} \u00d7 Posture Factor")
    chart = Chart(title, f"{formula}: the predicted incidence rate per 200,000 worked hours.",
                  WIDTH, 292)
    right = 334  # end of the factor boxes
    for i, ((name, weight, lines), picture) in enumerate(
        zip(CTD_FACTORS, (_hand_and_wrist, _body_posture))
    ):
        top = 44 + i * 112
        chart.box(10, top, right - 10, 102, "#ffffff", GRID, 6)
        chart.inset(12, top + 8, 1.5, picture)
        chart.words(100, top + 22, name, 13, bold=True, anchor="start")
        for row, line in enumerate(lines):
            chart.words(100, top + 40 + 15 * row, line, 11, anchor="start")
        chart.words(100, top + 92, f"\u00d7 {weight:g}", 14, bold=True, anchor="start")
        chart.rule(right, top + 51, right + 14, top + 51, SIGN_ACCENT, 2)
    middle, join = 151, right + 14
    chart.rule(join, 95, join, 207, SIGN_ACCENT, 2)
    chart.rule(join, middle, join + 16, middle, SIGN_ACCENT, 2)
    chart.filled(f"M{join + 14} {middle - 6}L{join + 24} {middle}L{join + 14} {middle + 6}Z",
                 SIGN_ACCENT)
    chart.raw(f'<circle cx="{join}" cy="{middle}" r="9" fill="{SIGN_ACCENT}"/>')
    chart.raw(f'<path d="M{join - 5} {middle}H{join + 5}M{join} {middle - 5}V{middle + 5}" '
              f'fill="none" stroke="#ffffff" stroke-width="2"/>')
    chart.box(join + 26, 82, 112, 138, TINT, SIGN_ACCENT, 6)
    centre = join + 26 + 56
    chart.words(centre, 106, "Grand Score", 15, bold=True)
    for row, words in enumerate(["predicted", "incidence rate", "per 200,000", "worked hours"]):
        chart.words(centre, 127 + 16 * row, words, 12)
    for row, words in enumerate(["(100 people,", "2,000 hours each)"]):
        chart.words(centre, 195 + 14 * row, words, 10)
    chart.words(WIDTH / 2, 280, formula, 11)
    return chart


# Score at the top of the bar, colour, band, risk level of the report, what its note adds.
SI_BANDS = [
    (3, GREEN, "up to 3", "Low risk", "probably safe"),
    (5, PALE_YELLOW, "above 3, below 5", "Low risk", ""),
    (7, ORANGE, "5 to below 7", "Moderate risk", ""),
    (9, RED, "7 and above", "High risk", "probably hazardous"),
]


def strain_index_risk(title):
    """Score bands of the Strain Index and what they mean: four bars rising from left to right."""
    left, right, top, baseline, bar = 42, 486, 44, 218, 82

    def height_of(score):
        return round(baseline - (baseline - top) * score / SI_BANDS[-1][0], 1)

    described = " ".join(
        f"{band[0].upper()}{band[1:]}: {risk.lower()}{', ' + note if note else ''}."
        for _, _, band, risk, note in SI_BANDS
    )
    chart = Chart(title, f"Four bars rising from left to right. Score {described[0].lower()}"
                         f"{described[1:]}", WIDTH, 292)
    # A line at each score where a band ends, and the number of the score beside it.
    for score in (0, 3, 5, 7):
        if score > 0:
            chart.rule(left, height_of(score), right, height_of(score), GRID, dashed=True)
        chart.words(left - 6, height_of(score) + 4, score, anchor="end")
    slot = (right - left) / len(SI_BANDS)
    for column, (score, colour, band, risk, note) in enumerate(SI_BANDS):
        middle, y = left + slot * (column + 0.5), height_of(score)
        chart.box(middle - bar / 2, y, bar, baseline - y, colour)
        chart.words(middle, baseline + 17, band)
        chart.words(middle, baseline + 35, risk, bold=True)
        if note:
            chart.words(middle, baseline + 52, note, 11)
    # The last band has no upper end.
    chart.filled(f"M{number(middle)} {top + 10} l9 14 h-6 v16 h-6 v-16 h-6 z", INK)
    chart.rule(left, top - 6, left, baseline)
    chart.rule(left, baseline, right, baseline)
    chart.words(16, (top + baseline) / 2, "Score", turn=-90)
    return chart


def task_icon(title):
    """A task sheet on its board, small enough for a line of a tree."""
    icon = Drawing(title, 16, 16)
    icon.raw(f'<rect x="2.5" y="2.5" width="11" height="13" rx="1.4" fill="{SIGN_FIGURE}"/>')
    icon.raw('<rect x="4" y="4.5" width="8" height="9.5" fill="#ffffff"/>')
    icon.raw(f'<rect x="5.5" y="0.8" width="5" height="3.4" rx="1" fill="{SIGN_ACCENT}"/>')
    for y in (6.5, 9, 11.5):
        icon.raw(f'<rect x="5.2" y="{y - 0.5}" width="{5.6 if y < 11 else 3.6}" height="1" '
                 f'fill="{SIGN_ACCENT}"/>')
    return icon
