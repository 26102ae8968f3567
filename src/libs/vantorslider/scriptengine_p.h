#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor::Widgets::Internal {

// The result of an ECMAScript expression as text, or nothing if it throws.
std::optional<QString> evaluateScript(const QString &text);

} // namespace Vantor::Widgets::Internal
