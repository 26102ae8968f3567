#pragma once

#include "recteditframe.h"
#include "saturation_p.h"
#include "slidereditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// How the crop and the mask editor hold two fields that share an area, and show
// and compare what comes of it.

// The four fields in their order: a crop's x, y, width and height, or a mask's
// top, bottom, left and right margin.
struct FieldValues
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

struct HeldField
{
    RectEditFrame::Type type;
    int FieldValues::*value;
};

constexpr HeldField fieldX {RectEditFrame::X, &FieldValues::x};
constexpr HeldField fieldY {RectEditFrame::Y, &FieldValues::y};
constexpr HeldField fieldWidth {RectEditFrame::Width, &FieldValues::width};
constexpr HeldField fieldHeight {RectEditFrame::Height, &FieldValues::height};

// Two fields whose sum has a limit.
struct HeldPair
{
    HeldField first;
    HeldField second;
    int limit;
};

inline FieldValues fieldValues(RectEditFrame *editer)
{
    FieldValues values;
    editer->value(values.x, values.y, values.width, values.height);
    return values;
}

struct FieldRange
{
    int lowest = 0;
    int greatest = 0;
};

inline FieldRange fieldRange(RectEditFrame *editer, RectEditFrame::Type type)
{
    FieldRange range;
    editer->range(type, range.lowest, range.greatest);
    return range;
}

// Sets the allowed directions of a pair that has these values: at the limit neither
// of the two may grow.
inline void allowWithinLimit(RectEditFrame *editer, const HeldPair &pair, const FieldValues &values)
{
    const bool isBelow = qint64(values.*pair.first.value) + values.*pair.second.value < pair.limit;
    for (const HeldField &field : {pair.first, pair.second}) {
        editer->setValueChangeDirection(
            field.type, isBelow ? SliderEditFrame::AllowedToAny : SliderEditFrame::AllowedToSmaller,
            values.*field.value);
    }
}

// The fields' values after the user has set the first of the pair to val: no more
// of it than the second leaves of the limit.
inline FieldValues heldWithinLimit(RectEditFrame *editer, const HeldPair &pair, int val)
{
    FieldValues values = fieldValues(editer);
    values.*pair.first.value =
        qMin(val, saturatedDifference(pair.limit, values.*pair.second.value));
    allowWithinLimit(editer, pair, values);
    return values;
}

// Shows the values and makes them the last ones; true where the last were others.
inline bool showAsLast(RectEditFrame *editer, const FieldValues &values, QRect &last)
{
    editer->setValue(values.x, values.y, values.width, values.height);
    const QRect packed = wrappedRect(values.x, values.y, values.width, values.height);
    const bool isChange = packed != last;
    last = packed;
    return isChange;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
