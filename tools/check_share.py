#!/usr/bin/env python3
"""Asks shells what they complete, and reads the pages of the manual as `man` does.

    check_share.py FOLDER [PAGE...]    FOLDER: where tolvi_share_files has written

Shells that are not installed are left out.
"""
import os
import pty
import shutil
import subprocess
import sys
import tempfile
import time

# What is typed, and the words that are offered for the last one.
CASES = [
    ("", ["check", "explain", "filters", "import", "init-model", "model", "parse", "path", "query", "run", "sql", "store"]),
    ("in", ["init-model"]),
    ("sql --s", ["--syntax"]),
    ("sql --syntax sql", ["sql1", "sql2"]),
    ("sql --query la", ["late.qry"]),
    ("check la", ["late.qry"]),
    ("store ", ["delete", "list", "save", "show"]),
    ("store list --store qu", ["queries"]),
    ("store list --format ", ["csv", "json", "table"]),
    ("path --to", []),
    ("run --limit ", []),
]
# Words in which the shell sees more than letters.
BASH_CASES = [
    ("--ver", ["--version"]),
    ("sql --syntax=or", ["oracle"]),
    ("sql --bound ", ["'$1'", "':name'", "'?'"]),
    ("run --strict --param a=1 --pa", ["--param"]),  # may be repeated
    ("sql --model x --mo", []),  # may not
]
FISH_CASES = [("sql --bound ", ["$1", ":name", "?"]), ("sql --syntax=or", ["--syntax=oracle"])]
# What the line has become after the tabulator.
ZSH_CASES = [
    ("tolvi in", "tolvi init-model "),
    ("tolvi sql --sy", "tolvi sql --syntax="),
    ("tolvi sql --syntax or", "tolvi sql --syntax oracle "),
    ("tolvi sql --bound '$", "tolvi sql --bound '$1' "),
    ("tolvi sql --query la", "tolvi sql --query late.qry "),
    ("tolvi store list --store qu", "tolvi store list --store queries/"),
    ("tolvi store sh", "tolvi store show "),
    ("tolvi check la", "tolvi check late.qry "),
]


def output_of(*command):
    return subprocess.run(command, capture_output=True, encoding="utf-8", check=False, stdin=subprocess.DEVNULL)


def ask_bash(folder, typed):
    words = ["tolvi"]
    for word in typed.split(" "):
        name, equals, value = word.partition("=") if word.startswith("--") else (word, "", "")
        words += [name] + ([equals, value] if equals else [])
    script = '. "$1/tolvi"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _tolvi; printf "%s\\n" "${COMPREPLY[@]}"'
    done = output_of("bash", "-c", script, "bash", folder, *words)
    return sorted(word for word in done.stdout.split("\n") if word), done.stderr


def ask_fish(folder, typed):
    done = output_of("fish", "--no-config", "-c", 'source $argv[1]/tolvi.fish; complete -C "tolvi $argv[2]"', folder, typed)
    return sorted(line.split("\t")[0].rstrip("/") for line in done.stdout.splitlines()), done.stderr


def ask_zsh(folder, lines):
    """The lines after the tabulator, in a terminal of its own."""
    with tempfile.TemporaryDirectory() as work:
        answers = os.path.join(work, "answers")
        pid, terminal = pty.fork()
        if pid == 0:
            os.environ["HOME"] = work
            os.execvp("zsh", ["zsh", "-f", "-i"])
        setup = (f"fpath=({folder} $fpath); autoload -U compinit; compinit -D -u; "
                 f"tell() {{ print -r -- \"$BUFFER\" >>{answers}; BUFFER= }}; zle -N tell; bindkey '^X' tell; "
                 f"setopt no_auto_list no_list_beep; : >{answers}\n")
        os.write(terminal, setup.encode())

        def told():
            if not os.path.exists(answers):
                return -1
            with open(answers, encoding="utf-8") as file:
                return len(file.readlines())

        def wait_for(count):
            end = time.monotonic() + 20
            while told() < count and time.monotonic() < end:
                time.sleep(0.02)

        wait_for(0)
        for number, line in enumerate(lines, 1):
            os.write(terminal, (line + "\t\x18").encode())
            wait_for(number)
        os.close(terminal)
        os.waitpid(pid, 0)
        with open(answers, encoding="utf-8") as file:
            return [line.rstrip("\n") for line in file]


def check(folder, pages):
    faults = []
    for shell, ask, cases in (("bash", ask_bash, CASES + BASH_CASES), ("fish", ask_fish, CASES + FISH_CASES)):
        if not shutil.which(shell):
            continue
        for typed, expected in cases:
            if typed == "" and shell == "bash":
                expected = sorted(expected + ["--help", "--version"])
            found, errors = ask(folder, typed)
            if found != expected or errors:
                faults.append(f"{shell}: \"tolvi {typed}\" offers {found}, not {expected} {errors}".rstrip())
    if shutil.which("zsh"):
        for (typed, expected), found in zip(ZSH_CASES, ask_zsh(folder, [line for line, _ in ZSH_CASES]), strict=True):
            if found != expected:
                faults.append(f"zsh: \"{typed}\" becomes \"{found}\", not \"{expected}\"")
    for page in pages if shutil.which("man") else []:
        done = subprocess.run(["man", "--warnings", "-E", "UTF-8", "-Tutf8", "-l", page], capture_output=True, encoding="utf-8",
                              env={**os.environ, "MANWIDTH": "100"}, check=False)
        if done.returncode != 0 or done.stderr:
            faults.append(f"{page}: {done.stderr or 'cannot be read'}")
    return faults


def main(arguments):
    if not arguments:
        sys.exit(__doc__)
    folder, *pages = [os.path.abspath(path) for path in arguments]
    with tempfile.TemporaryDirectory() as work:
        os.chdir(work)
        os.mkdir("queries")
        with open("late.qry", "w", encoding="utf-8"):
            pass
        faults = check(folder, pages)
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
