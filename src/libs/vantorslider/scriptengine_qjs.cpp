#include "scriptengine_p.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

#include "arithmetic_p.h"

#include <QtQml/QJSEngine>

#include <algorithm>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

// As in Qt Script, 017 is octal and 08 is decimal.
QString modernNumber(const QString &number)
{
    if (number.size() < 2 || number[0] != QLatin1Char('0') || !number[1].isDigit()) {
        return number;
    }
    const auto isOctalDigit = [](QChar digit) { return digit < QLatin1Char('8'); };
    if (std::all_of(number.cbegin(), number.cend(), isOctalDigit)) {
        return QStringLiteral("0o") + number.mid(1);
    }
    const auto isZero = [](QChar digit) { return digit == QLatin1Char('0'); };
    return number.mid(std::find_if_not(number.cbegin(), number.cend(), isZero) - number.cbegin());
}

// The text rewritten so that QJSEngine returns the result of Qt Script: with its octal numbers, and
// without commas at the end. Nothing if the two differ in a way that can't be rewritten, as for
// the start of a regular expression literal, a comment or a power.
std::optional<QString> modernForm(const QString &text)
{
    if (!isArithmetic(text)) {
        return std::nullopt;
    }
    QString form;
    auto end = form.size();
    const QChar *const last = text.constData() + text.size();
    for (const QChar *at = text.constData(); at != last;) {
        const auto token = ArithmeticToken::at(at, last);
        at = token.end;
        const QString part(token.begin, token.end - token.begin);
        form += token.kind == ArithmeticToken::Number ? modernNumber(part) : part;
        const bool isSpace =
            token.kind == ArithmeticToken::Blank || token.kind == ArithmeticToken::LineBreak;
        if (!isSpace && part != QLatin1String(",")) {
            end = form.size();
        }
    }
    return form.left(end);
}

} // namespace

std::optional<QString> evaluateScript(const QString &text)
{
    const std::optional<QString> form = modernForm(text);
    if (!form) {
        return std::nullopt;
    }
    QJSEngine engine;
    QStringList thrownFrom; // an expression can throw a value of any type
    const QJSValue value = engine.evaluate(*form, QString(), 1, &thrownFrom);
    const bool isThrown = !thrownFrom.isEmpty() || value.isError();
    return isThrown ? std::nullopt : std::make_optional(value.toString());
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor

#endif
