#include "sliderdrag_p.h"

#include "slidereditframe_p.h"
#include "sliderparts_p.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace Vantor::Widgets::Internal {

namespace {

// Pixels above or below the slider: a finger that drags along it strays by this much.
constexpr double fullSpeedUpTo = 16;
// From there, pixels to the finest speed. There is always room for both on one side of a slider
// on a screen of 480 pixels.
constexpr double finestAfter = 160;
// At the finest speed, a pixel of the pointer moves the handle by one position, within these
// limits.
constexpr double leastFine = 1.0 / 16;
constexpr double mostFine = 1.0 / 256;
// The handle returns to the pointer at up to this speed.
constexpr double fastest = 2;

QPointF positionOf(const QMouseEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event->position();
#else
    return event->localPos();
#endif
}

} // namespace

// The places of the handle at the two ends of the slider.
struct SliderDrag::Track
{
    double first;
    double last;
    double minimum; // position of the slider at the first place
    double maximum; // at the last place; with a layout from right to left it is the smaller one
    QRect handle;

    double length() const { return last - first; }
    double placeOf(double position) const
    {
        return first + length() * (position - minimum) / (maximum - minimum);
    }
    int positionAt(double place) const
    {
        return static_cast<int>(
            std::lround(minimum + (maximum - minimum) * (place - first) / length()));
    }
};

SliderDrag::Track SliderDrag::track() const
{
    QStyleOptionSlider option;
    m_slider->initStyleOption(&option);
    const QRect groove = sliderPartRect(*m_slider, QStyle::SC_SliderGroove, option);
    const QRect handle = sliderPartRect(*m_slider, QStyle::SC_SliderHandle, option);
    const double first = groove.left();
    const double last = groove.left() + groove.width() - handle.width();
    const double minimum = m_slider->minimum();
    const double maximum = m_slider->maximum();
    return option.upsideDown ? Track {first, last, maximum, minimum, handle}
                             : Track {first, last, minimum, maximum, handle};
}

// A press of the groove is one of the middle of the handle, which then moves to the pointer: the
// row reports it like any drag.
void SliderDrag::press(QMouseEvent *event)
{
    const Track before = track();
    m_isApart = false;
    m_pointer = before.handle.left();
    const QPointF pos = positionOf(event);
    const bool isOnGroove = m_slider->options().testFlag(GrooveMovesHandle)
        && event->button() == Qt::LeftButton && !before.handle.contains(pos.toPoint());
    if (!isOnGroove) {
        m_grip = pos.x() - before.handle.left();
        m_slider->QSlider::mousePressEvent(event);
        return;
    }
    const QPointF middle = QRectF(before.handle).center();
    m_grip = middle.x() - before.handle.left();
    QMouseEvent onHandle(event->type(), middle, m_slider->mapToGlobal(middle.toPoint()),
                         event->button(), event->buttons(), event->modifiers());
    m_slider->QSlider::mousePressEvent(&onHandle);
    m_slider->QSlider::mouseMoveEvent(event);
    m_pointer = pos.x() - m_grip;
    event->setAccepted(onHandle.isAccepted());
}

void SliderDrag::move(QMouseEvent *event)
{
    const Track now = track();
    if (!m_slider->options().testFlag(FineDrag) || !m_slider->isSliderDown() || now.length() <= 0) {
        m_slider->QSlider::mouseMoveEvent(event);
        return;
    }
    const double pointer = positionOf(event).x() - m_grip;
    const double step = pointer - m_pointer;
    event->accept();
    if (step == 0) {
        return; // QSlider would round the position to that of a pixel
    }
    const double speed = this->speed(event, now);
    if (!m_isApart && speed < 1) {
        m_isApart = true;
        m_place = now.placeOf(m_slider->sliderPosition());
    }
    if (!m_isApart) {
        m_pointer = pointer;
        m_slider->QSlider::mouseMoveEvent(event);
        return;
    }
    m_place += step * (speed < 1 ? speed : catchUp(step, now));
    m_place = std::clamp(m_place, now.first, now.last);
    m_pointer = pointer;
    m_slider->setSliderPosition(now.positionAt(m_place));
}

// 1 at the slider, less the farther the pointer is above or below it.
double SliderDrag::speed(const QMouseEvent *event, const Track &track) const
{
    const double positions = std::abs(track.maximum - track.minimum);
    const double finest = std::clamp(track.length() / positions, mostFine, leastFine);
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        return finest;
    }
    const double y = positionOf(event).y();
    const double distance = std::max(-y, y - m_slider->height()) - fullSpeedUpTo;
    return std::pow(finest, std::clamp(distance / finestAfter, 0.0, 1.0));
}

// Back at the slider the handle is not at the pointer. It moves faster or slower than the pointer,
// so that both reach an end of the slider together.
double SliderDrag::catchUp(double step, const Track &track) const
{
    const double end = step > 0 ? track.last : track.first;
    const double ofPointer = std::abs(end - m_pointer);
    const bool isPassed = step > 0 ? m_pointer >= end : m_pointer <= end;
    return isPassed ? fastest : std::min(std::abs(end - m_place) / ofPointer, fastest);
}

} // namespace Vantor::Widgets::Internal
