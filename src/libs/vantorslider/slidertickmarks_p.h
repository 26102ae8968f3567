#pragma once

#include <QtCore/QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
class QSlider;
class QStyleOptionSlider;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Whether a style sheet draws the groove, and with it no tick marks.
bool areTickMarksDropped(const QSlider &slider, const QStyleOptionSlider &option);

// At the edges that the slider's tickPosition names.
void drawTickMarks(const QSlider &slider, const QStyleOptionSlider &option, const QRectF &way,
                   QPainter *painter);

} // namespace Vantor::Widgets::Internal
