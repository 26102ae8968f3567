#include "slidertickmarks_p.h"

#include "sliderparts_p.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionSlider>

#include <cmath>

namespace Vantor::Widgets::Internal {

// Nothing tells it but the picture.
bool areTickMarksDropped(const QSlider &slider, const QStyleOptionSlider &option)
{
    if (!slider.style()->inherits("QStyleSheetStyle")) {
        return false;
    }
    const auto pictureOf = [&slider, &option](QStyle::SubControl part) {
        QImage picture = emptyPicture(slider.size(), 1);
        QPainter painter(&picture);
        drawSliderParts(slider, part, option, &painter);
        painter.end();
        return picture;
    };
    return pictureOf(QStyle::SC_SliderTickmarks) == pictureOf(QStyle::SC_None);
}

void drawTickMarks(const QSlider &slider, const QStyleOptionSlider &option, const QRectF &way,
                   QPainter *painter)
{
    if (option.tickPosition == QSlider::NoTicks) {
        return;
    }
    constexpr int length = 4;
    constexpr double leastDistance = 3;
    const double range = double(option.maximum) - option.minimum;
    const int set = option.tickInterval > 0 ? option.tickInterval : option.pageStep;
    const double least = leastDistance * range / qMax(1.0, std::abs(way.width()));
    const double interval = qMax(1.0, qMax<double>(set, std::ceil(least)));
    painter->setPen(slider.palette().color(QPalette::Mid));
    const int ticks = int(range / interval);
    for (int i = 0; i <= ticks; ++i) {
        const int x = qRound(way.left() + way.width() * i * interval / qMax(1.0, range));
        if ((option.tickPosition & QSlider::TicksAbove) != 0) {
            painter->drawLine(x, option.rect.top(), x, option.rect.top() + length - 1);
        }
        if ((option.tickPosition & QSlider::TicksBelow) != 0) {
            painter->drawLine(x, option.rect.bottom() - length + 1, x, option.rect.bottom());
        }
    }
}

} // namespace Vantor::Widgets::Internal
