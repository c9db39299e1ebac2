"""The start of the program up to its first painted window, against the least that any such program does.

Most of what it takes above an empty window a window with one line of text takes too: the system's fonts are looked up.
"""

from measuring.bench import of
from measuring.row import Row, kibibytes

TURNS = 11


def rows(bench):
    # In turn, so that what else the machine does hits both.
    programs = ("main_window", "empty_window", "text_window")
    turns = [tuple(map(bench.samples, programs)) for _ in range(bench.many(TURNS))]

    def side(number, name):
        columns = zip(*(of(name, turn[number]) for turn in turns))
        return [None if None in column else [amount for samples in column for amount in samples] for column in columns]

    start, memory = "start until the main window is painted", "peak of memory until then"
    empty, text = "an empty window", "a window with a line of text"
    yield Row(start, side(0, "cpu"), empty, side(1, "cpu"), goal=1.15)
    yield Row(start, side(0, "cpu"), text, side(2, "cpu"))
    yield Row(memory, side(0, "peak"), empty, side(1, "peak"), goal=1.15, text=kibibytes)
    yield Row(memory, side(0, "peak"), text, side(2, "peak"), text=kibibytes)
