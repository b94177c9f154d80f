#!/usr/bin/env python3
"""Carries out a page of the documentation and compares, or replaces, what it says is printed.

    tutorial.py [--write] PAGE FOLDER PREFIX

FOLDER is made anew; PREFIX is where Tolvi is installed. A block after "<!-- file: NAME -->" is appended to that file, one
after "<!-- run -->" is run there (TOLVI is the root of the source tree), and one after "<!-- prints -->" is what the last
run has printed.
"""
import difflib
import os
import re
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BLOCK = re.compile(r"^<!-- (file: (?P<name>\S+)|run|prints) -->\n```[a-z]*\n(?P<text>(?:(?!```).*\n)*)```$", re.MULTILINE)


def main(arguments):
    write = arguments[:1] == ["--write"]
    if len(arguments) != 3 + write:
        sys.exit(__doc__)
    page, folder, prefix = [os.path.abspath(path) for path in arguments[write:]]
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    environment = {**os.environ, "TOLVI": ROOT, "CMAKE_PREFIX_PATH": prefix, "QT_LOGGING_RULES": "*.warning=false",
                   "PATH": os.path.join(prefix, "bin") + ":" + os.environ["PATH"]}
    printed = ""

    def carry_out(block):
        nonlocal printed
        if block["name"]:
            with open(os.path.join(folder, block["name"]), "a", encoding="utf-8") as file:
                file.write(block["text"])
        elif block[1] == "run":
            done = subprocess.run(["sh", "-e", "-c", block["text"]], cwd=folder, env=environment, encoding="utf-8",
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, check=False)
            printed = "".join(line.rstrip() + "\n" for line in done.stdout.splitlines())
            if done.returncode != 0:
                sys.exit(f"{block['text']}{printed}exit status {done.returncode}")
        else:
            return block[0].replace(f"```\n{block['text']}```", f"```\n{printed}```")
        return block[0]

    with open(page, encoding="utf-8") as file:
        old = file.read()
    new = BLOCK.sub(carry_out, old)
    if new == old:
        return 0
    if write:
        with open(page, "w", encoding="utf-8") as file:
            file.write(new)
        return 0
    sys.stdout.writelines(difflib.unified_diff(old.splitlines(True), new.splitlines(True), page, "what is printed"))
    return 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
