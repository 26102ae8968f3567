#pragma once

#include <QtCore/QChar>

#include <regex>
#include <string_view>

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
    static bool isAccepted(QChar character) { return contains("0123456789.-+*/(),=", character); }
    // Operators, parentheses, comma and "=", which separate numbers.
    static bool isMark(QChar character) { return contains("-+*/(),=", character); }

    const std::regex character;
    const std::regex mark;
    const std::regex fourOperation;
    const std::regex letters;

private:
    CalculatorPatterns();

    static bool contains(std::string_view set, QChar character)
    {
        return set.find(character.toLatin1()) != std::string_view::npos;
    }
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
