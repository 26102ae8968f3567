"""What the user does arrives in Python, and what the program sets arrives at the editor."""

import pytest
import vantorslider
from user import Qt, QTest, QtCore, QtGui, QtWidgets, drag, shown, type_into
from vantorslider import (
    CropEditFrame,
    MaskEditFrame,
    RectEditFrame,
    RGBAllEditFrame,
    RGBEditFrame,
    RGBOpacityEditFrame,
    SliderEditFrame,
    SliderEditFrameDouble,
)


def recorded(editor, *names):
    """The signals of an editor as (name, arguments...), in one list."""
    log = []
    for name in names:
        getattr(editor, name).connect(lambda *values, name=name: log.append((name, *values)))
    return log


@pytest.mark.parametrize(
    "editor_class, entry, value",
    [(SliderEditFrame, "12*3", 36), (SliderEditFrameDouble, "1/4", 0.25)],
)
def test_typed(qtbot, editor_class, entry, value):
    row = shown(qtbot, editor_class())
    row.setRange(0, 50)
    row.setValue(0)
    log = recorded(row, "editStarted", "valueChanged", "editFinished")
    type_into(row, entry)
    assert log == [("editStarted",), ("valueChanged", value), ("editFinished",)]
    assert row.value() == value and type(row.value()) is type(value)


def test_dragged(qtbot):
    row = shown(qtbot, SliderEditFrame())
    row.setReleaseMode(True)
    log = recorded(row, "editStarted", "valueChanged", "editFinished")
    drag(row, 60)
    assert log == [("editStarted",), ("valueChanged", row.value()), ("editFinished",)]
    assert row.value() > 0


def test_reset(qtbot):
    row = shown(qtbot, SliderEditFrame(labelText="Gain", value=7, defaultValue=50))
    log = recorded(row, "valueChanged")
    QTest.mouseDClick(row.findChild(QtWidgets.QLabel), Qt.LeftButton)
    assert log == [("valueChanged", 50)]


def test_crop_stays_in_its_area(qtbot):
    crop = shown(qtbot, CropEditFrame())
    crop.setCropRange(100, 80)
    crop.setCropValue(QtCore.QRect(10, 10, 50, 50))
    log = recorded(crop, "cropValueChanged")
    type_into(crop.row(CropEditFrame.Width), "95")
    assert log == [("cropValueChanged", 10, 10, 90, 50)]


def test_color_through_a_mapper(qtbot):
    editor = shown(qtbot, RGBEditFrame())
    model = QtGui.QStandardItemModel(1, 1)
    index = model.index(0, 0)
    model.setData(index, QtGui.QColor(10, 20, 30), Qt.EditRole)
    mapper = QtWidgets.QDataWidgetMapper()
    mapper.setModel(model)
    mapper.addMapping(editor, 0)
    mapper.toFirst()
    assert editor.value() == (10, 20, 30)
    type_into(editor.row(RGBEditFrame.G), "200+5")
    mapper.submit()
    assert model.data(index, Qt.EditRole) == QtGui.QColor(10, 205, 30)


def test_results():
    color, master, opacity = RGBEditFrame(), RGBAllEditFrame(), RGBOpacityEditFrame()
    color.setValues(1, 2, 3)
    master.setValues(1, 2, 3, 4)
    opacity.setValues(1, 2, 3, 4)
    assert color.value() == (1, 2, 3)
    assert master.value() == opacity.value() == (1, 2, 3, 4)

    rect = RectEditFrame()
    rect.setRange(RectEditFrame.Height, 5, 60)
    rect.setValue(QtCore.QRect(1, 2, 3, 40))
    assert rect.value() == (1, 2, 3, 40)
    assert rect.rectangle() == QtCore.QRect(1, 2, 3, 40)
    assert rect.range(RectEditFrame.Height) == (5, 60)

    mask = MaskEditFrame()
    mask.setMaskRange(100, 100)
    mask.setMaskValue(1, 2, 3, 4)
    assert mask.margins() == QtCore.QMargins(3, 1, 4, 2)
    edges = mask.getMaskValue()
    assert (edges.top(), edges.bottom(), edges.left(), edges.right()) == (1, 2, 3, 4)


@pytest.mark.parametrize(
    "field", [vantorslider.SliderEditSpinBox, vantorslider.SliderEditDoubleSpinBox]
)
def test_fields(qtbot, field):
    spin_box = shown(qtbot, field())
    assert spin_box.validate("1+", 2) == (QtGui.QValidator.Acceptable, "1+", 2)
    log = recorded(spin_box, "enterFinished")
    type_into(spin_box.parentWidget(), "2")
    assert log == [("enterFinished",)] and spin_box.value() == 2


def test_flags_combine():
    row = SliderEditFrame()
    options = vantorslider.ExactEntry | vantorslider.EscapeRestores
    row.setEntryOptions(options)
    assert row.entryOptions() == options
    assert row.entryOptions() & vantorslider.EscapeRestores
    assert not row.entryOptions() & vantorslider.DecimalComma
    sliders = vantorslider.FineDrag | vantorslider.FlickScrolls
    row.setSliderOptions(sliders)
    assert row.sliderOptions() == sliders
    row.setValueChangeDirection(
        SliderEditFrame.AllowedToBigger | SliderEditFrame.AllowedToSmaller, 5
    )

    rect = RectEditFrame()
    rect.setEditerVisible(RectEditFrame.X | RectEditFrame.Height)
    shown_rows = [rect.row(kind).isVisibleTo(rect) for kind in FIELDS]
    assert shown_rows == [True, False, False, True]


FIELDS = [RectEditFrame.X, RectEditFrame.Y, RectEditFrame.Width, RectEditFrame.Height]


def test_overloads_of_a_lock():
    rect = RectEditFrame()
    rect.setValue(0, 0, 40, 20)
    rect.setSizeLock(True)
    assert rect.isSizeLocked() and rect.sizeLockRatio() == 2
    rect.setSizeLock(1.5)
    assert rect.sizeLockRatio() == 1.5
    rect.setSizeLock(False)
    assert not rect.isSizeLocked()


def test_keyword_arguments(qtbot):
    panel = QtWidgets.QWidget()
    row = SliderEditFrame(parent=panel, maximum=200, value=150)
    assert row.parentWidget() is panel and row.value() == 150
    vantorslider.alignLabels(panel, alignment=Qt.AlignLeft)
    assert row.findChild(QtWidgets.QLabel).alignment() & Qt.AlignLeft


def test_wrong_arguments():
    with pytest.raises(TypeError, match="min: int, max: int"):
        SliderEditFrame().setRange("0", 9)
    with pytest.raises(AttributeError, match="maximun"):
        SliderEditFrame(maximun=9)
    with pytest.raises(ValueError, match="alignment"):
        vantorslider.alignLabels(QtWidgets.QWidget(), alignment="left")


@pytest.mark.parametrize("editor_class", [CropEditFrame, MaskEditFrame])
@pytest.mark.parametrize(
    "arguments", [(RectEditFrame.X, 1), (1, 2, 3, 4), (QtCore.QRect(1, 2, 3, 4),)]
)
def test_what_an_editor_hides(editor_class, arguments):
    """In C++ these don't compile."""
    editor = editor_class()
    before = editor.value()
    with pytest.raises(TypeError, match="private"):
        editor.setValue(*arguments)
    assert editor.value() == before
