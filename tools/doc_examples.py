#!/usr/bin/env python3
"""Runs the examples of the documentation and compares, or replaces, what they print.

    doc_examples.py [--check] TOLVI DATABASE FILE...

An example is a block fenced by ``` whose first line is "$ tolvi ARGUMENTS", "$ tolvi ARGUMENTS | tolvi ARGUMENTS" or
"$ cat FILE"; the rest is what that prints, first standard output, then standard error. Programs run in samples/shop,
where "shop.sqlite" stands for DATABASE.
"""
import difflib
import os
import re
import shlex
import subprocess
import sys

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "samples", "shop")
EXAMPLE = re.compile(r"^```\n\$ ((?:tolvi|cat) .*)\n(?:(?!```).*\n)*```$", re.MULTILINE)


def run(program, database, command):
    programs = {"tolvi": program, "cat": "cat"}
    text, errors = "", ""
    for part in command.split(" | "):
        name, *arguments = [database if word == "shop.sqlite" else word for word in shlex.split(part)]
        done = subprocess.run([programs[name], *arguments], cwd=FOLDER, input=text, capture_output=True,
                              encoding="utf-8", check=False)
        text = done.stdout
        errors += done.stderr
    printed = (text + errors).replace(database, "shop.sqlite")
    return f"```\n$ {command}\n{printed}```"


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
