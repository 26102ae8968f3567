#include "editspan_p.h"
#include "hostwindow_p.h"
#include "slidereditframe_p.h"

#include <QtGui/QMouseEvent>

namespace Vantor {
namespace Widgets {

/*!
    \class SliderEditSlider
    \brief The slider of an editor's row: it knows whether the pointer holds
    it, and leaves the wheel to the page around it.
*/

SliderEditSlider::SliderEditSlider(QWidget *parent) : QSlider(parent) { }

SliderEditSlider::~SliderEditSlider() = default;

/*!
    True from a button press on the slider until the release, until the
    pointer leaves the slider or until the slider loses the focus, is hidden,
    disabled or blocked by a dialog, whichever comes first.
*/
bool SliderEditSlider::isMousePressed() const
{
    return m_isMousePressed;
}

/*!
    As setRange(), except that a scale of exactly 2 to the 31st steps begins one
    later: Qt's styles divide by twice its length in 32 bits, and that one is 0 there.
*/
void SliderEditSlider::setScale(int min, int max)
{
    const bool isDivisorZero = qint64(max) - min == qint64(1) << 31;
    setRange(isDivisorZero ? min + 1 : min, max);
}

bool SliderEditSlider::event(QEvent *event)
{
    const Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    const bool isHandled = QSlider::event(event);
    // A modal dialog takes the pointer away: the release goes to it.
    if (event->type() == QEvent::WindowBlocked) {
        releasePointer();
    }
    return isHandled;
}

void SliderEditSlider::mousePressEvent(QMouseEvent *event)
{
    m_isMousePressed = true;
    if (m_hostWindow == nullptr) {
        m_hostWindow = std::make_unique<Internal::HostWindow>(this);
    }
    m_hostWindow->remember();
    Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    QSlider::mousePressEvent(event);
    if (!edit || repeatAction() == SliderNoAction) {
        return;
    }
    // The groove steps on for as long as it is pressed. QSlider begins with it behind the
    // first step, even where a receiver of that has taken the slider from under the pointer.
    if (m_isMousePressed) {
        edit.hold(Internal::EditSpan::Handle);
    } else {
        setRepeatAction(SliderNoAction);
    }
}

void SliderEditSlider::mouseReleaseEvent(QMouseEvent *event)
{
    m_isMousePressed = false;
    letGo(event);
}

// Part of the interface, for what a later version may do there.
void SliderEditSlider::mouseMoveEvent(QMouseEvent *event)
{
    QSlider::mouseMoveEvent(event);
}

void SliderEditSlider::wheelEvent(QWheelEvent *event)
{
    event->ignore();
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

void SliderEditSlider::hideEvent(QHideEvent *event)
{
    QSlider::hideEvent(event);
    m_isMousePressed = false;
    if (m_hostWindow != nullptr && !m_hostWindow->isBeingDestroyed()) {
        releasePointer();
    }
}

void SliderEditSlider::changeEvent(QEvent *event)
{
    QSlider::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        releasePointer();
    }
}

// No release follows once the slider is hidden, disabled or blocked under the
// pointer: the drag ends here, as a release does, so that its last value is
// reported and the sampling stops.
void SliderEditSlider::releasePointer()
{
    m_isMousePressed = false;
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    letGo(&release);
}

// A release that comes while another button is down is none to QSlider.
void SliderEditSlider::letGo(QMouseEvent *event)
{
    Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    QSlider::mouseReleaseEvent(event);
    if (edit && !isSliderDown() && repeatAction() == SliderNoAction) {
        edit.release(Internal::EditSpan::Handle);
    }
}

} // namespace Widgets
} // namespace Vantor
