#!/usr/bin/env python3
"""Measures the program and prints one table; `./bench --help` has the arguments.

Each module of `measuring/areas` is one area of the table, in the order of `AREAS`.
"""

import sys

from measuring import builds
from measuring.areas import actions, growth, jobs, long_lists, memory, opening, report_tab, reporter, start
from measuring.arguments import parse
from measuring.bench import Bench
from measuring.screen import Screen
from measuring.table import text_of

AREAS = (jobs, reporter, memory, opening, report_tab, actions, long_lists, start, growth)


def main(arguments):
    wishes = parse(arguments)
    folders = builds.made(wishes.against)
    with Screen() as screen:
        bench = Bench(folders, wishes.quick, screen)
        rows = [row for area in AREAS for row in area.rows(bench)]
    print(text_of(rows, wishes.against))


if __name__ == "__main__":
    main(sys.argv[1:])
