#pragma once

#include "fieldtext_p.h"
#include "qlineeditcal.h"
#include "saturation_p.h"

#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>

#include <algorithm>
#include <cmath>
#include <optional>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QEvent;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the two calculator spin boxes share without a common base of their own.

// keyboard: the kind of on-screen keyboard that the host is to show.
void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard);

// Has the spin box say to style sheets that its entry was refused.
void markRefusedEntries(QAbstractSpinBox *spinBox, LineEditCal *calculator);

bool isFinishingKey(const QKeyEvent *event);
// Of a press of the key, or of the question whether it is a shortcut.
bool isEscape(const QEvent *keyEvent);

// Undoes a host's change of locale: the calculator writes a decimal point in every
// country, and a spin box that read it by a German locale would take 0.25 for 25.
void keepDecimalPoint(QAbstractSpinBox *spinBox, const QEvent *event);

// The number that a bare text is; nothing for an expression. A comma is an operator,
// where Qt would take it for one that groups digits; and Qt reads "inf" and "nan".
inline std::optional<double> numberIn(const QString &text)
{
    bool isNumber = !text.contains(QLatin1Char(','));
    const double number = isNumber ? QLocale::c().toDouble(text, &isNumber) : 0;
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

// The number that the text of a calculator spin box stands for. Qt takes the
// range's start for what it can't read and for what is out of range, which the
// calculator's result may be: it is clamped in float, to the range of the last
// setSpinBoxCal(), and rounded to its own decimals. Here the nearer end is taken,
// and what is no number leaves the value. So does the last accepted result that is
// shown in place of a refused entry, where it is the value in six digits.
template <typename SpinBox>
double numberFromText(const SpinBox *spinBox, const LineEditCal *calculator, const QString &text)
{
    QString bare = FieldText(spinBox, text).entry;
    bare = calculator != nullptr ? calculator->pointed(bare) : bare;
    const std::optional<double> number = numberIn(bare);
    const double value = spinBox->value();
    const bool isRefused = calculator != nullptr && calculator->isEntryRefused();
    if (!number || (isRefused && bare == QString::number(double(saturatedFloat(value)), 'g', 6))) {
        return value;
    }
    return std::clamp<double>(*number, spinBox->minimum(), spinBox->maximum());
}

// What the user has entered and the value does not say yet.
enum class Entry { None, Number, Expression };

// As the box writes it or as another text of the same number; a number out of range is
// none. valueText: the value as the box writes it, without prefix and suffix.
template <typename SpinBox> bool showsValue(const SpinBox *spinBox, const QString &valueText)
{
    const bool isSpecial =
        !spinBox->specialValueText().isEmpty() && spinBox->value() == spinBox->minimum();
    const QString text = spinBox->text();
    return text
        == (isSpecial ? spinBox->specialValueText()
                      : spinBox->prefix() + valueText + spinBox->suffix())
        || numberIn(FieldText(spinBox, text).entry) == double(spinBox->value());
}

template <typename SpinBox> Entry pendingEntry(const SpinBox *spinBox, const QString &valueText)
{
    if (showsValue(spinBox, valueText)) {
        return Entry::None;
    }
    const QString text = spinBox->text();
    if (!numberIn(FieldText(spinBox, text).entry)) {
        return Entry::Expression;
    }
    return spinBox->valueFromText(text) == spinBox->value() ? Entry::None : Entry::Number;
}

// Changes prefix and suffix. Qt writes the value then: an entry that is pending is put
// back between the two.
template <typename SpinBox, typename Change>
void keepEntry(SpinBox *spinBox, QLineEdit *field, const QString &valueText, Change change)
{
    const bool isPending = pendingEntry(spinBox, valueText) != Entry::None;
    const FieldText before(spinBox, spinBox->text());
    const auto cursor = field->cursorPosition() - before.prefix.length();
    change();
    if (isPending) {
        const QSignalBlocker blocker(field);
        field->setText(spinBox->prefix() + before.entry + spinBox->suffix());
        field->setCursorPosition(static_cast<int>(spinBox->prefix().length() + cursor));
    }
}

// Whether Escape is to show the value again. A refused entry is gone, but its mark and
// the result that is shown instead are not.
template <typename SpinBox>
bool isRestorable(const SpinBox *spinBox, const LineEditCal *calculator, const QString &valueText)
{
    return calculator != nullptr && calculator->has(EscapeRestores)
        && (calculator->isEntryRefused() || !showsValue(spinBox, valueText));
}

template <typename SpinBox> void restoreValue(SpinBox *spinBox, LineEditCal *calculator)
{
    const QSignalBlocker blocker(spinBox);
    spinBox->setValue(spinBox->value());
    // A result that was accepted before goes, too.
    calculator->setInitialResult(saturatedFloat(spinBox->value()));
    spinBox->selectAll();
}

// Enter in a field that keeps the focus. Each receiver may delete the box.
template <typename SpinBox>
void finishAndStay(SpinBox *spinBox, QKeyEvent *event, const QString &valueText)
{
    if (showsValue(spinBox, valueText)) {
        // To a default button; but a key that is held down is pressed once.
        event->setAccepted(event->isAutoRepeat());
        return;
    }
    const QPointer<SpinBox> self(spinBox);
    Q_EMIT spinBox->editingFinished();
    if (self) {
        spinBox->setSlotEditingFinished();
    }
    if (self) {
        spinBox->interpretText();
    }
    if (self) {
        Q_EMIT spinBox->enterFinished();
    }
    if (self) {
        spinBox->selectAll();
    }
}

// Whether the box is hidden or left since its window is destroyed: its pending entry
// is dropped then.
template <typename SpinBox> bool isDroppedWithWindow(SpinBox *spinBox, LineEditCal *calculator)
{
    if (calculator == nullptr || !calculator->hostWindow().isBeingDestroyed()) {
        return false;
    }
    const QSignalBlocker blocker(spinBox);
    spinBox->setValue(spinBox->value());
    return true;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
