"""Writes the documentation of the headers as a table for documentation.cpp.

documentation.py HEADER... OUTPUT
"""

import sys

import headerdocs


def quoted(text):
    return "R\"text(" + text + ")text\"" if text else "nullptr"


def main(headers, output):
    with open(output, "w", encoding="utf-8") as table:
        for name, text in sorted(headerdocs.documentation(headers).items()):
            owner, dot, function = name.rpartition(".")
            if not dot and name[0].isupper():
                owner, function = name, ""
            table.write("{%s, %s, %s},\n" % (quoted(owner), quoted(function), quoted(text)))


main(sys.argv[1:-1], sys.argv[-1])
