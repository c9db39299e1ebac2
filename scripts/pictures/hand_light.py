"""The open hand's roundness: a relief that light falls on from the upper left, in bands of tone."""

import math

from pictures.relief import Grid, blurred, tenths, thinned

STEP = 1.5  # pixels a cell
EDGE_ERROR = 0.2  # pixels that the edge of a band may be off

# Tone from 0 to 1, and its colour: from shadow to light in the blue of the title strip, pale.
TONES = ((0.0, "#333f78"), (0.25, "#5c6cac"), (0.5, "#8d9cd0"), (0.72, "#aab7e2"), (1.0, "#e0e7fb"))
# Tones between two bands: so fine in the middle, where most of the hand is, that none is seen.
BANDS = (*(0.08 + 0.03 * i for i in range(9)), *(0.34 + 0.02 * i for i in range(23)),
         *(0.80 + 0.03 * i for i in range(6)))

LIGHT = (-0.46, -0.58, 0.67)  # where the light comes from: right, down, towards the eye
PLAIN = 0.54  # tone of what faces the eye
SHADED, LIT = 0.74, 1.35  # change of tone with that of the light, where there is less and more
# The hand's height: how far its edge is rounded, in pixels, and how high that makes it.
ROUNDINGS = ((3.2, 4), (7, 13), (13, 12))
# Corners of the hand are darker: the light around reaches them from one side alone.
CORNER, DEEP_CORNER = 0.25, 0.55

CALM = 0.34  # what is left of light and shade in the middle of what controls stand on
CALM_WITHIN, CALM_EDGE = 10, 9  # pixels from its edge, and those over which the rest comes back


def mix(a, b, share):
    """A colour between two."""
    parts = [(int(a[i:i + 2], 16), int(b[i:i + 2], 16)) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(p + (q - p) * share):02x}" for p, q in parts)


def colour(tone):
    for (low, dark), (high, light) in zip(TONES, TONES[1:]):
        if tone <= high:
            return mix(dark, light, (tone - low) / (high - low))
    return TONES[-1][1]


class Ridge:
    """A raised line from one point to another: its half widths there, and its height."""

    def __init__(self, start, end, half, end_half, height):
        self.start, self.end = start, end
        self.half, self.end_half, self.height = half, end_half, height

    def at(self, x, y):
        (ax, ay), (bx, by) = self.start, self.end
        length = math.dist(self.start, self.end)
        share = ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / length**2
        share = min(1, max(0, share))
        off = math.hypot(x - ax - share * (bx - ax), y - ay - share * (by - ay))
        half = self.half + (self.end_half - self.half) * share
        return self.height * math.exp(-off * off / (2 * half * half))

    def room(self):
        """Left, top, right and bottom of what it raises."""
        reach = 3 * max(self.half, self.end_half)
        low = [min(pair) - reach for pair in zip(self.start, self.end)]
        high = [max(pair) + reach for pair in zip(self.start, self.end)]
        return *low, *high


def _ground(left, top, width, height):
    """Corners of what is calm where controls stand."""
    right, bottom = left + width - CALM_WITHIN, top + height - CALM_WITHIN
    left, top = left + CALM_WITHIN, top + CALM_WITHIN
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


def _heights(grid, rounded, ridges):
    field = [[sum(high * cell for (_, high), cell in zip(ROUNDINGS, cells))
              for cells in zip(*rows)] for rows in zip(*rounded)]
    for ridge in ridges:
        for column, row in grid.cells(*ridge.room()):
            field[row][column] += ridge.at(*grid.pixel(column, row))
    return field


def tones(grid, corners, ridges, controls):
    """The field of tones of a shape with such corners."""
    covered = grid.coverage(corners)
    rounded = [blurred(covered, reach / STEP) for reach, _ in ROUNDINGS]
    heights = _heights(grid, rounded, ridges)
    near, middle = rounded[:2]
    calm = [grid.coverage(_ground(*control)) for control in controls]
    calm = blurred([[max(cells) for cells in zip(*rows)] for rows in zip(*calm)], CALM_EDGE / STEP)
    field = [[0.0] * grid.columns for _ in range(grid.rows)]
    for row in range(1, grid.rows - 1):
        for column in range(1, grid.columns - 1):
            right = (heights[row][column + 1] - heights[row][column - 1]) / (2 * STEP)
            down = (heights[row + 1][column] - heights[row - 1][column]) / (2 * STEP)
            facing = LIGHT[2] - right * LIGHT[0] - down * LIGHT[1]
            more = facing / math.sqrt(1 + right * right + down * down) - LIGHT[2]
            tone = PLAIN + more * (LIT if more > 0 else SHADED)
            tone *= 1 - CORNER * (1 - near[row][column]) - DEEP_CORNER * (1 - middle[row][column])
            kept = 1 - (1 - CALM) * calm[row][column]
            field[row][column] = PLAIN + (tone - PLAIN) * kept
    return field


def deepest():
    """The colour below the darkest band."""
    return colour(BANDS[0])


def bands(width, height, corners, ridges, controls):
    """Elements of the shape's light and shade, the darkest first."""
    grid = Grid(width, height, STEP)
    field = tones(grid, corners, ridges, controls)
    elements = ['<g transform="scale(0.1)">']
    for low, high in zip(BANDS, [*BANDS[1:], 1.0]):
        paths = [tenths(thinned(outline, EDGE_ERROR)) for outline in grid.outlines(field, low)
                 if len(outline) > 8]
        if paths:
            elements.append(f'<path d="{"".join(paths)}" fill="{colour((low + high) / 2)}"/>')
    return [*elements, "</g>"]
