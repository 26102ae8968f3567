#pragma once

#include <QtCore/QString>

#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The value of a text in the script language, as text; nothing where it throws.
// A text that may loop has a budget of time, and nothing when that is spent. No
// event of the host comes in before the answer.
std::optional<QString> evaluateScript(const QString &text, bool mayLoop);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
