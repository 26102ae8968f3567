#pragma once

#include "pictureadjustment.h"

#include <QtCore/QMargins>
#include <QtCore/QRect>

#include <tuple>

// The values of all editors of the pages, and the content of a step of the undo
// history. Rectangles are in picture pixels.
struct Edits
{
    Tone tone;
    Colours colours;
    QRect crop;
    QMargins mask;
    QRect layer;
    bool isLayerShown = false;
};

inline bool operator==(const Edits &a, const Edits &b)
{
    return std::tie(a.tone, a.colours, a.crop, a.mask, a.layer, a.isLayerShown)
        == std::tie(b.tone, b.colours, b.crop, b.mask, b.layer, b.isLayerShown);
}
