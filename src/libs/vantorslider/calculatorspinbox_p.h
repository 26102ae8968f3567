#pragma once

#include "editspan_p.h"
#include "fieldtext_p.h"
#include "itemeditor_p.h"
#include "qlineeditcal.h"
#include "saturation_p.h"

#include <QtCore/QLocale>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>

#include <algorithm>
#include <cmath>
#include <optional>

namespace Vantor::Widgets::Internal {

// What the two calculator spin boxes share; they have no common base class of this library.

// keyboard: the kind of on-screen keyboard that the host should show.
void setUpCalculatorSpinBox(QAbstractSpinBox *spinBox, const QString &keyboard);

// Brings the dynamic property "isEntryRefused" up to date: it is true while a failed expression is
// marked.
void markRefusedEntry(QAbstractSpinBox *spinBox, LineEditCal *calculator);

bool isFinishingKey(const QKeyEvent *event);
// Whether a key press or a shortcut override shows the value again, if there is anything to
// restore.
bool isRestoringKey(const QEvent *keyEvent, const LineEditCal *calculator);

// QAbstractSpinBox deletes the line edit when a subclass sets another one.
void forgetIfRemoved(LineEditCal *&calculator, const QChildEvent *event);

// The number in a text without prefix and suffix; nothing for an expression. A comma is an
// operator here, but a group separator for Qt. Qt also accepts "inf" and "nan".
inline std::optional<double> numberIn(const QString &text)
{
    bool isNumber = !text.contains(QLatin1Char(','));
    const double number = isNumber ? QLocale::c().toDouble(text, &isNumber) : 0;
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

template <typename SpinBox> Unit unitOf(const SpinBox *spinBox)
{
    return {spinBox->prefix(), spinBox->suffix()};
}

// The number in the text of a calculator spin box, clamped to the range. Qt would return the
// minimum for a number out of range, and for text that it can't read. A result can be out of
// range: the calculator clamps it as float to the range of the last setSpinBoxCal() and rounds it
// to decimals of its own. Text that is no number returns the current value. So does the result
// that is shown instead of a failed expression, if it is the value formatted with six digits, and
// what the user types with EscapeRestores, until the entry ends.
template <typename SpinBox>
double numberFromText(const SpinBox *spinBox, const LineEditCal *calculator, const QString &text)
{
    const double value = spinBox->value();
    if (calculator != nullptr && calculator->isUntracked()) {
        return value;
    }
    QString bare = FieldText(unitOf(spinBox), text).entry;
    bare = calculator != nullptr ? calculator->pointed(bare) : bare;
    const std::optional<double> number = numberIn(bare);
    const bool isRefused = calculator != nullptr && calculator->isEntryRefused();
    if (!number || (isRefused && bare == QString::number(double(saturatedFloat(value)), 'g', 6))) {
        return value;
    }
    return std::clamp<double>(*number, spinBox->minimum(), spinBox->maximum());
}

// The text of a value as the spin box writes it, without prefix and suffix. textFromValue() is
// protected in QSpinBox; the integer spin box declares this class its friend.
struct ValueText
{
    template <typename SpinBox, typename Value>
    static QString of(const SpinBox *spinBox, Value value)
    {
        return spinBox->textFromValue(value);
    }

    template <typename SpinBox> static QString of(const SpinBox *spinBox)
    {
        return of(spinBox, spinBox->value());
    }
};

// What the user has typed that is not part of the value yet.
enum class Entry { None, Number, Expression };

// Whether the text is the value as the spin box writes it.
template <typename SpinBox> bool isTextOfValue(const SpinBox *spinBox)
{
    const bool isSpecial =
        !spinBox->specialValueText().isEmpty() && spinBox->value() == spinBox->minimum();
    return spinBox->text()
        == (isSpecial ? spinBox->specialValueText()
                      : spinBox->prefix() + ValueText::of(spinBox) + spinBox->suffix());
}

// The same, or the text is another one of the same number. A number out of range is not the value.
template <typename SpinBox> bool showsValue(const SpinBox *spinBox)
{
    return isTextOfValue(spinBox)
        || numberIn(FieldText(unitOf(spinBox), spinBox->text()).entry) == double(spinBox->value());
}

template <typename SpinBox> Entry pendingEntry(const SpinBox *spinBox)
{
    if (isTextOfValue(spinBox)) {
        return Entry::None;
    }
    const std::optional<double> number =
        numberIn(FieldText(unitOf(spinBox), spinBox->text()).entry);
    if (!number) {
        return Entry::Expression;
    }
    const bool isValue = number == double(spinBox->value())
        || spinBox->valueFromText(spinBox->text()) == spinBox->value();
    return isValue ? Entry::None : Entry::Number;
}

// Whether the user has typed since the last entry ended, or the text is not the value.
template <typename SpinBox>
bool hasPendingEntry(const SpinBox *spinBox, const LineEditCal *calculator)
{
    return (calculator != nullptr && calculator->isModified()) || !showsValue(spinBox);
}

// Changes prefix and suffix. Qt then writes the value; a pending entry is restored between them.
template <typename SpinBox, typename Change>
void keepEntry(SpinBox *spinBox, QLineEdit *field, Change change)
{
    const bool isTyped = field->isModified();
    const bool isPending = isTyped || pendingEntry(spinBox) != Entry::None;
    const FieldText before(unitOf(spinBox), spinBox->text());
    const auto cursor = field->cursorPosition() - before.prefix.length();
    change();
    if (isPending) {
        const QSignalBlocker blocker(field);
        field->setText(spinBox->prefix() + before.entry + spinBox->suffix());
        field->setCursorPosition(static_cast<int>(spinBox->prefix().length() + cursor));
        field->setModified(isTyped);
    }
}

// Whether the key restores the value of this spin box: an entry is pending, or the last one failed
// and is still marked.
template <typename SpinBox>
bool isRestoredBy(const QEvent *keyEvent, const SpinBox *spinBox, const LineEditCal *calculator)
{
    return isRestoringKey(keyEvent, calculator)
        && (calculator->isEntryRefused() || hasPendingEntry(spinBox, calculator));
}

template <typename SpinBox> void restoreValue(SpinBox *spinBox, LineEditCal *calculator)
{
    EditSpan::Scope edit(EditSpan::around(spinBox));
    const QSignalBlocker blocker(spinBox);
    spinBox->setValue(spinBox->value());
    calculator->setModified(false);
    // Also discards the last accepted result.
    calculator->setInitialResult(saturatedFloat(spinBox->value()));
    spinBox->selectAll();
    edit.release(EditSpan::Entry);
}

// Nothing is typed any more. A receiver may have deleted the spin box.
template <typename SpinBox>
void endEntry(const QPointer<SpinBox> &spinBox, LineEditCal *calculator, EditSpan::Scope *edit)
{
    if (spinBox && calculator != nullptr) {
        calculator->setModified(false);
    }
    edit->release(EditSpan::Entry);
}

// Ends a pending entry as Enter does. Each receiver may delete the spin box.
template <typename SpinBox> void finishEntry(SpinBox *spinBox, LineEditCal *calculator)
{
    if (!hasPendingEntry(spinBox, calculator)) {
        return;
    }
    EditSpan::Scope edit(EditSpan::around(spinBox));
    const QPointer<SpinBox> self(spinBox);
    Q_EMIT spinBox->editingFinished();
    if (self) {
        spinBox->setSlotEditingFinished();
    }
    if (self) {
        spinBox->interpretText();
    }
    endEntry(self, calculator, &edit);
}

// Return, Enter and the key that restores the value. Returns false for any other key. Each receiver
// may delete the spin box.
template <typename SpinBox>
bool handleKey(SpinBox *spinBox, LineEditCal *calculator, QKeyEvent *event)
{
    if (isRestoredBy(event, spinBox, calculator)) {
        restoreValue(spinBox, calculator);
        return true;
    }
    if (!isFinishingKey(event)) {
        return false;
    }
    const bool stays = spinBox->entryOptions().testFlag(EnterStays);
    if (stays && !hasPendingEntry(spinBox, calculator)) {
        // Leaves the key to a default button, except for auto-repeat of a held key.
        event->setAccepted(event->isAutoRepeat());
        return true;
    }
    EditSpan::Scope edit(EditSpan::around(spinBox));
    const QPointer<SpinBox> self(spinBox);
    if (stays) {
        finishEntry(spinBox, calculator);
    } else {
        Q_EMIT spinBox->editingFinished();
    }
    if (self) {
        Q_EMIT spinBox->enterFinished();
    }
    endEntry(self, calculator, &edit);
    if (self && stays) {
        spinBox->selectAll();
    }
    return true;
}

// In an editor of an item view. Returns whether the event has gone on to that editor.
template <typename SpinBox>
bool handleItemEditorEvent(SpinBox *spinBox, LineEditCal *calculator, QEvent *event)
{
    const ItemEditorAction action = itemEditorAction(spinBox, event);
    if (action == ItemEditorAction::None || calculator == nullptr
        || calculator->hostWindow().isBeingDestroyed()) {
        return false;
    }
    const QPointer<SpinBox> self(spinBox);
    if (action == ItemEditorAction::Finish) {
        finishEntry(spinBox, calculator);
    } else if (hasPendingEntry(spinBox, calculator)) {
        restoreValue(spinBox, calculator);
    }
    return !self || passKey(spinBox, event);
}

// The key that restores the value takes precedence over a host's shortcut. The field reports when
// an entry was refused. Returns false for any other event.
template <typename SpinBox>
bool handleEvent(SpinBox *spinBox, LineEditCal *calculator, QEvent *event)
{
    if (isItemEditorEvent(event) && handleItemEditorEvent(spinBox, calculator, event)) {
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && isRestoredBy(event, spinBox, calculator)) {
        event->accept();
        return true;
    }
    if (event->type() == LineEditCal::entryRefusedChange() && calculator != nullptr) {
        markRefusedEntry(spinBox, calculator);
        return true;
    }
    return false;
}

// In the functions below base passes the event on to Qt's class.

template <typename SpinBox, typename Base>
void handleStep(SpinBox *spinBox, LineEditCal *calculator, Base base)
{
    EditSpan::Scope edit(EditSpan::around(spinBox));
    edit.begin();
    if (calculator != nullptr && pendingEntry(spinBox) == Entry::Expression) {
        calculator->setSlotEditingFinished();
    }
    const QPointer<SpinBox> self(spinBox);
    base();
    endEntry(self, calculator, &edit);
}

// Whether the spin box is hidden or loses the focus because its window is being destroyed. Its
// pending entry is discarded then.
template <typename SpinBox> bool isDroppedWithWindow(SpinBox *spinBox, LineEditCal *calculator)
{
    if (calculator == nullptr || !calculator->hostWindow().isBeingDestroyed()) {
        return false;
    }
    const QSignalBlocker blocker(spinBox);
    spinBox->setValue(spinBox->value());
    return true;
}

// finish ends the entry. It and base may delete the spin box.
template <typename SpinBox, typename Finish, typename Base>
void handleFocusOut(SpinBox *spinBox, LineEditCal *calculator, QFocusEvent *event, Finish finish,
                    Base base)
{
    if (isDroppedWithWindow(spinBox, calculator)) {
        return;
    }
    if (calculator != nullptr && calculator->isLeftForOwnPopup(event)) {
        calculator->event(event);
        spinBox->update(); // without the base, which would finish the entry
        return;
    }
    EditSpan::Scope edit(EditSpan::around(spinBox));
    const QPointer<SpinBox> self(spinBox);
    finish();
    if (self) {
        base();
    }
    endEntry(self, calculator, &edit);
    if (self) {
        passFocus(spinBox, event);
    }
}

// If the spin box is hidden while it has the focus, the base interprets the text.
template <typename SpinBox, typename Base>
void handleHide(SpinBox *spinBox, LineEditCal *calculator, Base base)
{
    EditSpan::Scope edit(EditSpan::around(spinBox));
    const QPointer<SpinBox> self(spinBox);
    const bool isDropped = isDroppedWithWindow(spinBox, calculator);
    if (!isDropped) {
        spinBox->setSlotEditingFinished();
    }
    if (self) {
        base();
    }
    if (!isDropped) {
        endEntry(self, calculator, &edit);
    }
}

// The constructor sets the locale before it installs the field. Qt would write the value into the
// field that is replaced then. Later a host's locale is reverted: the calculator always writes a
// decimal point, and with a German locale the spin box would read 0.25 as 25.
template <typename Base>
void handleChange(QAbstractSpinBox *spinBox, const LineEditCal *calculator, const QEvent *event,
                  Base base)
{
    const bool isLocale = event->type() == QEvent::LocaleChange;
    if (isLocale && calculator != nullptr && calculator->parent() == nullptr) {
        return;
    }
    base();
    if (isLocale && spinBox->locale() != QLocale::c()) {
        spinBox->setLocale(QLocale::c());
    }
}

} // namespace Vantor::Widgets::Internal
