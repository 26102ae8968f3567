#pragma once

#include <QtCore/QString>

#include <regex>

namespace Vantor::Widgets::Internal {

// The four regular expressions of the calculator, compiled once for the process; each line edit has
// copies of them. The filter runs at each key, so it tests a single character without them.
struct CalculatorPatterns
{
    static const CalculatorPatterns &instance()
    {
        static const CalculatorPatterns patterns;
        return patterns;
    }

    // Whether the user may type the character. No character outside ASCII is accepted.
    static bool isAccepted(QChar character)
    {
        return (character >= QLatin1Char('0') && character <= QLatin1Char('9'))
            || character == QLatin1Char('.') || isMark(character);
    }
    // Operators, parentheses, comma and "=", which separate numbers.
    static bool isMark(QChar character)
    {
        switch (character.unicode()) {
        case '-':
        case '+':
        case '*':
        case '/':
        case '(':
        case ')':
        case ',':
        case '=':
            return true;
        default:
            return false;
        }
    }

    // Whether the number around the character has, with it, a second point or too many decimals.
    static bool isOneTooMany(const QString &text, int position, int decimals)
    {
        int start = position;
        while (start > 0 && !isMark(text.at(start - 1))) {
            --start;
        }
        int end = position;
        while (end < text.length() && !isMark(text.at(end))) {
            ++end;
        }
        const QString number = text.mid(start, end - start);
        const auto point = number.indexOf(QLatin1Char('.'));
        return point >= 0 && position - start >= point
            && (number.count(QLatin1Char('.')) > 1 || number.length() - point - 1 > decimals);
    }

    // The commas are members of the bracket expressions, not separators.
    const std::regex character {"[0-9]*[-,+,*,/,.,(,),=]*"};
    const std::regex mark {"[-,+,*,/,(,),=]*"};
    const std::regex fourOperation {"[-,+,*,/]*"};
    const std::regex letters {"^[\u4e00-\u9fa5a-zA-Z]+$"};
};

} // namespace Vantor::Widgets::Internal
