#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of an expression as text, or nothing where it fails: it throws,
// yields "Infinity", calls a pattern, or is a script that can't be bounded or that
// has spent its budget of time. A text of typed characters alone can't loop.
std::optional<QString> evaluateExpression(const QString &expression);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
