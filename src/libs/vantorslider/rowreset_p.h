#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QEvent;
class QLabel;
class QObject;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// How the user finds that a row can be reset to a default: by its label, which is
// double-clicked or double-tapped for it, and by the action of a screen reader.

// Lets the row's event filter see the label's events.
void makeResettable(QLabel *label, QWidget *row);

bool isResetClick(const QLabel *label, const QObject *watched, const QEvent *event);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
