#include "scriptengine_p.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

#include <QtScript/QScriptEngine>

namespace Vantor::Widgets::Internal {

std::optional<QString> evaluateScript(const QString &text)
{
    QScriptEngine engine;
    const QScriptValue value = engine.evaluate(text, QString(), 1);
    return engine.hasUncaughtException() ? std::nullopt : std::make_optional(value.toString());
}

} // namespace Vantor::Widgets::Internal

#endif
