"""The printed force scale of the Hand Activity Level form.

Its ticks and words are a second copy of the form's own; a test compares the two.
"""

from pictures.chart import BAR, GRID, Chart
from pictures.svg import number

# First and last position, words. Neighbours would run into each other on one line, so the words
# of some stand lower.
UPPER, LOWER = 0, 1
FORCE_WORDS = [
    (0, 0, UPPER, ["Nothing", "At All"]),
    (1, 1, LOWER, ["Very Weak"]),
    (2, 2, UPPER, ["Weak", "(Light)"]),
    (3, 3, LOWER, ["Moderate"]),
    (5, 5, UPPER, ["Strong", "(Heavy)"]),
    (7, 7, UPPER, ["Very", "Strong"]),
    (9, 10, UPPER, ["Extremely Strong", "(Almost max.)"]),
]
HIGHEST = 10


def _tick(position):
    """The label of a tick: the ends have no decimal."""
    return str(position) if position in (0, HIGHEST) else f"{position:.1f}"


def hal_force(title):
    """The Borg scale: a line with ticks, their words, and a wedge that grows with the force."""
    described = ", ".join(
        f"{_tick(first)}{' to ' + _tick(last) if last > first else ''}: {' '.join(lines)}"
        for first, last, _, lines in FORCE_WORDS
    )
    chart = Chart(title, f"A scale of force from 0 to 10. {described}.", 440, 88, heading=False)
    left, spacing, line = 30, 37, 22

    def at(position):
        return left + spacing * position

    chart.filled(f"M{number(at(0))} {line}H{number(at(HIGHEST))}V{line - 14}Z", BAR)
    chart.rule(at(0), line, at(HIGHEST), line, width=1.5)
    for position in range(HIGHEST + 1):
        chart.rule(at(position), line, at(position), line + 5)
        chart.words(at(position), line + 17, _tick(position), 11)
    for first, last, level, lines in FORCE_WORDS:
        middle = (at(first) + at(last)) / 2
        if last > first:
            chart.rule(at(first) - 10, line + 21, at(last) + 10, line + 21)
        if level == LOWER:
            chart.rule(middle, line + 21, middle, line + 46, GRID)
        for row, words in enumerate(lines):
            chart.words(middle, line + 33 + 12 * row + 24 * level, words, 11)
    return chart
