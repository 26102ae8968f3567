#pragma once

#include <QtCore/QRect>
#include <QtCore/QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Vantor::Widgets::Internal {

// Results outside the range of a type are clamped: with a range up to INT_MAX no value wraps
// around.

inline int saturatedInt(qint64 value)
{
    return static_cast<int>(std::clamp<qint64>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

// NaN becomes 0.
inline int saturatedInt(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(std::clamp<double>(value, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

inline float saturatedFloat(double value)
{
    return static_cast<float>(std::clamp<double>(value, std::numeric_limits<float>::lowest(),
                                                 std::numeric_limits<float>::max()));
}

inline int saturatedSum(int a, int b)
{
    return saturatedInt(qint64(a) + b);
}

inline int saturatedDifference(int a, int b)
{
    return saturatedInt(qint64(a) - b);
}

// QRect stores the right and bottom edges and computes them without an overflow check.
inline QRect saturatedRect(int x, int y, int w, int h)
{
    return {QPoint(x, y), QPoint(saturatedInt(qint64(x) + w - 1), saturatedInt(qint64(y) + h - 1))};
}

// The width or height of a rectangle with these edges.
inline int saturatedExtent(int first, int last)
{
    return saturatedInt(qint64(last) - first + 1);
}

} // namespace Vantor::Widgets::Internal
