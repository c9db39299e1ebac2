"""OCRA with long lists, up to the longest that its arrays allow, in processor time."""

from measuring.bench import of
from measuring.row import Row

LONGEST = 32_767
GOALS = {1_000: 2 / 60, LONGEST: 0.5}
STEPS = (100, 1_000, 10_000, LONGEST)
LINEAR_FROM = 1_000
NAMES = (("opening", "opened"), ("report", "report tab"))


def _each(sides, tasks):
    """The share of one task."""
    return [side and [amount / tasks for amount in side] for side in sides]


def rows(bench):
    measured = {tasks: bench.samples("long_list", "ocra", str(tasks)) for tasks in STEPS}
    for sample, name in NAMES:
        per_task = {tasks: _each(of(sample, sides), tasks) for tasks, sides in measured.items()}
        for tasks, sides in measured.items():
            what = f"OCRA of {tasks:,} tasks, {name}"
            goal = GOALS.get(tasks)
            against = "" if goal is None else f"{goal * 1000:.0f} ms"
            yield Row(what, of(sample, sides), against, goal, goal=None if goal is None else 1)
            if tasks > LINEAR_FROM:
                against, base = f"a task of {LINEAR_FROM:,}", per_task[LINEAR_FROM]
                yield Row(f"{what}, each task", per_task[tasks], against, base)
