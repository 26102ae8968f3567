#include "calculatorpatterns_p.h"

#include <string>

namespace Vantor {
namespace Widgets {
namespace Internal {

const CalculatorPatterns &CalculatorPatterns::instance()
{
    static const CalculatorPatterns patterns;
    return patterns;
}

// The commas are members of the sets, not separators.
CalculatorPatterns::CalculatorPatterns()
    : character("[0-9]*[-,+,*,/,.,(,),=]*"), mark("[-,+,*,/,(,),=]*"), fourOperation("[-,+,*,/]*"),
      letters("^[\u4e00-\u9fa5a-zA-Z]+$"), m_accepted(matchedBy(character)),
      m_marks(matchedBy(mark))
{
}

CalculatorPatterns::AsciiSet CalculatorPatterns::matchedBy(const std::regex &pattern)
{
    AsciiSet set;
    for (std::size_t code = 0; code < set.size(); ++code) {
        set[code] = std::regex_match(std::string(1, static_cast<char>(code)), pattern);
    }
    return set;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
