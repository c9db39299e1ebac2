"""One line of the table."""

import dataclasses
import statistics
from collections.abc import Callable, Sequence


def median(samples):
    return statistics.median(samples)


def ninetieth(samples):
    """The 90th percentile: one of the samples, so that a few of them give the largest."""
    ordered = sorted(samples)
    return ordered[len(ordered) * 9 // 10]


def seconds(amount):
    for unit, factor in (("s", 1), ("ms", 1e3), ("µs", 1e6)):
        if amount * factor >= 1:
            return f"{amount * factor:.2f} {unit}"
    return f"{amount * 1e9:.0f} ns"


def kibibytes(amount):
    return f"{amount / 1024:.2f} MiB"


@dataclasses.dataclass(frozen=True)
class Row:
    """`samples` and `base` have a list of samples for each build that is measured, None for one that cannot do it;
    a number as `base` is the same for all."""

    what: str
    samples: Sequence
    against: str = ""
    base: Sequence | float | None = None
    goal: float | None = None  # the largest ratio to the base
    judged: Callable = median  # by what of the samples
    text: Callable = seconds

    def value(self, build=0):
        return None if self.samples[build] is None else self.judged(self.samples[build])

    def base_value(self, build=0):
        if self.base is None or isinstance(self.base, (int, float)):
            return self.base
        return None if self.base[build] is None else median(self.base[build])

    def ratio(self, build=0):
        value, base = self.value(build), self.base_value(build)
        return None if value is None or base is None else value / base

    def word(self):
        """How the present build stands to its goal."""
        if self.goal is None:
            return ""
        ratio = self.ratio()
        return "not measured" if ratio is None else "ahead" if ratio <= self.goal else "behind"
