#include "flickfilter_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QTouchEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>

#include <utility>

namespace Vantor::Widgets::Internal {

namespace {

// After this time a finger that rests presses what is below it. In milliseconds.
constexpr int restTime = 150;

QPoint globalPosition(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

QPoint firstPoint(const QTouchEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->points().constFirst().globalPosition().toPoint();
#else
    return event->touchPoints().constFirst().screenPos().toPoint();
#endif
}

std::unique_ptr<QMouseEvent> copyOf(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return std::unique_ptr<QMouseEvent>(event->clone());
#else
    return std::make_unique<QMouseEvent>(*event);
#endif
}

FlickFilter *filterOf(const QWidget *row)
{
    for (QObject *child : row->children()) {
        if (auto *filter = dynamic_cast<FlickFilter *>(child)) {
            return filter;
        }
    }
    return nullptr;
}

// What a mouse event consists of. With Qt 6 the event itself can't be delivered after another one:
// the events of a device share a point.
struct MouseEventCopy
{
    explicit MouseEventCopy(const QMouseEvent *event)
        :
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
          inWindow(event->scenePosition()), onScreen(event->globalPosition()),
#else
          inWindow(event->windowPos()), onScreen(event->screenPos()),
#endif
          type(event->type()), button(event->button()), buttons(event->buttons()),
          modifiers(event->modifiers()), source(event->source())
    {
    }

    void sendTo(QWindow *window) const
    {
        QMouseEvent event(type, inWindow, inWindow, onScreen, button, buttons, modifiers, source);
        QCoreApplication::sendEvent(window, &event);
    }

    QPointF inWindow;
    QPointF onScreen;
    QEvent::Type type;
    Qt::MouseButton button;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    Qt::MouseEventSource source;
};

} // namespace

void FlickFilter::setOn(QWidget *row, bool isOn)
{
    FlickFilter *const filter = filterOf(row);
    if (isOn && filter == nullptr) {
        new FlickFilter(row);
    } else if (!isOn) {
        delete filter;
    }
}

FlickFilter::FlickFilter(QWidget *row) : QObject(row), m_row(row)
{
    row->installEventFilter(this);
    watchWindow();
}

FlickFilter::~FlickFilter()
{
    end();
}

// The window of the system that receives the events for the row.
void FlickFilter::watchWindow()
{
    const QWidget *const native =
        m_row->windowHandle() != nullptr ? m_row : m_row->nativeParentWidget();
    QWindow *const window = native != nullptr ? native->windowHandle() : nullptr;
    if (window == m_window) {
        return;
    }
    end();
    if (m_window != nullptr) {
        m_window->removeEventFilter(this);
    }
    m_window = window;
    if (window != nullptr) {
        window->installEventFilter(this);
    }
}

bool FlickFilter::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == m_row) {
        if (type == QEvent::Show) {
            watchWindow();
        } else if (type == QEvent::Hide || type == QEvent::WindowBlocked
                   || (type == QEvent::EnabledChange && !m_row->isEnabled())) {
            drop();
        }
        return false;
    }
    switch (type) {
    case QEvent::TouchBegin:
        beginAt(firstPoint(static_cast<const QTouchEvent *>(event)));
        return false;
    case QEvent::TouchCancel:
        drop(); // a release follows
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
        setHiddenFromTouch(false);
        const auto *const mouse = static_cast<const QMouseEvent *>(event);
        return m_state != Idle && mouse->source() != Qt::MouseEventNotSynthesized
            && filterMouse(mouse);
    }
    default:
        return false;
    }
}

// The first finger touches the window. No scroll area scrolls from a slider, and Qt focuses a
// widget that accepts touch events, as a field does, at once. So the touch reaches the row instead.
void FlickFilter::beginAt(const QPoint &globalPos)
{
    end();
    const QWidget *const window = m_row->window();
    QWidget *const touched = window->childAt(window->mapFromGlobal(globalPos));
    if (touched == nullptr || (touched != m_row && !m_row->isAncestorOf(touched))
        || !m_row->isEnabled()) {
        return;
    }
    m_state = Undecided;
    m_touched = touched;
    m_sinceTouch.start();
    setHiddenFromTouch(touched != m_row
                       && (qobject_cast<QAbstractSlider *>(touched) != nullptr
                           || touched->testAttribute(Qt::WA_AcceptTouchEvents)));
}

bool FlickFilter::filterMouse(const QMouseEvent *event)
{
    const QEvent::Type type = event->type();
    const bool isRelease = type == QEvent::MouseButtonRelease;
    if (m_state == Undecided && type != QEvent::MouseMove && !isRelease) {
        if (m_held.empty()) {
            m_rest.start(restTime, this);
        }
        m_held.push_back(copyOf(event)); // of a double tap both events of the second press
        const QScroller *const page = scroller();
        if (page != nullptr
            && (page->state() == QScroller::Dragging || page->state() == QScroller::Scrolling)) {
            flick(); // the finger stops a page that was scrolling
        }
        return true;
    }
    if (m_state == Undecided && !m_held.empty()) {
        const QPoint way = globalPosition(event) - globalPosition(m_held.front().get());
        const int distance = qMax(qAbs(way.x()), qAbs(way.y()));
        const bool isMoved = distance >= QApplication::startDragDistance();
        if (isMoved && qAbs(way.y()) > qAbs(way.x())) {
            flick();
        } else if (isMoved || isRelease) {
            const QPointer<QWindow> window = m_window;
            const MouseEventCopy last(event);
            press();
            if (window != nullptr) {
                last.sendTo(window);
            }
            return true;
        }
    }
    const bool isWithheld = m_state == Flicking || !m_held.empty();
    if (m_isDrivingScroller) {
        sendToScroller(isRelease ? QScroller::InputRelease : QScroller::InputMove, event,
                       m_sinceTouch.elapsed());
    }
    if (isRelease) {
        end();
    }
    return isWithheld;
}

// Qt delivers the held events to the widgets, with focus and grab, as if they came now. A receiver
// may delete the row.
void FlickFilter::press()
{
    QScroller *const page = scroller();
    const bool isControl = m_touched != m_row && qobject_cast<QLabel *>(m_touched) == nullptr;
    if (page != nullptr && isControl) {
        page->stop();
    }
    m_rest.stop();
    m_state = Pressing;
    const auto held = std::move(m_held);
    m_held.clear();
    const QPointer<QWindow> window = m_window;
    for (const auto &event : held) {
        if (window != nullptr) {
            QCoreApplication::sendEvent(window, event.get());
        }
    }
}

// Qt scrolls the page by itself if its scroller has grabbed touches; otherwise it is done here.
void FlickFilter::flick()
{
    const std::unique_ptr<QMouseEvent> first = std::move(m_held.front());
    drop();
    const QScroller *const page = scroller();
    const auto isHeld = [page] {
        return page->state() == QScroller::Pressed || page->state() == QScroller::Dragging;
    };
    if (page != nullptr && !isHeld()) {
        setHiddenFromTouch(m_touched != m_row);
        sendToScroller(QScroller::InputPress, first.get(), 0);
        setHiddenFromTouch(false);
        m_isDrivingScroller = isHeld();
    }
}

// The row receives nothing more of this touch.
void FlickFilter::drop()
{
    m_rest.stop();
    m_held.clear();
    if (m_state == Undecided) {
        m_state = Flicking;
    }
}

void FlickFilter::end()
{
    setHiddenFromTouch(false);
    m_rest.stop();
    m_held.clear();
    m_state = Idle;
    m_isDrivingScroller = false;
}

void FlickFilter::timerEvent(QTimerEvent * /*event*/)
{
    press();
}

// That of the nearest page that scrolls by a gesture.
QScroller *FlickFilter::scroller() const
{
    QWidget *page = m_row->parentWidget();
    while (page != nullptr && !QScroller::hasScroller(page)) {
        page = page->parentWidget();
    }
    return page != nullptr ? QScroller::scroller(page) : nullptr;
}

void FlickFilter::sendToScroller(QScroller::Input input, const QMouseEvent *event,
                                 qint64 time) const
{
    QScroller *const page = scroller();
    const auto *const target = page != nullptr ? qobject_cast<QWidget *>(page->target()) : nullptr;
    if (target != nullptr) {
        page->handleInput(input, target->mapFromGlobal(globalPosition(event)), time);
    }
}

void FlickFilter::setHiddenFromTouch(bool isHidden)
{
    if (isHidden != m_isHiddenFromTouch && m_touched != nullptr) {
        m_touched->setAttribute(Qt::WA_TransparentForMouseEvents, isHidden);
        m_isHiddenFromTouch = isHidden;
    }
}

} // namespace Vantor::Widgets::Internal
