#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of an expression as text, or nothing where it throws, yields
// "Infinity", exceeds its time budget or calls a pattern. Only a text with
// characters that can't be typed can loop otherwise; while such a text is
// evaluated, events are processed: the caller must expect to be deleted meanwhile.
std::optional<QString> evaluateExpression(const QString &expression);

// Whether the text is made of typed characters alone: evaluateExpression()
// processes no events for it.
bool isTypedExpression(const QString &expression);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
