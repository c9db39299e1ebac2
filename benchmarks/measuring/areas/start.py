"""The start of the program up to its first painted window, against the least that any such program does."""

from measuring.bench import of
from measuring.row import Row, kibibytes

TURNS = 11


def rows(bench):
    # In turn, so that what else the machine does hits both.
    turns = [(bench.samples("main_window"), bench.samples("empty_window")) for _ in range(bench.many(TURNS))]

    def side(number, name):
        columns = zip(*(of(name, turn[number]) for turn in turns))
        return [None if None in column else [amount for samples in column for amount in samples] for column in columns]

    base = "an empty window"
    yield Row("start until the main window is painted", side(0, "cpu"), base, side(1, "cpu"), goal=1.15)
    yield Row("peak of memory until then", side(0, "peak"), base, side(1, "peak"), goal=1.15, text=kibibytes)
