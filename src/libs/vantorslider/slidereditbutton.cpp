#include "editspan_p.h"
#include "slidereditframe_p.h"

#include <QtCore/QEvent>

namespace Vantor {
namespace Widgets {

/*!
    \class SliderEditButton
    \brief The minus or plus button of an editor's row: it stops to repeat when
    it is taken from under the finger.
*/

SliderEditButton::SliderEditButton(QWidget *parent) : QToolButton(parent) { }

bool SliderEditButton::event(QEvent *event)
{
    const Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    const bool isHandled = QToolButton::event(event);
    const QEvent::Type type = event->type();
    if (type == QEvent::Hide || type == QEvent::WindowBlocked
        || (type == QEvent::EnabledChange && !isEnabled())) {
        letGo();
    }
    return isHandled;
}

// No release follows. Where Qt lets the button up itself, it leaves the timer of
// the repetition running; only switching that off stops it.
void SliderEditButton::letGo()
{
    if (autoRepeat()) {
        setAutoRepeat(false);
        setAutoRepeat(true);
    }
    if (isDown()) {
        setDown(false);
        Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
        edit.release(Internal::EditSpan::Button);
    }
}

} // namespace Widgets
} // namespace Vantor
