"""From the click on a tool's report tab to the painted report, in processor time."""

from measuring.bench import TOOLS, of
from measuring.row import Row, ninetieth

FIRST = 1 / 60
LATER = 0.008


def rows(bench):
    for key, name in TOOLS:
        # It shows its report beside its controls.
        if key == "hal":
            continue
        sides = bench.samples("report_tab", key, "quiet", runs=bench.many(3, quick=1))
        yield Row(f"{name}, first click on the report tab", of("first", sides), "a frame of 60 Hz", FIRST, goal=1)
        yield Row(f"{name}, later click on it", of("later", sides), "8 ms", LATER, goal=1, judged=ninetieth)
        yield Row(f"{name}, later, with another job name", of("changed", sides), "8 ms", LATER, goal=1, judged=ninetieth)
