#pragma once

#include <QtCore/QRectF>
#include <QtGui/QImage>
#include <QtWidgets/QStyle>

QT_BEGIN_NAMESPACE
class QPainter;
class QSlider;
class QStyleOptionSlider;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// The parts of a slider, as its style places and draws them.

QRect sliderPartRect(const QSlider &slider, QStyle::SubControl part,
                     const QStyleOptionSlider &option);
void drawSliderParts(const QSlider &slider, QStyle::SubControls parts, QStyleOptionSlider option,
                     QPainter *painter);

// From the middle of the handle at the minimum to the middle at the maximum; to the left in a
// mirrored slider.
QRectF handleWay(const QSlider &slider, QStyleOptionSlider option);

// A transparent picture to draw them in, in the pixels of a screen.
QImage emptyPicture(const QSize &size, qreal pixelRatio);

} // namespace Vantor::Widgets::Internal
