#include "expressionevaluation_p.h"

#include "calculatorpatterns_p.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtScript/QScriptEngine>

#include <algorithm>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

constexpr int budgetMs = 200;
// How often the engine lets the event loop look at the budget's timer.
constexpr int eventsIntervalMs = 10;

std::optional<QString> finiteResult(const QScriptEngine &engine, const QString &text)
{
    if (engine.hasUncaughtException() || text == QLatin1String("Infinity")) {
        return std::nullopt;
    }
    return text;
}

std::optional<QString> evaluateWithinBudget(const QString &expression)
{
    QScriptEngine engine;
    engine.setProcessEventsInterval(eventsIntervalMs);

    // An aborted evaluation leaves no exception behind, so it is noted here.
    bool isAbandoned = false;
    QTimer budget;
    budget.setSingleShot(true);
    QObject::connect(&budget, &QTimer::timeout, &engine, [&engine, &isAbandoned] {
        isAbandoned = true;
        engine.abortEvaluation();
    });
    budget.start(budgetMs);

    QScriptValue result = engine.evaluate(expression, QString(), 1);
    if (!isAbandoned && !engine.hasUncaughtException() && result.isObject()) {
        // An object's conversion is script code too, and only what runs inside
        // an evaluation can be aborted.
        engine.globalObject().setProperty(QStringLiteral("result"), result);
        result = engine.evaluate(QStringLiteral("String(result)"));
    }
    if (isAbandoned) {
        return std::nullopt;
    }
    return finiteResult(engine, result.toString());
}

// A "/" where an operand is due begins a pattern of the script language. Called
// with a text, that can go on matching for hours, and no native call can be
// abandoned. No arithmetic is written so; a comment before a bracket, 4//(2),
// is taken for one as well.
bool callsPattern(const QString &expression)
{
    static const QRegularExpression pattern(QStringLiteral("(^|[-,+*/(=])/"));
    static const QRegularExpression call(QStringLiteral("[)/]\\("));
    return expression.contains(pattern) && expression.contains(call);
}

} // namespace

bool isTypedExpression(const QString &expression)
{
    const CalculatorPatterns &patterns = CalculatorPatterns::instance();
    return std::all_of(expression.cbegin(), expression.cend(),
                       [&patterns](QChar character) { return patterns.isAccepted(character); });
}

std::optional<QString> evaluateExpression(const QString &expression)
{
    if (!isTypedExpression(expression)) {
        return evaluateWithinBudget(expression);
    }
    if (callsPattern(expression)) {
        return std::nullopt;
    }
    QScriptEngine engine;
    const QString text = engine.evaluate(expression, QString(), 1).toString();
    return finiteResult(engine, text);
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
