#!/usr/bin/env python3
"""Reads the sources and tells what breaks the layers of the program.

check_sources.py CHECK ROOT: one finding a line, exit status 1 when there is any.
"""

import pathlib
import re
import sys
import urllib.parse

import rules

SKIPPED = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<raw>R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)")
      | (?P<separator>(?<=[0-9a-fA-F])'(?=[0-9a-fA-F]))
      | (?P<string>"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])*')""",
    re.DOTALL | re.VERBOSE,
)
INCLUDE = re.compile(r"^[ \t]*#[ \t]*include(?:_next)?[ \t]*(.*?)[ \t]*$", re.MULTILINE)


def without(text, kinds):
    """The text with tokens of these kinds blanked, line numbers kept."""

    def blanked(match):
        return re.sub(r"[^\n]", " ", match[0]) if match.lastgroup in kinds else match[0]

    # The named group inside a raw string closes before it, so lastgroup is the outer one.
    return SKIPPED.sub(blanked, text)


def line_of(text, position):
    return text.count("\n", 0, position) + 1


def sources(root):
    """(path from the root, text) of every source of the program."""
    found = [
        path
        for folder in rules.FOLDERS
        for path in sorted((root / folder).rglob("*"))
        if path.suffix in (".h", ".cpp")
    ]
    if not found:
        sys.exit(f"no source below {root}")
    return [(path.relative_to(root), path.read_text(encoding="utf-8")) for path in found]


def layer_of(path):
    if rules.HELP_READER.fullmatch(path.as_posix()):
        return "help reader"
    if path.parts[0] == "tools":
        return "forms" if path.name.startswith("frm_") else "logic"
    return {"core": "core", "reporter": "reporter"}.get(path.parts[0], "forms")


def may_include(path, included):
    layer = layer_of(path)
    own = re.fullmatch(r'"([a-z0-9_]+)/(?:[a-z0-9_]+/)*([a-z0-9_.]+)"', included)
    if own:
        is_form = own[1] == "tools" and own[2].startswith("frm_")
        is_window = own[1] == "help" and not rules.HELP_READER.fullmatch(included.strip('"'))
        if layer == "help reader" and is_window:
            return False
        return own[1] in rules.LAYERS[layer] and (layer == "forms" or not is_form)
    system = re.fullmatch(r"<([^>]+)>", included)
    if not system:
        return False
    if system[1] in rules.STANDARD_HEADERS or layer not in rules.HEADLESS_LAYERS:
        return True
    for headers, files in rules.SYSTEMS:
        if system[1] in headers:
            return bool(files.fullmatch(path.name))
    if system[1] == rules.HEADERS_OF_ONE_FILE.get(path.as_posix()):
        return True
    return layer == "reporter" and bool(rules.REPORTER_LIBRARIES.match(system[1]))


def check_includes(root):
    """Nothing points down, and the headless layers know the standard library alone."""
    for path, text in sources(root):
        code = without(text, ("comment",))
        for match in INCLUDE.finditer(code):
            if not may_include(path, match[1]):
                yield f"{path}:{line_of(code, match.start())}: may not include {match[1]}"


def check_raw_calls(root):
    """Messages, dialogs, printer, clipboard, programs: through the platform only."""
    for path, text in sources(root):
        if rules.RAW_CALLS_ALLOWED.fullmatch(path.as_posix()):
            continue
        code = without(text, ("comment", "string", "raw"))
        for name, pattern in rules.RAW_CALLS:
            for match in pattern.finditer(code):
                where = f"{path}:{line_of(code, match.start())}"
                yield f"{where}: {match[0].strip()} reaches {name} past the platform"


def check_number_calls(root):
    """Numbers become text and text numbers in one module."""
    for path, text in sources(root):
        code = without(text, ("comment", "string", "raw"))
        for name, pattern, allowed in rules.NUMBER_CALLS:
            if path.as_posix() in allowed:
                continue
            for match in pattern.finditer(code):
                where = f"{path}:{line_of(code, match.start())}"
                yield f"{where}: {match[0].strip()} {name} outside {rules.NUMBER_TEXT}"


def check_sizes(root):
    """No file grows past what a reader can hold."""
    for path, text in sources(root):
        is_form_header = path.name.startswith("frm_") and path.suffix == ".h"
        most = rules.MOST_LINES_OF_A_FORM_HEADER if is_form_header else rules.MOST_LINES
        lines = len(text.splitlines())
        if lines > most:
            yield f"{path}: {lines} lines, at most {most}"


def headings(text):
    """The anchors that a page's headings make."""
    for title in re.findall(r"^#+ +(.*?) *$", text, re.MULTILINE):
        words = re.sub(r"[^\w\- ]", "", title.lower())
        yield words.replace(" ", "-")


def check_documents(root):
    """Every link of a page leads somewhere, and the architecture page links what it names."""
    pages = sorted([*root.glob("*.md"), *(root / "docs").rglob("*.md")])
    architecture = root / "docs" / "architecture.md"
    if architecture not in pages:
        yield "docs/architecture.md: is missing"
    for page in pages:
        name = page.relative_to(root)
        # Examples in code blocks are no links.
        text = re.sub(r"^```.*?^```", "", page.read_text("utf-8"), flags=re.DOTALL | re.MULTILINE)
        links = re.findall(r"\]\(\s*<?([^)\s>]+)", text)
        links += re.findall(r'\b(?:src|href)="([^"]+)"', text)
        for link in links:
            target, _, anchor = urllib.parse.unquote(link).partition("#")
            if re.match(r"[a-z]+:", target):
                continue
            file = page.parent / target if target else page
            if not file.exists():
                yield f"{name}: the link {link} leads nowhere"
            elif anchor and file.suffix == ".md" and anchor not in headings(file.read_text("utf-8")):
                yield f"{name}: no heading for the link {link}"
        if page == architecture:
            for span in re.findall(r"(?<!\[)`([\w./-]+)`(?!\]\()", text):
                if re.search(r"[/.]", span.strip("./")) and (root / span).exists():
                    yield f"{name}: names {span} without a link"


CHECKS = {
    "includes": check_includes,
    "raw-calls": check_raw_calls,
    "number-calls": check_number_calls,
    "sizes": check_sizes,
    "documents": check_documents,
}


def main(arguments):
    if len(arguments) != 2 or arguments[0] not in CHECKS:
        sys.exit(f"usage: check_sources.py {'|'.join(CHECKS)} ROOT")
    findings = list(CHECKS[arguments[0]](pathlib.Path(arguments[1]).resolve()))
    print("\n".join(findings) or "nothing found")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
