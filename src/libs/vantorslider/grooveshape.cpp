#include "grooveshape_p.h"

#include "sliderparts_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionSlider>

namespace Vantor::Widgets::Internal {

namespace {

// The number of pixels from the first one on, at most half of the length, that differ from the
// one in the middle.
int othersBeforeMiddle(const QImage &image, QPoint pixel, const QPoint &step, int length)
{
    const QRgb middle = image.pixel(pixel + step * (length / 2));
    int others = 0;
    while (others < length / 2 && image.pixel(pixel) != middle) {
        pixel += step;
        ++others;
    }
    return others;
}

bool isVisible(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) > 0;
}

int visibleRows(const QImage &image, int x)
{
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        rows += isVisible(image, x, y) ? 1 : 0;
    }
    return rows;
}

// In the pixels of the slider's screen, on a transparent ground.
QImage pictureOf(const QSlider &slider, QStyle::SubControl part, QStyleOptionSlider option)
{
    const QRect rect = sliderPartRect(slider, part, option);
    QImage image = emptyPicture(rect.size(), slider.devicePixelRatioF());
    if (!image.isNull()) {
        QPainter painter(&image);
        painter.translate(-rect.topLeft());
        option.state |= QStyle::State_Selected;
        drawSliderParts(slider, part, option, &painter);
    }
    return image;
}

} // namespace

// Border and corners of a groove, also of one in a style sheet, can only be seen: the border are
// the pixels around the colour of the middle, and the radius is as long as the row of other
// pixels in a corner.
GrooveShape measuredGroove(const QSlider &slider, QStyleOptionSlider option)
{
    option.upsideDown = false; // a style can fill the left end
    option.sliderPosition = option.minimum;
    GrooveShape shape;
    shape.groove = sliderPartRect(slider, QStyle::SC_SliderGroove, option);
    const QRect handle = sliderPartRect(slider, QStyle::SC_SliderHandle, option);
    const QImage groovePicture = pictureOf(slider, QStyle::SC_SliderGroove, option);
    const QImage handlePicture = pictureOf(slider, QStyle::SC_SliderHandle, option);
    if (groovePicture.isNull() || handlePicture.isNull()) {
        return shape;
    }
    const qreal pixelRatio = groovePicture.devicePixelRatio();
    const int height = groovePicture.height();
    shape.isDrawnByStyle = 2 * visibleRows(groovePicture, groovePicture.width() / 2) > height;
    shape.inside = shape.groove;
    if (shape.isDrawnByStyle) {
        shape.isFilledAtMinimum = groovePicture != groovePicture.mirrored(true, false);
        const QPoint left(-1, 0);
        const QPoint down(0, 1);
        const QPoint topRight(groovePicture.width() - 1, 0);
        const QPoint top(groovePicture.width() / 2, 0);
        const int border =
            qMin(othersBeforeMiddle(groovePicture, topRight + down * (height / 2), left, height),
                 othersBeforeMiddle(groovePicture, top, down, height));
        const int radius =
            othersBeforeMiddle(groovePicture, topRight + (left + down) * border, left, height);
        const qreal inset = border / pixelRatio;
        shape.inside.adjust(inset, inset, -inset, -inset);
        shape.radius = radius / pixelRatio;
    } else {
        // A bar of half the handle's height, which ends below the handle.
        const int bar = qMin(shape.groove.height(), handle.height() / 2);
        const QRectF way = handleWay(slider, option);
        shape.inside = QRectF(0, 0, way.width() + bar, bar);
        shape.inside.moveCenter(QPointF(way.center().x(), QRectF(shape.groove).center().y()));
        shape.radius = bar / 2.0;
    }

    const int row = qBound(0, int((shape.inside.center().y() - handle.top()) * pixelRatio),
                           handlePicture.height() - 1);
    int first = 0;
    int end = handlePicture.width();
    while (first < end && !isVisible(handlePicture, first, row)) {
        ++first;
    }
    while (first < end && !isVisible(handlePicture, end - 1, row)) {
        --end;
    }
    shape.handleLeft = first / pixelRatio;
    shape.handleRight = end / pixelRatio;
    return shape;
}

} // namespace Vantor::Widgets::Internal
