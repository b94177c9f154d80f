#!/usr/bin/env python3
"""Checks what the compiler does not: who may include whom, and that every file is short and listed.

    check_layers.py [ROOT]        prints FILE:LINE: message for each fault; exit code 1 if there is one
    check_layers.py --self-test   breaks each rule in a temporary tree and compares what the check says
"""
import os
import re
import sys
import tempfile

CORE = ["foundation", "schema", "sqlimport", "model", "query", "store", "panel"]

# The arrows: what a folder of src/ may include besides itself.
MAY_INCLUDE = {
    "foundation": [],
    "schema": ["foundation"],
    "sqlimport": ["foundation"],
    "model": ["foundation", "schema", "sqlimport"],
    "query": ["foundation", "schema", "sqlimport", "model"],
    "store": ["foundation", "schema", "sqlimport", "model", "query"],
    "panel": ["foundation", "schema", "sqlimport", "model", "query"],
    "connect": ["foundation", "schema", "sqlimport", "model", "query", "store"],
    "ui": ["foundation", "schema", "sqlimport", "model", "query", "store", "panel"],
    "xml": ["foundation", "schema", "sqlimport", "model"],
}

# The core uses these and nothing else from outside.
STANDARD_HEADERS = set(
    """algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
    clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
    cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
    functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
    set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
    syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
    variant vector version""".split())

# What the standard library cannot do, and the one file that does it: flushing a file to the disk, locking a folder.
SYSTEM_HEADERS = {
    "src/foundation/files.cpp": {"io.h", "unistd.h"},
    "src/store/folderlock.cpp": {"fcntl.h", "sys/file.h", "unistd.h", "windows.h"},
}

MAX_LINES = 700
MEASURED_DIRS = ["src", "apps", "tests", "bench", "fuzz", "examples", "tools"]
MEASURED_ENDINGS = (".h", ".cpp", ".py", ".sh")
LISTED_DIRS = ["src", "apps", "tests", "bench", "fuzz"]
INCLUDING_DIRS = ["src", "apps", "tests", "bench", "fuzz", "examples"]

INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]*)[>"]')
QT_HEADER = re.compile(r"Q[A-Z]\w*$|Qt\w*(/|$)|q\w+\.h$")


def include_fault(file, folder, quote, path):
    """What is wrong with `#include` of PATH in FILE of src/FOLDER, or None."""
    if quote == '"':
        return f'#include "{path}": only <tolvi/FOLDER/FILE.h> is allowed in src'
    parts = path.split("/")
    if parts[0] in MAY_INCLUDE:
        return f"#include <{path}>: write <tolvi/{path}>"
    if parts[0] == "tolvi":
        target = parts[1] if len(parts) > 2 else ""
        if target not in MAY_INCLUDE:
            return f"#include <{path}>: src has no such folder"
        if target != folder and target not in MAY_INCLUDE[folder]:
            return f"#include <{path}>: {folder} must not see {target}"
    elif folder in CORE:
        if QT_HEADER.match(path):
            return f"#include <{path}>: the core knows no Qt"
        if path not in STANDARD_HEADERS and path not in SYSTEM_HEADERS.get(file, ()):
            return f"#include <{path}>: the core uses the C++ standard library only"
    return None


def is_private(root, path):
    """Whether <tolvi/...> is a header of the core that is not in the header set of its folder."""
    folder, _, name = path.removeprefix("tolvi/").partition("/")
    listing = os.path.join(root, "src", folder, "CMakeLists.txt")
    if folder not in CORE or not os.path.exists(listing):
        return False
    return name not in re.split(r"[\s()]+", "\n".join(read_lines(listing)).partition("FILES")[2])


def outside_fault(quote, path):
    """The same for a file outside src/, where the build's include path would let more pass than an installed Tolvi."""
    if path.split("/")[0] in MAY_INCLUDE:
        return f"#include <{path}>: write <tolvi/{path}>"
    if quote == '"' and path.startswith(("tolvi/", "../", "src/")):
        return f'#include "{path}": write <tolvi/FOLDER/FILE.h>'
    return None


def read_lines(path):
    with open(path, encoding="utf-8") as file:
        return file.read().splitlines()


def files_below(root, top):
    for directory, subdirectories, names in os.walk(os.path.join(root, top)):
        subdirectories.sort()
        for name in sorted(names):
            yield os.path.relpath(os.path.join(directory, name), root).replace(os.sep, "/")


def check_includes(root):
    for top in INCLUDING_DIRS:
        for path in files_below(root, top):
            if not path.endswith((".h", ".cpp")):
                continue
            folder = path.split("/")[1] if top == "src" else None
            if top == "src" and folder not in MAY_INCLUDE:
                yield f"{path}:1: the table of arrows does not know src/{folder}"
                continue
            for number, line in enumerate(read_lines(os.path.join(root, path)), 1):
                match = INCLUDE.match(line)
                if match:
                    quote, header = match.groups()
                    fault = include_fault(path, folder, quote, header) if folder else outside_fault(quote, header)
                    if not fault and folder and folder not in CORE and is_private(root, header):
                        fault = f"#include <{header}>: not public, so a shared core does not export it"
                    if fault:
                        yield f"{path}:{number}: {fault}"


def check_lengths(root):
    for top in MEASURED_DIRS:
        for path in files_below(root, top):
            if path.endswith(MEASURED_ENDINGS):
                count = len(read_lines(os.path.join(root, path)))
                if count > MAX_LINES:
                    yield f"{path}:{MAX_LINES + 1}: {count} lines, the limit is {MAX_LINES}"


def check_listed(root):
    """A file that no CMakeLists.txt names is not compiled, not installed, not tested."""
    for top in LISTED_DIRS:
        for path in files_below(root, top):
            if path.endswith(".cpp") or (path.endswith(".h") and top == "src"):
                directory, name = os.path.split(path)
                listing = os.path.join(root, directory, "CMakeLists.txt")
                words = re.split(r"[\s()]+", "\n".join(read_lines(listing))) if os.path.exists(listing) else []
                if name not in words:
                    yield f"{path}:1: not listed in {directory}/CMakeLists.txt"


def check(root):
    return [*check_includes(root), *check_lengths(root), *check_listed(root)]


# Each case: a file, its text, and the faults it must bring; the other files of the tree are in order.
ONLY_TOLVI = "only <tolvi/FOLDER/FILE.h> is allowed in src"
SELF_TESTS = [
    ("src/query/a.h", "#include <tolvi/model/table.h>\n#include <string>\n  #  include <tolvi/query/b.h>\n", []),
    ("src/ui/a.cpp", "#include <QWidget>\n#include <tolvi/panel/menus.h>\n", []),
    ("src/model/a.h", "// #include <QString>\n", []),
    ("src/foundation/a.h", "\n#include <tolvi/model/table.h>\n",
     ["src/foundation/a.h:2: #include <tolvi/model/table.h>: foundation must not see model"]),
    ("src/schema/a.h", "#include <tolvi/sqlimport/scanner.h>\n",
     ["src/schema/a.h:1: #include <tolvi/sqlimport/scanner.h>: schema must not see sqlimport"]),
    ("src/sqlimport/a.h", "#include <tolvi/schema/dbinfo.h>\n",
     ["src/sqlimport/a.h:1: #include <tolvi/schema/dbinfo.h>: sqlimport must not see schema"]),
    ("src/model/a.cpp", "#include <tolvi/query/rows.h>\n",
     ["src/model/a.cpp:1: #include <tolvi/query/rows.h>: model must not see query"]),
    ("src/query/a.cpp", "#include <tolvi/panel/menus.h>\n",
     ["src/query/a.cpp:1: #include <tolvi/panel/menus.h>: query must not see panel"]),
    ("src/panel/a.cpp", "#include <tolvi/ui/panel.h>\n",
     ["src/panel/a.cpp:1: #include <tolvi/ui/panel.h>: panel must not see ui"]),
    ("src/connect/a.cpp", "#include <tolvi/panel/menus.h>\n#include <tolvi/ui/panel.h>\n",
     ["src/connect/a.cpp:1: #include <tolvi/panel/menus.h>: connect must not see panel",
      "src/connect/a.cpp:2: #include <tolvi/ui/panel.h>: connect must not see ui"]),
    ("src/ui/a.cpp", "#include <tolvi/connect/store.h>\n",
     ["src/ui/a.cpp:1: #include <tolvi/connect/store.h>: ui must not see connect"]),
    ("src/xml/a.cpp", "#include <QString>\n#include <tolvi/query/rows.h>\n#include <tolvi/connect/store.h>\n",
     ["src/xml/a.cpp:2: #include <tolvi/query/rows.h>: xml must not see query",
      "src/xml/a.cpp:3: #include <tolvi/connect/store.h>: xml must not see connect"]),
    ("src/xml/a.cpp", "#include <tolvi/model/table.h>\n#include <tolvi/model/inner.h>\n",
     ["src/xml/a.cpp:2: #include <tolvi/model/inner.h>: not public, so a shared core does not export it"]),
    ("src/ui/a.cpp", '#include "b.h"\n', [f'src/ui/a.cpp:1: #include "b.h": {ONLY_TOLVI}']),
    ("src/model/a.h", "#include <tolvi/table.h>\n#include <tolvi/tables/table.h>\n#include <model/table.h>\n",
     ["src/model/a.h:1: #include <tolvi/table.h>: src has no such folder",
      "src/model/a.h:2: #include <tolvi/tables/table.h>: src has no such folder",
      "src/model/a.h:3: #include <model/table.h>: write <tolvi/model/table.h>"]),
    ("src/panel/a.h", "#include <QString>\n#include <QtCore/QString>\n#include <qglobal.h>\n",
     ["src/panel/a.h:1: #include <QString>: the core knows no Qt",
      "src/panel/a.h:2: #include <QtCore/QString>: the core knows no Qt",
      "src/panel/a.h:3: #include <qglobal.h>: the core knows no Qt"]),
    ("src/model/a.h", "#include <sqlite3.h>\n",
     ["src/model/a.h:1: #include <sqlite3.h>: the core uses the C++ standard library only"]),
    ("src/foundation/text.cpp", "#include <unistd.h>\n",
     ["src/foundation/text.cpp:1: #include <unistd.h>: the core uses the C++ standard library only"]),
    ("src/foundation/files.cpp", "#include <unistd.h>\n", []),
    ("tests/model/a.cpp", '#include <gtest/gtest.h>\n#include <tolvi/model/table.h>\n#include "support/a.h"\n', []),
    ("apps/tolvi/a.cpp", '#include <model/table.h>\n#include "tolvi/model/table.h"\n',
     ["apps/tolvi/a.cpp:1: #include <model/table.h>: write <tolvi/model/table.h>",
      'apps/tolvi/a.cpp:2: #include "tolvi/model/table.h": write <tolvi/FOLDER/FILE.h>']),
    ("src/helpers/a.h", "", ["src/helpers/a.h:1: the table of arrows does not know src/helpers"]),
    ("tests/model/a.cpp", "\n" * MAX_LINES, []),
    ("tests/model/a.cpp", "\n" * (MAX_LINES + 1), ["tests/model/a.cpp:701: 701 lines, the limit is 700"]),
    ("src/model/unlisted.h", "", ["src/model/unlisted.h:1: not listed in src/model/CMakeLists.txt"]),
    ("tests/model/unlisted_a.cpp", "", ["tests/model/unlisted_a.cpp:1: not listed in tests/model/CMakeLists.txt"]),
]


def write(root, path, text):
    path = os.path.join(root, path)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def self_test():
    failures = []
    for path, text, expected in SELF_TESTS:
        with tempfile.TemporaryDirectory() as root:
            write(root, "src/model/CMakeLists.txt", "target_sources(x PRIVATE inner.h FILES table.h)\n")
            write(root, os.path.dirname(path) + "/CMakeLists.txt", "target_sources(x PRIVATE a.cpp files.cpp text.cpp FILES a.h)\n")
            write(root, path, text)
            found = check(root)
            if found != expected:
                failures.append(f"{path} {text[:60]!r}\n  expected {expected}\n  found    {found}")
    return failures


def main(arguments):
    if arguments == ["--self-test"]:
        faults = self_test()
    else:
        root = arguments[0] if arguments else os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
        faults = check(root)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
