#include "expressionevaluation_p.h"

#include "arithmetic_p.h"
#include "calculatorpatterns_p.h"
#include "scriptengine_p.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace Vantor::Widgets::Internal {

namespace {

bool isTypedExpression(const QString &expression)
{
    return std::all_of(expression.cbegin(), expression.cend(), CalculatorPatterns::isAccepted);
}

// A "/" where an operand is expected starts a regular expression literal. If it is called with a
// text, matching can take hours; compiling it needs stack for each open parenthesis. Arithmetic
// does not contain it. A comment before a parenthesis, as in 4//(2), is treated in the same way.
bool hasUnboundedPattern(const QString &expression)
{
    static const QRegularExpression pattern(QStringLiteral("(^|[-,+*/(=])/"));
    static const QRegularExpression call(QStringLiteral("[)/]\\("));
    constexpr int maxBrackets = 1000;
    return expression.contains(pattern)
        && (expression.contains(call) || expression.count(QLatin1Char('(')) > maxBrackets);
}

// The limit is QLineEdit's default maximum length. Longer text was not meant for a number, and its
// evaluation would take long.
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

} // namespace Vantor::Widgets::Internal
