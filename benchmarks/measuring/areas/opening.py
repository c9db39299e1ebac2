"""From a tool's launch button to the painted tool, in processor time."""

from measuring.bench import TOOLS, of
from measuring.row import Row

FIRST = 2 / 60
LATER = 0.012


def rows(bench):
    for key, name in TOOLS:
        runs = bench.many(3, quick=1)
        at_once = bench.samples("tool_opening", key, runs=runs)
        quiet = bench.samples("tool_opening", key, "quiet", runs=runs)
        for when, sides in (("as soon as the button stands", at_once), ("after a quiet second", quiet)):
            yield Row(f"{name}, first opening {when}", of("first", sides), "two frames of 60 Hz", FIRST, goal=1)
        yield Row(f"{name}, later opening", of("later", at_once), "12 ms", LATER, goal=1)
