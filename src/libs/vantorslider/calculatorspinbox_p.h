#pragma once

#include <QtCore/QtGlobal>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QKeyEvent;
class QString;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the two calculator spin boxes share without a common base of their own.

// keyboard: the kind of on-screen keyboard that the host is to show.
void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard);

bool isFinishingKey(const QKeyEvent *event);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
