#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

class SliderEditFrame;

namespace Internal {

// What the locks of a rectangle editor make of a change that the user made to
// one field of a pair: x and y, or width and height.

// A field of the pair as the lock sees it.
struct LockedField
{
    SliderEditFrame *frame;
    void (RectEditFrame::*valueChanged)(int);

    // Its value when the lock was switched on, or its part of a ratio.
    int basis;

    // The rest is of a width or height alone: the field that says where it begins,
    // and the one way in which the two differ. The height is tested that belongs
    // to the limited width, but the width that belongs to the height as it was set.
    SliderEditFrame *position = nullptr;
    bool isLimitedFirst = false;
};

// Moves the partner by the distance of val from the changed field's basis. Only
// the partner's maximum stops the changed field, its minimum does not.
void moveAlong(const LockedField &changed, int val, const LockedField &partner);

// Both sides of a rectangle, as they are to be reported.
struct ScaledSides
{
    int changed;
    int partner;
};

// Sets both sides to the proportion of their bases. The changed one, whose basis
// is above 0, becomes val or what of it the area allows: the maxima of the two
// stand for the extents of the whole area.
ScaledSides scaleAlong(const LockedField &changed, int val, const LockedField &partner);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
