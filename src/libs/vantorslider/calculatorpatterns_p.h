#pragma once

#include <QtCore/QChar>

#include <bitset>
#include <regex>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The calculator's four patterns, compiled once for the process, and what the
// two that work on single characters say of each ASCII character. A field
// filters its text on every keystroke: a look-up there instead of a match.
class CalculatorPatterns
{
public:
    static const CalculatorPatterns &instance();

    // What a user may type; no character outside ASCII is.
    bool isAccepted(QChar character) const { return contains(m_accepted, character); }
    // Operators, parentheses, comma and "=": what stands between numbers.
    bool isMark(QChar character) const { return contains(m_marks, character); }

    const std::regex character;
    const std::regex mark;
    const std::regex fourOperation;
    const std::regex letters;

private:
    using AsciiSet = std::bitset<128>;

    CalculatorPatterns();

    static AsciiSet matchedBy(const std::regex &pattern);
    static bool contains(const AsciiSet &set, QChar character)
    {
        return character.unicode() < set.size() && set[character.unicode()];
    }

    AsciiSet m_accepted;
    AsciiSet m_marks;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
