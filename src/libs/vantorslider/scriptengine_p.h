#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The result of an ECMAScript expression as text, or nothing if it throws.
std::optional<QString> evaluateScript(const QString &text);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
