"""By how much the memory grows from the 50th opening of a tool to the 500th."""

from measuring.bench import TOOLS, of
from measuring.row import Row, kibibytes

MEGABYTE = 1e6 / 1024  # KiB
OPENINGS = 500


def rows(bench):
    openings = bench.many(OPENINGS, quick=60)
    # Memory is the same however long the program waits for a processor, so two of them run side by side.
    measured = bench.samples_at_once([("repeated_opening", key, str(openings)) for key, _ in TOOLS])
    for (_, name), sides in zip(TOOLS, measured):
        what = f"{name}, growth from the 50th to the {openings}th opening"
        yield Row(what, of("growth", sides), "1 MB", MEGABYTE, goal=1, text=kibibytes)
