#include "testcard.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {

const int gridStep = 120;

void drawGrid(QPainter &painter, const QSize &size)
{
    for (int x = 0; x <= size.width(); x += gridStep) {
        painter.drawLine(x, 0, x, size.height());
    }
    for (int y = 0; y <= size.height(); y += gridStep) {
        painter.drawLine(0, y, size.width(), y);
    }
}

void drawPixelNumbers(QPainter &painter, const QSize &size)
{
    for (int x = gridStep; x < size.width(); x += gridStep) {
        const QString number = QString::number(x);
        painter.drawText(QRect(x - 60, 4, 120, 30), Qt::AlignCenter, number);
        painter.drawText(QRect(x - 60, size.height() - 34, 120, 30), Qt::AlignCenter, number);
    }
    for (int y = gridStep; y < size.height(); y += gridStep) {
        painter.drawText(QRect(8, y - 15, 100, 30), Qt::AlignLeft | Qt::AlignVCenter,
                         QString::number(y));
    }
}

void drawColourBars(QPainter &painter, const QRect &area)
{
    const QRgb colours[] = {0xffc0c0c0, 0xffc0c000, 0xff00c0c0, 0xff00c000,
                            0xffc000c0, 0xffc00000, 0xff0000c0};
    const int count = 7;
    for (int i = 0; i < count; ++i) {
        const int left = area.left() + area.width() * i / count;
        const int right = area.left() + area.width() * (i + 1) / count;
        painter.fillRect(QRect(left, area.top(), right - left, area.height()), QColor(colours[i]));
    }
}

void drawRamps(QPainter &painter, const QRect &area)
{
    const QRect smooth(area.left(), area.top(), area.width(), area.height() / 2);
    QLinearGradient ramp(smooth.topLeft(), smooth.topRight());
    ramp.setColorAt(0, Qt::black);
    ramp.setColorAt(1, Qt::white);
    painter.fillRect(smooth, ramp);

    const int steps = 12;
    for (int i = 0; i < steps; ++i) {
        const int left = area.left() + area.width() * i / steps;
        const int right = area.left() + area.width() * (i + 1) / steps;
        const int level = 255 * i / (steps - 1);
        painter.fillRect(QRect(left, smooth.bottom() + 1, right - left, area.height() / 2),
                         QColor(level, level, level));
    }
}

void drawHues(QPainter &painter, const QRect &area)
{
    QLinearGradient hues(area.topLeft(), area.topRight());
    for (int i = 0; i <= 6; ++i) {
        hues.setColorAt(i / 6.0, QColor::fromHsv(i * 60 % 360, 255, 255));
    }
    painter.fillRect(area, hues);
}

} // namespace

QImage testCard(const QSize &size)
{
    QImage card(size, QImage::Format_RGB32);
    card.fill(QColor(96, 98, 104));
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = painter.font();
    font.setPixelSize(24);
    painter.setFont(font);

    painter.setPen(QPen(QColor(200, 200, 200), 2));
    drawGrid(painter, size);
    painter.setPen(Qt::white);
    drawPixelNumbers(painter, size);

    const QPoint centre(size.width() / 2, size.height() / 2);
    const int radius = size.height() * 4 / 9;
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    painter.save();
    painter.setClipPath(disc);
    const QRect box(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    painter.fillRect(box, QColor(32, 33, 36));
    drawColourBars(painter, QRect(box.left(), box.top() + radius / 4, box.width(), radius * 3 / 4));
    drawHues(painter, QRect(box.left(), centre.y(), box.width(), radius / 4));
    drawRamps(painter, QRect(box.left(), centre.y() + radius / 4, box.width(), radius / 2));
    painter.restore();

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 5));
    painter.drawEllipse(centre, radius, radius);
    painter.setPen(QPen(Qt::white, 3));
    const int corner = gridStep;
    for (const QPoint &point :
         {QPoint(2 * corner, 2 * corner), QPoint(size.width() - 2 * corner, 2 * corner),
          QPoint(2 * corner, size.height() - 2 * corner),
          QPoint(size.width() - 2 * corner, size.height() - 2 * corner)}) {
        painter.drawEllipse(point, corner, corner);
        painter.drawEllipse(point, corner / 2, corner / 2);
    }

    font.setPixelSize(44);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(box.left(), box.top() + 20, box.width(), radius / 4 - 24),
                     Qt::AlignCenter, QStringLiteral("TEST CARD"));
    painter.drawText(QRect(box.left(), centre.y() + radius * 3 / 4, box.width(), radius / 4 - 20),
                     Qt::AlignCenter,
                     QStringLiteral("%1 × %2").arg(size.width()).arg(size.height()));
    return card;
}

QImage layerPicture(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 480.0, size.height() / 270.0);

    QLinearGradient sky(0, 0, 0, 200);
    sky.setColorAt(0, QColor(38, 30, 92));
    sky.setColorAt(0.6, QColor(214, 86, 102));
    sky.setColorAt(1, QColor(255, 190, 110));
    painter.fillRect(QRect(0, 0, 480, 270), sky);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 232, 170));
    painter.drawEllipse(QPoint(330, 150), 44, 44);

    const QColor hills[] = {QColor(110, 52, 98), QColor(70, 36, 82), QColor(30, 20, 52)};
    for (int i = 0; i < 3; ++i) {
        QPainterPath hill(QPointF(0, 270));
        hill.lineTo(0, 170 + 30 * i);
        hill.cubicTo(120 + 40 * i, 110 + 40 * i, 220 - 30 * i, 250, 300, 180 + 25 * i);
        hill.cubicTo(360, 150 + 30 * i, 420, 220, 480, 160 + 35 * i);
        hill.lineTo(480, 270);
        painter.fillPath(hill, hills[i]);
    }
    return picture;
}
