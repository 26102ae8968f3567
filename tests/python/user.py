"""What the user does, and Qt for Python in the version that the module was built for."""

from pytestqt.qt_compat import qt_api

QtCore, QtGui, QtTest, QtWidgets = qt_api.QtCore, qt_api.QtGui, qt_api.QtTest, qt_api.QtWidgets
Qt, QTest = QtCore.Qt, QtTest.QTest


def shown(qtbot, editor):
    """The editor on a page of its own, in an active window."""
    page = QtWidgets.QWidget()
    QtWidgets.QVBoxLayout(page).addWidget(editor)
    page.resize(600, 200)
    page.show()
    qtbot.page = page  # owns the editor
    page.activateWindow()
    qtbot.waitUntil(page.isActiveWindow)
    return editor


def field_of(row):
    return row.findChild(QtWidgets.QAbstractSpinBox)


def type_into(row, text):
    """Replaces the text of the field and presses Enter."""
    field = field_of(row)
    field.setFocus()
    field.selectAll()
    QTest.keyClicks(field, text)
    QTest.keyClick(field, Qt.Key_Return)


def send_mouse(widget, kind, position, button, buttons):
    local = QtCore.QPointF(position)
    place = QtCore.QPointF(widget.mapToGlobal(position))
    event = QtGui.QMouseEvent(kind, local, place, button, buttons, Qt.NoModifier)
    QtWidgets.QApplication.sendEvent(widget, event)


def drag(row, distance):
    """Drags the handle of a slider from the left end by a distance in pixels."""
    slider = row.findChild(QtWidgets.QSlider)
    start = QtCore.QPoint(4, slider.height() // 2)
    end = start + QtCore.QPoint(distance, 0)
    send_mouse(slider, QtCore.QEvent.MouseButtonPress, start, Qt.LeftButton, Qt.LeftButton)
    send_mouse(slider, QtCore.QEvent.MouseMove, end, Qt.NoButton, Qt.LeftButton)
    send_mouse(slider, QtCore.QEvent.MouseButtonRelease, end, Qt.LeftButton, Qt.NoButton)


def deliver_deletions():
    QtCore.QCoreApplication.sendPostedEvents(None, QtCore.QEvent.DeferredDelete)
