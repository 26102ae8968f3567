#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The result of an expression as text, or nothing if it fails: it is not arithmetic, calls a
// regular expression literal, throws or returns "Infinity".
std::optional<QString> evaluateExpression(const QString &expression);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
