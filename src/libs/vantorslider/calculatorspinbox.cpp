#include "calculatorspinbox_p.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>

namespace Vantor {
namespace Widgets {
namespace Internal {

void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const char *keyboard)
{
    spinBox->setAttribute(Qt::WA_AcceptTouchEvents, true);
    spinBox->setAttribute(Qt::WA_MacShowFocusRect, false);
    spinBox->setFocusPolicy(Qt::StrongFocus);
    spinBox->setProperty("Quelmo_VK", QString::fromLatin1(keyboard));
    // The calculator writes a decimal point in every country; a spin box that
    // read it by the host's locale would take 0.25 for 25 in a German one.
    spinBox->setLocale(QLocale::c());
}

bool isFinishingKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
