#include "slidergroove_p.h"

#include "sliderparts_p.h"
#include "slidertickmarks_p.h"

#include <QtGui/QHoverEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QSlider>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Vantor::Widgets::Internal {

namespace {

// Beside the sheets of the host. With the handle Qt also draws the slider's background and the
// two parts of a styled groove beside it, which would cover the brush. No style gives a slider
// the state "selected": it marks the drawing of groove or handle alone.
const QLatin1String
    ownSheet("QSlider:selected { background: transparent; border-color: transparent; }"
             "QSlider::sub-page, QSlider::add-page"
             " { background: transparent; border-color: transparent; image: none; }");

constexpr qreal disabledOpacity = 0.35;

QBrush checkerboard()
{
    constexpr int field = 4;
    QImage tile(2 * field, 2 * field, QImage::Format_RGB32);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    painter.fillRect(0, 0, field, field, Qt::lightGray);
    painter.fillRect(field, field, field, field, Qt::lightGray);
    painter.end();
    return {tile};
}

QPoint placeOf(const QHoverEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

// From a to b, by 0 to 256 parts: two channels at a time, with space for the products between.
QRgb mixed(QRgb a, QRgb b, uint parts)
{
    constexpr uint channels = 0x00ff00ff;
    const uint low = (a & channels) * (256 - parts) + (b & channels) * parts;
    const uint high = ((a >> 8) & channels) * (256 - parts) + ((b >> 8) & channels) * parts;
    return ((low >> 8) & channels) | (high & ~channels);
}

} // namespace

SliderGroove::SliderGroove(QSlider *slider) : m_pSlider(slider)
{
    addSheet();
}

void SliderGroove::removeSheet() const
{
    const QString sheet = m_pSlider->styleSheet();
    if (sheet.endsWith(ownSheet)) {
        m_pSlider->setStyleSheet(sheet.left(sheet.size() - ownSheet.size()));
    }
}

void SliderGroove::addSheet() const
{
    const QString sheet = m_pSlider->styleSheet();
    if (m_pSlider->style()->inherits("QStyleSheetStyle") && !sheet.endsWith(ownSheet)) {
        m_pSlider->setStyleSheet(sheet + ownSheet);
    }
}

void SliderGroove::fill(const QBrush &brush, GrooveColors *colors)
{
    m_brush = brush;
    m_pColors = colors;
    m_dPixelRatio = 0;
}

void SliderGroove::updateColors() const
{
    m_pSlider->update(m_dPixelRatio > 0 ? m_shape.inside.toAlignedRect() : m_pSlider->rect());
}

void SliderGroove::follow(const QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverLeave:
        m_hovered = QStyle::SC_None;
        break;
    case QEvent::StyleChange:
        m_dPixelRatio = 0;
        addSheet();
        break;
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
        m_dPixelRatio = 0;
        break;
    default:
        break;
    }
}

void SliderGroove::hover(const QHoverEvent &event, const QStyleOptionSlider &option)
{
    m_hovered = m_pSlider->style()->hitTestComplexControl(QStyle::CC_Slider, &option,
                                                          placeOf(event), m_pSlider);
}

void SliderGroove::measure(const QStyleOptionSlider &option)
{
    const qreal pixelRatio = m_pSlider->devicePixelRatioF();
    if (m_dPixelRatio != pixelRatio
        || m_shape.groove != sliderPartRect(*m_pSlider, QStyle::SC_SliderGroove, option)) {
        m_shape = measuredGroove(*m_pSlider, option);
        m_dPixelRatio = pixelRatio;
        m_coverage = pixelRatio == std::floor(pixelRatio) ? coverage() : QImage();
    }
    m_way = handleWay(*m_pSlider, option);
    m_option = option;
}

// Whether the style draws the same groove as the last time.
bool SliderGroove::isDrawnAlike(const QStyleOptionSlider &option) const
{
    return option.minimum == m_option.minimum && option.maximum == m_option.maximum
        && m_dPixelRatio == m_pSlider->devicePixelRatioF() && option.state == m_option.state
        && option.activeSubControls == m_option.activeSubControls && option.rect == m_option.rect
        && option.direction == m_option.direction && option.upsideDown == m_option.upsideDown
        && option.tickPosition == m_option.tickPosition;
}

QPainterPath SliderGroove::insidePath() const
{
    QPainterPath path;
    path.addRoundedRect(m_shape.inside, m_shape.radius, m_shape.radius);
    return path;
}

QImage SliderGroove::coverage() const
{
    const QRect rect = m_shape.inside.toAlignedRect();
    QImage picture = emptyPicture(rect.size(), m_dPixelRatio);
    if (!picture.isNull()) {
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(-rect.topLeft());
        painter.fillPath(insidePath(), Qt::black);
    }
    return picture;
}

// From its picture, if it is kept.
void SliderGroove::drawLayer(Layer layer, bool isKept, QImage &picture,
                             const QStyleOptionSlider &option, QPainter *painter) const
{
    if (!isKept) {
        (this->*layer)(option, painter);
        return;
    }
    if (picture.isNull()) {
        picture = emptyPicture(m_pSlider->size(), m_dPixelRatio);
        QPainter picturePainter(&picture);
        (this->*layer)(option, &picturePainter);
    }
    painter->drawImage(0, 0, picture);
}

// The empty groove. A style that fills the groove at the minimum draws each half with the handle
// at the other end.
void SliderGroove::drawGround(QStyleOptionSlider option, QPainter *painter) const
{
    option.sliderPosition = option.minimum;
    option.sliderValue = option.minimum;
    if (!m_shape.isFilledAtMinimum) {
        drawSliderParts(*m_pSlider,
                        m_shape.isDrawnByStyle ? QStyle::SC_SliderGroove : QStyle::SC_None, option,
                        painter);
    } else {
        QRect half = m_pSlider->rect();
        half.setRight(half.center().x());
        for (const bool isLeft : {true, false}) {
            option.upsideDown = isLeft;
            painter->setClipRect(half);
            drawSliderParts(*m_pSlider, QStyle::SC_SliderGroove, option, painter);
            half.moveLeft(half.right() + 1);
        }
        painter->setClipping(false);
    }
    const bool isOpaque = m_pColors != nullptr
        ? m_pColors->colorsOf(m_pSlider).first().alpha() == 255
        : m_brush.isOpaque();
    if (!isOpaque) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setOpacity(m_pSlider->isEnabled() ? 1 : disabledOpacity);
        painter->setBrushOrigin(m_shape.inside.topLeft());
        painter->fillPath(insidePath(), checkerboard());
        painter->restore();
    }
}

// Colours are computed pixel by pixel: a gradient would fill a table of colours before. Between
// two pixels of a scaled screen there is a gradient nevertheless.
void SliderGroove::drawColors(QPainter *painter) const
{
    const QRectF inside = m_shape.inside;
    painter->save();
    painter->setOpacity(m_pSlider->isEnabled() ? 1 : disabledOpacity);
    QBrush filling = m_brush;
    if (m_pColors != nullptr) {
        const QVector<QColor> colors = m_pColors->colorsOf(m_pSlider);
        if (!m_coverage.isNull()) {
            painter->drawImage(inside.toAlignedRect().topLeft(), colorsPicture(colors));
            painter->restore();
            return;
        }
        QLinearGradient gradient(0, 0, 1, 0);
        for (int i = 0; i < colors.size(); ++i) {
            gradient.setColorAt(double(i) / double(colors.size() - 1), colors[i]);
        }
        filling = gradient;
    }
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrushOrigin(inside.topLeft());
    if (filling.gradient() != nullptr) {
        QGradient gradient = *filling.gradient();
        gradient.setCoordinateMode(QGradient::LogicalMode);
        const QTransform own = filling.transform();
        filling = gradient;
        filling.setTransform(
            own * QTransform(m_way.width(), 0, 0, inside.height(), m_way.left(), inside.top()));
        painter->setBrushOrigin(0, 0);
    }
    painter->fillPath(insidePath(), filling);
    painter->restore();
}

QImage SliderGroove::colorsPicture(const QVector<QColor> &colors) const
{
    const int width = m_coverage.width();
    std::vector<QRgb> stops;
    for (const QColor &color : colors) {
        stops.push_back(qPremultiply(color.rgba()));
    }
    if (m_way.width() < 0) {
        std::reverse(stops.begin(), stops.end());
    }
    // In pixels. Every mouse move of a drag comes here, so that the loop has integers only.
    const QRectF way = m_way.normalized();
    const double start = (way.left() - m_shape.inside.toAlignedRect().left()) * m_dPixelRatio;
    const double distance = qMax(1.0, way.width() * m_dPixelRatio) / double(stops.size() - 1);
    constexpr int unit = 1 << 20;
    const int step = int(unit / distance);
    std::vector<QRgb> line(std::size_t(width), stops.front());
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const double left = start + double(i - 1) * distance;
        const int first = qBound(0, qRound(left), width);
        const int end = qBound(0, qRound(left + distance), width);
        int place = qMax(0, int((first + 0.5 - left) * unit / distance));
        for (int x = first; x < end; ++x, place += step) {
            line[std::size_t(x)] = mixed(stops[i - 1], stops[i], uint(place) / (unit / 256));
        }
        std::fill(line.begin() + end, line.end(), stops[i]);
    }

    QImage picture(m_coverage.size(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(m_dPixelRatio);
    const int corner = int(std::ceil(m_shape.radius * m_dPixelRatio)) + 1;
    for (int y = 0; y < picture.height(); ++y) {
        const auto *covered = reinterpret_cast<const QRgb *>(m_coverage.constScanLine(y));
        auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
        std::copy(line.begin(), line.end(), pixels);
        // The first and the last row can be covered in part.
        const int edge =
            qAlpha(covered[width / 2]) == 255 ? qMin(corner, width / 2) : width / 2 + 1;
        for (int i = 0; i < edge; ++i) {
            for (const int x : {i, width - 1 - i}) {
                const int alpha = qAlpha(covered[x]);
                pixels[x] = mixed(0, line[std::size_t(x)], uint(alpha + alpha / 128));
            }
        }
    }
    return picture;
}

void SliderGroove::drawOverlay(QStyleOptionSlider option, QPainter *painter) const
{
    const QRectF inside = m_shape.inside;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(m_pSlider->isEnabled() ? 1 : disabledOpacity);
    if (!m_shape.isDrawnByStyle) {
        painter->strokePath(insidePath(), QColor(128, 128, 128, 128)); // seen on white and on black
    }
    // A light and a dark line beside the handle: it is seen on each colour.
    const QRect handle = sliderPartRect(*m_pSlider, QStyle::SC_SliderHandle, option);
    const QRectF visible(QPointF(handle.left() + m_shape.handleLeft, inside.top()),
                         QPointF(handle.left() + m_shape.handleRight, inside.bottom()));
    painter->fillRect(visible.adjusted(-2, 0, 2, 0) & inside, Qt::white);
    painter->fillRect(visible.adjusted(-1, 0, 1, 0) & inside, Qt::black);
    painter->restore();

    drawTickMarks(*m_pSlider, option, m_way, painter);
    option.state |= QStyle::State_Selected;
    drawSliderParts(*m_pSlider, QStyle::SC_SliderHandle, option, painter);
}

// Three layers, of which the style draws the first and the last: when only the colours are
// others, both come from pictures, and the first one does while the handle is dragged. A picture
// is kept until the style draws the slider the next time.
void SliderGroove::paint(QStyleOptionSlider option, const QRect &painted)
{
    const bool isDragged = m_pSlider->isSliderDown();
    if (isDragged) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    } else {
        option.activeSubControls = m_hovered;
    }
    const bool isColorsOnly =
        m_pColors != nullptr && m_shape.inside.toAlignedRect().contains(painted);
    const bool isGroundKept = isDrawnAlike(option) && (isColorsOnly || isDragged);
    const bool isOverlayKept = isGroundKept && isColorsOnly;
    if (!isOverlayKept) {
        m_overlay = QImage();
    }
    if (!isGroundKept) {
        m_ground = QImage();
        measure(option);
    }
    // On a screen that is scaled to parts of pixels a picture would be blurred.
    const bool isWhole = !m_coverage.isNull();
    QPainter painter(m_pSlider);
    drawLayer(&SliderGroove::drawGround, isWhole && isGroundKept, m_ground, option, &painter);
    drawColors(&painter);
    drawLayer(&SliderGroove::drawOverlay, isWhole && isOverlayKept, m_overlay, option, &painter);
}

} // namespace Vantor::Widgets::Internal
