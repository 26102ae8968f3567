#include "scriptengine_p.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QtScript/QScriptEngine>

namespace Vantor {
namespace Widgets {
namespace Internal {

std::optional<QString> evaluateScript(const QString &text)
{
    QScriptEngine engine;
    const QScriptValue value = engine.evaluate(text, QString(), 1);
    return engine.hasUncaughtException() ? std::nullopt : std::make_optional(value.toString());
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor

#endif
