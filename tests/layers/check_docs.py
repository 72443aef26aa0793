#!/usr/bin/env python3
"""Reads the Markdown files of the tree and complains of lines that are too long.

usage: check_docs.py ROOT

A line has 100 characters at most, where it can be broken: tables, code, headings, and a line of a
single word, such as a link, may be longer.

Prints one line a fault, as file:line: text, and exits 1 if there is one.
"""

import os
import re
import sys
from pathlib import Path

WIDTH = 100

# What begins a line that can be broken behind it: an item, a definition, a quotation.
MARK = re.compile(r"\s*(?:(?:[-*+:>]|\d+\.)\s+)*")
FENCE = re.compile(r"\s*(```+|~~~+)")
WHOLE = re.compile(r"\s*(?:[|#]|\[[^]]+\]:)")


def long_lines(text):
    """The numbers of the lines that are too long."""
    found = []
    fence = None
    may_be_code = True
    for number, line in enumerate(text.splitlines(), 1):
        mark = FENCE.match(line)
        if mark and (fence is None or mark[1].startswith(fence)):
            fence = mark[1] if fence is None else None
            continue
        # Four blanks behind an empty line, or behind other code.
        is_code = fence is not None or (may_be_code and line.startswith("    "))
        may_be_code = not line.strip() or (is_code and fence is None)
        if len(line) <= WIDTH or is_code or WHOLE.match(line):
            continue
        if " " in line[MARK.match(line).end():].strip():
            found.append(number)
    return found


def documents(root):
    for folder, folders, names in os.walk(root):
        folders[:] = sorted(name for name in folders if name != "build" and name[0] != ".")
        for name in sorted(names):
            if name.endswith(".md"):
                yield Path(folder) / name


def check(root):
    return [f"{path.relative_to(root).as_posix()}:{line}: longer than {WIDTH} characters"
            for path in documents(root) for line in long_lines(path.read_text(encoding="utf-8"))]


def main(arguments):
    if len(arguments) != 1:
        print(__doc__, file=sys.stderr)
        return 2
    faults = check(arguments[0])
    for fault in faults:
        print(fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
