"""Light and shade of a rounded shape: fields of numbers over a picture, and bands of their levels.

A field is a list of rows, one number a cell of a grid that reaches beyond the picture.
"""

import math

MARGIN = 10  # cells beyond each side of the picture


class Grid:
    """Cells of `step` pixels over a picture of that size."""

    def __init__(self, width, height, step):
        self.step = step
        self.columns = math.ceil(width / step) + 2 * MARGIN
        self.rows = math.ceil(height / step) + 2 * MARGIN

    def pixel(self, column, row):
        """Where the middle of a cell lies in the picture."""
        return (column + 0.5 - MARGIN) * self.step, (row + 0.5 - MARGIN) * self.step

    def cells(self, left, top, right, bottom):
        """Column and row of each cell within that part of the picture."""
        for row in self._span(top, bottom, self.rows):
            for column in self._span(left, right, self.columns):
                yield column, row

    def _span(self, low, high, count):
        first, last = (math.floor(end / self.step) + MARGIN for end in (low, high))
        return range(max(0, first), min(count, last + 1))

    def coverage(self, corners, lines=4):
        """How much of each cell a polygon covers, its rows cut into so many lines."""
        edges = list(zip(corners, corners[1:] + corners[:1]))
        field = []
        for row in range(self.rows):
            cells = [0.0] * self.columns
            for line in range(lines):
                y = (row - MARGIN + (line + 0.5) / lines) * self.step
                crossings = sorted(ax + (y - ay) * (bx - ax) / (by - ay)
                                   for (ax, ay), (bx, by) in edges if (ay <= y) != (by <= y))
                for left, right in zip(crossings[::2], crossings[1::2]):
                    _cover(cells, left / self.step + MARGIN, right / self.step + MARGIN, 1 / lines)
            field.append(cells)
        return field

    def outlines(self, field, level):
        """Closed lines around all cells that are at `level` or above."""
        following = {}
        for row in range(self.rows - 1):
            for column in range(self.columns - 1):
                corners = (field[row][column], field[row][column + 1],
                           field[row + 1][column + 1], field[row + 1][column])
                kind = sum(1 << i for i, value in enumerate(corners) if value >= level)
                sides = ((column, row, 1), (column + 1, row, 0), (column, row + 1, 1),
                         (column, row, 0))
                for start, end in _CROSSED[kind]:
                    following[sides[start]] = sides[end]
        while following:
            side, goal = following.popitem()
            around = [side]
            while goal != side:
                around.append(goal)
                goal = following.pop(goal)
            yield [self._crossing(field, level, *passed) for passed in around]

    def _crossing(self, field, level, column, row, across):
        """Where the level lies between a cell and the one right of it, or below it."""
        a, b = field[row][column], field[row + 1 - across][column + across]
        share = (level - a) / (b - a)
        return self.pixel(column + across * share, row + (1 - across) * share)


# Which sides of a square of four cells (0 top, 1 right, 2 bottom, 3 left) an outline enters and
# leaves by; bit 0 says that the cell at the upper left is inside, then clockwise.
_CROSSED = ((), ((3, 0),), ((0, 1),), ((3, 1),), ((1, 2),), ((3, 0), (1, 2)), ((0, 2),), ((3, 2),),
            ((2, 3),), ((2, 0),), ((0, 1), (2, 3)), ((2, 1),), ((1, 3),), ((1, 0),), ((0, 3),), ())


def _cover(cells, left, right, share):
    first, last = int(left), int(right)
    if first == last:
        cells[first] += (right - left) * share
        return
    cells[first] += (first + 1 - left) * share
    for i in range(first + 1, last):
        cells[i] += share
    cells[last] += (right - last) * share


def _mean(line, reach):
    """Each number's mean with so many neighbours on both sides."""
    padded = [line[0]] * (reach + 1) + line + [line[-1]] * reach
    total, out = sum(padded[:2 * reach + 1]), []
    for gone, come in zip(padded, padded[2 * reach + 1:]):
        total += come - gone
        out.append(total / (2 * reach + 1))
    return out


def blurred(field, sigma):
    """A field without what is finer than about `sigma` cells."""
    reach = max(1, round((math.sqrt(4 * sigma * sigma + 1) - 1) / 2))
    for _ in range(2):
        # Three means of equal reach come close to a bell curve.
        for _ in range(3):
            field = [_mean(line, reach) for line in field]
        field = [list(column) for column in zip(*field)]
    return field


def thinned(outline, error):
    """A closed line with as few of its points as keep it within `error`."""
    far = max(range(len(outline)), key=lambda i: math.dist(outline[0], outline[i]))
    return (_thinned(outline[:far + 1], error)[:-1]
            + _thinned(outline[far:] + outline[:1], error)[:-1])


def _thinned(line, error):
    kept, open_parts = {0, len(line) - 1}, [(0, len(line) - 1)]
    while open_parts:
        start, end = open_parts.pop()
        (ax, ay), (bx, by) = line[start], line[end]
        length = math.dist(line[start], line[end]) or 1
        worst, at = error, None
        for i in range(start + 1, end):
            off = abs((line[i][0] - ax) * (by - ay) - (line[i][1] - ay) * (bx - ax)) / length
            if off > worst:
                worst, at = off, i
        if at is not None:
            kept.add(at)
            open_parts += [(start, at), (at, end)]
    return [line[i] for i in sorted(kept)]


def tenths(outline):
    """Path of a closed line in tenths of a pixel, as short as it can be written."""
    corners = [(round(10 * x), round(10 * y)) for x, y in outline]
    steps = [(b[0] - a[0], b[1] - a[1]) for a, b in zip(corners, corners[1:]) if a != b]
    numbers = " ".join(f"{x} {y}" for x, y in steps).replace(" -", "-")
    return f"M{corners[0][0]} {corners[0][1]}l{numbers}z"
