#include "scriptengine_p.h"

#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)

#include "arithmetic_p.h"

#include <QtCore/QRegularExpression>
#include <QtQml/QJSEngine>

namespace Vantor::Widgets::Internal {

namespace {

// The text rewritten so that QJSEngine returns the result of Qt Script: 017 is octal, 08 is
// decimal, and commas at the end are left out. Nothing if the two differ in a way that can't be
// rewritten, as for the start of a regular expression literal, a comment or a power.
std::optional<QString> modernForm(const QString &text)
{
    static const QRegularExpression leadingZeros(QStringLiteral("^0+(?=[0-9])"));
    if (!isArithmetic(text)) {
        return std::nullopt;
    }
    QString form;
    auto end = form.size();
    ArithmeticTokens tokens(text);
    while (tokens.next()) {
        QString part = tokens.text();
        const bool isOctal = tokens.kind() == ArithmeticTokens::Octal;
        if (isOctal || tokens.kind() == ArithmeticTokens::Number) {
            part.replace(leadingZeros, isOctal ? QStringLiteral("0o") : QString());
        }
        form += part;
        if (!part.at(0).isSpace() && part != QLatin1String(",")) {
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

} // namespace Vantor::Widgets::Internal

#endif
