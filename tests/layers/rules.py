"""What each layer of the program may use, as data for check_sources.py."""

import re

# C++20 headers, those with a C name in their C++ form.
STANDARD_HEADERS = frozenset(
    """
    algorithm any array atomic barrier bit bitset charconv chrono compare complex concepts
    condition_variable coroutine deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits
    list locale map memory memory_resource mutex new numbers numeric optional ostream queue random
    ranges ratio regex scoped_allocator semaphore set shared_mutex source_location span sstream
    stack stdexcept stop_token streambuf string string_view strstream syncstream system_error
    thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version
    cassert cctype cerrno cfenv cfloat cinttypes climits clocale cmath csetjmp csignal cstdarg
    cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype
    """.split()
)

POSIX_HEADERS = frozenset(
    """
    dirent.h fcntl.h poll.h pthread.h pwd.h signal.h sys/file.h sys/mman.h sys/resource.h
    sys/select.h sys/stat.h sys/time.h sys/types.h sys/uio.h sys/wait.h termios.h unistd.h
    """.split()
)

# Code for one operating system stands in files that say so.
SYSTEMS = (
    (POSIX_HEADERS, re.compile(r"\w+_posix\.(cpp|h)")),
    (frozenset("sddl.h shellapi.h shlobj.h windows.h".split()), re.compile(r"\w+_windows\.(cpp|h)")),
)

# What one file alone knows: the unpacker of help files, locales that are not the user's, and what becomes of freed memory.
HEADERS_OF_ONE_FILE = {
    "help/help_archive.cpp": "mspack.h",
    "core/number_text.cpp": "xlocale.h",
    "reporter/freed_memory_posix.cpp": "malloc.h",
}

TOOL_NAMES = {"ocra": "ocra", "ctd": "ctd", "strain_index": "si", "reba": "reba", "rula": "rula", "hal": "hal"}
SCREENLESS_TOOLS = ("tool parts", "posture", *TOOL_NAMES)
FORMS_OF_TOOLS = tuple(f"form of {tool}" for tool in TOOL_NAMES)

# Every room of the house: (name, its files, the rooms below that it may use, its library and programs).
# A file belongs to the first room that its path fits.
_SHELL_USES = ("core", "platform", "widgets", "help reader", "help")
_FORM_USES = (*_SHELL_USES, "shell", "tool parts", "posture", "posture screen", "task list screen")
ROOMS = tuple(
    (name, re.compile(pattern), uses, targets)
    for name, pattern, uses, targets in (
        ("core", r"core/.*", (), ("halvane_core",)),
        ("platform", r"platform/.*", ("core",), ("halvane_platform",)),
        (
            "widgets",
            r"widgets/.*",
            ("core", "platform"),
            ("halvane_postures", "compile_postures", "halvane_widgets"),
        ),
        (
            "help reader",
            r"help/(help_(archive|contents|file|markup)|verify_help_file)\.\w+",
            ("core",),
            ("halvane_help_file", "verify_help_file"),
        ),
        ("help", r"help/.*", ("core", "platform", "widgets", "help reader"), ("halvane_help",)),
        ("shell", r"shell/.*", _SHELL_USES, ("halvane_shell",)),
        ("tools", r"tools/tool_table\.\w+", ("core", *SCREENLESS_TOOLS), ("halvane_tools",)),
        ("tool parts", r"tools/[^/]*", ("core",), ("halvane_tools",)),
        (
            "posture screen",
            r"tools/posture/posture_(form|frame|page)\.\w+",
            (*_SHELL_USES, "shell", "tool parts", "posture"),
            ("halvane_forms",),
        ),
        ("posture", r"tools/posture/.*", ("core", "tool parts"), ("halvane_tools",)),
        (
            "task list screen",
            r"tools/task_list/.*",
            (*_SHELL_USES, "shell", "tool parts"),
            ("halvane_forms",),
        ),
        *(
            (f"form of {tool}", rf"tools/{tool}/frm_.*", (*_FORM_USES, tool), ("halvane_forms",))
            for tool in TOOL_NAMES
        ),
        *(
            (tool, rf"tools/{tool}/.*", ("core", "tool parts", "posture"), ("halvane_tools",))
            for tool in TOOL_NAMES
        ),
        (
            "app",
            r"app/.*",
            (*_FORM_USES, "tools", *TOOL_NAMES, *FORMS_OF_TOOLS),
            ("app_forms", "halvane-tools"),
        ),
        (
            "reporter",
            r"reporter/.*",
            ("core", "tools", *SCREENLESS_TOOLS),
            ("halvane_reporter", "halvane-report"),
        ),
    )
)
ROOM_NAMES = tuple(name for name, *_ in ROOMS)

# These have the standard library alone beside the rooms below them, those named here a package too.
HEADLESS_ROOMS = frozenset(("core", "help reader", "tools", *SCREENLESS_TOOLS, "reporter"))
PACKAGES = {"reporter": re.compile(r"(CLI|nlohmann)/")}

# The sources of the program; tests and generators are in no room.
FOLDERS = ("app", "core", "help", "platform", "reporter", "shell", "tools", "widgets")

# (name, pattern): what reaches outside the program's own windows.
RAW_CALLS = tuple(
    (name, re.compile(pattern))
    for name, pattern in (
        ("a message box", r"\b(QMessageBox|QErrorMessage|QInputDialog)\b"),
        ("a file dialog", r"\bQFileDialog\b"),
        ("a printer", r"\b(QPrintDialog|QPageSetupDialog|QPrintPreview\w*|QPrinter\w*)\b"),
        ("the clipboard", r"\bQClipboard\b|\bclipboard\s*\("),
        ("the registry", r"\bQSettings\b"),
        ("another program", r"\bQProcess\b|\bQDesktopServices\b"),
        ("another program", r"(?<![.>\w])(system|popen|fork|exec[lv]p?e?|posix_spawnp?)\s*\("),
        ("the end of the program", r"::(exit|quit)\b|\bquit\s*\(|(?<![.>\w])exit\s*\("),
        ("the end of the program", r"\b(qApp|instance\s*\(\s*\))\s*->\s*(exit|quit)\b"),
        ("the end of the program", r"\b(_exit|_Exit|quick_exit|abort|terminate)\s*\("),
    )
)
RAW_CALLS_ALLOWED = re.compile(r"platform/platform\w*\.(h|cpp)")

# (name, pattern, files that may): text to number and back depends on the locale or loses digits
# everywhere but in the one module for it.
NUMBER_TEXT = "core/number_text.cpp"
NUMBER_CALLS = tuple(
    (name, re.compile(pattern), allowed)
    for name, pattern, allowed in (
        ("reads a number", r"\b(ato[fil]|atoll|sto(d|f|ld|i|l|ll|ul|ull))\s*\(", ()),
        ("reads a number", r"\bstrto(?!d_l\b)\w+\s*\(", ()),
        # With a locale of its own.
        ("reads a number", r"\bstrtod_l\s*\(", (NUMBER_TEXT,)),
        ("reads a number", r"\bv?s?scanf\s*\(|\bto(Double|Float|Int|UInt|Long|Short)\s*\(", ()),
        ("converts a number", r"\b(from|to)_chars\b|<charconv>", (NUMBER_TEXT,)),
        ("writes a number", r"\bQString::(number|asprintf)\b|\bsetNum\s*\(|\bQLocale\b", ()),
        ("writes a number", r"\bv?sn?printf\s*\(", ()),
        ("writes a number", r"\b[io]?stringstream\b", ()),
        # Whole numbers of messages, names and layout only: no value of a job passes here.
        (
            "writes a number",
            r"\bto_string\s*\(",
            (
                "core/job_fields.cpp",
                "core/job_text_reader.cpp",
                "core/rescue_copy.cpp",
            ),
        ),
    )
)

# The fields of the job, and what goes through them.
JOB_STATE = "core/job_state.h"
JOB_FIELDS = "core/job_fields.h"
JOB_ROUTINES = "core/job_state.cpp"
WORKING_VALUES = "// Working values: neither saved nor reset"

MOST_LINES = 500
MOST_LINES_OF_A_FORM_HEADER = 120
# One screen.
MOST_LINES_OF_THE_ARCHITECTURE = 60
