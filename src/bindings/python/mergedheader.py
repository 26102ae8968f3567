"""Writes the public headers as one that opens their namespace once, for the generator to read.

The generator of PySide6 writes an enumeration of a namespace as often as it is opened.

mergedheader.py HEADER... OUTPUT
"""

import os
import re
import sys

OPENED = "namespace Vantor {\nnamespace Widgets {\n"
# The headers only declare these; the generator needs their definitions.
DEFINED = "#include <QtWidgets/QApplication>\n"
CLOSED = "} // namespace Widgets\n} // namespace Vantor\n"
OWN_INCLUDE = re.compile(r'#include "(\w+\.h)"\n')


def main(paths, output):
    by_name = {os.path.basename(path): path for path in paths}
    heads, bodies = [], []

    def add(name):
        """Adds a header after those that it includes."""
        path = by_name.pop(name, None)
        if not path:
            return
        with open(path, encoding="utf-8") as header:
            head, opened, rest = header.read().partition(OPENED)
        for included in OWN_INCLUDE.findall(head):
            add(included)
        heads.append(OWN_INCLUDE.sub("", head))
        bodies.append(rest.partition(CLOSED)[0])

    for name in list(by_name):
        add(name)
    with open(output, "w", encoding="utf-8") as merged:
        merged.write("".join(heads) + DEFINED + OPENED + "".join(bodies) + CLOSED)


main(sys.argv[1:-1], sys.argv[-1])
