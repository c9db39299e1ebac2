"""What the areas measure with: one build, or two in turn, so that what else the machine does hits both."""

import concurrent.futures
import subprocess

from measuring.processes import samples_in, wall_time

# Key and name, in the order of the launch buttons, then the one without.
TOOLS = (
    ("ocra", "OCRA"),
    ("ctd", "CTD Risk Index"),
    ("si", "Strain Index"),
    ("reba", "REBA"),
    ("rula", "RULA"),
    ("hal", "Hand Activity Level"),
)


class Bench:
    def __init__(self, builds, quick, screen):
        self.builds = builds
        self.quick = quick
        self._environment = screen.environment

    def many(self, usual, quick=2):
        """How often something is done."""
        return quick if self.quick else usual

    def program(self, name):
        """A program of each build, None where it has none."""
        paths = [build / "benchmarks" / name for build in self.builds]
        return [str(path) if path.exists() else None for path in paths]

    def reporter(self):
        return [str(build / "reporter/halvane-report") for build in self.builds]

    def in_turn(self, calls, runs, warm_up=0):
        """Runs each call so often, one after the other in each turn; the results of each as a list."""
        results = [[call() for call in calls] for _ in range(warm_up + runs)][warm_up:]
        return [list(column) for column in zip(*results)]

    def _samples(self, program, arguments):
        if program is None:
            return None
        command = [program, *arguments]
        output = wall_time(command, env=self._environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)[1]
        return samples_in(output)

    def samples(self, name, *arguments, runs=1, warm_up=0):
        """What a program measures, for each build: lists of samples by name, of all runs."""
        calls = [lambda program=program: self._samples(program, arguments) for program in self.program(name)]
        return [joined(results) for results in self.in_turn(calls, runs, warm_up)]

    def samples_at_once(self, calls):
        """What programs measure that two processors may run side by side: (name, argument...) each."""

        def run(call):
            return self.samples(*call)

        with concurrent.futures.ThreadPoolExecutor(2) as pool:
            return list(pool.map(run, calls))


def joined(results):
    """What several runs of a program have measured, as one; None where there is no program."""
    if None in results:
        return None
    return {name: [amount for result in results for amount in result[name]] for name in results[0]}


def of(name, sides):
    """The samples of one name, for each build; None where it has none of them."""
    return [None if side is None else side.get(name) for side in sides]
