"""Editors and rows live as long as in C++; a call after that raises."""

import gc
import re
import weakref

import pytest
import vantorslider
from user import QtWidgets, deliver_deletions, shown, type_into
from vantorslider import RectEditFrame, RGBEditFrame, SliderEditFrame

EDITORS = [
    value
    for name, value in sorted(vars(vantorslider).items())
    if isinstance(value, type) and issubclass(value, QtWidgets.QWidget)
]


def test_row_lives_as_long_as_its_editor(qtbot):
    color = RGBEditFrame()
    red = color.row(RGBEditFrame.R)
    assert red is color.rows()[0]
    red.setValue(7)
    assert color.value()[0] == 7
    rows = color.rows()
    del color
    gc.collect()
    for row in [red, *rows]:
        with pytest.raises(RuntimeError, match="deleted"):
            row.value()


def test_row_of_no_field(qtbot):
    assert RectEditFrame().row(RectEditFrame.Position) is None


@pytest.mark.parametrize("editor_class", EDITORS)
def test_parent_owns_its_editor(qtbot, editor_class):
    panel = QtWidgets.QWidget()
    editor_class(panel).setObjectName("editor")
    gc.collect()
    editor = panel.findChild(editor_class, "editor")
    assert type(editor) is editor_class
    del panel
    gc.collect()
    with pytest.raises(RuntimeError, match="deleted"):
        editor.width()


def test_slot_deletes_its_editor(qtbot):
    row = shown(qtbot, SliderEditFrame())
    row.valueChanged.connect(lambda value: row.deleteLater())
    type_into(row, "5")
    assert row.value() == 5
    deliver_deletions()
    with pytest.raises(RuntimeError, match="deleted"):
        row.value()


def test_exception_in_a_slot(qtbot):
    row = shown(qtbot, SliderEditFrame())
    log = []

    def fail(value):
        raise ValueError(value)

    row.valueChanged.connect(fail)
    row.valueChanged.connect(log.append)
    with qtbot.capture_exceptions() as exceptions:
        type_into(row, "5")
        type_into(row, "6")
    assert [repr(error) for kind, error, trace in exceptions] == ["ValueError(5)", "ValueError(6)"]
    assert log == [5, 6] and row.value() == 6


def memory():
    """The resident set of this process, in kB."""
    with open("/proc/self/status", encoding="ascii") as status:
        return int(re.search(r"VmRSS:\s*(\d+)", status.read())[1])


@pytest.mark.parametrize("editor_class", EDITORS)
def test_dropped_editors_leave_nothing(qtbot, editor_class):
    def make_and_drop(count):
        for _ in range(count):
            editor = editor_class()
            getattr(editor, "rows", list)()
            # Not of a row: PySide6 6.8 keeps 0.8 kB for a signal of what C++ has made.
            editor.valueChanged.connect(editor.update)
            last = weakref.ref(editor)
            del editor
        deliver_deletions()
        return last

    make_and_drop(200)
    widgets = len(QtWidgets.QApplication.allWidgets())
    before = memory()
    assert make_and_drop(1000)() is None
    assert len(QtWidgets.QApplication.allWidgets()) == widgets
    # An editor takes 20 kB and more.
    assert memory() - before < 2000
