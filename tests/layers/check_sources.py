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


def room_of(path):
    """The row of the room that a file stands in."""
    for room in rules.ROOMS:
        if room[1].fullmatch(path):
            return room
    return None


def may_include(path, included):
    name, _, uses, _ = room_of(path.as_posix())
    own = re.fullmatch(r'"((?:[a-z0-9_]+/)+[a-z0-9_.]+)"', included)
    if own:
        other = room_of(own[1])
        return other is not None and (other[0] == name or other[0] in uses)
    system = re.fullmatch(r"<([^>]+)>", included)
    if not system:
        return False
    if system[1] in rules.STANDARD_HEADERS or name not in rules.HEADLESS_ROOMS:
        return True
    for headers, files in rules.SYSTEMS:
        if system[1] in headers:
            return bool(files.fullmatch(path.name))
    if system[1] == rules.HEADERS_OF_ONE_FILE.get(path.as_posix()):
        return True
    return name in rules.PACKAGES and bool(rules.PACKAGES[name].match(system[1]))


def check_includes(root):
    """A room uses the rooms below it, and the headless ones know the standard library alone."""
    for path, text in sources(root):
        code = without(text, ("comment",))
        for match in INCLUDE.finditer(code):
            if not may_include(path, match[1]):
                yield f"{path}:{line_of(code, match.start())}: may not include {match[1]}"


def check_lists(root):
    """Every source stands once in the list of its own folder, in the library of its room."""
    listed = {}
    for folder in rules.FOLDERS:
        for page in sorted((root / folder).rglob("CMakeLists.txt")):
            here = page.parent.relative_to(root)
            text = re.sub(r"#.*", "", page.read_text(encoding="utf-8"))
            text = text.replace("halvane_add_form(", "target_sources(halvane_forms ")
            # The list of what each system does in its own way has names without ending.
            text = re.sub(
                r"\bhalvane_add_sources_of_system\s*\(\s*([\w-]+)([^)]*)\)",
                lambda call: f"target_sources({call[1]} "
                + " ".join(f"{name}_{system}.cpp" for name in call[2].split() for system in ("posix", "windows"))
                + ")",
                text,
            )
            for target, body in re.findall(
                r"\b(?:add_library|add_executable|target_sources)\s*\(\s*([\w-]+)([^)]*)\)", text
            ):
                for source in re.findall(r"[\w./${}-]+\.(?:cpp|h)\b", body):
                    path = (here / source).as_posix()
                    where = page.relative_to(root)
                    if "/" in source or not (page.parent / source).exists():
                        yield f"{where}: lists {source}, which is no file of its folder"
                        continue
                    if path.endswith(".cpp"):
                        listed[path] = listed.get(path, 0) + 1
                    if target not in room_of(path)[3]:
                        yield f"{where}: lists {source} for {target}, which is another room's"
    for path, _ in sources(root):
        times = listed.get(path.as_posix(), 0)
        if path.suffix == ".cpp" and times != 1:
            yield f"{path}: stands in {times} lists of sources"


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
                if not pattern.search(code):
                    yield f"{path}: may use what {name} without need"
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


def members_of_the_job(text):
    """(line, type, name, comment) of every field of the job's state; the comment of the lines above
    it counts for a field that has none behind it."""
    above = ""
    body = text[text.index("struct JobState {") :]
    first = line_of(text, text.index("struct JobState {"))
    for number, line in enumerate(body.splitlines(), first):
        if re.match(r"\s*bool operator==", line):
            return
        if re.fullmatch(r"\s*///.*", line):
            above += line
            continue
        member = re.match(r"\s+([\w:]+(?:<.*>)?) (\w+)(?: =.*?)?;\s*(///.*)?$", line)
        if member:
            yield number, member[1], member[2], member[3] or above
        elif re.match(r"\s+(Integer|FixedArray<.*>) (\w+) =$", line):  # its value is on the next line
            yield number, line.split()[0], line.split()[-2], above
        above = ""


def check_fields(root):
    """A field of the job stands in every place that goes through all of them."""
    state = (root / rules.JOB_STATE).read_text(encoding="utf-8")
    listed = without((root / rules.JOB_FIELDS).read_text(encoding="utf-8"), ("comment", "string"))
    routines = without((root / rules.JOB_ROUTINES).read_text(encoding="utf-8"), ("comment",))
    arrays, reset = (
        re.search(rf"^void {name}\(.*?^}}", routines, re.DOTALL | re.MULTILINE)[0]
        for name in ("ForEachTaskArray", "JobReset")
    )
    work_starts = line_of(state, state.index(rules.WORKING_VALUES))
    for line, kind, name, comment in members_of_the_job(state):
        where = f"{rules.JOB_STATE}:{line}: {name}"
        per_task = kind.startswith("TaskArray")
        if per_task and not re.search(rf"\.{name}\b", arrays):
            yield f"{where} is missing in ForEachTaskArray of {rules.JOB_ROUTINES}"
        if line > work_starts or re.search("not saved", comment, re.IGNORECASE):
            continue
        if not re.search(rf"\bjob\.{name}\b", listed):
            yield f"{where} is missing in {rules.JOB_FIELDS}, or it is not saved and has to say so"
        one_a_job = not per_task and not kind.startswith("FixedGrid")
        if one_a_job and "survives" not in comment and not re.search(rf"\.{name}\b", reset):
            yield f"{where} is missing in JobReset of {rules.JOB_ROUTINES}, or it has to say survives"


def headings(text):
    """The anchors that a page's headings make."""
    for title in re.findall(r"^#+ +(.*?) *$", text, re.MULTILINE):
        words = re.sub(r"[^\w\- ]", "", title.lower())
        yield words.replace(" ", "-")


GUIDE = "CONTRIBUTING.md"


def check_documents(root):
    """Every link of a page leads somewhere, and the architecture page links what it names."""
    folders = [root / folder for folder in ("docs", "assets", *rules.FOLDERS)]
    pages = sorted([*root.glob("*.md"), *(page for folder in folders for page in folder.rglob("*.md"))])
    architecture = root / "docs" / "architecture.md"
    if architecture not in pages:
        yield "docs/architecture.md: is missing"
    for page in pages:
        name = page.relative_to(root)
        # Examples in code blocks are no links; they keep their lines.
        text = re.sub(r"^```.*?^```", lambda block: "\n" * block[0].count("\n"), page.read_text("utf-8"), flags=re.DOTALL | re.MULTILINE)
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
        for row in re.findall(r"^\|.*\|([^|]*)\| *$", text, re.MULTILINE):
            if name.as_posix() == GUIDE and not re.search(r"\]\(|^ *go to *$|^-+$", row):
                yield f"{name}: a row that leads to no file: {row.strip()}"
        if page == architecture:
            if len(text.splitlines()) > rules.MOST_LINES_OF_THE_ARCHITECTURE:
                yield f"{name}: more than {rules.MOST_LINES_OF_THE_ARCHITECTURE} lines"
            for span in re.findall(r"(?<!\[)`([\w./-]+)`(?!\]\()", text):
                if re.search(r"[/.]", span.strip("./")) and (root / span).exists():
                    yield f"{name}: names {span} without a link"


CHECKS = {
    "includes": check_includes,
    "lists": check_lists,
    "raw-calls": check_raw_calls,
    "number-calls": check_number_calls,
    "sizes": check_sizes,
    "fields": check_fields,
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
