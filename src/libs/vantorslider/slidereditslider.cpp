#include "accessiblerow_p.h"
#include "editspan_p.h"
#include "hostwindow_p.h"
#include "itemeditor_p.h"
#include "lostpointer_p.h"
#include "sliderdrag_p.h"
#include "slidereditframe_p.h"
#include "slidergroove_p.h"
#include "sliderparts_p.h"
#include "slidertickmarks_p.h"

#include <QtGui/QHoverEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionSlider>

namespace Vantor::Widgets {

SliderEditSlider::SliderEditSlider(QWidget *parent) : QSlider(parent)
{
    Internal::provideAccessibleRows();
}

SliderEditSlider::~SliderEditSlider() = default;

// True from a button press on the slider until its release, or until the pointer leaves the
// slider or the slider loses the focus, is hidden, disabled or blocked by a dialog or a menu.
bool SliderEditSlider::isMousePressed() const
{
    return m_isMousePressed;
}

// Like setRange(), but a range of exactly 2^31 steps starts at min + 1: Qt's styles divide by
// twice the number of steps in 32 bits, which is 0 for that range.
void SliderEditSlider::setScale(int min, int max)
{
    const bool isDivisorZero = qint64(max) - min == qint64(1) << 31;
    setRange(isDivisorZero ? min + 1 : min, max);
}

// A brush that fills the groove instead of the style's colours; none by default.
void SliderEditSlider::setGrooveBrush(const QBrush &brush)
{
    setGroove(brush, grooveColors());
}

QBrush SliderEditSlider::grooveBrush() const
{
    return m_groove != nullptr ? m_groove->brush() : QBrush();
}

// The colours of a slider of a colour editor: while they are not null, the brush is not shown.
void SliderEditSlider::setGrooveColors(Internal::GrooveColors *colors)
{
    setGroove(grooveBrush(), colors);
}

Internal::GrooveColors *SliderEditSlider::grooveColors() const
{
    return m_groove != nullptr ? m_groove->colors() : nullptr;
}

void SliderEditSlider::setGroove(const QBrush &brush, Internal::GrooveColors *colors)
{
    if (brush.style() == Qt::NoBrush && colors == nullptr) {
        if (const auto groove = std::move(m_groove)) {
            groove->removeSheet();
        }
    } else {
        if (m_groove == nullptr) {
            m_groove = std::make_unique<Internal::SliderGroove>(this);
        }
        m_groove->fill(brush, colors);
    }
    update();
}

void SliderEditSlider::updateGroove()
{
    if (m_groove != nullptr) {
        m_groove->updateColors();
    }
}

void SliderEditSlider::setOptions(SliderOptions options)
{
    m_options = options;
    if (m_drag == nullptr && (options.testFlag(GrooveMovesHandle) || options.testFlag(FineDrag))) {
        m_drag = std::make_unique<Internal::SliderDrag>(this);
    }
}

bool SliderEditSlider::event(QEvent *event)
{
    if (Internal::passKey(this, event)) {
        return true;
    }
    const Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    const bool isHandled = QSlider::event(event);
    if (!edit) {
        return isHandled; // a receiver has deleted the row
    }
    if (event->type() == QEvent::StyleChange) {
        m_ticks = TicksUnknown;
    }
    if (m_groove != nullptr) {
        m_groove->follow(event);
        if (const auto *hover = dynamic_cast<QHoverEvent *>(event)) {
            QStyleOptionSlider option;
            initStyleOption(&option);
            m_groove->hover(*hover, option);
        }
    }
    // Without a HostWindow the slider has never been pressed.
    if (m_hostWindow != nullptr && Internal::isPointerLostBy(event, this)
        && !m_hostWindow->isBeingDestroyed()) {
        releasePointer();
    }
    if (edit) { // a receiver of the release may have deleted it
        Internal::passFocus(this, event);
    }
    return isHandled;
}

void SliderEditSlider::mousePressEvent(QMouseEvent *event)
{
    m_isMousePressed = true;
    m_isPointerTaken = false;
    if (m_hostWindow == nullptr) {
        m_hostWindow = std::make_unique<Internal::HostWindow>(this);
    }
    m_hostWindow->rememberNowAndSoon();
    Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    if (m_drag == nullptr) {
        QSlider::mousePressEvent(event);
    } else {
        m_drag->press(event);
    }
    if (!edit) {
        return;
    }
    if (!m_isPointerTaken) {
        Internal::watchForPopup(this);
    }
    if (repeatAction() == SliderNoAction) {
        return;
    }
    // A pressed groove repeats its page step. QSlider starts that after the first step, even
    // if a receiver of that step has hidden or disabled the slider.
    if (!m_isPointerTaken) {
        edit.keep(Internal::EditSpan::Handle);
    } else {
        setRepeatAction(SliderNoAction);
    }
}

void SliderEditSlider::mouseReleaseEvent(QMouseEvent *event)
{
    m_isMousePressed = false;
    letGo(event);
}

void SliderEditSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (m_drag == nullptr) {
        QSlider::mouseMoveEvent(event);
    } else {
        m_drag->move(event);
    }
}

void SliderEditSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

// Called with blocked signals, too.
void SliderEditSlider::sliderChange(SliderChange change)
{
    QSlider::sliderChange(change);
    if (grooveColors() != nullptr && (change == SliderValueChange || change == SliderRangeChange)) {
        m_groove->colors()->sliderChanged(this);
    }
}

void SliderEditSlider::paintEvent(QPaintEvent *event)
{
    if (m_groove == nullptr) {
        QSlider::paintEvent(event);
        if (tickPosition() == NoTicks || minimum() == maximum()) {
            return;
        }
    }
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (m_groove != nullptr) {
        m_groove->paint(option, event->rect());
        return;
    }
    if (m_ticks == TicksUnknown) {
        const bool areDropped = Internal::areTickMarksDropped(*this, option);
        m_ticks = areDropped ? TicksDropped : TicksDrawn;
    }
    if (m_ticks == TicksDropped) {
        QPainter painter(this);
        Internal::drawTickMarks(*this, option, Internal::handleWay(*this, option), &painter);
    }
}

void SliderEditSlider::focusOutEvent(QFocusEvent *event)
{
    m_isMousePressed = false;
    QSlider::focusOutEvent(event);
}

void SliderEditSlider::leaveEvent(QEvent *event)
{
    m_isMousePressed = false;
    QSlider::leaveEvent(event);
}

// No release event follows. The drag ends here as by a release: its last value is reported and
// sampling stops.
void SliderEditSlider::releasePointer()
{
    m_isMousePressed = false;
    m_isPointerTaken = true;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    letGo(&release);
}

// QSlider ignores a release while another mouse button is down.
void SliderEditSlider::letGo(QMouseEvent *event)
{
    Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    QSlider::mouseReleaseEvent(event);
    if (edit && !isSliderDown() && repeatAction() == SliderNoAction) {
        edit.release(Internal::EditSpan::Handle);
    }
}

} // namespace Vantor::Widgets
