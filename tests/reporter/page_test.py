#!/usr/bin/env python3
"""The reporter's pages as a browser has them: what screen readers find, colours, widths, paper.

Usage: page_test.py HALVANE_REPORT SAMPLES. Ends with 77 where a program is missing.
"""

import base64
import os
import re
import shutil
import subprocess
import sys
import tempfile

from chromium import Browser, is_there

SKIPPED = 77
WIDE, NARROW, HEIGHT = 1100, 400, 900
A4 = {"paperWidth": 8.27, "paperHeight": 11.69}
LEAST_CONTRAST = 4.5
SAMPLE_NAME = b"Carton packing, end of line"
SAMPLE_TASK = b"Load jars into carton"
LONG_NAME = "survey_2026_" * 15 + ".qjt"

SI_CHART = (
    "Strain Index score and risk: up to 3, Low risk, probably safe. Above 3, below 5, Low risk. 5 to "
    "below 7, Moderate risk. 7 and above, High risk, probably hazardous.")
REPORT_HEADINGS = [
    (1, "Halvane Tools job reports"),
    (2, "packing-line.qjt"),
    (3, "Occupational Repetitive Actions Index"),
    (3, "Cumulative Trauma Disorders Risk Assessment Model"),
    (3, "Strain Index (SI)"),
    (3, "Rapid Entire Body Assessment (REBA)"),
    (3, "Rapid Upper Limb Assessment (RULA)"),
    (3, "ACGIH Hand Activity Level (HAL)"),
    (4, "Input Data:"),
    (4, "Force Limit (% of maximum strength on a normalized 10-point scale):"),
    (2, "gap.qjt"),
    (3, "Occupational Repetitive Actions Index"),
    (3, "Cumulative Trauma Disorders Risk Assessment Model"),
    (3, "Strain Index"),
    (3, "Rapid Entire Body Assessment (REBA)"),
    (3, "Rapid Upper Limb Assessment (RULA)"),
    (3, "ACGIH Hand Activity Level (HAL)"),
    (4, "Input Data:"),
    (4, "Force Limit (% of maximum strength on a normalized 10-point scale):"),
    (2, "gone.qjt"),
]
CTD_COLUMNS = ["Body Posture", "Angle", "Load Held", "Duration", "Max. Posture Score"]
OCRA_TABLE = [
    ["Task ID", "Task Dur. (min)", "Action (#/min)", "Force Level"],
    ["Pick and fold carton", "120.00", "24.0", "1.0"],
    ["Load jars into carton", "240.00", "44.0", "2.5"],
    ["Close and label carton", "75.00", "18.0", "1.5"],
]
SUMMARY_TABLE = [
    ["File", "Analyst", "Job", "Workstation", "OCRA index bar: 0 to 8", "SI score bar: 0 to 14"],
    ["packing-line.qjt", "Line 4 review", "Carton packing, end of line", "L4-P2", "4.26 Red",
     "18.0 High"],
]
SUMMARY_CAPTION = "One line a job. A bar shows the first value of a tool in the colour of its zone."

# Contrast of each piece of text with what is behind it; the charts have a ground of their own.
CONTRASTS = """(() => {
  const parse = text => text.match(/[\\d.]+/g).map(Number);
  const light = colour => {
    const [r, g, b] = colour.slice(0, 3).map(
        v => v / 255 <= 0.03928 ? v / 255 / 12.92 : ((v / 255 + 0.055) / 1.055) ** 2.4);
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
  };
  const ratio = (a, b) => (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05);
  const ground = element => {
    for (let e = element; e; e = e.parentElement) {
      const colour = parse(getComputedStyle(e).backgroundColor);
      if (colour.length < 4 || colour[3] === 1) return light(colour);
      if (colour[3] !== 0) throw new Error('half transparent');
    }
    throw new Error('no ground');
  };
  const found = [];
  const walk = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  while (walk.nextNode()) {
    const element = walk.currentNode.parentElement;
    if (!walk.currentNode.data.trim() || element.closest('svg')) continue;
    found.push([ratio(light(parse(getComputedStyle(element).color)), ground(element)),
                walk.currentNode.data]);
  }
  for (const cell of document.querySelectorAll('td')) {
    const label = getComputedStyle(cell, '::before');
    if (label.content === 'none') continue;
    found.push([ratio(light(parse(label.color)), ground(cell)), label.content]);
  }
  for (const bar of document.querySelectorAll('.bar span')) {
    const end = light(parse(getComputedStyle(bar).borderRightColor));
    found.push([ratio(end, ground(bar.parentElement)), 'end of a bar']);
  }
  return {found, ground: ground(document.body)};
})()"""


class Tree:
    """What assistive programs are told of the page that is open."""

    def __init__(self, browser):
        nodes = browser.ask("Accessibility.getFullAXTree")["nodes"]
        self._by_id = {node["nodeId"]: node for node in nodes}
        self._root = nodes[0]

    def of_roles(self, *roles, under=None):
        """The nodes of these roles, in the order of reading."""
        found = []
        waiting = [under or self._root]
        while waiting:
            node = waiting.pop()
            if not node["ignored"] and node["role"]["value"] in roles:
                found.append(node)
            waiting += [self._by_id[at] for at in reversed(node["childIds"]) if at in self._by_id]
        return found

    def headings(self):
        return [(level_of(node), name_of(node)) for node in self.of_roles("heading")]

    def grid(self, table):
        """The cells of each row, as (role, name)."""
        roles = ("columnheader", "rowheader", "cell")
        return [[(cell["role"]["value"], name_of(cell)) for cell in self.of_roles(*roles, under=row)]
                for row in self.of_roles("row", under=table)]

    def words_under(self, node):
        return [name_of(text) for text in self.of_roles("StaticText", under=node)]


def name_of(node):
    return node.get("name", {}).get("value", "").strip()


def level_of(node):
    return next(each["value"]["value"] for each in node["properties"] if each["name"] == "level")


def expect(actual, expected, what):
    assert actual == expected, f"{what}:\n{actual}\nexpected:\n{expected}"


def expect_grid(grid, texts):
    roles = [["columnheader"] * len(texts[0])]
    roles += [["rowheader"] + ["cell"] * (len(row) - 1) for row in texts[1:]]
    expect(grid, [list(zip(*row)) for row in zip(roles, texts)], "cells of a table")


def expect_landmarks(browser, tree, title):
    expect([node["role"]["value"] for node in tree.of_roles("banner", "main", "region")],
           ["banner", "main"], "landmarks")
    expect(name_of(tree.of_roles("RootWebArea")[0]), title, "name of the page")
    expect(browser.run("document.documentElement.lang"), "en", "language")


class Pages:
    """Pages of the reporter in a folder of their own."""

    def __init__(self, program, samples, folder):
        self._program = program
        self._folder = folder
        with open(os.path.join(samples, "packing-line.qjt"), "rb") as file:
            self.sample = file.read()
        assert SAMPLE_NAME in self.sample and SAMPLE_TASK in self.sample
        self.write("packing-line.qjt", self.sample)
        # Exertions last 29.5 % of the time: between two bands, the Strain Index has no rating for it.
        gap = self.sample.replace(b"\n9,15,240,", b"\n4.425,15,240,")
        assert gap != self.sample
        self.write("gap.qjt", gap)

    def write(self, name, content):
        with open(os.path.join(self._folder, name), "wb") as file:
            file.write(content)

    def make(self, *arguments):
        """The path of a page."""
        path = os.path.join(self._folder, "page.html")
        with open(path, "wb") as file:
            subprocess.run([self._program, "--format", "html", *arguments], cwd=self._folder,
                           stdout=file, stderr=subprocess.DEVNULL, check=False, timeout=60)
        return path

    def paper(self, browser):
        """Prints the open page and gives the text of each sheet."""
        printed = browser.ask("Page.printToPDF", preferCSSPageSize=True, **A4)
        with open(os.path.join(self._folder, "page.pdf"), "wb") as file:
            file.write(base64.b64decode(printed["data"]))
        return self._text_of_paper().split("\f")[:-1]

    def boxes(self):
        """Where each word stands of what was printed last."""
        return self._text_of_paper("-bbox")

    def _text_of_paper(self, *options):
        command = ["pdftotext", *options, os.path.join(self._folder, "page.pdf"), "-"]
        return subprocess.run(command, check=True, timeout=60, stdout=subprocess.PIPE).stdout.decode()


def see(browser, scheme, width=WIDE, media=""):
    browser.ask("Emulation.setEmulatedMedia", media=media,
                features=[{"name": "prefers-color-scheme", "value": scheme}])
    browser.ask("Emulation.setDeviceMetricsOverride", width=width, height=HEIGHT,
                deviceScaleFactor=1, mobile=False)


def reports_have_headings_tables_and_words_for_pictures(browser, pages):
    browser.open(pages.make("packing-line.qjt", "gap.qjt", "gone.qjt"))
    tree = Tree(browser)
    expect_landmarks(browser, tree, "Halvane Tools job reports")
    expect(tree.headings(), REPORT_HEADINGS, "headings")

    tables = tree.of_roles("table")
    expect_grid(tree.grid(tables[0]), OCRA_TABLE)
    expect(name_of(tables[0]), "Task Dur. (min), Action (#/min), Force Level by Task ID", "caption")
    expect([name for _, name in tree.grid(tables[4])[0]], CTD_COLUMNS, "columns")
    # Of the second job there is no Strain Index.
    expect(len(tables), 10 + 9, "tables")
    for table in tables:
        head, *rows = tree.grid(table)
        assert rows and all(role == "columnheader" and name for role, name in head), head
        for row in rows:
            expect([role for role, _ in row], ["rowheader"] + ["cell"] * (len(head) - 1), "roles")
            assert row[0][1], row

    pictures = tree.of_roles("image", "img")
    expect([name_of(picture).split(":")[0] for picture in pictures[:4]],
           ["Zones of the OCRA index", "Force and recovery multipliers",
            "From two factors to the Grand Score", "Strain Index score and risk"], "pictures")
    expect(name_of(pictures[3]), SI_CHART, "words of a picture")
    expect(len(pictures), 4 + 3, "pictures")
    for picture in pictures:
        expect(tree.words_under(picture), [], "words that a picture says twice")


def summaries_are_tables_at_every_width(browser, pages):
    browser.open(pages.make("--summary", "--tool", "ocra", "--tool", "si", "packing-line.qjt",
                            "gap.qjt", "gone.qjt"))
    for width in (WIDE, NARROW):
        see(browser, "light", width)
        tree = Tree(browser)
        expect_landmarks(browser, tree, "Halvane Tools job summary")
        expect(tree.headings(), [(1, "Halvane Tools job summary")], "headings")
        table, = tree.of_roles("table")
        expect(name_of(table), SUMMARY_CAPTION, "caption")
        grid = tree.grid(table)
        expect_grid(grid[:2], SUMMARY_TABLE)
        expect(len(grid[2]), len(grid[0]), "cells beside a failure")
        assert "SiDutyCyclePercent" in grid[2][-1][1], grid[2]
        expect([role for role, _ in grid[3]], ["rowheader", "cell"], "a file that is not there")


def nothing_is_wider_than_its_screen(browser, pages):
    pages.write(LONG_NAME, pages.sample.replace(SAMPLE_NAME, b"x" * 300))
    for arguments in ([], ["--summary"], ["--summary", "--tool", "si"]):
        browser.open(pages.make(*arguments, LONG_NAME, *["gap.qjt"] * (40 if arguments else 1)))
        for width in (NARROW, 520, 700, 900, 1060, 1078, WIDE, 1400):
            see(browser, "light", width)
            widest = browser.run("document.documentElement.scrollWidth")
            assert widest <= width, (arguments, width, widest)


def hidden_characters_and_markup_are_text(browser, pages):
    name = "<b onload=1>\u202egpj.\u2066 &amp; 'x'"
    pages.write("odd.qjt", pages.sample.replace(SAMPLE_NAME, name.encode()))
    shown = "<b onload=1><U+202E>gpj.<U+2066> &amp; 'x'"
    browser.open(pages.make("--tool", "si", "odd.qjt"))
    assert "Job Name: " + shown in Tree(browser).words_under(None), Tree(browser).words_under(None)
    browser.open(pages.make("--summary", "odd.qjt"))
    tree = Tree(browser)
    expect(tree.grid(tree.of_roles("table")[0])[1][2], ("cell", shown), "a name")


def texts_stand_out_in_light_and_dark(browser, pages):
    jobs = ("packing-line.qjt", "gap.qjt", "gone.qjt")
    for page in ([], ["--summary"]):
        browser.open(pages.make(*page, *jobs))
        for width in (WIDE, NARROW):
            for scheme in ("light", "dark"):
                see(browser, scheme, width)
                measured = browser.run(CONTRASTS)
                assert len(measured["found"]) > 30, measured
                least, text = min(measured["found"])
                assert least >= LEAST_CONTRAST, (page, scheme, width, least, text)
                is_dark = measured["ground"] < 0.05
                assert is_dark if scheme == "dark" else measured["ground"] > 0.8, measured["ground"]


def paper_is_white_with_black_letters(browser, pages):
    for page in ([], ["--summary"]):
        browser.open(pages.make(*page, "packing-line.qjt", "gone.qjt"))
        see(browser, "dark", media="print")
        colours = browser.run("""[...document.querySelectorAll('body, body *:not(svg, svg *)')].filter(
            e => e.innerText).map(e => getComputedStyle(e).color)""")
        expect(set(colours), {"rgb(0, 0, 0)"}, "colours of letters")
        expect(browser.run("getComputedStyle(document.body).backgroundColor"), "rgb(255, 255, 255)",
               "paper")
        see(browser, "light")


def expect_uncut(sheets, words):
    """Each sheet has all of these words or none; says how many have them."""
    count = 0
    for sheet in sheets:
        there = [word for word in words if word in sheet]
        assert there in ([], words), f"cut behind {there}:\n{sheet}"
        count += bool(there)
    return count


def reports_are_not_cut_on_paper(browser, pages):
    """Job names of more and more lines move what is below them over the end of the sheet."""
    # Of 24 characters that take two lines; reports have no more of a name.
    task = ["WWWWaWWW", "WWWWbWWW", "WWWcWW"]
    names = []
    for lines in range(0, 54, 2):
        names.append(f"j{lines}.qjt")
        pages.write(names[-1], pages.sample.replace(SAMPLE_TASK, " ".join(task).encode()).replace(
            SAMPLE_NAME, b"long " * 18 * lines))
    for tool, *charts in (("ctd", ["two factors to", "hours each"]),
                          ("si", ["Strain Index score and", "probably hazardous\n"]),
                          ("ocra", ["of the OCRA index", "Between 3.9 and 4.0"],
                           ["and recovery multipliers", "without adequate recovery\n"])):
        browser.open(pages.make("--tool", tool, *names))
        sheets = pages.paper(browser)
        assert len(names) < len(sheets) < 4 * len(names), len(sheets)
        for chart in charts:
            expect(expect_uncut(sheets, chart), len(names), "charts")
        if tool != "si":
            assert expect_uncut(sheets, task) >= len(names), tool


def every_report_begins_a_sheet(browser, pages):
    browser.open(pages.make("packing-line.qjt", "gap.qjt"))
    sheets = pages.paper(browser)
    titles = [name for level, name in REPORT_HEADINGS if level == 3]
    # A report goes on where its chart found no room.
    heads = [[line for line in sheet.splitlines() if line in titles] for sheet in sheets]
    expect([head for head in heads if head], [[title] for title in titles], "titles on each sheet")


def nothing_is_wider_than_paper(browser, pages):
    pages.write(LONG_NAME, pages.sample.replace(SAMPLE_NAME, b"x" * 300))
    for arguments in ([], ["--summary"]):
        browser.open(pages.make(*arguments, "packing-line.qjt", LONG_NAME))
        pages.paper(browser)
        boxes = pages.boxes()
        edges = [float(edge) for edge in re.findall(r' xMax="([\d.]+)"', boxes)]
        widths = {float(width) for width in re.findall(r'<page width="([\d.]+)"', boxes)}
        assert len(edges) > 30 and len(widths) == 1, (len(edges), widths)
        assert max(edges) < widths.pop() - 20, (arguments, max(edges))


def rows_of_a_summary_are_not_cut_on_paper(browser, pages):
    names = []
    for number in range(60):
        names.append(f"n{number}.qjt")
        words = " ".join(f"r{number}w{word}." for word in range(number % 7 * 5 + 1))
        pages.write(names[-1], pages.sample.replace(SAMPLE_NAME, words.encode()))
    browser.open(pages.make("--summary", *names))
    sheets = pages.paper(browser)
    assert len(sheets) > 3, len(sheets)
    for sheet in sheets:
        assert "Workstation" in sheet and "RULA grand" in sheet, "no head on a sheet:\n" + sheet
    for number, name in enumerate(names):
        words = [name] + [f"r{number}w{word}." for word in range(number % 7 * 5 + 1)]
        expect(expect_uncut(sheets, words), 1, "sheets with " + name)


CASES = (
    reports_have_headings_tables_and_words_for_pictures,
    summaries_are_tables_at_every_width,
    nothing_is_wider_than_its_screen,
    hidden_characters_and_markup_are_text,
    texts_stand_out_in_light_and_dark,
    paper_is_white_with_black_letters,
    every_report_begins_a_sheet,
    reports_are_not_cut_on_paper,
    nothing_is_wider_than_paper,
    rows_of_a_summary_are_not_cut_on_paper,
)


def main():
    program, samples = map(os.path.abspath, sys.argv[1:])
    if not is_there() or not shutil.which("pdftotext"):
        print("chromium or pdftotext is not there: skipped")
        return SKIPPED
    with tempfile.TemporaryDirectory() as folder, Browser() as browser:
        pages = Pages(program, samples, folder)
        for case in CASES:
            print(case.__name__.replace("_", " "), flush=True)
            see(browser, "light")
            case(browser, pages)
    return 0


if __name__ == "__main__":
    sys.exit(main())
