#pragma once

#include <QtCore/QEvent>

QT_BEGIN_NAMESPACE
class QLabel;
class QObject;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// The user resets a row to its default value by a double click or double tap on its label, or by
// the action "Reset" of a screen reader.

// Sets up the label and the action, and installs the row as event filter of the label.
void makeResettable(QLabel *label, QWidget *row);

// The program has reset the row that receives this event.
QEvent::Type rowResetEvent();

bool isResetClick(const QLabel *label, const QObject *watched, const QEvent *event);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
