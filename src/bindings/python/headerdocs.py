"""Reads the public headers: their documentation comments, as plain text by name.

A name is that of a class, of its function or enumeration ("SliderEditFrame.setRange"), or of a
free function. The texts of overloads follow one another.
"""

import re
import textwrap

DECLARATION = re.compile(r"/\*!(?P<text>.*?)\*/\s*(?P<declaration>[^;{/]*)[;{]", re.DOTALL)
CLASS = re.compile(r"^class VANTORSLIDER_EXPORT (\w+) ", re.MULTILINE)
NAME = re.compile(r"\benum (\w+)|(\w+)\s*\(")
REFERENCE = re.compile(r"(?<!const )\bint &")

# What C++ writes to arguments, Python returns.
OTHERWISE = {
    "MaskEditFrame.getMaskValue": "Returns a QRect whose edges are the margins: its left edge is the "
    "left margin and so on. It is not a rectangle in the area.",
    "RGBAllEditFrame.value": "Returns the current values (r, g, b, all).",
    "RGBEditFrame.value": "Returns the current values (r, g, b).",
    "RGBOpacityEditFrame.value": "Returns the current values (r, g, b, opacity).",
    "RectEditFrame.range": "Returns the range (min, max) of the field type; (0, 0) if type is invalid.",
    "RectEditFrame.value": "Returns the current values (x, y, w, h).",
    "SliderEditDoubleSpinBox.validate": "Returns (QValidator.Acceptable, text, pos).",
    "SliderEditSpinBox.validate": "Returns (QValidator.Acceptable, text, pos).",
}


def documentation(paths):
    texts = {}
    for name, text, _ in documented(paths):
        texts.setdefault(name, []).append(text)
    return {
        name: filled(OTHERWISE[name]) if name in OTHERWISE else "\n\n".join(parts)
        for name, parts in texts.items()
    }


def references(paths):
    """How many numbers a function returns through references, of those with several."""
    return {
        name: len(REFERENCE.findall(declaration))
        for name, _, declaration in documented(paths)
        if len(REFERENCE.findall(declaration)) > 1
    }


def documented(paths):
    """Name, text and declaration of all that has a comment."""
    for path in paths:
        with open(path, encoding="utf-8") as header:
            source = header.read()
        for match in DECLARATION.finditer(source):
            declaration = match["declaration"]
            of_class = CLASS.search(declaration)
            named = of_class or NAME.search(declaration)
            if not named:
                continue
            name = named[1] or named[2]
            # Members are indented.
            if not of_class and source[: match.start()].endswith(" "):
                name = CLASS.findall(source, 0, match.start())[-1] + "." + name
            yield name, plain(match["text"]), declaration


def filled(paragraph):
    return textwrap.fill(paragraph, 88, break_on_hyphens=False)


def plain(comment):
    """A comment without commands, and without its samples in C++."""
    text = re.sub(r"\\code.*?\\endcode", "", comment, flags=re.DOTALL)
    text = re.sub(r"\\class .*", "", text)
    text = re.sub(r"\\since ([\d.]+)", r"Since \1.", text)
    text = re.sub(r"\\(a|c|brief) ", "", text)
    text = re.sub(r"(\w)::(\w+\()", r"\1.\2", text)
    paragraphs = re.split(r"\n\s*\n", text.strip())
    return "\n\n".join(filled(" ".join(part.split())) for part in paragraphs)
