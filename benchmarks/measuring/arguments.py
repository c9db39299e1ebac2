"""What the user asks for."""

import argparse


def parse(arguments):
    parser = argparse.ArgumentParser(
        prog="./bench",
        description="Builds the benchmarks and prints one table: what takes how long or how much, "
        "and its ratio to something that every machine can do.",
    )
    parser.add_argument(
        "--quick", action="store_true", help="few runs of little work, which show that everything can be measured"
    )
    parser.add_argument(
        "--against",
        metavar="COMMIT",
        help="builds this commit too, measures both in turn and prints what each takes and their ratio",
    )
    return parser.parse_args(arguments)
