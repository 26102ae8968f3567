#include "editspan_p.h"
#include "itemeditor_p.h"
#include "lostpointer_p.h"
#include "slidereditframe_p.h"

#include <QtCore/QEvent>

namespace Vantor::Widgets {

SliderEditButton::SliderEditButton(QWidget *parent) : QToolButton(parent) { }

bool SliderEditButton::event(QEvent *event)
{
    if (Internal::passKey(this, event)) {
        return true;
    }
    const Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    const bool isHandled = QToolButton::event(event);
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    if (Internal::isPointerLostBy(event, this)) {
        letGo();
    } else if (isPress && edit && isDown()) { // a receiver may have deleted the row
        Internal::watchForPopup(this);
    }
    if (edit) {
        Internal::passFocus(this, event);
    }
    return isHandled;
}

// No release event follows. Where Qt releases the button itself, the auto-repeat timer keeps
// running; only switching auto-repeat off stops it.
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

} // namespace Vantor::Widgets
