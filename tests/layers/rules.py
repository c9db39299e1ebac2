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

WINDOWS_HEADERS = frozenset("sddl.h shellapi.h shlobj.h windows.h".split())

# Code for one operating system stands in files that say so.
SYSTEMS = (
    (POSIX_HEADERS, re.compile(r"\w+_posix\.cpp")),
    (WINDOWS_HEADERS, re.compile(r"\w+_windows\.(h|cpp)")),
)

REPORTER_LIBRARIES = re.compile(r"(CLI|nlohmann)/")

# The reader of help files is headless; the rest of help/ is the window that shows them.
HELP_READER = re.compile(r"help/(help_(archive|contents|file|markup)|verify_help_file)\.(h|cpp)")
# What one file alone knows: the unpacker, and locales that are not the user's.
HEADERS_OF_ONE_FILE = {"help/help_archive.cpp": "mspack.h", "core/number_text.cpp": "xlocale.h"}

# The sources of the program; tests and generators are no layer.
FOLDERS = ("core", "tools", "shell", "help", "reporter")

# Layer: the folders whose headers it may include. The headless ones have nothing but the standard
# library beside them, the reporter its two packages and the reader of help files its unpacker too,
# the forms anything of Qt.
LAYERS = {
    "core": ("core",),
    "logic": ("core", "tools"),
    "help reader": ("core", "help"),
    "forms": ("core", "tools", "shell", "help"),
    "reporter": ("core", "tools", "reporter"),
}
HEADLESS_LAYERS = ("core", "logic", "help reader", "reporter")

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
RAW_CALLS_ALLOWED = re.compile(r"shell/platform\w*\.(h|cpp)")

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
        # The command line library hands out its help as a stream.
        ("writes a number", r"\b[io]?stringstream\b", ("reporter/options.cpp",)),
        # Whole numbers of messages, names and layout only: no value of a job passes here.
        (
            "writes a number",
            r"\bto_string\s*\(",
            (
                "core/job_fields.cpp",
                "core/job_text_reader.cpp",
                "core/rescue_copy.cpp",
                "reporter/html_writer.cpp",
            ),
        ),
    )
)

MOST_LINES = 500
MOST_LINES_OF_A_FORM_HEADER = 120
