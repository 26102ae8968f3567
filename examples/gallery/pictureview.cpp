#include "pictureview.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QWheelEvent>

#include <cmath>

namespace {

const QColor backdrop(18, 19, 22);
const QColor outline(255, 204, 77);
const int margin = 8; // around a fitted picture, in view pixels
const double largestScale = 32;
const double zoomStep = 1.25; // of one notch of the wheel

QBrush checkerboard()
{
    QPixmap tile(16, 16);
    tile.fill(QColor(204, 204, 204));
    QPainter painter(&tile);
    painter.fillRect(0, 0, 8, 8, Qt::white);
    painter.fillRect(8, 8, 8, 8, Qt::white);
    return QBrush(tile);
}

bool isPaintedAlike(const Edits &a, const Edits &b)
{
    Edits copy = a;
    copy.crop = b.crop;
    return copy == b;
}

} // namespace

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setMinimumSize(240, 120);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Picture"));
}

void PictureView::setPicture(const QImage &picture)
{
    m_composition.setPicture(picture);
    m_shown = QImage();
    fit();
}

void PictureView::setEdits(const Edits &edits)
{
    if (!isPaintedAlike(edits, m_edits)) {
        m_shown = QImage();
    }
    m_edits = edits;
    update();
}

void PictureView::setOverlay(Overlay overlay, const RectRules &rules)
{
    if (overlay != m_overlay) {
        m_edges = {};
    }
    m_overlay = overlay;
    m_rules = rules;
    unsetCursor();
    update();
}

double PictureView::scale() const
{
    return m_isFitted ? fittingScale() : m_scale;
}

void PictureView::fit()
{
    m_isFitted = true;
    m_centre = QRectF(QPointF(), QSizeF(pictureSize())).center();
    update();
}

void PictureView::setScale(double scale)
{
    zoom(scale / this->scale(), QRectF(rect()).center());
}

void PictureView::zoom(double factor, const QPointF &pos)
{
    const double least = qMin(fittingScale(), 1.0);
    const double scale = qBound(least, this->scale() * factor, largestScale);
    if (scale == fittingScale()) {
        fit();
        return;
    }
    const QPointF middle = QRectF(rect()).center();
    const QPointF under = toPicture(pos);
    m_isFitted = false;
    m_scale = scale;
    m_centre = under - (pos - middle) * devicePixelRatioF() / scale;
    update();
}

QRectF PictureView::toView(const QRectF &rect) const
{
    const QRectF area = pictureArea();
    const double factor = scale() / devicePixelRatioF();
    return {area.topLeft() + rect.topLeft() * factor, rect.size() * factor};
}

QPointF PictureView::toPicture(const QPointF &pos) const
{
    return (pos - pictureArea().topLeft()) * devicePixelRatioF() / scale();
}

QRect PictureView::rectOf(Overlay overlay) const
{
    switch (overlay) {
    case Overlay::Crop:
        return m_edits.crop;
    case Overlay::Mask:
        return QRect(QPoint(), pictureSize()).marginsRemoved(m_edits.mask);
    case Overlay::Layer:
        return m_edits.layer;
    case Overlay::None:
        break;
    }
    return {};
}

QSize PictureView::sizeHint() const
{
    return {720, 480};
}

void PictureView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), backdrop);
    paintPicture(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    paintOverlay(painter);
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void PictureView::mousePressEvent(QMouseEvent *event)
{
    release(); // one button at a time
    if (event->button() == Qt::MiddleButton
        || (event->button() == Qt::LeftButton && !isRectAt(event->pos()))) {
        m_press = m_isFitted ? Press::None : Press::Picture;
    } else if (event->button() == Qt::LeftButton) {
        m_press = Press::Rect;
        m_edges = edgesAt(event->pos(), rectInView(), m_rules);
        m_pressRect = rectOf(m_overlay);
        Q_EMIT editStarted();
    } else {
        return;
    }
    m_pressPos = event->pos();
    m_pressCentre = m_centre;
    updateCursor(event->pos());
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    if (!event->buttons()) {
        release(); // whatever took the pointer
    }
    const QPointF by = QPointF(event->pos() - m_pressPos) * devicePixelRatioF() / scale();
    if (m_press == Press::Rect) {
        moveRect(m_pressRect, by.toPoint());
    } else if (m_press == Press::Picture) {
        const QSizeF size = pictureSize();
        m_centre = m_pressCentre - by;
        m_centre.setX(qBound(0.0, m_centre.x(), size.width()));
        m_centre.setY(qBound(0.0, m_centre.y(), size.height()));
        update();
    } else {
        updateCursor(event->pos());
    }
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    release();
    updateCursor(event->pos());
}

void PictureView::wheelEvent(QWheelEvent *event)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 14, 0)
    const QPointF pos = event->position();
#else
    const QPointF pos = event->posF();
#endif
    zoom(std::pow(zoomStep, event->angleDelta().y() / double(QWheelEvent::DefaultDeltasPerStep)),
         pos);
}

void PictureView::keyPressEvent(QKeyEvent *event)
{
    QPoint by;
    switch (event->key()) {
    case Qt::Key_Left:
        by = {-m_rules.step, 0};
        break;
    case Qt::Key_Right:
        by = {m_rules.step, 0};
        break;
    case Qt::Key_Up:
        by = {0, -m_rules.step};
        break;
    case Qt::Key_Down:
        by = {0, m_rules.step};
        break;
    default:
        break;
    }
    if (by.isNull() || m_overlay == Overlay::None) {
        QWidget::keyPressEvent(event);
        return;
    }
    moveRect(rectOf(m_overlay), by);
}

double PictureView::fittingScale() const
{
    const QSizeF inside = QSizeF(size() - QSize(2 * margin, 2 * margin)) * devicePixelRatioF();
    const QSize size = pictureSize();
    return qBound(0.001, qMin(inside.width() / size.width(), inside.height() / size.height()),
                  largestScale);
}

// In whole device pixels.
QRectF PictureView::pictureArea() const
{
    const double ratio = devicePixelRatioF();
    const QPointF middle = QRectF(rect()).center() * ratio;
    const QPoint corner = (middle - m_centre * scale()).toPoint();
    const QSizeF extent = QSizeF(pictureSize()) * scale();
    return {QPointF(corner) / ratio, extent / ratio};
}

bool PictureView::isRectAt(const QPoint &pos) const
{
    return m_overlay != Overlay::None && isHeldAt(pos, rectInView(), m_rules);
}

void PictureView::release()
{
    const Press press = m_press;
    m_press = Press::None;
    if (press == Press::Rect) {
        Q_EMIT editFinished();
    }
}

void PictureView::moveRect(const QRect &from, const QPoint &by)
{
    const QRect to = dragged(from, m_edges, by, m_rules);
    if (to != rectOf(m_overlay)) {
        Q_EMIT rectDragged(to);
    }
}

void PictureView::updateCursor(const QPoint &pos)
{
    if (m_press == Press::Picture) {
        setCursor(Qt::ClosedHandCursor);
    } else if (isRectAt(pos)) {
        setCursor(cursorOf(edgesAt(pos, rectInView(), m_rules)));
    } else if (m_isFitted) {
        unsetCursor();
    } else {
        setCursor(Qt::OpenHandCursor);
    }
}

// Computes only the visible part, from a reduced picture if the scale is below 1. With a
// scale above 1, pixels are enlarged.
void PictureView::paintPicture(QPainter &painter)
{
    const double ratio = devicePixelRatioF();
    const double scale = this->scale();
    const double computed = qMin(scale, 1.0);
    const double enlarged = scale / computed;
    const QRectF area = pictureArea();
    const QRectF seen((-area.topLeft()) * ratio / enlarged, QSizeF(size()) * ratio / enlarged);
    const QRect part = seen.toAlignedRect() & QRect(QPoint(), m_composition.size(computed));
    if (part.isEmpty()) {
        return;
    }
    if (m_shown.isNull() || part != m_shownPart || computed != m_shownScale) {
        m_shown = m_composition.painted(m_edits, part, computed);
        m_shownPart = part;
        m_shownScale = computed;
    }
    const QRectF target(area.topLeft() + QPointF(part.topLeft()) * enlarged / ratio,
                        QSizeF(part.size()) * enlarged / ratio);
    if (hasAlpha()) {
        painter.setBrushOrigin(area.topLeft());
        painter.fillRect(target, checkerboard());
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform, enlarged > 1 && enlarged < 2);
    painter.drawImage(target, m_shown);
}

void PictureView::paintOverlay(QPainter &painter)
{
    if (m_overlay == Overlay::None) {
        return;
    }
    const QRectF held = rectInView();
    QPainterPath outside;
    outside.addRect(pictureArea());
    outside.addRect(held);
    if (m_overlay == Overlay::Crop) {
        painter.fillPath(outside, QColor(0, 0, 0, 165));
        painter.setPen(QPen(QColor(255, 255, 255, 110), 1));
        for (int i = 1; i < 3; ++i) {
            const double x = held.left() + held.width() * i / 3;
            const double y = held.top() + held.height() * i / 3;
            painter.drawLine(QPointF(x, held.top()), QPointF(x, held.bottom()));
            painter.drawLine(QPointF(held.left(), y), QPointF(held.right(), y));
        }
    } else if (m_overlay == Overlay::Mask) {
        painter.fillPath(outside, QBrush(QColor(255, 255, 255, 60), Qt::BDiagPattern));
    }
    const bool isOff = m_overlay == Overlay::Layer && !m_edits.isLayerShown;
    painter.setPen(QPen(outline, 2, isOff ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(held);
    paintHandles(painter, held);
}

void PictureView::paintHandles(QPainter &painter, const QRectF &rect)
{
    painter.setPen(QPen(backdrop, 1));
    painter.setBrush(outline);
    for (const double x : {rect.left(), rect.center().x(), rect.right()}) {
        for (const double y : {rect.top(), rect.center().y(), rect.bottom()}) {
            // If a press grabs the whole rectangle, no lock prevents the drag.
            const QPointF handle(x, y);
            const Qt::Edges edges = edgesAt(handle, rect, m_rules);
            if (edges && edges == edgesAt(handle, rect, RectRules())) {
                painter.drawEllipse(handle, 7, 7);
            }
        }
    }
}
