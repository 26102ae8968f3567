#include "picture.h"

#include <QtGui/QPainter>

#include <array>
#include <cmath>

namespace {

using Levels = std::array<int, 256>;

Levels levelsOf(const Colors &colors, int balance)
{
    Levels levels;
    for (int i = 0; i < 256; ++i) {
        const double contrasted = (i / 255.0 - 0.5) * (1 + colors.contrast / 100.0) + 0.5;
        const double shifted = contrasted + (colors.brightness + balance) / 200.0;
        const double level = std::pow(qBound(0.0, shifted, 1.0), 1 / colors.gamma);
        levels[size_t(i)] = int(std::lround(255 * level));
    }
    return levels;
}

} // namespace

QImage withColors(const QImage &picture, const Colors &colors)
{
    const Levels red = levelsOf(colors, colors.red), green = levelsOf(colors, colors.green),
                 blue = levelsOf(colors, colors.blue);
    QImage result = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *const line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            line[x] = qRgb(red[size_t(qRed(line[x]))], green[size_t(qGreen(line[x]))],
                           blue[size_t(qBlue(line[x]))]);
        }
    }
    return result;
}

QImage withCrop(const QImage &picture, const QRect &crop)
{
    QImage result = picture;
    QPainter painter(&result);
    painter.setClipRegion(QRegion(result.rect()) - crop);
    painter.fillRect(result.rect(), QColor(0, 0, 0, 160));
    return result;
}

QImage samplePicture()
{
    QImage picture(1920, 1080, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 1080);
    sky.setStops({{0, "#3b6ea5"}, {0.6, "#f4c98b"}, {0.61, "#4d6b3c"}, {1, "#1f3320"}});
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor("#fff3d0"));
    painter.drawEllipse(QPoint(1300, 420), 110, 110);
    painter.setBrush(QColor("#56647a"));
    painter.drawPolygon(QPolygon({{0, 660}, {420, 330}, {700, 560}, {980, 400}, {1400, 660}}));
    return picture;
}
