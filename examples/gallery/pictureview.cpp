#include "pictureview.h"

#include "testcard.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace {

const QColor backdrop(18, 19, 22);
const QColor outline(255, 204, 77);

// Half the width of a finger's tip, in view pixels: so far from a handle it is
// taken hold of.
const int reach = 22;

// Enough for a large window, and scaled to it within a few milliseconds.
const QSize reducedSize(2560, 1600);

// Which of an extent's ends, if any, a position takes hold of. At least the middle
// half is left to hold the whole.
Qt::Edges edgeAt(double pos, double low, double high, Qt::Edge lowEdge, Qt::Edge highEdge)
{
    const double inwards = qMin<double>(reach, (high - low) / 4);
    if (pos < low + inwards) {
        return lowEdge;
    }
    return pos > high - inwards ? Qt::Edges(highEdge) : Qt::Edges();
}

Qt::CursorShape cursorOf(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge)) {
        return Qt::SizeFDiagCursor;
    }
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge)) {
        return Qt::SizeBDiagCursor;
    }
    if (edges & (Qt::LeftEdge | Qt::RightEdge)) {
        return Qt::SizeHorCursor;
    }
    return edges ? Qt::SizeVerCursor : Qt::SizeAllCursor;
}

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent), m_layerPicture(layerPicture())
{
    setMinimumSize(240, 120);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void PictureView::setPicture(const QImage &picture)
{
    m_picture = picture.convertToFormat(QImage::Format_RGB32);
    m_reduced = m_picture;
    if (m_picture.width() > reducedSize.width() || m_picture.height() > reducedSize.height()) {
        m_reduced = m_picture.scaled(reducedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    m_preview = QImage();
    update();
}

QImage PictureView::croppedPicture() const
{
    return adjusted(m_picture.copy(m_edits.crop), m_edits.adjustment);
}

void PictureView::setEdits(const Edits &edits)
{
    if (!(edits.adjustment == m_edits.adjustment)) {
        m_shown = QImage();
    }
    m_edits = edits;
    update();
}

void PictureView::setOverlay(Overlay overlay)
{
    m_overlay = overlay;
    unsetCursor();
    update();
}

void PictureView::setCropSizeLocked(bool locked)
{
    m_isCropSizeLocked = locked;
    update();
}

QSize PictureView::leastCropSize(const QSize &picture)
{
    return picture.boundedTo(QSize(16, 16));
}

QSize PictureView::sizeHint() const
{
    return {720, 480};
}

void PictureView::paintEvent(QPaintEvent * /*event*/)
{
    // The preview is scaled once for each size of the view; an editor's change then
    // costs one pass over the preview only.
    const QRect area = pictureArea();
    const QSize pixels = area.size() * devicePixelRatioF();
    if (m_preview.size() != pixels) {
        m_preview = m_reduced.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_shown = QImage();
    }
    if (m_shown.isNull()) {
        m_shown = adjusted(m_preview, m_edits.adjustment);
    }
    QPainter painter(this);
    painter.fillRect(rect(), backdrop);
    painter.drawImage(area, m_shown);

    painter.setRenderHint(QPainter::Antialiasing);
    if (m_overlay == Overlay::Crop) {
        paintCrop(painter);
    } else if (m_overlay == Overlay::Mask) {
        paintMask(painter);
    } else if (m_overlay == Overlay::Layer) {
        paintLayer(painter);
    }
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    m_isCropPressed = event->button() == Qt::LeftButton && isCropAt(event->pos(), &m_dragEdges);
    if (m_isCropPressed) {
        m_dragStart = event->pos();
        m_dragCrop = m_edits.crop;
        Q_EMIT cropPressed();
    }
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    m_isCropPressed = m_isCropPressed && (event->buttons() & Qt::LeftButton);
    if (m_isCropPressed) {
        const QRect crop = draggedCrop(event->pos());
        if (crop != m_edits.crop) {
            Q_EMIT cropDragged(crop);
        }
        return;
    }
    Qt::Edges edges;
    if (isCropAt(event->pos(), &edges)) {
        setCursor(cursorOf(edges));
    } else {
        unsetCursor();
    }
}

void PictureView::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    m_isCropPressed = false;
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

// Whether the pointer takes hold of the crop there, and by which edges.
bool PictureView::isCropAt(const QPoint &pos, Qt::Edges *edges) const
{
    const QRectF crop = toView(m_edits.crop);
    const int outwards = m_isCropSizeLocked ? 0 : reach;
    if (m_overlay != Overlay::Crop
        || !crop.adjusted(-outwards, -outwards, outwards, outwards).contains(pos)) {
        return false;
    }
    *edges = {};
    if (!m_isCropSizeLocked) {
        *edges = edgeAt(pos.x(), crop.left(), crop.right(), Qt::LeftEdge, Qt::RightEdge)
            | edgeAt(pos.y(), crop.top(), crop.bottom(), Qt::TopEdge, Qt::BottomEdge);
    }
    return true;
}

// The crop that was pressed, as the pointer has taken it along within the picture.
QRect PictureView::draggedCrop(const QPoint &pos) const
{
    const double scale = m_picture.width() / static_cast<double>(pictureArea().width());
    const QPoint moved = (pos - m_dragStart) * scale;
    const QSize least = leastCropSize(m_picture.size());
    const int right = m_picture.width() - 1;
    const int bottom = m_picture.height() - 1;
    QRect crop = m_dragCrop;
    if (!m_dragEdges) {
        crop.moveTo(qBound(0, crop.left() + moved.x(), right + 1 - crop.width()),
                    qBound(0, crop.top() + moved.y(), bottom + 1 - crop.height()));
    }
    if (m_dragEdges & Qt::LeftEdge) {
        crop.setLeft(qBound(0, crop.left() + moved.x(), crop.right() + 1 - least.width()));
    }
    if (m_dragEdges & Qt::TopEdge) {
        crop.setTop(qBound(0, crop.top() + moved.y(), crop.bottom() + 1 - least.height()));
    }
    if (m_dragEdges & Qt::RightEdge) {
        crop.setRight(qBound(crop.left() - 1 + least.width(), crop.right() + moved.x(), right));
    }
    if (m_dragEdges & Qt::BottomEdge) {
        crop.setBottom(qBound(crop.top() - 1 + least.height(), crop.bottom() + moved.y(), bottom));
    }
    return crop;
}

void PictureView::paintCrop(QPainter &painter)
{
    const QRectF crop = toView(m_edits.crop);
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
    if (m_isCropSizeLocked) {
        return;
    }
    painter.setPen(QPen(backdrop, 1));
    painter.setBrush(outline);
    for (const double x : {crop.left(), crop.center().x(), crop.right()}) {
        for (const double y : {crop.top(), crop.center().y(), crop.bottom()}) {
            if (QPointF(x, y) != crop.center()) {
                painter.drawEllipse(QPointF(x, y), 7, 7);
            }
        }
    }
}

void PictureView::paintMask(QPainter &painter)
{
    const QRectF hole = toView(QRect(QPoint(), m_picture.size()).marginsRemoved(m_edits.mask));
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
    painter.setClipRect(pictureArea()); // a layer may reach over the picture's edge
    const QRectF layer = toView(m_edits.layer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(layer, m_layerPicture);
    painter.setPen(QPen(outline, 2));
    painter.drawRect(layer);
}
