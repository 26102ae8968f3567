#include "pictureadjustment.h"

#include <QtCore/QtGlobal>

#include <cmath>
#include <tuple>

namespace {

using Table = std::array<uchar, 256>;

int channelOf(const QColor &color, std::size_t channel)
{
    return channel == 0 ? color.red() : (channel == 1 ? color.green() : color.blue());
}

Table tableOf(const PictureAdjustment &a, std::size_t channel)
{
    // Full contrast is a slope of 4, no contrast a slope of 0.
    const double slope = a.contrast < 0 ? 1 + a.contrast / 100.0 : 1 + a.contrast * 3 / 100.0;
    const double lift = a.lift[channel] * a.liftMaster / 100.0 / 100.0;
    const double opacity = a.washOpacity / 100.0;
    const double black = (a.blackLevel - 16) / 239.0;
    Table table {};
    for (std::size_t i = 0; i < table.size(); ++i) {
        double v = static_cast<double>(i) / 255.0;
        v = (v - 0.5) * slope + 0.5 + a.brightness / 200.0;
        v = std::pow(qBound(0.0, v, 1.0), 1 / a.gamma);
        v = qBound(0.0, v * a.gain[channel] / 100.0 + lift, 1.0);
        v = black + v * (1 - black);
        v = v * (1 - opacity) + channelOf(a.wash, channel) / 255.0 * opacity;
        table[i] = static_cast<uchar>(std::lround(v * 255));
    }
    return table;
}

auto fieldsOf(const PictureAdjustment &a)
{
    return std::tie(a.brightness, a.contrast, a.gamma, a.saturation, a.blackLevel, a.gain, a.lift,
                    a.liftMaster, a.wash, a.washOpacity);
}

} // namespace

bool operator==(const PictureAdjustment &a, const PictureAdjustment &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

QImage adjusted(const QImage &picture, const PictureAdjustment &adjustment)
{
    const Table red = tableOf(adjustment, 0);
    const Table green = tableOf(adjustment, 1);
    const Table blue = tableOf(adjustment, 2);
    const int saturation = static_cast<int>(std::lround(adjustment.saturation * 256));

    QImage result = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            int r = qRed(line[x]);
            int g = qGreen(line[x]);
            int b = qBlue(line[x]);
            if (saturation != 256) {
                const int grey = (r * 77 + g * 150 + b * 29) / 256;
                r = qBound(0, grey + (r - grey) * saturation / 256, 255);
                g = qBound(0, grey + (g - grey) * saturation / 256, 255);
                b = qBound(0, grey + (b - grey) * saturation / 256, 255);
            }
            line[x] = qRgb(red[static_cast<std::size_t>(r)], green[static_cast<std::size_t>(g)],
                           blue[static_cast<std::size_t>(b)]);
        }
    }
    return result;
}
