#include "userevents.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtGui/QClipboard>
#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

namespace {

QWindow *windowOf(const QWidget *widget)
{
    return widget->window()->windowHandle();
}

QPoint inWindow(const QWidget *widget, const QPoint &pos)
{
    return widget->mapTo(widget->window(), pos);
}

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

// Where the handle of a held slider was moved to last.
QPoint s_handlePos;

} // namespace

bool User::show(QWidget &window)
{
    window.show();
    return QTest::qWaitForWindowActive(&window);
}

void User::type(const QString &text)
{
    for (const QChar c : text) {
        Qt::Key key = Qt::Key_unknown;
        if (c == '\n')
            key = Qt::Key_Return;
        else if (c.unicode() < 0x80)
            key = QTest::asciiToKey(c.toLatin1());
        QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), key, QString(c),
                            Qt::NoModifier);
    }
}

void User::paste(const QString &text)
{
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void User::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void User::click(QWidget *widget)
{
    QTest::mouseClick(windowOf(widget), Qt::LeftButton, Qt::NoModifier,
                      inWindow(widget, widget->rect().center()));
}

void User::turnWheel(QWidget *widget)
{
    const QPoint pos = inWindow(widget, widget->rect().center());
    const QPoint global = windowOf(widget)->mapToGlobal(pos);
    const QPoint notch(0, QWheelEvent::DefaultDeltasPerStep);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent event(pos, global, QPoint(), notch, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
#else
    QWheelEvent event(pos, global, QPoint(), notch, notch.y(), Qt::Vertical, Qt::NoButton,
                      Qt::NoModifier);
#endif
    // Only a turn that comes from outside goes on to the parents when ignored.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(windowOf(widget), &event); // sendEvent() would unset it
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
    s_handlePos = inWindow(slider, handleRect(slider, slider->sliderPosition()).center());
    QTest::mouseMove(windowOf(slider), s_handlePos);
    QTest::mousePress(windowOf(slider), Qt::LeftButton, Qt::NoModifier, s_handlePos);
}

void User::moveHandle(QSlider *slider, int position)
{
    s_handlePos = inWindow(slider, handleRect(slider, position).center());
    QTest::mouseMove(windowOf(slider), s_handlePos);
}

void User::dropHandle(QSlider *slider)
{
    QTest::mouseRelease(windowOf(slider), Qt::LeftButton, Qt::NoModifier, s_handlePos);
}

void User::clickGroove(QSlider *slider, bool behind)
{
    const QPoint handle = handleRect(slider, slider->sliderPosition()).center();
    const int edge = behind ? slider->width() - 2 : 1;
    QTest::mouseClick(windowOf(slider), Qt::LeftButton, Qt::NoModifier,
                      inWindow(slider, QPoint(edge, handle.y())));
}

int samplingInterval(QObject *editor)
{
    const auto timers = timersOf(editor);
    return timers.isEmpty() ? -1 : timers.constFirst().interval;
}

void tick(QObject *editor)
{
    const auto timers = timersOf(editor);
    for (const auto &timer : timers) {
        QTimerEvent event(timer.timerId);
        QApplication::sendEvent(editor, &event);
    }
}
