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

Table tableOf(const Tone &tone, const Colours &colours, std::size_t channel)
{
    // Full contrast is a slope of 4, no contrast a slope of 0.
    const double slope =
        tone.contrast < 0 ? 1 + tone.contrast / 100.0 : 1 + tone.contrast * 3 / 100.0;
    const double lift = colours.lift[channel] * colours.liftMaster / 100.0 / 100.0;
    const double opacity = colours.wash.alphaF();
    const double black = (tone.blackLevel - 16) / 239.0;
    // The light is proportional to the time; pixels store it gamma-encoded, with 2.2.
    const double exposure = std::pow(tone.exposure / double(Tone().exposure), 1 / 2.2);
    Table table {};
    for (std::size_t i = 0; i < table.size(); ++i) {
        double v = static_cast<double>(i) / 255.0 * exposure;
        v = (v - 0.5) * slope + 0.5 + tone.brightness / 200.0;
        v = std::pow(qBound(0.0, v, 1.0), 1 / tone.gamma);
        v = qBound(0.0, v * colours.gain[channel] / 100.0 + lift, 1.0);
        v = black + v * (1 - black);
        v = v * (1 - opacity) + channelOf(colours.wash, channel) / 255.0 * opacity;
        table[i] = static_cast<uchar>(std::lround(v * 255));
    }
    return table;
}

auto fieldsOf(const Tone &tone)
{
    return std::tie(tone.brightness, tone.exposure, tone.contrast, tone.gamma, tone.saturation,
                    tone.blackLevel);
}

auto fieldsOf(const Colours &colours)
{
    return std::tie(colours.gain, colours.lift, colours.liftMaster, colours.wash);
}

} // namespace

bool operator==(const Tone &a, const Tone &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

bool operator==(const Colours &a, const Colours &b)
{
    return fieldsOf(a) == fieldsOf(b);
}

void adjust(QImage &picture, const Tone &tone, const Colours &colours)
{
    if (tone == Tone() && colours == Colours()) {
        return;
    }
    const Table red = tableOf(tone, colours, 0);
    const Table green = tableOf(tone, colours, 1);
    const Table blue = tableOf(tone, colours, 2);
    const int saturation = static_cast<int>(std::lround(tone.saturation * 256));

    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            int r = qRed(line[x]);
            int g = qGreen(line[x]);
            int b = qBlue(line[x]);
            if (saturation != 256) {
                const int grey = (r * 77 + g * 150 + b * 29) / 256;
                r = qBound(0, grey + (r - grey) * saturation / 256, 255);
                g = qBound(0, grey + (g - grey) * saturation / 256, 255);
                b = qBound(0, grey + (b - grey) * saturation / 256, 255);
            }
            line[x] = qRgba(red[static_cast<std::size_t>(r)], green[static_cast<std::size_t>(g)],
                            blue[static_cast<std::size_t>(b)], qAlpha(line[x]));
        }
    }
}
