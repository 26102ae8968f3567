#pragma once

#include <QtCore/QString>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A piece of a text as the script language divides it.
struct ArithmeticToken
{
    enum Kind {
        Blank,
        LineBreak,
        Number,
        Text, // a string literal
        Name, // a constant, or a variable of one letter
        Function, // of Math; its bracket is the next token
        Step, // ++ and --
        Assignment,
        Sign, // an operator that may stand before its only operand
        Operator,
        Semicolon,
        Opening,
        Closing,
        Unknown // not arithmetic
    };

    // The token that begins there, before the end of the text.
    static ArithmeticToken at(const QChar *begin, const QChar *end);

    Kind kind;
    const QChar *begin;
    const QChar *end;
};

// Whether a text is made of numbers, operators, functions and constants of Math, and
// variables of one letter alone; where nothing is assigned, of string literals, too.
// Its syntax is left to the engine. Linear in the length of the text.
bool isArithmetic(const QString &text);

// The text with a point for each comma but those between the arguments of a function.
QString withDecimalPoints(const QString &text);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
