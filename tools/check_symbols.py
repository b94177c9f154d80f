#!/usr/bin/env python3
"""Checks that the shared libraries of an install tree export what their public headers declare, and nothing else.

    check_symbols.py PREFIX       prints each fault; exit code 1 if there is one
    check_symbols.py --self-test  makes libraries with faults and compares what the check says

Needs clang, nm, c++filt and pkg-config. What clang reads in the headers is compared with what nm finds in the library.
"""
import glob
import json
import os
import re
import subprocess
import sys
import tempfile

# A package of pkg-config, its library, and the folders of its headers.
LIBRARIES = [
    ("tolvi-core", "libtolvi_core.so", ["foundation", "schema", "sqlimport", "model", "query", "store", "panel"]),
    ("tolvi-connect", "libtolvi_connect.so", ["connect"]),
    ("tolvi-xml", "libtolvi_xml.so", ["xml"]),
    ("tolvi-widgets", "libtolvi_widgets.so", ["ui"]),
]

FUNCTIONS = {"FunctionDecl", "CXXMethodDecl", "CXXConstructorDecl", "CXXDestructorDecl", "CXXConversionDecl"}
# Qt keeps it to the library; linkers mark the ends of a library.
KEPT_BY_QT = re.compile(r"::qt_static_metacall\(")
MADE_BY_LINKERS = {"__bss_start", "_edata", "_end", "_init", "_fini"}
# What a compiler makes for a class or function besides its functions.
MADE_FOR = re.compile(r"^(?:vtable for|typeinfo for|typeinfo name for|VTT for|construction vtable for|guard variable for|"
                      r"non-virtual thunk to|virtual thunk to|covariant return thunk to) ")


def output_of(*command, text=None):
    done = subprocess.run(command, input=text, capture_output=True, encoding="utf-8", check=False)
    if done.returncode != 0:
        sys.exit(f"{' '.join(command)}\n{done.stderr}")
    return done.stdout


def demangled(names):
    """A name for each mangled one. The kinds of constructors and destructors of a class have the same."""
    return output_of("c++filt", text="\n".join(names)).splitlines() if names else []


class Place:
    """Where a declaration stands. The dump tells file and line only where they change."""

    def __init__(self):
        self.file, self.line = "", 0

    def mark(self, node):
        """Writes its place into each node, in the order of the dump."""
        for key in ("spellingLoc", "expansionLoc"):
            if key in node:
                self.mark_point(node[key])
        if "loc" in node:
            self.mark_point(node["loc"])
            for key in ("spellingLoc", "expansionLoc"):
                self.mark_point(node["loc"].get(key, {}))
            node["place"] = (self.file, self.line)
        for end in ("begin", "end"):
            point = node.get("range", {}).get(end, {})
            self.mark_point(point)
            for key in ("spellingLoc", "expansionLoc"):
                self.mark_point(point.get(key, {}))
        for inner in node.get("inner", []):
            self.mark(inner)

    def mark_point(self, point):
        self.file = point.get("file", self.file)
        self.line = point.get("line", self.line)


class Declarations:
    """What headers declare in namespace tolvi."""

    def __init__(self):
        self.functions = {}  # mangled name -> [qualified name, place, whether a library must have it]
        self.classes = {}  # qualified name -> (place, whether its type must be visible, whether it is)

    def read(self, node, scope, visible):
        kind, inner = node.get("kind"), node.get("inner", [])
        name = scope + [node.get("name", "")]
        if kind in ("NamespaceDecl", "LinkageSpecDecl"):
            if kind == "LinkageSpecDecl":
                name = scope
            if node.get("name") or kind == "LinkageSpecDecl":
                for child in inner:
                    self.read(child, name, visible)
        elif kind == "FriendDecl":
            for child in inner:
                if child.get("kind") in FUNCTIONS:
                    self.read(child, scope[:1], visible)
        elif kind == "ClassTemplateDecl":
            self.classes["::".join(name)] = (node["place"], False, True)
        elif kind == "CXXRecordDecl" and not node.get("isImplicit"):
            visible = visible or any(child.get("kind") == "VisibilityAttr" for child in inner)
            if node.get("completeDefinition"):
                polymorphic = node.get("definitionData", {}).get("isPolymorphic", False)
                self.classes["::".join(name)] = (node["place"], polymorphic, visible)
                for child in inner:
                    self.read(child, name, visible)
        elif (kind in FUNCTIONS or kind == "VarDecl") and "mangledName" in node and not node.get("isImplicit"):
            self.read_symbol(node, kind, "::".join(name))

    def read_symbol(self, node, kind, name):
        if node.get("storageClass") == "static" and "::" not in name.removeprefix("tolvi::"):
            return
        if node.get("constexpr") or node.get("inline") or node.get("explicitlyDeleted") or node.get("pure"):
            here = True
        elif kind == "VarDecl":
            here = "init" in node
        else:
            here = "explicitlyDefaulted" in node or any(
                child.get("kind") in ("CompoundStmt", "CXXTryStmt") for child in node.get("inner", []))
        entry = self.functions.setdefault(node["mangledName"], [name, node["place"], True])
        entry[2] = entry[2] and not here


def declarations_of(headers, flags):
    """HEADERS are paths as an #include writes them."""
    includes = "".join(f"#include <{header}>\n" for header in headers)
    dump = output_of("clang++", "-std=c++20", "-x", "c++", "-fsyntax-only", *flags, "-Xclang", "-ast-dump=json",
                     "-Xclang", "-ast-dump-filter", "-Xclang", "tolvi", "-", text=includes)
    decoder, at, result = json.JSONDecoder(), 0, Declarations()
    while True:
        start = dump.find("{", at)
        if start < 0:
            return result
        node, at = decoder.raw_decode(dump, start)
        Place().mark(node)
        if node.get("kind") == "NamespaceDecl":
            result.read(node, [], False)


def exported_by(library):
    """The demangled names, and for each whether the linker may merge it with others (functions in headers)."""
    lines = [line.split() for line in output_of("nm", "-D", "--defined-only", "--format=posix", library).splitlines()]
    names = demangled([line[0] for line in lines])
    return {name: line[1] in "WVu" for name, line in zip(names, lines)}


def is_declared(entity, found):
    """Whether ENTITY, for which a compiler has made something, is a declared class, or within one."""
    names = re.split(r"[<(]", entity)[0].split("::")
    return any("::".join(names[:length]) in found.classes for length in range(2, len(names) + 1))


def check_library(library, root, headers, flags, others=()):
    """HEADERS and the places in messages are below ROOT; what other headers declare is not of this library. OTHERS are
    headers of libraries that it needs."""
    found = declarations_of([*headers, *others], flags)
    exported = exported_by(library)
    known = dict(zip(demangled(list(found.functions)), found.functions.values()))
    ours = {os.path.realpath(os.path.join(root, header)) for header in headers}
    faults = []

    def place(where):
        return f"{os.path.relpath(os.path.realpath(where[0]), os.path.realpath(root))}:{where[1]}"

    for symbol, (name, where, required) in known.items():
        if required and symbol not in exported and not KEPT_BY_QT.search(symbol) and os.path.realpath(where[0]) in ours:
            faults.append(f"{place(where)}: {symbol} is not exported")
    for name, (where, polymorphic, visible) in found.classes.items():
        if polymorphic and not visible and os.path.realpath(where[0]) in ours:
            faults.append(f"{place(where)}: the type of {name} is not exported: objects of it cannot be caught or cast")
    for symbol, merged in exported.items():
        entity = MADE_FOR.sub("", symbol)
        if symbol in MADE_BY_LINKERS or entity in known or (entity != symbol and is_declared(entity, found)):
            continue
        template = entity.split("<")[0]
        if merged and (not entity.startswith("tolvi::") or ("<" in entity and template.rpartition("::")[0] != "tolvi")):
            continue  # a template of others, or of a public class, with types of ours
        faults.append(f"{os.path.basename(library)}: exports {symbol}, which no public header declares")
    return sorted(faults)


def check(prefix):
    faults, checked = [], 0
    config = glob.glob(os.path.join(prefix, "lib", "**", "pkgconfig"), recursive=True)
    os.environ["PKG_CONFIG_PATH"] = ":".join(config + [os.environ.get("PKG_CONFIG_PATH", "")])
    core = []
    for package, name, folders in LIBRARIES:
        libraries = glob.glob(os.path.join(prefix, "lib", "**", name), recursive=True)
        if not libraries:
            continue
        include = os.path.join(prefix, "include")
        headers = [os.path.relpath(path, include) for folder in folders
                   for path in sorted(glob.glob(os.path.join(include, "tolvi", folder, "**", "*.h"), recursive=True))]
        flags = output_of("pkg-config", "--cflags", package).split()
        faults += check_library(libraries[0], include, headers, [f"-I{include}", *flags], core)
        core = core or headers
        checked += 1
    return faults if checked else [f"{prefix}: no shared library of Tolvi"]


API = '#define API __attribute__((visibility("default")))\n'
# Each case: a header, a source, and the faults that they must bring.
SELF_TESTS = [
    ("void API Said(); inline int Short() { return 1; }\n"
     "template <class T> T Twice(T x) { return x + x; }\n"
     "struct API TShape { TShape(); virtual ~TShape(); virtual int Area() const = 0; TShape(const TShape&) = delete;\n"
     "  struct TPart; static int Count; static constexpr int Corners = 4; };\n"
     "struct TPoint { int X = 0; bool operator==(const TPoint&) const = default; };",
     "void Said() {} int TShape::Count; TShape::TShape() {} TShape::~TShape() = default; static void Own() {}",
     []),
    ("void Lost(int);\nstruct TLost { void Gone(); int Here() { return 1; } };", "void Lost(int) {} void TLost::Gone() {}",
     ["a.h:3: tolvi::Lost(int) is not exported", "a.h:4: tolvi::TLost::Gone() is not exported"]),
    ("struct EMissed { virtual ~EMissed() = default; };", "",
     ["a.h:3: the type of tolvi::EMissed is not exported: objects of it cannot be caught or cast"]),
    ("API void Said();", "void Said() {} API void Whispered(int) {} API int Value;",
     ["liba.so: exports tolvi::Value, which no public header declares",
      "liba.so: exports tolvi::Whispered(int), which no public header declares"]),
    ("struct API TOwner { struct TPart; TOwner(); };",
     "struct TOwner::TPart { int Private(); }; int TOwner::TPart::Private() { return 1; } TOwner::TOwner() {}",
     ["liba.so: exports tolvi::TOwner::TPart::Private(), which no public header declares"]),
]


def self_test():
    failures = []
    for header, source, expected in SELF_TESTS:
        with tempfile.TemporaryDirectory() as root:
            with open(os.path.join(root, "a.h"), "w", encoding="utf-8") as file:
                file.write(API + "namespace tolvi {\n" + header + "\n}\n")
            library = os.path.join(root, "liba.so")
            output_of("clang++", "-std=c++20", "-x", "c++", "-shared", "-fPIC", "-fvisibility=hidden",
                      "-fvisibility-inlines-hidden", f"-I{root}", "-o", library, "-",
                      text=f"#include <a.h>\nnamespace tolvi {{\n{source}\n}}\n")
            found = check_library(library, root, ["a.h"], [f"-I{root}"])
            if found != expected:
                failures.append(f"{header!r}\n  expected {expected}\n  found    {found}")
    return failures


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__)
    faults = self_test() if arguments == ["--self-test"] else check(arguments[0])
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
