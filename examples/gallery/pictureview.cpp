#include "pictureview.h"

#include "testcard.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {

const QColor backdrop(18, 19, 22);
const QColor outline(255, 204, 77);

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent), m_layerPicture(layerPicture())
{
    setMinimumSize(320, 180);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureView::setPicture(const QImage &picture)
{
    m_picture = picture.convertToFormat(QImage::Format_RGB32);
    rescale();
}

QImage PictureView::croppedPicture() const
{
    return adjusted(m_picture.copy(m_crop), m_adjustment);
}

void PictureView::setAdjustment(const PictureAdjustment &adjustment)
{
    m_adjustment = adjustment;
    m_shown = adjusted(m_preview, m_adjustment);
    update();
}

void PictureView::setOverlay(Overlay overlay)
{
    m_overlay = overlay;
    setCursor(overlay == Overlay::Crop ? Qt::SizeAllCursor : Qt::ArrowCursor);
    update();
}

void PictureView::setCrop(const QRect &crop)
{
    m_crop = crop;
    update();
}

void PictureView::setMask(const QMargins &mask)
{
    m_mask = mask;
    update();
}

void PictureView::setLayer(const QRect &layer)
{
    m_layer = layer;
    update();
}

QSize PictureView::sizeHint() const
{
    return {720, 480};
}

void PictureView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), backdrop);
    const QRect area = pictureArea();
    painter.drawImage(area, m_shown);

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(area);
    if (m_overlay == Overlay::Crop) {
        paintCrop(painter);
    } else if (m_overlay == Overlay::Mask) {
        paintMask(painter);
    } else if (m_overlay == Overlay::Layer) {
        paintLayer(painter);
    }
}

void PictureView::resizeEvent(QResizeEvent * /*event*/)
{
    rescale();
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    m_dragStart = event->pos();
    m_dragCrop = QRect();
    if (m_overlay == Overlay::Crop && toView(m_crop).contains(event->pos())) {
        m_dragCrop = m_crop;
    }
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragCrop.isNull()) {
        return;
    }
    const double scale = m_picture.width() / static_cast<double>(pictureArea().width());
    const QPoint moved = m_dragCrop.topLeft() + (event->pos() - m_dragStart) * scale;
    const QPoint corner(qBound(0, moved.x(), m_picture.width() - m_dragCrop.width()),
                        qBound(0, moved.y(), m_picture.height() - m_dragCrop.height()));
    if (corner != m_crop.topLeft()) {
        setCrop(QRect(corner, m_dragCrop.size()));
        Q_EMIT cropDragged(m_crop);
    }
}

// The preview is scaled once for each size of the view; an editor's change then
// costs one pass over the preview only.
void PictureView::rescale()
{
    if (!m_picture.isNull()) {
        m_preview =
            m_picture.scaled(pictureArea().size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        setAdjustment(m_adjustment);
    }
}

QRect PictureView::pictureArea() const
{
    const int margin = 16;
    const QRect inside = rect().adjusted(margin, margin, -margin, -margin);
    QRect area(QPoint(), m_picture.size().scaled(inside.size(), Qt::KeepAspectRatio));
    area.setSize(area.size().expandedTo(QSize(1, 1)));
    area.moveCenter(inside.center());
    return area;
}

QRectF PictureView::toView(const QRect &rect) const
{
    const QRect area = pictureArea();
    const double scale = area.width() / static_cast<double>(qMax(1, m_picture.width()));
    return {area.left() + rect.left() * scale, area.top() + rect.top() * scale,
            rect.width() * scale, rect.height() * scale};
}

void PictureView::paintCrop(QPainter &painter)
{
    const QRectF crop = toView(m_crop);
    QPainterPath outside;
    outside.addRect(pictureArea());
    outside.addRect(crop);
    painter.fillPath(outside, QColor(0, 0, 0, 165));

    painter.setPen(QPen(QColor(255, 255, 255, 110), 1));
    for (int i = 1; i < 3; ++i) {
        const double x = crop.left() + crop.width() * i / 3;
        const double y = crop.top() + crop.height() * i / 3;
        painter.drawLine(QPointF(x, crop.top()), QPointF(x, crop.bottom()));
        painter.drawLine(QPointF(crop.left(), y), QPointF(crop.right(), y));
    }
    painter.setPen(QPen(outline, 2));
    painter.drawRect(crop);
}

void PictureView::paintMask(QPainter &painter)
{
    const QRectF hole = toView(QRect(QPoint(), m_picture.size()).marginsRemoved(m_mask));
    QPainterPath margins;
    margins.addRect(pictureArea());
    if (hole.isValid()) {
        margins.addRect(hole);
    }
    painter.fillPath(margins, QColor(0, 0, 0, 215));
    painter.fillPath(margins, QBrush(QColor(255, 255, 255, 60), Qt::BDiagPattern));
    painter.setPen(QPen(outline, 2));
    painter.drawRect(hole);
}

void PictureView::paintLayer(QPainter &painter)
{
    const QRectF layer = toView(m_layer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(layer, m_layerPicture);
    painter.setPen(QPen(outline, 2));
    painter.drawRect(layer);
}
