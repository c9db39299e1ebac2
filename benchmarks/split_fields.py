#!/usr/bin/env python3
"""Splits job files into fields, as the example in docs/job-file.md does, and nothing else.

split_fields.py FILE...
"""

import re
import sys

FIELD = re.compile(r'[ \t]*(?:"([^"]*)"?[^,\r\n]*|([^,\r\n]*))(?:,|\r\n|\r|\n|$)')


def fields(path):
    with open(path, "rb") as file:
        data = file.read()
    try:
        text = data.decode("utf-8")
    except UnicodeDecodeError:
        text = data.decode("cp1252", errors="replace")
    return [quoted or plain for quoted, plain in FIELD.findall(text)]


for name in sys.argv[1:]:
    fields(name)
