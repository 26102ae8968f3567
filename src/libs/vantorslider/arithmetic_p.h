#pragma once

#include <QtCore/QString>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A token of an expression, as ECMAScript splits it.
struct ArithmeticToken
{
    enum Kind {
        Blank,
        LineBreak,
        Number,
        Text, // a string literal
        Name, // a constant, or a variable of one letter
        Function, // of Math; the next token is its parenthesis
        Step, // ++ or --
        Assignment,
        Sign, // an operator that may be unary
        Operator,
        Semicolon,
        Opening,
        Closing,
        Unknown // not arithmetic
    };

    // The token that starts at begin; end is the end of the text.
    static ArithmeticToken at(const QChar *begin, const QChar *end);

    Kind kind;
    const QChar *begin;
    const QChar *end;
};

// Whether a text consists only of numbers, operators, functions and constants of Math, variables
// of one letter and, if nothing is assigned, string literals. Its syntax is not checked. The time
// is linear in the length of the text.
bool isArithmetic(const QString &text);

// The text with each comma replaced by a point, except between the arguments of a function.
QString withDecimalPoints(const QString &text);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
