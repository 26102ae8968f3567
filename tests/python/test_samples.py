"""The programs of the guide and the examples run, and a type checker accepts them."""

import os
import pathlib
import re
import subprocess
import sys

import pytest
import vantorslider

SOURCES = pathlib.Path(__file__).parents[2]
PAGE = (SOURCES / "docs/guide/python.md").read_text(encoding="utf-8")
BLOCKS = re.findall(r"^```python\n(.*?)^```$", PAGE, re.DOTALL | re.MULTILINE)
MINIMAL = (SOURCES / "examples/minimal/minimal.py").read_text(encoding="utf-8")
ADJUST = (SOURCES / "examples/adjust/adjust.py").read_text(encoding="utf-8")
PYSIDE = vantorslider.SliderEditFrame.__base__.__module__.partition(".")[0]
PROGRAMS = {"minimal": MINIMAL, "adjust": ADJUST, "page": "\n".join(BLOCKS)}
PRINTED = {"minimal": "36\n", "adjust": "", "page": "36\n"}


@pytest.fixture
def program(request, tmp_path):
    """A program as it is for the module under test."""
    text = PROGRAMS[request.param].replace("PySide2", PYSIDE)
    path = tmp_path / (request.param + ".py")
    path.write_text(text, encoding="utf-8")
    return path


def run(*command):
    return subprocess.run(
        [sys.executable, *map(str, command)],
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        env={**os.environ, "QT_LOGGING_RULES": "default.debug=false"},
    )


@pytest.mark.parametrize("program", PROGRAMS, indirect=True)
def test_runs(program):
    result = run("-W", "ignore", SOURCES / "tests/python/runsample.py", program)
    output = "".join(
        line
        for line in result.stdout.splitlines(True)
        if not re.match("This plugin does not support|QStandardPaths: ", line)
    )
    assert (output, result.returncode) == (PRINTED[program.stem], 0)


def test_page_shows_the_example():
    assert BLOCKS[0] == MINIMAL


def test_adjust_is_short():
    assert len(ADJUST.splitlines()) < 100


def check(path):
    pytest.importorskip("mypy")
    # PySide2 of Debian has no hints of its own.
    return run("-m", "mypy", "--check-untyped-defs", "--ignore-missing-imports",
               "--cache-dir", path.parent / "cache", path)


@pytest.mark.parametrize("program", PROGRAMS, indirect=True)
def test_type_checker_accepts(program):
    result = check(program)
    assert result.returncode == 0, result.stdout


WRONG = """
from vantorslider import ExactEntry, RectEditFrame, SliderEditFrame

row = SliderEditFrame(value=3)
row.setRange(0, 9)
row.setRange("0", 9)  # wrong
row.setEntryOptions(ExactEntry | 1)
row.setSliderScale(3)  # wrong
rect = RectEditFrame()
x, y, w, h = rect.value()
x, y = rect.value()  # wrong
text: str = rect.row(RectEditFrame.X).value()  # wrong
"""


def test_type_checker_finds(tmp_path):
    path = tmp_path / "wrong.py"
    path.write_text(WRONG, encoding="utf-8")
    found = re.findall(r"wrong\.py:(\d+): error", check(path).stdout)
    wrong = [number for number, line in enumerate(WRONG.splitlines(), 1) if "# wrong" in line]
    assert sorted(set(map(int, found))) == wrong
