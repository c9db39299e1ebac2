#!/usr/bin/env python3
"""Report panes: report_test.py PROGRAM DATAFOLDER CASE. Exit status 77 says that a tool is missing and the test was
skipped."""

import sys

from program import CTD, OCRA, REBA, RULA, SI, Program, run

PANE = (560, 500)
CTD_ADD_TASK = (51, 668)


def type_into(desktop, program, *tools):
    """These panes take typing; what stands there is what is copied, and the next report clears it."""
    run_ = Program(desktop, program)
    for tool in tools:
        window = run_.open(tool)
        desktop.click(window, *tool.tabs[1])
        desktop.click(window, *PANE)
        desktop.keys("ctrl+Home")
        desktop.type("seen by Mia ")
        report = run_.copied_report()
        assert report.startswith("seen by Mia "), report
        desktop.click(window, *tool.tabs[0])
        desktop.click(window, *tool.tabs[1])
        report = run_.copied_report()
        assert "seen by Mia" not in report and len(report) > 200, report
        run_.leave()
    run_.end()


def locked(desktop, program):
    """The other panes take no typing."""
    run_ = Program(desktop, program)
    for tool, tab, add in ((SI, 1, None), (OCRA, 2, None), (CTD, 2, CTD_ADD_TASK)):
        window = run_.open(tool)
        if add:
            desktop.click(window, *add)
        desktop.click(window, *tool.tabs[tab])
        before = run_.copied_report()
        desktop.click(window, *PANE)
        desktop.type("x")
        desktop.keys("Delete", "ctrl+v")
        after = run_.copied_report()
        assert after == before, after
        run_.leave()
    run_.end()


def copied_text(desktop, program):
    """What is copied ends with the report's last words, no picture among them, and a no-break space stays one."""
    run_ = Program(desktop, program)
    for tool, tab in ((SI, 1), (OCRA, 2)):
        window = run_.open(tool)
        desktop.set_clipboard("Mia\u00a0Wallace")
        desktop.keys("ctrl+v")
        desktop.click(window, *tool.tabs[tab])
        report = run_.copied_report()
        assert "\ufffc" not in report, report
        assert "Analyst: Mia\u00a0Wallace" in report, report
        run_.leave()
    run_.end()


CASES = {
    "type_into_rula_and_reba": lambda desktop, program: type_into(desktop, program, RULA, REBA),
    "locked": locked,
    "copied_text": copied_text,
}

if __name__ == "__main__":
    sys.exit(run(CASES))
