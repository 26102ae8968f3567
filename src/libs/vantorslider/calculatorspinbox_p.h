#pragma once

class QAbstractSpinBox;
class QKeyEvent;

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the two calculator spin boxes share without a common base of their own.

// keyboard: the kind of on-screen keyboard that the host is to show.
void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const char *keyboard);

bool isFinishingKey(const QKeyEvent *event);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
