#!/usr/bin/env python3
"""Tells which shared libraries a program needs beyond those of the language itself.

check_links.py PROGRAM: one finding a line, exit status 1 when there is any.
"""

import re
import subprocess
import sys

# The second line is what the compiler adds in sanitizer builds.
LANGUAGE_LIBRARY = re.compile(
    r"(libstdc\+\+|libm|libgcc_s|libc|libpthread|ld-linux[\w-]*"
    r"|libasan|libubsan|liblsan|librt|libdl|libresolv)\.so\.\d+"
)


def main(arguments):
    if len(arguments) != 1:
        sys.exit("usage: check_links.py PROGRAM")
    # Symbol names stay as they are in every locale; readelf translates only its headings.
    output = subprocess.run(
        ["readelf", "--dynamic", "--wide", arguments[0]], capture_output=True, text=True, check=True
    ).stdout
    needed = re.findall(r"\(NEEDED\)[^\[]*\[([^\]]+)\]", output)
    if not needed:
        sys.exit(f"{arguments[0]} names no library at all")
    findings = [name for name in needed if not LANGUAGE_LIBRARY.fullmatch(name)]
    for name in findings:
        print(f"{arguments[0]} needs {name}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
