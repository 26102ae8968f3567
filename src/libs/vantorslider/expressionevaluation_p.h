#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of an expression as text, or nothing where it fails: it is no arithmetic,
// calls a pattern, throws or yields "Infinity".
std::optional<QString> evaluateExpression(const QString &expression);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
