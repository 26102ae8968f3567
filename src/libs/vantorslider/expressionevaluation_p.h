#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of an expression as text, or nothing where it throws, yields
// "Infinity" or exceeds its time budget. Only a text with characters that
// can't be typed can loop; while such a text is evaluated, events are
// processed: the caller must expect to be deleted meanwhile.
std::optional<QString> evaluateExpression(const QString &expression);

// Whether the text is made of typed characters alone: evaluateExpression()
// processes no events for it.
bool isTypedExpression(const QString &expression);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
