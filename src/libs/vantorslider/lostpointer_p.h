#pragma once

#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Vantor {
namespace Widgets {
namespace Internal {

// Whether a pressed widget that receives this event will receive no release: it is hidden or
// disabled, or a modal dialog or a menu, another popup, receives the release instead. Only the
// focus widget is told that a popup opens; a press gives the focus to slider and buttons.
inline bool isPointerLostBy(const QEvent *event, const QWidget *pressed)
{
    const QWidget *popup = nullptr;
    switch (event->type()) {
    case QEvent::Hide:
    case QEvent::WindowBlocked:
        return true;
    case QEvent::EnabledChange:
        return !pressed->isEnabled();
    case QEvent::FocusOut:
        popup = QApplication::activePopupWidget();
        return popup != nullptr && popup != pressed->window();
    default:
        return false;
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
