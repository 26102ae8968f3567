#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of a text in the script language, as text; nothing where it throws.
std::optional<QString> evaluateScript(const QString &text);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
