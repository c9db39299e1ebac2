"""The table as text."""

from measuring.row import median, ninetieth

HEAD = ("what", "median", "90 %", "against", "takes", "ratio", "goal", "")
# Of the columns that are numbers, the right ends stand in line.
NUMBERS = {1, 2, 4, 5, 6}
COMPARED_NUMBERS = {1, 2, 3}


def _number(value):
    return "" if value is None else f"{value:.2f}"


def _cells(row):
    samples = row.samples[0]
    base = row.base_value()
    several = samples is not None and len(samples) > 1
    # What the goal is for has a mark.
    mark = "*" if row.judged is ninetieth and row.goal is not None else ""
    return (
        row.what,
        row.text(median(samples)) if samples else "not measured",
        row.text(ninetieth(samples)) + mark if several else "",
        row.against,
        "" if base is None else row.text(base),
        _number(row.ratio()),
        "" if row.goal is None else f"≤ {row.goal:.4g}",
        row.word(),
    )


def _compared_cells(row):
    values = [row.value(build) for build in range(2)]
    texts = ["not measured" if value is None else row.text(value) for value in values]
    both = None not in values and values[1] != 0
    return (row.what, texts[1], texts[0], _number(values[0] / values[1] if both else None))


def _lines(cells, numbers):
    widths = [max(map(len, column)) for column in zip(*cells)]
    for line in cells:
        padded = (
            cell.rjust(width) if number in numbers else cell.ljust(width)
            for number, (cell, width) in enumerate(zip(line, widths))
        )
        yield "  ".join(padded).rstrip()


def text_of(rows, against=None):
    """The table of the present build, or of the present one `against` a commit."""
    if against is None:
        return "\n".join(_lines([HEAD, *map(_cells, rows)], NUMBERS))
    head = ("what", against, "now", "ratio")
    return "\n".join(_lines([head, *map(_compared_cells, rows)], COMPARED_NUMBERS))
