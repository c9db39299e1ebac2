#!/usr/bin/env python3
"""Draws the chart that ends the Strain Index report: score bands and what they mean.

Usage: make_risk_chart.py > assets/strain_index/risk_chart.svg

Only features of SVG Tiny are used, since the desktop program renders no more than that.
"""

import sys

WIDTH, HEIGHT = 494, 292  # logical pixels
LEFT, RIGHT = 42, 486  # of the plot
TOP, BASELINE = 44, 218
HIGHEST = 9  # score at the top of the plot
BAR_WIDTH = 82

INK = "#1f2933"
GRID = "#aab4be"

# Score at the top of the bar, colour, band, risk level of the report, what the note adds.
BANDS = [
    (3, "#9fd3b4", "up to 3", "Low risk", "probably safe"),
    (5, "#ece39c", "above 3, below 5", "Low risk", ""),
    (7, "#f3c58a", "5 to below 7", "Moderate risk", ""),
    (HIGHEST, "#e99c91", "7 and above", "High risk", "probably hazardous"),
]
TICKS = [0, 3, 5, 7]


def height_of(score):
    return round(BASELINE - (BASELINE - TOP) * score / HIGHEST, 1)


def text(x, y, words, size=12, anchor="middle", weight="normal", extra=""):
    return (
        f'<text x="{x:g}" y="{y:g}" font-size="{size}" font-weight="{weight}" '
        f'text-anchor="{anchor}"{extra}>{words}</text>'
    )


def line(x1, y1, x2, y2, colour, extra=""):
    return (
        f'<line x1="{x1:g}" y1="{y1:g}" x2="{x2:g}" y2="{y2:g}" '
        f'stroke="{colour}" stroke-width="1"{extra}/>'
    )


def grid():
    """A line at each score where a band ends, and the number of the score beside it."""
    for score in TICKS:
        y = height_of(score)
        if score > 0:
            yield line(LEFT, y, RIGHT, y, GRID, ' stroke-dasharray="3,3"')
        yield text(LEFT - 6, y + 4, score, anchor="end")


def bars():
    slot = (RIGHT - LEFT) / len(BANDS)
    for number, (score, colour, band, risk, note) in enumerate(BANDS):
        middle = LEFT + slot * (number + 0.5)
        top = height_of(score)
        yield (
            f'<rect x="{middle - BAR_WIDTH / 2:g}" y="{top:g}" width="{BAR_WIDTH}" '
            f'height="{BASELINE - top:g}" fill="{colour}" stroke="{INK}" stroke-width="1"/>'
        )
        yield text(middle, BASELINE + 17, band)
        yield text(middle, BASELINE + 35, risk, weight="bold")
        if note:
            yield text(middle, BASELINE + 52, note, size=11)
    # The last band has no upper end.
    middle = LEFT + slot * (len(BANDS) - 0.5)
    yield (
        f'<path d="M{middle:g} {TOP + 10} l9 14 h-6 v16 h-6 v-16 h-6 z" '
        f'fill="{INK}" stroke="none"/>'
    )


def chart():
    yield (
        f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
        f'width="{WIDTH}" height="{HEIGHT}" viewBox="0 0 {WIDTH} {HEIGHT}">'
    )
    yield "<title>Strain Index score and risk</title>"
    yield (
        "<desc>Four bars rising from left to right. Score up to 3: low risk, probably safe. "
        "Above 3, below 5: low risk. 5 to below 7: moderate risk. "
        "7 and above: high risk, probably hazardous.</desc>"
    )
    yield f'<rect x="0" y="0" width="{WIDTH}" height="{HEIGHT}" fill="#ffffff" stroke="none"/>'
    yield f'<g font-family="sans-serif" fill="{INK}">'
    yield text(WIDTH / 2, 25, "Strain Index score and risk", size=16, weight="bold")
    yield from grid()
    yield from bars()
    yield line(LEFT, TOP - 6, LEFT, BASELINE, INK)
    yield line(LEFT, BASELINE, RIGHT, BASELINE, INK)
    axis = (TOP + BASELINE) / 2
    yield text(16, axis, "Score", extra=f' transform="rotate(-90 16 {axis:g})"')
    yield "</g>"
    yield "</svg>"


if __name__ == "__main__":
    sys.stdout.write("\n".join(chart()) + "\n")
