#pragma once

#include <QtCore/QRect>
#include <QtCore/QString>

class QSlider;
class QWidget;

// The events of a user, as the window system reports them. Pointer events go to the
// window, so that Qt finds the widget, the grab and the focus. Keys go to the focus
// widget; shortcuts receive them first. The event loop does not run in between: the
// caller processes posted events.
namespace User {

// "\n" is the Return key, "\t" Tab, "\b" Backspace.
void type(const QString &text);
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// The left button goes down, the pointer moves, the button goes up, each at a
// point of the widget.
void pressAt(QWidget *widget, const QPoint &pos);
void moveTo(QWidget *widget, const QPoint &pos, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void releaseAt(QWidget *widget, const QPoint &pos);
// A press and a release in the middle of the widget.
void click(QWidget *widget);
// One notch, away from the user or towards, over the middle of the widget.
void turnWheel(QWidget *widget, bool away = true);
void turnWheelAt(QWidget *widget, const QPoint &pos, bool away = true);

// The place of the handle if the slider is at the position.
QRect handleRect(const QSlider *slider, int position);
void grabHandle(QSlider *slider);
// Where the handle is at the position.
void pressGroove(QSlider *slider, int position);
void moveHandle(QSlider *slider, int position);
void dropHandle(QSlider *slider);

} // namespace User
