#pragma once

#include <QtCore/QChar>

#include <regex>
#include <string_view>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The calculator's four patterns, which the interface gives to each field, compiled once
// for the process. A field filters its text on every keystroke: what the two that work on
// single characters accept is a look-up in a literal set.
class CalculatorPatterns
{
public:
    static const CalculatorPatterns &instance();

    // What a user may type; no character outside ASCII is.
    static bool isAccepted(QChar character) { return contains("0123456789.-+*/(),=", character); }
    // Operators, parentheses, comma and "=": what stands between numbers.
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
