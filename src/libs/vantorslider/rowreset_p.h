#pragma once

#include <QtCore/QEvent>

#include <functional>

QT_BEGIN_NAMESPACE
class QLabel;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// The user resets a row to its default value by a double click or double tap on its label, or by
// the action "Reset" of a screen reader.

// Sets up the label and the action of the row, once.
void makeResettable(QLabel *label, QWidget *row, const std::function<void()> &reset);

// The program has reset the row that receives this event.
QEvent::Type rowResetEvent();

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
