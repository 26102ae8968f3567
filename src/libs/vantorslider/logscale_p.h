#pragma once

#include <cmath>

namespace Vantor {
namespace Widgets {
namespace Internal {

// The positions of a slider whose value grows by the same factor at each: from 0 for
// the least value, which is above 0, to this one for the greatest.
constexpr int lastLogPosition = 1000;

inline int logPosition(double value, double least, double greatest)
{
    if (value <= least) {
        return 0;
    }
    if (value >= greatest) {
        return lastLogPosition;
    }
    return static_cast<int>(
        std::round(lastLogPosition * std::log(value / least) / std::log(greatest / least)));
}

// The ends are exact.
inline double logValue(int position, double least, double greatest)
{
    if (position <= 0) {
        return least;
    }
    if (position >= lastLogPosition) {
        return greatest;
    }
    return least * std::pow(greatest / least, double(position) / lastLogPosition);
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
