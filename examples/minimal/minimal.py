import sys

from PySide2.QtCore import QDir
from PySide2.QtWidgets import QApplication
from vantorslider import SliderEditFrame

app = QApplication(sys.argv)
QDir.addSearchPath("vantorslider", "/usr/share/vantorslider/styles")
app.setStyleSheet("file:///vantorslider:touch-light.qss")

brightness = SliderEditFrame()
brightness.setLabelText("Brightness")
brightness.setRange(0, 255)
brightness.setValue(128)
brightness.valueChanged.connect(print)
brightness.show()
sys.exit(app.exec_())
