"""Hands a header to Doxygen. Comments are prose for people: what Doxygen takes for commands or tags in them is escaped."""
import re
import sys

COMMENT = re.compile(r"^(.*?)(///)(.*)$")


def escaped(text):
    # Between backticks, text stands as it is; blanks would otherwise end some of Doxygen's words.
    parts = re.split(r"(`[^`]*`)", text)
    return "".join(part if part.startswith("`") else re.sub(r"([@\\<>#%])", r"\\\1", part) for part in parts)


with open(sys.argv[1], encoding="utf-8") as file:
    for line in file:
        match = COMMENT.match(line.rstrip("\n"))
        if match and '"' not in match.group(1):
            print(match.group(1) + match.group(2) + escaped(match.group(3)))
        else:
            print(line, end="")
