#pragma once

#include <QtCore/QString>

QT_BEGIN_NAMESPACE
class QEvent;
class QInputMethodEvent;
class QLineEdit;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Whether the event is a key, or a key of an input method, that types one character.
bool isTypedKey(const QEvent *event);

// The text with the signs of expressions in ASCII, whichever keyboard or script they come from:
// digits, operators, and full-width forms of any character.
QString withAsciiSigns(const QString &text);

// Replaces what was last typed or pasted into the field of a spin box by its signs in ASCII, as if
// these had been typed: undo treats them alike. Emits nothing.
void retypeInAscii(QLineEdit *field);

// The same for what an input method is about to insert. The composition continues.
void commitInAscii(QInputMethodEvent *event);

} // namespace Vantor::Widgets::Internal
