#!/usr/bin/env python3
"""Runs the examples of the documentation and compares, or replaces, what they print.

    doc_examples.py [--check] TOLVI DATABASE FILE...

An example is a block fenced by ``` whose first line is "$ tolvi ARGUMENTS"; the rest is what the program prints, first
standard output, then standard error. Programs run in samples/shop, where "shop.sqlite" stands for DATABASE.
"""
import difflib
import os
import re
import shlex
import subprocess
import sys

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "samples", "shop")
EXAMPLE = re.compile(r"^```\n\$ tolvi (.*)\n(?:(?!```).*\n)*```$", re.MULTILINE)


def run(program, database, command):
    arguments = [database if word == "shop.sqlite" else word for word in shlex.split(command)]
    done = subprocess.run([program, *arguments], cwd=FOLDER, capture_output=True, encoding="utf-8", check=False)
    printed = (done.stdout + done.stderr).replace(database, "shop.sqlite")
    return f"```\n$ tolvi {command}\n{printed}```"


def main(arguments):
    check = arguments[:1] == ["--check"]
    program, database, *files = arguments[1:] if check else arguments
    program, database = os.path.abspath(program), os.path.abspath(database)
    status = 0
    for name in files:
        with open(name, encoding="utf-8", newline="") as file:
            old = file.read()
        new = EXAMPLE.sub(lambda example: run(program, database, example.group(1)), old)
        if new == old:
            continue
        if check:
            sys.stdout.writelines(difflib.unified_diff(
                old.splitlines(True), new.splitlines(True), name, "what the program prints"))
            status = 1
        else:
            with open(name, "w", encoding="utf-8", newline="") as file:
                file.write(new)
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
