#include "calculatorspinbox_p.h"

#include "childwidget_p.h"

#include <QtCore/QChildEvent>

namespace Vantor::Widgets::Internal {

void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard)
{
    spinBox->setAttribute(Qt::WA_AcceptTouchEvents, true);
    spinBox->setAttribute(Qt::WA_MacShowFocusRect, false);
    spinBox->setFocusPolicy(Qt::StrongFocus);
    spinBox->setProperty("Quelmo_VK", keyboard);
    // Every sign of an expression, "=" too: a keyboard for numbers only lacks some of them.
    spinBox->setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText
                                 | Qt::ImhNoAutoUppercase);
    spinBox->setLocale(QLocale::c());
}

void markRefusedEntry(QAbstractSpinBox *spinBox, LineEditCal *calculator)
{
    spinBox->setProperty("isEntryRefused", calculator->isEntryRefused());
    applyStyleSheet(spinBox);
    applyStyleSheet(calculator);
}

bool isFinishingKey(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

// matches() compares a key with the bindings of every platform, so the option is tested first.
bool isRestoringKey(const QEvent *keyEvent, const LineEditCal *calculator)
{
    return calculator != nullptr && calculator->has(EscapeRestores)
        && static_cast<const QKeyEvent *>(keyEvent)->matches(QKeySequence::Cancel);
}

void forgetIfRemoved(LineEditCal *&calculator, const QChildEvent *event)
{
    if (event->removed() && event->child() == calculator) {
        calculator = nullptr;
    }
}

} // namespace Vantor::Widgets::Internal
