"""Runs a program until a user has typed 12*3 into the first row of its window.

runsample.py PROGRAM
"""

import runpy
import sys

from vantorslider import SliderEditFrame, SliderEditSpinBox

pyside = SliderEditFrame.__base__.__module__.partition(".")[0]
QtWidgets = __import__(pyside + ".QtWidgets").QtWidgets
QtTest = __import__(pyside + ".QtTest").QtTest
QtCore = sys.modules[pyside + ".QtCore"]


class Application(QtWidgets.QApplication):
    def __init__(self, arguments):
        super().__init__(arguments)
        self.startTimer(10)

    def timerEvent(self, event):
        window = self.activeWindow()
        if not window:
            return
        self.killTimer(event.timerId())
        field = window.findChild(SliderEditSpinBox)
        field.setFocus()
        field.selectAll()
        QtTest.QTest.keyClicks(field, "12*3")
        QtTest.QTest.keyClick(field, QtCore.Qt.Key_Return)
        self.quit()


QtWidgets.QApplication = Application
sys.argv = sys.argv[1:]
runpy.run_path(sys.argv[0], run_name="__main__")
