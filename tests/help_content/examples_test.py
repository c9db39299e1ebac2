"""The worked examples of the help pages are what halvane-report computes: examples_test.py PROGRAM SOURCE"""

import html
import json
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM, SOURCE = sys.argv.pop(1), Path(sys.argv.pop(1))
PAGES = {name: (SOURCE / "help/content" / f"{name}.htm").read_text(encoding="cp1252") for name in (
    "ACGIH Hand Activity Level2", "CTD2", "Occupational Repetitive Actions Index (OCRA)2",
    "REBA (Rapid Entire Body Assessment)2", "RULA (Rapid Upper Limb Assessment)2", "Strain Index2", "batch", "first_job")}
PACKING_LINE = SOURCE / "docs/samples/packing-line.qjt"


def plain(markup):
    return " ".join(html.unescape(re.sub(r"<[^>]*>", "", markup)).split())


def rows(name):
    """The rows of the table with this id behind its headings, wherever it stands."""
    found = [match for page in PAGES.values() for match in re.findall(rf'<table id="{name}".*?</table>', page, re.S)]
    assert len(found) == 1, name
    cells = [re.findall(r"<t[dh][^>]*>(.*?)</t[dh]>", row, re.S) for row in re.findall(r"<tr>(.*?)</tr>", found[0], re.S)]
    return [[plain(cell) for cell in row] for row in cells][1:]


def mark(name):
    found = [text for page in PAGES.values() for text in re.findall(rf'<span id="{name}">(.*?)</span>', page)]
    assert len(found) == 1, name
    return found[0]


def report(tool, path, units="metric"):
    """What the program says of a job: its line of JSON."""
    done = subprocess.run([PROGRAM, "--tool", tool, "--format", "json", "--units", units, str(path)],
                          stdout=subprocess.PIPE, text=True, check=False)
    return json.loads(done.stdout)


def text_of(line):
    return line["report"]["text"]


class Job:
    """A job with one task as a fresh program makes it, its lines counted from 1 as docs/job-file.md has them."""

    def __init__(self):
        lines = ['"qjt",1,0,0,0', "1", "8,0,0", '"","","",0,8', "0,0,0,0"]
        lines += ["0"] * 43 + ["0,0,0,0,0,0,0"] + ["3"] * 14 + ["0,0,0,0,0,0"]
        lines += ['"Task 1",1', "0,0", "0,0,0,0,0,0,0", "0,0,0,0", "0,0,0,0,0,0", "0,0,0,0", ",,,,,,,0"] + ["0,0"] * 8
        self.lines = lines

    def put(self, line, *fields):
        self.lines[line - 1] = ",".join(map(str, fields))
        return self

    def report(self, tool):
        with tempfile.NamedTemporaryFile("w", suffix=".qjt", newline="", encoding="ascii") as file:
            file.write("".join(line + "\r\n" for line in self.lines))
            file.flush()
            return report(tool, file.name)


def first_job():
    """What the page of the first job has its reader type into both tools."""
    job = Job().put(64, 2, 0, 0, 0, 0, 0).put(49, 20, 60, 240, 60, 1, 1, 2)
    return job.put(66, 30, 240).put(67, 1, 0, 0, 0, 30, 0, 0)


class Examples(unittest.TestCase):
    def assert_values(self, table, results, names):
        """Each of these rows, by its first cell, has this result as its last cell, in as many decimals."""
        found = {row[0]: row[-1] for row in rows(table)}
        for row, name in names.items():
            written = found[row]
            decimals = len(written.partition(".")[2])
            self.assertEqual(written, f"{results[name]:.{decimals}f}", f"{table}: {row}")

    def assert_ratings(self, table, line):
        """The rows of a table of the Strain Index are rows of the report, and the last one is the score."""
        printed = [[cell.strip() for cell in row.split("\t")] for row in text_of(line).splitlines()]
        *ratings, score = rows(table)
        self.assertEqual(len(ratings), 6)
        for row in ratings:
            self.assertIn(row, printed)
        self.assertEqual(score, ["Strain Index Score", "", f"{line['results']['SiStrainIndexScore']:.1f}"])

    def test_first_job_by_ocra(self):
        line = first_job().report("ocra")
        self.assert_values("first-job-ocra", line["results"], {
            "Total No. Of Actions Observed": "OcraActionsObserved",
            "Total No. Of Recommended Actions": "OcraActionsRecommended", "OCRA Risk Index": "OcraRiskIndex"})
        self.assertIn(dict(rows("first-job-ocra"))["Zone"], text_of(line))
        pinched = first_job().put(51, 2).report("ocra")
        self.assertEqual(mark("first-job-pinch"), f"{pinched['results']['OcraRiskIndex']:.2f}")
        self.assertEqual(pinched["results"]["OcraPostureMultiplier"], 0.6)
        self.assertIn("Yellow", text_of(pinched))
        self.assertNotIn("Yellow/Green", text_of(pinched))

    def test_first_job_by_the_strain_index(self):
        self.assert_ratings("first-job-si", first_job().report("si"))

    def test_packing_line_by_ocra(self):
        self.assert_values("ocra-example", report("ocra", PACKING_LINE)["results"], {
            "Posture multiplier, from the worst of the three": "OcraPostureMultiplier",
            "Grip multiplier": "OcraGripExtraMultiplier", "Recovery multiplier for 3 hours": "OcraRecoveryMultiplier",
            "Total No. Of Actions Observed": "OcraActionsObserved",
            "Total No. Of Recommended Actions": "OcraActionsRecommended", "OCRA Risk Index": "OcraRiskIndex"})

    def test_packing_line_by_ctd_in_both_units(self):
        results = {units: report("ctd", PACKING_LINE, units.lower())["results"] for units in ("Metric", "English")}
        names = {"No. Of Cycles": "CtdCyclesPerShift", "Force Frequency Factor": "CtdForceFrequencyFactor",
                 "Posture Factor": "CtdPostureFactor", "Grand Score": "CtdGrandScore"}
        self.assert_values("ctd-example", results["Metric"], names)
        # The example turns the spans into inches by the menu; the file's own are centimetres.
        self.assertEqual(rows("ctd-example-units")[0],
                         ["Metric", *(f"{results['Metric'][name]:.2f}" for name in ("CtdForceFrequencyFactor", "CtdGrandScore"))])
        with tempfile.TemporaryDirectory() as folder:
            job = Path(folder, "inches.qjt")
            job.write_bytes(in_inches(PACKING_LINE.read_bytes()))
            english = report("ctd", job, "english")["results"]
        self.assertEqual(rows("ctd-example-units")[1],
                         ["English", *(f"{english[name]:.2f}" for name in ("CtdForceFrequencyFactor", "CtdGrandScore"))])
        factor, grand, posture = (results["Metric"][name] for name in (
            "CtdForceFrequencyFactor", "CtdGrandScore", "CtdPostureFactor"))
        weights = {row: float(number) for row, number in rows("ctd-grand")}
        self.assertAlmostEqual(grand, posture * weights["weight of the Posture Factor"]
                               + factor * weights["weight of the Force Frequency Factor"])

    def test_packing_line_by_the_strain_index(self):
        self.assert_ratings("si-example", report("si", PACKING_LINE))

    def test_packing_line_by_the_postures(self):
        self.assert_values("reba-example", report("reba", PACKING_LINE)["results"], {
            "Table A": "RebaScoreA", "Total A": "RebaScoreATotal", "Table B": "RebaScoreB", "Total B": "RebaScoreBTotal",
            "Activity score": "RebaActivityScore", "REBA Grand Score": "RebaGrandScore"})
        self.assert_values("rula-example", report("rula", PACKING_LINE)["results"], {
            "Table A": "RulaArmWristPosture", "Table B": "RulaNeckTrunkLegPosture", "Total A": "RulaArmWristTotal",
            "Total B": "RulaNeckTrunkLegTotal", "RULA Grand Score": "RulaGrandScore"})

    def test_packing_line_by_the_activity_level(self):
        limit, action = report("hal", PACKING_LINE)["results"]["HalLimits"]
        found = dict(rows("hal-example"))
        self.assertEqual((found["Threshold Limit Value"], found["Action Level"]), (f"{limit:.2f}", f"{action:.2f}"))

    def test_values_in_a_gap_have_no_rating(self):
        page = plain(PAGES["Strain Index2"])
        self.assertIn("such as 29.5 per cent or 8.5 efforts a minute, matches no row", page)
        for exertion, efforts in ((29.5, 500), (50, 850)):
            line = first_job().put(49, exertion, 100, efforts, 100, 1, 1, 2).report("si")
            self.assertIsNone(line["results"])
            self.assertIsNotNone(line["error"])
        line = first_job().put(49, 29, 100, 800, 100, 1, 1, 2).report("si")
        self.assertIsNone(line["error"])

    def test_an_index_in_the_gap_has_no_zone(self):
        page = plain(PAGES["Occupational Repetitive Actions Index (OCRA)2"])
        self.assertIn("Between 3.9 and 4 there is a gap: the report names no zone", page)
        zones = {}
        for index in (3.85, 3.95, 4.05):
            # Without weights a shift has 30 recommended actions a minute times what the first job's force and recovery leave.
            frequency = 30 * index / first_job().report("ocra")["results"]["OcraRiskIndex"]
            job = first_job().put(66, frequency, 240).put(67, 1, 0, 0, 0, frequency, 0, 0)
            line = job.report("ocra")
            self.assertAlmostEqual(line["results"]["OcraRiskIndex"], index)
            zones[index] = re.findall(r"\b(Green|Yellow|Red)\b", text_of(line).partition("OCRA Risk Index")[2])
        self.assertEqual(bool(zones[3.95]), False, zones)
        self.assertTrue(zones[3.85] and zones[4.05], zones)


def in_inches(job):
    """A job whose spans are turned into inches as the menu does it, rounded to two decimals."""
    lines = job.decode("cp1252").split("\r\n")
    for start in range(64, 64 + 15 * int(lines[1]), 15):
        for line, field in ((start + 2, 5), (start + 4, 4)):
            fields = lines[line].split(",")
            fields[field] = str(round(float(fields[field].strip('"')) / 2.54, 2))
            lines[line] = ",".join(fields)
    return "\r\n".join(lines).encode("cp1252")


if __name__ == "__main__":
    unittest.main()
