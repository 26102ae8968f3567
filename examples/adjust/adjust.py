"""The gallery's page "Adjust" in Python: tone of a picture, with one undo step for each edit.

adjust.py [PICTURE] uses PySide2, or PySide6 if it finds no other.
"""

import sys
from typing import Any, Dict, List

from vantorslider import SliderEditFrame, SliderEditFrameDouble, alignLabels

try:
    from PySide2 import QtCore, QtGui, QtWidgets
except ImportError:
    from PySide6 import QtCore, QtGui, QtWidgets

DEFAULTS = {"brightness": 0, "exposure": 1000, "contrast": 0, "gamma": 1.0, "black level": 16}


def table_of(tone: Dict[str, Any]) -> List[int]:
    """The grey level that each of 256 levels becomes."""
    slope = 1 + tone["contrast"] / (100 if tone["contrast"] < 0 else 33.3)
    black = (tone["black level"] - 16) / 239
    table = []
    for level in range(256):
        # The light is proportional to the time; pixels store it gamma-encoded, with 2.2.
        light = level / 255 * (tone["exposure"] / 1000) ** (1 / 2.2)
        light = (light - 0.5) * slope + 0.5 + tone["brightness"] / 200
        light = min(max(light, 0), 1) ** (1 / tone["gamma"])
        table.append(round((black + light * (1 - black)) * 255))
    return table


class AdjustPage(QtWidgets.QWidget):
    """The rows below the grey picture that they change."""

    def __init__(self, picture: QtGui.QImage) -> None:
        super().__init__(windowTitle="Adjust")
        grey = picture.convertToFormat(QtGui.QImage.Format.Format_Grayscale8)
        self.picture = grey.convertToFormat(QtGui.QImage.Format.Format_Indexed8)
        self.tone: Dict[str, Any] = dict(DEFAULTS)
        self.rows: Dict[str, Any] = {}
        self.history: List[Dict[str, Any]] = []
        self.view = QtWidgets.QLabel()

        brightness = self.add_row(SliderEditFrame(), "brightness", -100, 100)
        brightness.setSuffix(" %")
        exposure = self.add_row(SliderEditFrame(), "exposure", 1, 100000)
        exposure.setSliderScale(SliderEditFrame.LogarithmicScale)
        exposure.setSingleStep(100)
        exposure.setSuffix(" µs")
        self.add_row(SliderEditFrame(), "contrast", -100, 100).setReleaseMode(True)
        gamma = SliderEditFrameDouble()
        gamma.setSingleStep(0.05)
        self.add_row(gamma, "gamma", 0.2, 4.0)
        black = self.add_row(SliderEditFrame(), "black level", 0, 255)
        black.setValueChangeDirection(SliderEditFrame.AllowedToBigger, DEFAULTS["black level"])

        page = QtWidgets.QVBoxLayout(self)
        undo = QtWidgets.QPushButton("Undo")
        undo.clicked.connect(self.undo)
        for widget in [self.view, *self.rows.values(), undo]:
            page.addWidget(widget)
        alignLabels(self)
        self.show_picture()

    def add_row(self, row: Any, name: str, minimum: float, maximum: float) -> Any:
        row.setLabelText(name.capitalize())
        row.setRange(minimum, maximum)
        row.setValue(DEFAULTS[name])
        row.setDefaultValue(DEFAULTS[name])
        row.setAutoRepeat(True)
        row.setSpinBoxFixedWidth(100)
        row.editStarted.connect(lambda: self.history.append(dict(self.tone)))
        row.valueChanged.connect(lambda value: self.set_tone({**self.tone, name: value}))
        self.rows[name] = row
        return row

    def set_tone(self, tone: Dict[str, Any]) -> None:
        self.tone = tone
        self.show_picture()

    def undo(self) -> None:
        if self.history:
            self.set_tone(self.history.pop())
            for name, row in self.rows.items():
                row.setValue(self.tone[name])

    def show_picture(self) -> None:
        self.picture.setColorTable([QtGui.qRgb(level, level, level) for level in table_of(self.tone)])
        self.view.setPixmap(QtGui.QPixmap.fromImage(self.picture))


if __name__ == "__main__":
    app = QtWidgets.QApplication(sys.argv)
    ramp = QtGui.QImage(bytes(range(256)) * 200, 256, 200, 256, QtGui.QImage.Format.Format_Grayscale8)
    window = AdjustPage(QtGui.QImage(sys.argv[1]) if len(sys.argv) > 1 else ramp)
    window.show()
    sys.exit(app.exec_())
