import sys

from PySide2.QtWidgets import QApplication
from vantorslider import EditorTheme, SliderEditFrame, applyTheme

app = QApplication(sys.argv)
applyTheme(app, EditorTheme.TouchLight)

brightness = SliderEditFrame()
brightness.setLabelText("Brightness")
brightness.setRange(0, 255)
brightness.setValue(128)
brightness.valueChanged.connect(print)
brightness.show()
sys.exit(app.exec_())
