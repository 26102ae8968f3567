#pragma once

#include "recteditframe.h"

namespace Vantor::Widgets {

class SliderEditFrame;

namespace Internal {

// How the locks of a rectangle editor apply a change by the user to one field of a pair, x and y
// or width and height, to the other one.

// One field of the pair.
struct LockedField
{
    SliderEditFrame *frame;
    void (RectEditFrame::*valueChanged)(int);

    // Its value when the lock was turned on, or its part of a ratio.
    int basis;

    // Only for width and height: the field with the position of the side.
    SliderEditFrame *position = nullptr;
    // Whether the partner is computed from the limited value before it is tested. True only for the
    // width; the width itself is computed from the height as the user set it.
    bool isLimitedFirst = false;
};

// Moves the partner by the difference between val and the changed field's basis. Only the
// partner's maximum limits the changed field, its minimum does not.
void moveAlong(const LockedField &changed, int val, const LockedField &partner);

// Both sides of a rectangle, as they are reported.
struct ScaledSides
{
    int changed;
    int partner;
};

// Sets both sides to the ratio of their bases. The changed one, whose basis is above 0, becomes
// val, limited by the area: the maximum of each side is the extent of the whole area.
ScaledSides scaleAlong(const LockedField &changed, int val, const LockedField &partner);

} // namespace Internal
} // namespace Vantor::Widgets
