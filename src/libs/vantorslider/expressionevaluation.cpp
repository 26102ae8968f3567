#include "expressionevaluation_p.h"

#include "arithmetic_p.h"
#include "calculatorpatterns_p.h"
#include "scriptengine_p.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

bool isTypedExpression(const QString &expression)
{
    const CalculatorPatterns &patterns = CalculatorPatterns::instance();
    return std::all_of(expression.cbegin(), expression.cend(),
                       [&patterns](QChar character) { return patterns.isAccepted(character); });
}

// A "/" where an operand is due begins a regular expression literal. Called with a text,
// that can go on matching for hours; compiled, it takes stack for each bracket that it
// opens. No arithmetic is written so; a comment before a bracket, 4//(2), is taken for
// one as well.
bool hasUnboundedPattern(const QString &expression)
{
    static const QRegularExpression pattern(QStringLiteral("(^|[-,+*/(=])/"));
    static const QRegularExpression call(QStringLiteral("[)/]\\("));
    constexpr int maxBrackets = 1000;
    return expression.contains(pattern)
        && (expression.contains(call) || expression.count(QLatin1Char('(')) > maxBrackets);
}

// A line edit holds no more unless its host says so; what is longer was not meant for a
// number field, and would keep an engine busy.
bool isPastedArithmetic(const QString &expression)
{
    constexpr int maxLength = 32767;
    return expression.size() <= maxLength && isArithmetic(expression);
}

} // namespace

std::optional<QString> evaluateExpression(const QString &expression)
{
    const bool isEvaluated = isTypedExpression(expression) ? !hasUnboundedPattern(expression)
                                                           : isPastedArithmetic(expression);
    std::optional<QString> result = isEvaluated ? evaluateScript(expression) : std::nullopt;
    if (result == QLatin1String("Infinity")) {
        return std::nullopt;
    }
    return result;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
