#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QEvent;
class QWidget;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Whether a pressed widget that receives this event will receive no release: it is hidden or
// disabled, or a modal dialog or a menu, another popup, receives the release instead. Only the
// focus widget is told that a popup opens.
bool isPointerLostBy(const QEvent *event, const QWidget *pressed);

// Tells a pressed widget without the focus, too, until its release.
void watchForPopup(QWidget *pressed);

} // namespace Vantor::Widgets::Internal
