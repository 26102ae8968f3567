#pragma once

#include <QtCore/QLocale>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>

// What a user does, as the window system reports it: mouse events enter by the
// window, keys go to the widget with the focus.
namespace User {

// Shows the window and waits until it is active; false if it never is.
bool show(QWidget &window);

// "\n" is the Return key, "\t" Tab, "\b" Backspace.
void type(const QString &text);
void paste(const QString &text);
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void click(QWidget *widget);
// One notch away from the user, with the pointer over the middle of the widget.
void turnWheel(QWidget *widget);

// Where the handle is when the slider stands at the position.
QRect handleRect(const QSlider *slider, int position);
void grabHandle(QSlider *slider);
void moveHandle(QSlider *slider, int position);
void dropHandle(QSlider *slider);
// A click on the groove before (false) or behind (true) the handle.
void clickGroove(QSlider *slider, bool behind);

} // namespace User

// The interval of the editor's sampling timer, -1 when none runs. A test gives a
// long interval and lets the ticks come itself.
int samplingInterval(QObject *editor);
void tick(QObject *editor);

// Main program of a test: no display needed, the same look and locale everywhere.
template <typename Test> int runTest(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
