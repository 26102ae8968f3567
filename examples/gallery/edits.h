#pragma once

#include "pictureadjustment.h"

#include <QtCore/QMargins>
#include <QtCore/QRect>

// All that the editors of the pages say, and so all that a step of the undo
// history holds. Rectangles are in picture pixels.
struct Edits
{
    PictureAdjustment adjustment;
    QRect crop;
    QMargins mask;
    QRect layer;
};

inline bool operator==(const Edits &a, const Edits &b)
{
    return a.adjustment == b.adjustment && a.crop == b.crop && a.mask == b.mask
        && a.layer == b.layer;
}
