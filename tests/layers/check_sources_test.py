#!/usr/bin/env python3
"""Plants violations in a tree of their own and sees each check find them, and nothing else."""

import pathlib
import tempfile
import unittest

import check_sources

CLEAN_TREE = {
    "core/text.h": '#pragma once\n#include <string>\n#include "core/other.h"\n',
    "core/job_state.h": "struct JobState {\n  std::string JobFileName;  ///< path; not saved\n"
    "  Integer Hand = 0;\n  Integer Flag = 0;  ///< survives `JobReset`\n  TaskArray<double> Spare;\n"
    "  // Working values: neither saved nor reset.\n  TaskArray<double> Score;\n"
    "  bool operator==(const JobState&) const = default;\n};\n",
    "core/job_fields.h": "Named(job.Hand); Named(job.Flag); Named(job.Spare);\n",
    "core/job_state.cpp": "void ForEachTaskArray() {\n  action(job.Spare);\n  action(job.Score);\n}\n"
    "void JobReset() {\n  Module1.Hand = 0;\n}\n",
    "core/number_text.cpp": "#include <charconv>\nauto r = std::from_chars(a, b, strtod_l(t, 0, l));\n",
    "core/files_posix.cpp": "#include <fcntl.h>\n#include <unistd.h>\n",
    "core/files_windows.cpp": "#include <sddl.h>\n#include <windows.h>\n",
    "core/CMakeLists.txt": "add_library(halvane_core STATIC\n  job_state.cpp number_text.cpp # why\n"
    ")\nhalvane_add_sources_of_system(halvane_core\n  files\n)\n",
    "tools/rula/score.cpp": '#include <array>\n#include "core/text.h"\n#include "tools/table.h"\n',
    "tools/rula/frm_rula.h": '#include <QWidget>\n#include "shell/tool_form.h"\n',
    "tools/rula/frm_rula.cpp": '#include "tools/posture/posture_page.h"\n#include "tools/rula/score.h"\n',
    "tools/rula/CMakeLists.txt": "target_sources(halvane_tools PRIVATE score.cpp)\n"
    "target_sources(halvane_forms PRIVATE frm_rula.cpp)\n",
    "tools/tool_table.cpp": '#include "tools/rula/score.h"\n',
    "tools/CMakeLists.txt": "add_library(halvane_tools STATIC tool_table.cpp)\n",
    "app/main.cpp": '// QMessageBox is not for us\n#include "tools/rula/frm_rula.h"\nint main() {}\n',
    "app/CMakeLists.txt": "add_executable(halvane-tools main.cpp)\n",
    "platform/platform_qt.cpp": "#include <QMessageBox>\nvoid End() { QCoreApplication::exit(1); }\n",
    "platform/CMakeLists.txt": "add_library(halvane_platform STATIC platform_qt.cpp)\n",
    "widgets/box.h": '#include <QWidget>\n#include "platform/platform.h"\n',
    "shell/tool_form.h": '#include "help/viewer.h"\n#include "widgets/box.h"\n',
    "help/viewer.cpp": '#include "platform/platform.h"\nconst char* kText = "strtod(";\n',
    "help/help_archive.cpp": '#include <mspack.h>\n#include "help/help_archive.h"\n',
    "help/help_file.h": '#include <string>\n#include "core/text.h"\n#include "help/help_contents.h"\n',
    "help/CMakeLists.txt": "add_library(halvane_help_file STATIC help_archive.cpp)\n"
    "add_library(halvane_help STATIC viewer.cpp)\n",
    "reporter/main.cpp": "#include <CLI/CLI.hpp>\nreturn app.exit(error);\n",
    "reporter/CMakeLists.txt": "add_executable(halvane-report main.cpp)\n",
    "README.md": "# What\n",
    "docs/architecture.md": "# How\n[`core/text.h`](../core/text.h), [above](#how)\n",
}

STATE = CLEAN_TREE["core/job_state.h"]

# An include of the room above for each room: (file, what it must not include).
UPWARD = (
    ("core/a.h", "platform/platform.h"),
    ("platform/platform.h", "widgets/layout.h"),
    ("platform/platform.h", "tools/rula/frm_rula.h"),
    ("widgets/a.h", "help/help_window.h"),
    ("help/help_file.h", "platform/platform.h"),
    ("help/help_window.h", "shell/tool_form.h"),
    ("shell/a.h", "tools/tool_table.h"),
    ("shell/a.h", "tools/rula/frm_rula.h"),
    ("shell/a.h", "app/tool_forms.h"),
    ("tools/headline.h", "tools/rula/rula_score.h"),
    ("tools/tool_table.h", "tools/rula/frm_rula.h"),
    ("tools/posture/a.h", "tools/rula/rula_score.h"),
    ("tools/posture/a.h", "tools/posture/posture_page.h"),
    ("tools/posture/posture_page.h", "tools/rula/rula_controls.h"),
    ("tools/task_list/task_tree.h", "tools/ocra/frm_ocra.h"),
    ("tools/ctd/frm_ctd.h", "app/tool_forms.h"),
    ("tools/ctd/frm_ctd.h", "tools/tool_table.h"),
    ("app/tool_forms.h", "reporter/options.h"),
    ("reporter/a.h", "platform/platform.h"),
    ("reporter/a.h", "tools/rula/frm_rula.h"),
)
# A tool of another room, which is beside and not below.
BESIDE = tuple(
    (f"tools/{tool}/{stem}", f"tools/{other}/a.h")
    for tool, other in (
        ("ocra", "ctd"),
        ("ctd", "ocra"),
        ("strain_index", "hal"),
        ("reba", "rula"),
        ("rula", "reba"),
        ("hal", "strain_index"),
    )
    for stem in ("a.h", "frm_a.h")
)

# (label, check, path, text, what the finding says)
PLANTED = (
    ("Qt in core", "includes", "core/a.cpp", "#include <QString>\n", "<QString>"),
    ("Qt in core, spaced", "includes", "core/a.cpp", "\n #  include  <QString> // why\n", "a.cpp:2:"),
    ("Qt in a tool's logic", "includes", "tools/rula/a.h", "#include <QWidget>\n", "<QWidget>"),
    ("Qt in the reporter", "includes", "reporter/a.cpp", "#include <QtCore>\n", "<QtCore>"),
    ("a package in core", "includes", "core/a.h", "#include <nlohmann/json.hpp>\n", "nlohmann"),
    ("POSIX elsewhere", "includes", "core/a.cpp", "#include <unistd.h>\n", "<unistd.h>"),
    ("a macro's include", "includes", "core/a.cpp", "#include WHAT\n", "WHAT"),
    ("an unrooted include", "includes", "core/a.cpp", '#include "text.h"\n', "text.h"),
    ("an include by ..", "includes", "core/a.cpp", '#include "../shell/a.h"\n', "shell"),
    ("core includes a tool", "includes", "core/a.cpp", '#include "tools/table.h"\n', "tools"),
    ("core includes the shell", "includes", "core/a.cpp", '#include "shell/a.h"\n', "shell"),
    ("core includes the reporter", "includes", "core/a.h", '#include "reporter/a.h"\n', "reporter"),
    ("logic includes the shell", "includes", "tools/hal/a.cpp", '#include "shell/a.h"\n', "shell"),
    ("logic includes the help", "includes", "tools/hal/a.cpp", '#include "help/a.h"\n', "help"),
    ("logic includes a form", "includes", "tools/hal/a.cpp", '#include "tools/hal/frm_hal.h"\n', "frm_"),
    ("logic includes the reporter", "includes", "tools/a.cpp", '#include "reporter/a.h"\n', "reporter"),
    ("Qt in the help reader", "includes", "help/help_markup.h", "#include <QString>\n", "<QString>"),
    ("the help reader includes a window", "includes", "help/help_file.cpp", '#include "help/help_window.h"\n', "help_window"),
    ("the help reader includes the shell", "includes", "help/help_file.cpp", '#include "shell/a.h"\n', "shell"),
    ("the unpacker elsewhere in the reader", "includes", "help/help_file.cpp", "#include <mspack.h>\n", "mspack"),
    ("the unpacker in core", "includes", "core/a.cpp", "#include <mspack.h>\n", "mspack"),
    ("core includes the help reader", "includes", "core/a.cpp", '#include "help/help_file.h"\n', "help_file"),
    ("a form includes the reporter", "includes", "shell/a.cpp", '#include "reporter/a.h"\n', "reporter"),
    *(
        (f"{path} includes {included}", "includes", path, f'#include "{included}"\n', included)
        for path, included in (*UPWARD, *BESIDE)
    ),
    ("Windows elsewhere", "includes", "core/a.h", "#include <windows.h>\n", "<windows.h>"),
    ("POSIX for Windows", "includes", "core/a_windows.h", "#include <unistd.h>\n", "<unistd.h>"),
    (
        "a system without its source",
        "lists",
        "widgets/CMakeLists.txt",
        "target_sources(halvane_widgets PRIVATE box_windows.cpp)\n",
        "lists box_windows.cpp, which is no file",
    ),
    ("a source in no list", "lists", "core/a.cpp", "", "core/a.cpp: stands in 0 lists"),
    (
        "a source of another folder",
        "lists",
        "widgets/CMakeLists.txt",
        "add_library(halvane_widgets STATIC ../core/text.cpp)\n",
        "no file of its folder",
    ),
    (
        "a source in another library",
        "lists",
        "tools/rula/CMakeLists.txt",
        "target_sources(halvane_tools PRIVATE score.cpp frm_rula.cpp)\n",
        "lists frm_rula.cpp for halvane_tools",
    ),
    *(
        (label, "fields", "core/job_state.h", state, expected)
        for label, state, expected in (
            ("a field that is not written", STATE.replace("Spare;", "Spare;\n  TaskArray<double> New;")
             .replace("TaskArray<double> New", "FixedGrid<double, 4, 2> New"), "New is missing in core/job_fields.h"),
            ("a field that is not reset", STATE.replace("  Integer Flag = 0;  ///< survives `JobReset`", "  Integer Flag = 0;"),
             "Flag is missing in JobReset"),
            ("a task array that does not grow", STATE.replace("Score;", "Score;\n  TaskArray<double> New;"),
             "New is missing in ForEachTaskArray"),
        )
    ),
    ("a message box", "raw-calls", "shell/a.cpp", "QMessageBox box;\n", "QMessageBox"),
    ("a message box's header", "raw-calls", "shell/a.h", "#include <QMessageBox>\n", "QMessageBox"),
    ("a file dialog", "raw-calls", "tools/hal/frm_hal.cpp", "QFileDialog::getOpenFileName();\n", "QFileDialog"),
    ("a print dialog", "raw-calls", "shell/a.cpp", "QPrintDialog d;\n", "QPrintDialog"),
    ("a page set-up dialog", "raw-calls", "shell/a.cpp", "QPageSetupDialog d;\n", "QPageSetup"),
    ("a printer", "raw-calls", "help/a.cpp", "QPrinter printer;\n", "QPrinter"),
    ("the clipboard's class", "raw-calls", "shell/a.cpp", "QClipboard* c;\n", "QClipboard"),
    ("the clipboard", "raw-calls", "shell/a.cpp", "QGuiApplication::clipboard()->clear();\n", "clipboard"),
    ("the registry", "raw-calls", "shell/a.cpp", "QSettings s;\n", "QSettings"),
    ("a process", "raw-calls", "shell/a.cpp", "QProcess p;\n", "QProcess"),
    ("a browser", "raw-calls", "help/a.cpp", "QDesktopServices::openUrl(u);\n", "QDesktopServices"),
    ("a shell command", "raw-calls", "core/a.cpp", "std::system(text);\n", "system"),
    ("the end by Qt", "raw-calls", "shell/a.cpp", "QCoreApplication::exit(1);\n", "exit"),
    ("the end by qApp", "raw-calls", "shell/a.cpp", "qApp->exit(1);\n", "exit"),
    ("the end by quit", "raw-calls", "shell/a.cpp", "connect(a, b, c, &QApplication::quit);\n", "quit"),
    ("the end by the library", "raw-calls", "core/a.cpp", "\n\nstd::exit(1);\n", "a.cpp:3:"),
    ("the end by exit", "raw-calls", "reporter/a.cpp", "  exit(1);\n", "exit"),
    ("the end by abort", "raw-calls", "core/a.cpp", "std::abort();\n", "abort"),
    ("a raw call behind a literal", "raw-calls", "core/a.cpp", 'f("//"); std::exit(1);\n', "exit"),
    ("a raw call behind digits", "raw-calls", "core/a.cpp", "f(1'000); std::exit(1); f('a');\n", "exit"),
    ("an exemption without need", "number-calls", "core/job_fields.cpp", "\n", "without need"),
    ("atof", "number-calls", "core/a.cpp", "auto v = atof(t);\n", "atof"),
    ("strtod", "number-calls", "tools/hal/a.cpp", "auto v = std::strtod(t, 0);\n", "strtod"),
    ("strtod_l", "number-calls", "core/a.cpp", "auto v = strtod_l(t, 0, l);\n", "strtod_l"),
    ("stod", "number-calls", "reporter/a.cpp", "auto v = std::stod(t);\n", "stod"),
    ("QString::number", "number-calls", "shell/a.cpp", "QString::number(v);\n", "QString::number"),
    ("toDouble", "number-calls", "tools/hal/frm_hal.cpp", "text.toDouble();\n", "toDouble"),
    ("from_chars elsewhere", "number-calls", "core/a.cpp", "std::from_chars(a, b, v);\n", "from_chars"),
    ("to_string", "number-calls", "tools/hal/a.cpp", "std::to_string(v);\n", "to_string"),
    ("a stream", "number-calls", "tools/hal/a.cpp", "std::ostringstream s;\n", "ostringstream"),
    ("snprintf", "number-calls", "core/a.cpp", "snprintf(b, n, f, v);\n", "snprintf"),
    ("a long source", "sizes", "core/a.cpp", "\n" * 501, "501 lines, at most 500"),
    ("a long form header", "sizes", "tools/hal/frm_hal.h", "\n" * 121, "121 lines, at most 120"),
    ("a dead link", "documents", "README.md", "[a](docs/none.md)\n", "docs/none.md leads nowhere"),
    ("a dead link of a room", "documents", "core/README.md", "[a](none.h)\n", "none.h leads nowhere"),
    (
        "a row that leads nowhere",
        "documents",
        "CONTRIBUTING.md",
        "| to change | go to |\n|---|---|\n| all | [here](README.md) |\n| a | `a.cpp` |\n",
        "leads to no file: `a.cpp`",
    ),
    (
        "a long architecture",
        "documents",
        "docs/architecture.md",
        "# How\n" * 61,
        "more than 60 lines",
    ),
    ("a dead picture", "documents", "README.md", '<img src="none.png">\n', "none.png leads nowhere"),
    ("a dead heading", "documents", "README.md", "[a](docs/architecture.md#none)\n", "#none"),
    ("a file named without a link", "documents", "docs/architecture.md", "`core/text.h`\n", "core/text.h"),
)


class CheckSourcesTest(unittest.TestCase):
    def findings(self, check, files):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for path, text in files.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text, encoding="utf-8")
            return list(check_sources.CHECKS[check](root))

    def test_nothing_is_found_in_a_clean_tree(self):
        for check in check_sources.CHECKS:
            with self.subTest(check):
                self.assertEqual(self.findings(check, CLEAN_TREE), [])

    def test_every_planted_violation_is_found(self):
        for label, check, path, text, expected in PLANTED:
            with self.subTest(label):
                found = self.findings(check, {**CLEAN_TREE, path: text})
                self.assertEqual(len(found), 1, found)
                self.assertTrue(found[0].startswith(path), found)
                self.assertIn(expected, found[0])

    def test_a_file_at_its_budget_passes(self):
        files = {"core/a.cpp": "\n" * 500, "tools/hal/frm_hal.h": "\n" * 120}
        self.assertEqual(self.findings("sizes", {**CLEAN_TREE, **files}), [])

    def test_a_missing_architecture_page_is_found(self):
        files = {path: text for path, text in CLEAN_TREE.items() if not path.startswith("docs")}
        self.assertEqual(
            self.findings("documents", files), ["docs/architecture.md: is missing"]
        )

    def test_a_tree_without_sources_is_no_success(self):
        with self.assertRaises(SystemExit):
            self.findings("includes", {"docs/architecture.md": "# How\n"})


if __name__ == "__main__":
    unittest.main()
