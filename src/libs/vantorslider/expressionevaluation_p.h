#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor::Widgets::Internal {

// The result of an expression as text, or nothing if it fails: it is not arithmetic, calls a
// regular expression literal, throws or returns "Infinity".
std::optional<QString> evaluateExpression(const QString &expression);

} // namespace Vantor::Widgets::Internal
