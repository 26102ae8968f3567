#include "expressionevaluation_p.h"

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

// A "/" where an operand is due begins a pattern of the script language. Called
// with a text, that can go on matching for hours, and no native call can be
// abandoned; compiled, it takes stack for each bracket that it opens. No arithmetic
// is written so; a comment before a bracket, 4//(2), is taken for one as well.
bool hasUnboundedPattern(const QString &expression)
{
    static const QRegularExpression pattern(QStringLiteral("(^|[-,+*/(=])/"));
    static const QRegularExpression call(QStringLiteral("[)/]\\("));
    constexpr int maxBrackets = 1000;
    return expression.contains(pattern)
        && (expression.contains(call) || expression.count(QLatin1Char('(')) > maxBrackets);
}

// An array of a given length takes its memory at once, and ends the process where
// there is none, or is joined and sorted for hours; a "finally" runs on after its
// function was abandoned. No sum is written so.
bool cannotBeAbandoned(const QString &script)
{
    static const QRegularExpression words(
        QStringLiteral("\\b(Array|constructor|finally)\\b|\\blength\\s*=[^=]"));
    return script.contains(words);
}

} // namespace

std::optional<QString> evaluateExpression(const QString &expression)
{
    const bool isTyped = isTypedExpression(expression);
    if (isTyped ? hasUnboundedPattern(expression) : cannotBeAbandoned(expression)) {
        return std::nullopt;
    }
    std::optional<QString> result = evaluateScript(expression, !isTyped);
    if (result == QLatin1String("Infinity")) {
        return std::nullopt;
    }
    return result;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
