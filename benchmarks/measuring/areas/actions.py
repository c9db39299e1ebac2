"""What a user does on the form of a tool, in processor time until all that it changes is painted.

Of all the boxes, sliders, pictures or pages of a form the one that takes longest stands for it.
"""

from measuring.bench import TOOLS, of
from measuring.row import Row, ninetieth

# Program, what it does, how long that may take, and on the forms of which tools.
ACTIONS = (
    ("key_press", "a key in a box", 0.005, ("ocra", "ctd", "si", "reba", "rula", "hal")),
    ("slider_drag", "a step of a slider", 0.008, ("ocra", "hal")),
    ("picture_press", "a picture pressed", 0.008, ("ctd", "si", "reba", "rula")),
    ("task_select", "a task selected", 0.008, ("ocra", "ctd")),
    ("new_job", "New", 0.008, ("ocra", "ctd", "si", "reba", "rula", "hal")),
    ("window_resize", "a step of the window's corner", 0.016, ("ocra", "ctd", "si", "reba", "rula", "hal")),
)


def slowest(sides):
    """The name of what takes longest, where there are several, and its samples."""
    ours = sides[0]
    name = max(ours, key=lambda name: ninetieth(ours[name]))
    return name if len(ours) > 1 else "", of(name, sides)


def rows(bench):
    for program, action, limit, keys in ACTIONS:
        for key, name in TOOLS:
            if key not in keys:
                continue
            where, samples = slowest(bench.samples(program, key))
            what = f"{name}, {action}: {where}" if where else f"{name}, {action}"
            yield Row(what, samples, f"{limit * 1000:.0f} ms", limit, goal=1, judged=ninetieth)
