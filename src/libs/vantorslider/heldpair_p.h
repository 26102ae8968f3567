#pragma once

#include "recteditframe.h"
#include "saturation_p.h"
#include "slidereditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// How the crop and the mask editor hold two fields that share an area, and show
// and compare what comes of it.

struct HeldValue
{
    int value;
    // Of both fields: SliderEditFrame::ValueChangeDirection.
    int directions;
};

// The value that fits beside its partner: at the limit of their sum neither of
// the two may grow.
inline HeldValue heldValue(int value, int partner, int limit)
{
    if (qint64(value) + partner < limit) {
        return {value, SliderEditFrame::AllowedToAny};
    }
    return {saturatedDifference(limit, partner), SliderEditFrame::AllowedToSmaller};
}

// The four fields in their order: a crop's x, y, width and height, or a mask's
// top, bottom, left and right margin.
struct FieldValues
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

inline FieldValues fieldValues(RectEditFrame *editer)
{
    FieldValues values;
    editer->value(values.x, values.y, values.width, values.height);
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
