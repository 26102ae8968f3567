#pragma once

#include <QtCore/QRectF>

QT_BEGIN_NAMESPACE
class QSlider;
class QStyleOptionSlider;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Measured in the style's pictures of groove and handle. In logical pixels.
struct GrooveShape
{
    QRect groove; // with its border
    QRectF inside;
    qreal radius = 0; // of the corners of inside
    bool isDrawnByStyle = false; // in its whole height; otherwise a bar replaces it
    bool isFilledAtMinimum = false; // the style draws the end before the handle differently
    qreal handleLeft = 0; // the visible part of the handle, from the left edge of its rectangle
    qreal handleRight = 0;
};

GrooveShape measuredGroove(const QSlider &slider, QStyleOptionSlider option);

} // namespace Vantor::Widgets::Internal
