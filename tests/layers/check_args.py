#!/usr/bin/env python3
"""Reads src/ and host/ and complains of texts that take their values one after another.

usage: check_args.py ROOT

In tr("%1: %2").arg(name).arg(what) a name such as "a%2b" takes the place of what. All values of a
text go into one call: arg(name, what), with QString::number() for numbers.

Prints one line a fault, as file:line: text, and exits 1 if there is one.
"""

import re
import sys
from pathlib import Path

CALL = re.compile(r"\s*\.arg\(")
LITERAL = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])+\'')


def end_of_call(text, at):
    """The place behind the parenthesis that closes the one in front of `at`."""
    depth = 1
    while depth and at < len(text):
        literal = LITERAL.match(text, at)
        if literal:
            at = literal.end()
            continue
        depth += {"(": 1, ")": -1}.get(text[at], 0)
        at += 1
    return at


def chains(text):
    """The lines on which a chain of calls begins."""
    return [text.count("\n", 0, call.start()) + 1
            for call in re.finditer(r"\.arg\(", text)
            if CALL.match(text, end_of_call(text, call.end()))]


def check(root):
    faults = []
    for top in ("src", "host"):
        for path in sorted((Path(root) / top).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                name = path.relative_to(root).as_posix()
                faults += [f"{name}:{line}: give arg() all values at once, or a name with %1 in "
                           "it takes the place of another" for line in
                           chains(path.read_text(encoding="utf-8"))]
    return faults


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
