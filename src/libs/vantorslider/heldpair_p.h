#pragma once

#include "recteditframe.h"
#include "saturation_p.h"
#include "slidereditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// How the crop and the mask editor limit the sum of two fields, show the result and detect changes.

// The four fields in order: x, y, width and height of a crop, or top, bottom, left and right
// margin of a mask.
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

// Sets the allowed directions of a pair with these values: at the limit neither value may grow.
inline void allowWithinLimit(RectEditFrame *editer, const HeldPair &pair, const FieldValues &values)
{
    const bool isBelow = qint64(values.*pair.first.value) + values.*pair.second.value < pair.limit;
    for (const HeldField &field : {pair.first, pair.second}) {
        editer->setValueChangeDirection(
            field.type, isBelow ? SliderEditFrame::AllowedToAny : SliderEditFrame::AllowedToSmaller,
            values.*field.value);
    }
}

// The values after the user has set the first field of the pair to val: at most the limit minus
// the second field.
inline FieldValues heldWithinLimit(RectEditFrame *editer, const HeldPair &pair, int val)
{
    FieldValues values = fieldValues(editer);
    values.*pair.first.value =
        qMin(val, saturatedDifference(pair.limit, values.*pair.second.value));
    allowWithinLimit(editer, pair, values);
    return values;
}

// Shows the values and stores them in last. Returns whether they differ from the previous ones.
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
