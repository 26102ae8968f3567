#pragma once

#include <algorithm>
#include <cmath>

namespace Vantor::Widgets::Internal {

// The last position of a logarithmic slider, for the maximum. Position 0 is the minimum; the value
// grows by the same factor at each position. No other value has one of these two positions: from
// there a key or a drag could not reach the end. The minimum is above 0 unless a host has changed
// the range of the spin box itself: there is only the minimum then.
constexpr int lastLogPosition = 1000;

inline int logPosition(double value, double least, double greatest)
{
    if (value <= least || least <= 0) {
        return 0;
    }
    if (value >= greatest) {
        return lastLogPosition;
    }
    const double position = lastLogPosition * std::log(value / least) / std::log(greatest / least);
    return std::clamp(static_cast<int>(std::round(position)), 1, lastLogPosition - 1);
}

// Exact at both ends.
inline double logValue(int position, double least, double greatest)
{
    if (position <= 0 || least <= 0) {
        return least;
    }
    if (position >= lastLogPosition) {
        return greatest;
    }
    return least * std::pow(greatest / least, double(position) / lastLogPosition);
}

} // namespace Vantor::Widgets::Internal
