#include "calculatorpatterns_p.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

const CalculatorPatterns &CalculatorPatterns::instance()
{
    static const CalculatorPatterns patterns;
    return patterns;
}

// The commas are members of the bracket expressions, not separators.
CalculatorPatterns::CalculatorPatterns()
    : character("[0-9]*[-,+,*,/,.,(,),=]*"), mark("[-,+,*,/,(,),=]*"), fourOperation("[-,+,*,/]*"),
      letters("^[\u4e00-\u9fa5a-zA-Z]+$")
{
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
