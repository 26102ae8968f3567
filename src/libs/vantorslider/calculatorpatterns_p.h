#pragma once

#include <QtCore/QChar>

#include <regex>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The four regular expressions of the calculator, compiled once for the process. Each line edit has
// copies of them as part of its interface. The filter runs on each keystroke, so what two of them
// accept as a single character is looked up in a literal set.
class CalculatorPatterns
{
public:
    static const CalculatorPatterns &instance();

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

    const std::regex character;
    const std::regex mark;
    const std::regex fourOperation;
    const std::regex letters;

private:
    CalculatorPatterns();
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
