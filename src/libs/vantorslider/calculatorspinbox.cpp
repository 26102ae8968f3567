#include "calculatorspinbox_p.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

// Qt writes the value again at a change of locale: here into a field that the
// calculator replaces next.
class LocaleChangeFilter : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        Q_UNUSED(watched)
        return event->type() == QEvent::LocaleChange;
    }
};

} // namespace

void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard)
{
    spinBox->setAttribute(Qt::WA_AcceptTouchEvents, true);
    spinBox->setAttribute(Qt::WA_MacShowFocusRect, false);
    spinBox->setFocusPolicy(Qt::StrongFocus);
    spinBox->setProperty("Quelmo_VK", keyboard);
    // The calculator writes a decimal point in every country; a spin box that
    // read it by the host's locale would take 0.25 for 25 in a German one.
    LocaleChangeFilter filter;
    spinBox->installEventFilter(&filter);
    spinBox->setLocale(QLocale::c());
}

bool isFinishingKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
