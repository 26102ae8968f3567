#include "composition.h"

#include "testcard.h"

#include <QtGui/QPainter>

#include <cmath>

namespace {

QRect scaled(const QRect &rect, double scale)
{
    const auto at = [scale](int pos) { return static_cast<int>(std::lround(pos * scale)); };
    const QPoint corner(at(rect.left()), at(rect.top()));
    const QPoint end(at(rect.left() + rect.width()), at(rect.top() + rect.height()));
    return {corner, QSize(end.x() - corner.x(), end.y() - corner.y())};
}

// The source position of each pixel from first to last, for a source that is stretched
// to this extent, in 1/256 of the source's pixels.
QVector<int> positionsIn(int source, int extent, int first, int last)
{
    QVector<int> positions;
    positions.reserve(last - first + 1);
    for (int i = first; i <= last; ++i) {
        const qint64 middle = (2 * qint64(i) + 1) * source * 128 / extent - 128;
        positions.append(qBound(0, static_cast<int>(middle), (source - 1) * 256));
    }
    return positions;
}

// Two channels at a time; weight of 256 is that of the second colour.
QRgb mixed(QRgb first, QRgb second, uint weight)
{
    const uint low = 0x00ff00ff;
    const uint redBlue = ((first & low) * (256 - weight) + (second & low) * weight) >> 8;
    const uint alphaGreen = (first >> 8 & low) * (256 - weight) + (second >> 8 & low) * weight;
    return (redBlue & low) | (alphaGreen & ~low);
}

} // namespace

Composition::Composition() : m_levels({QImage(1, 1, QImage::Format_RGB32)}), m_layer(layerPicture())
{
}

void Composition::setPicture(const QImage &picture)
{
    m_levels = {picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32
                                                                  : QImage::Format_RGB32)};
    while (m_levels.constLast().width() > 128) {
        const QImage &last = m_levels.constLast();
        m_levels.append(last.scaled(last.width() / 2, qMax(1, last.height() / 2),
                                    Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(last.format()));
    }
    m_source = QImage();
}

QSize Composition::size(double scale) const
{
    return scaled(QRect(QPoint(), size()), scale).size().expandedTo(QSize(1, 1));
}

QImage Composition::painted(const Edits &edits, const QRect &part, double scale)
{
    if (m_source.isNull() || part != m_part || scale != m_scale) {
        m_source = reduced(part, scale);
        m_part = part;
        m_scale = scale;
    }
    QImage image = m_source;
    adjust(image, edits.tone, edits.colours);
    if (edits.isLayerShown) {
        paintLayer(image, scaled(edits.layer, scale).translated(-part.topLeft()));
    }
    const QRect hole = scaled(QRect(QPoint(), size()).marginsRemoved(edits.mask), scale);
    QPainter painter(&image);
    const QRegion margins = QRegion(image.rect()) - hole.translated(-part.topLeft());
    for (const QRect &margin : margins) {
        painter.fillRect(margin, Qt::black);
    }
    return image;
}

QImage Composition::reduced(const QRect &part, double scale) const
{
    if (scale == 1) {
        return m_levels.constFirst().copy(part);
    }
    int level = 0;
    while (level + 1 < m_levels.size() && scale * (2 << level) <= 1) {
        ++level;
    }
    const QImage &from = m_levels.at(level);
    const QSize whole = size(scale);
    const double x = from.width() / static_cast<double>(whole.width());
    const double y = from.height() / static_cast<double>(whole.height());
    QImage result(part.size(), from.format());
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(result.rect()), from,
                      QRectF(part.x() * x, part.y() * y, part.width() * x, part.height() * y));
    return result;
}

// QPainter is not used: its result for a pixel depends on where the painted part begins,
// so that a file would differ from the window in some pixels by one level.
void Composition::paintLayer(QImage &image, const QRect &layer) const
{
    const QRect target = layer & image.rect();
    const QVector<int> xs =
        positionsIn(m_layer.width(), layer.width(), target.left() - layer.left(),
                    target.right() - layer.left());
    const QVector<int> ys = positionsIn(m_layer.height(), layer.height(),
                                        target.top() - layer.top(), target.bottom() - layer.top());
    for (int row = 0; row < ys.size(); ++row) {
        const int y = ys.at(row) / 256;
        const uint yWeight = static_cast<uint>(ys.at(row) % 256);
        const auto *above = reinterpret_cast<const QRgb *>(m_layer.constScanLine(y));
        const auto *below = reinterpret_cast<const QRgb *>(
            m_layer.constScanLine(qMin(y + 1, m_layer.height() - 1)));
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(target.top() + row)) + target.left();
        for (int column = 0; column < xs.size(); ++column) {
            const int x = xs.at(column) / 256;
            const int next = qMin(x + 1, m_layer.width() - 1);
            const uint xWeight = static_cast<uint>(xs.at(column) % 256);
            line[column] = mixed(mixed(above[x], above[next], xWeight),
                                 mixed(below[x], below[next], xWeight), yWeight);
        }
    }
}
