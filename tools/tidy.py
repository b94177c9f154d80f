#!/usr/bin/env python3
"""Runs clang-tidy, with the rules of .clang-tidy, on the sources below src/ and apps/ of a build made by Ninja.

    tidy.py BUILD-DIR [WORD...]    only files whose path has one of the words

What was found clean is remembered in ~/.cache/tolvi/tidy, by the content of the file, of all headers of ours that it
includes, of the rules and of the command: without a change, nothing runs.
"""
import concurrent.futures
import hashlib
import json
import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
CACHE = os.path.join(os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "tolvi", "tidy")
TIDY = "clang-tidy-14"


def output_of(*command):
    return subprocess.run(command, capture_output=True, encoding="utf-8", check=True).stdout


def dependencies(build):
    """Object file -> the files of ours that it was made of."""
    result, current = {}, None
    for line in output_of("ninja", "-C", build, "-t", "deps").splitlines():
        if line.startswith(" "):
            path = os.path.realpath(os.path.join(build, line.strip()))
            if path.startswith(ROOT + os.sep):
                current.append(path)
        elif ":" in line:
            current = result.setdefault(line.split(":")[0], [])
    return result


def key_of(entry, files, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].replace(ROOT, "").encode())
    for path in sorted(files):
        with open(path, "rb") as file:
            digest.update(os.path.relpath(path, ROOT).encode() + b"\0" + file.read())
    return digest.hexdigest()


def tidy(build, file, key):
    done = subprocess.run([TIDY, "-p", build, "--quiet", "--extra-arg=-Wno-unknown-warning-option", file],
                          capture_output=True, encoding="utf-8", check=False)
    if done.returncode == 0:
        with open(os.path.join(CACHE, key), "w", encoding="utf-8"):
            pass
        return ""
    return done.stdout or done.stderr


def main(arguments):
    if not arguments:
        sys.exit(__doc__)
    build, words = os.path.abspath(arguments[0]), arguments[1:]
    os.makedirs(CACHE, exist_ok=True)
    with open(os.path.join(ROOT, ".clang-tidy"), "rb") as file:
        common = file.read() + output_of(TIDY, "--version").encode()
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        entries = json.load(file)
    made_of, jobs = dependencies(build), []
    for entry in entries:
        path = os.path.realpath(entry["file"])
        where = os.path.relpath(path, ROOT)
        if not where.startswith(("src/", "apps/")) or (words and not any(word in where for word in words)):
            continue
        key = key_of(entry, made_of.get(entry.get("output", ""), []) + [path], common)
        if not os.path.exists(os.path.join(CACHE, key)):
            jobs.append((path, key))
    findings = set()
    with concurrent.futures.ThreadPoolExecutor(int(os.environ.get("CMAKE_BUILD_PARALLEL_LEVEL", os.cpu_count()))) as pool:
        for output in pool.map(lambda job: tidy(build, *job), jobs):
            # A header is read with many files.
            findings.update(line.replace(ROOT + "/", "") for line in output.splitlines() if ": error: " in line)
    for line in sorted(findings):
        print(line)
    print(f"{len(jobs)} files read, {len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
