#include "userevents.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

namespace {

Qt::MouseButtons s_buttons;
// The last position of the handle of a pressed slider.
QPoint s_handlePos;

QPoint inWindow(const QWidget *widget, const QPoint &pos)
{
    return widget->mapTo(widget->window(), pos);
}

// Delivers the event to the window as a spontaneous event. sendEvent() would mark it as
// not spontaneous, and Qt would not propagate a wheel event to the parents. Qt Test has
// functions for the pointer, too, but they run the event loop each time.
void report(const QWidget *widget, QEvent *event)
{
    QSpontaneKeyEvent::setSpontaneous(event);
    qApp->notify(widget->window()->windowHandle(), event);
}

void sendMouse(const QWidget *widget, QEvent::Type type, Qt::MouseButton button, const QPoint &pos,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPoint local = inWindow(widget, pos);
    QMouseEvent event(type, local, widget->window()->mapToGlobal(local), button, s_buttons,
                      modifiers);
    report(widget, &event);
}

} // namespace

void User::type(const QString &text)
{
    for (const QChar c : text) {
        Qt::Key key = Qt::Key_unknown;
        if (c == QLatin1Char('\n')) {
            key = Qt::Key_Return;
        } else if (c.unicode() < 0x80) {
            key = QTest::asciiToKey(c.toLatin1());
        }
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, QString(c),
                            Qt::NoModifier);
    }
}

void User::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void User::pressAt(QWidget *widget, const QPoint &pos)
{
    s_buttons = Qt::LeftButton;
    sendMouse(widget, QEvent::MouseButtonPress, Qt::LeftButton, pos);
}

void User::moveTo(QWidget *widget, const QPoint &pos, Qt::KeyboardModifiers modifiers)
{
    sendMouse(widget, QEvent::MouseMove, Qt::NoButton, pos, modifiers);
}

void User::releaseAt(QWidget *widget, const QPoint &pos)
{
    s_buttons = Qt::NoButton;
    sendMouse(widget, QEvent::MouseButtonRelease, Qt::LeftButton, pos);
}

void User::click(QWidget *widget)
{
    pressAt(widget, widget->rect().center());
    releaseAt(widget, widget->rect().center());
}

void User::turnWheel(QWidget *widget, bool away)
{
    turnWheelAt(widget, widget->rect().center(), away);
}

void User::turnWheelAt(QWidget *widget, const QPoint &pos, bool away)
{
    const QPoint local = inWindow(widget, pos);
    const QPoint global = widget->window()->mapToGlobal(local);
    const QPoint notch(0, (away ? 1 : -1) * QWheelEvent::DefaultDeltasPerStep);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent event(local, global, QPoint(), notch, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
#else
    QWheelEvent event(local, global, QPoint(), notch, notch.y(), Qt::Vertical, Qt::NoButton,
                      Qt::NoModifier);
#endif
    report(widget, &event);
}

QRect User::handleRect(const QSlider *slider, int position)
{
    struct Access : QSlider
    {
        using QSlider::initStyleOption;
    };
    QStyleOptionSlider option;
    (slider->*&Access::initStyleOption)(&option);
    option.sliderPosition = position;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                           slider);
}

void User::grabHandle(QSlider *slider)
{
    s_handlePos = handleRect(slider, slider->sliderPosition()).center();
    moveTo(slider, s_handlePos);
    pressAt(slider, s_handlePos);
}

void User::pressGroove(QSlider *slider, int position)
{
    s_handlePos = handleRect(slider, position).center();
    pressAt(slider, s_handlePos);
}

void User::moveHandle(QSlider *slider, int position)
{
    s_handlePos = handleRect(slider, position).center();
    moveTo(slider, s_handlePos);
}

void User::dropHandle(QSlider *slider)
{
    releaseAt(slider, s_handlePos);
}
