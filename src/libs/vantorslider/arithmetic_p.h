#pragma once

#include <QtCore/QRegularExpression>
#include <QtCore/QString>

namespace Vantor::Widgets::Internal {

// The tokens of an expression, as ECMAScript splits it. The time is linear in its length.
class ArithmeticTokens
{
public:
    enum Kind {
        Unknown, // not arithmetic
        Space,
        LineBreak,
        Octal, // with a leading zero
        Number, // decimal or hexadecimal
        Text, // a string literal
        Function, // of Math; the next token is its parenthesis
        Name, // a constant, or a variable of one letter
        Step, // ++ or --
        Assignment,
        Operator,
        Sign, // an operator that may be unary
        Semicolon,
        Opening,
        Closing
    };

    explicit ArithmeticTokens(const QString &expression);

    // Moves to the next token, and returns whether there is one. Invalid UTF-16 has none.
    bool next();
    bool isValid() const { return m_tokens.isValid(); }

    Kind kind() const { return static_cast<Kind>(m_token.lastCapturedIndex()); }
    QString text() const { return m_token.captured(); }
    auto start() const { return m_token.capturedStart(); }

private:
    QRegularExpressionMatchIterator m_tokens;
    QRegularExpressionMatch m_token;
};

// Whether a text consists only of numbers, operators, functions and constants of Math, variables
// of one letter and, if nothing is assigned, string literals. Its syntax is not checked.
bool isArithmetic(const QString &text);

// The text with each comma replaced by a point, except between the arguments of a function.
QString withDecimalPoints(const QString &text);

} // namespace Vantor::Widgets::Internal
