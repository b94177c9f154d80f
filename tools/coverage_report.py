#!/usr/bin/env python3
"""Prints how many lines the tests reach, folder by folder, and the files of which they reach too few.

    coverage_report.py SUMMARY [LIMIT]    SUMMARY: of `gcovr --json-summary`; LIMIT: percent of the core's lines, default 85
"""
import json
import sys

CORE = ["foundation", "schema", "sqlimport", "model", "query", "store", "panel"]


def percent(files):
    total = sum(file["line_total"] for file in files)
    return 100 * sum(file["line_covered"] for file in files) / total if total else 100.0


def main(arguments):
    if not arguments:
        sys.exit(__doc__)
    limit = float(arguments[1]) if len(arguments) > 1 else 85.0
    with open(arguments[0], encoding="utf-8") as file:
        files = [file for file in json.load(file)["files"] if file["line_total"]]
    for file in files:  # headers are found by the link in the build's folder
        file["filename"] = file["filename"].replace("build/coverage/include/tolvi/", "src/")
    folders = {}
    for file in files:
        folders.setdefault(file["filename"].split("/")[1], []).append(file)
    for folder in sorted(folders, key=lambda name: (name not in CORE, (CORE + [name]).index(name))):
        print(f"{folder:12} {percent(folders[folder]):5.1f} %")
    for file in sorted(files, key=lambda file: file["line_covered"] / file["line_total"]):
        missing = file["line_total"] - file["line_covered"]
        if missing >= 5 and 100 * file["line_covered"] / file["line_total"] < limit:
            print(f"  lacks tests: {file['filename']}: {file['line_covered']} of {file['line_total']} lines")
    core = [file for folder in CORE for file in folders.get(folder, [])]
    if not core:
        print("no lines of the core")
        return 1
    print(f"core: {percent(core):.1f} % of {sum(file['line_total'] for file in core)} lines, the limit is {limit:g} %")
    return 1 if percent(core) < limit else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
