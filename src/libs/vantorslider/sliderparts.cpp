#include "sliderparts_p.h"

#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionSlider>

#include <cmath>

namespace Vantor::Widgets::Internal {

QRect sliderPartRect(const QSlider &slider, QStyle::SubControl part,
                     const QStyleOptionSlider &option)
{
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, part, &slider);
}

void drawSliderParts(const QSlider &slider, QStyle::SubControls parts, QStyleOptionSlider option,
                     QPainter *painter)
{
    option.subControls = parts;
    slider.style()->drawComplexControl(QStyle::CC_Slider, &option, painter, &slider);
}

QRectF handleWay(const QSlider &slider, QStyleOptionSlider option)
{
    const auto middleAt = [&slider, &option](int position) {
        option.sliderPosition = position;
        return QRectF(sliderPartRect(slider, QStyle::SC_SliderHandle, option)).center().x();
    };
    const qreal start = middleAt(option.minimum);
    return {start, 0, middleAt(option.maximum) - start, 0};
}

QImage emptyPicture(const QSize &size, qreal pixelRatio)
{
    const auto pixels = [pixelRatio](int length) { return int(std::ceil(length * pixelRatio)); };
    QImage image(pixels(size.width()), pixels(size.height()), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    return image;
}

} // namespace Vantor::Widgets::Internal
