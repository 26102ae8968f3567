#include "slidergroove_p.h"

#include <QtGui/QHoverEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionSlider>

#include <cmath>

namespace Vantor {
namespace Widgets {
namespace Internal {

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

// The number of pixels from the first one on, at most half of the length, that differ from the
// one in the middle.
int othersBeforeMiddle(const QImage &image, QPoint pixel, const QPoint &step, int length)
{
    const QRgb middle = image.pixel(pixel + step * (length / 2));
    int others = 0;
    while (others < length / 2 && image.pixel(pixel) != middle) {
        pixel += step;
        ++others;
    }
    return others;
}

bool isVisible(const QImage &image, int x, int y)
{
    return qAlpha(image.pixel(x, y)) > 0;
}

QPoint placeOf(const QHoverEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position().toPoint();
#else
    return event.pos();
#endif
}

int visibleRows(const QImage &image, int x)
{
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        rows += isVisible(image, x, y) ? 1 : 0;
    }
    return rows;
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

void SliderGroove::follow(const QEvent *event, const QStyleOptionSlider &option)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        m_hovered = m_pSlider->style()->hitTestComplexControl(
            QStyle::CC_Slider, &option, placeOf(*static_cast<const QHoverEvent *>(event)),
            m_pSlider);
        break;
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

QRect SliderGroove::rectOf(QStyle::SubControl part, const QStyleOptionSlider &option) const
{
    return m_pSlider->style()->subControlRect(QStyle::CC_Slider, &option, part, m_pSlider);
}

QRect SliderGroove::handleAt(int position, QStyleOptionSlider option) const
{
    option.sliderPosition = position;
    return rectOf(QStyle::SC_SliderHandle, option);
}

void SliderGroove::draw(QStyle::SubControls parts, QStyleOptionSlider option,
                        QPainter *painter) const
{
    option.subControls = parts;
    m_pSlider->style()->drawComplexControl(QStyle::CC_Slider, &option, painter, m_pSlider);
}

// In the pixels of the slider's screen, on a transparent ground.
QImage SliderGroove::pictureOf(QStyle::SubControl part, QStyleOptionSlider option) const
{
    const QRect rect = rectOf(part, option);
    const qreal pixelRatio = m_pSlider->devicePixelRatioF();
    const auto pixels = [pixelRatio](int length) { return int(std::ceil(length * pixelRatio)); };
    QImage image(pixels(rect.width()), pixels(rect.height()), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    if (!image.isNull()) {
        QPainter painter(&image);
        painter.translate(-rect.topLeft());
        option.state |= QStyle::State_Selected;
        draw(part, option, &painter);
    }
    return image;
}

// Border and corners of a groove, also of one in a style sheet, can only be seen: the border are
// the pixels around the colour of the middle, and the radius is as long as the row of other
// pixels in a corner.
SliderGroove::Shape SliderGroove::measured(QStyleOptionSlider option) const
{
    option.upsideDown = false; // a style can fill the left end
    option.sliderPosition = option.minimum;
    Shape shape;
    shape.groove = rectOf(QStyle::SC_SliderGroove, option);
    const QRect handle = rectOf(QStyle::SC_SliderHandle, option);
    const QImage groovePicture = pictureOf(QStyle::SC_SliderGroove, option);
    const QImage handlePicture = pictureOf(QStyle::SC_SliderHandle, option);
    if (groovePicture.isNull() || handlePicture.isNull()) {
        return shape;
    }
    const qreal pixelRatio = groovePicture.devicePixelRatio();
    const int height = groovePicture.height();
    shape.hasBorder = 2 * visibleRows(groovePicture, groovePicture.width() / 2) > height;
    shape.inside = shape.groove;
    if (shape.hasBorder) {
        shape.isFilledAtMinimum = groovePicture != groovePicture.mirrored(true, false);
        const QPoint left(-1, 0);
        const QPoint down(0, 1);
        const QPoint topRight(groovePicture.width() - 1, 0);
        const QPoint top(groovePicture.width() / 2, 0);
        const int border =
            qMin(othersBeforeMiddle(groovePicture, topRight + down * (height / 2), left, height),
                 othersBeforeMiddle(groovePicture, top, down, height));
        const int radius =
            othersBeforeMiddle(groovePicture, topRight + (left + down) * border, left, height);
        const qreal inset = border / pixelRatio;
        shape.inside.adjust(inset, inset, -inset, -inset);
        shape.radius = radius / pixelRatio;
    } else {
        // A bar of half the handle's height, which ends below the handle.
        const int bar = qMin(shape.groove.height(), handle.height() / 2);
        const QRectF way = handleWay(option);
        shape.inside = QRectF(0, 0, way.width() + bar, bar);
        shape.inside.moveCenter(QPointF(way.center().x(), QRectF(shape.groove).center().y()));
        shape.radius = bar / 2.0;
    }

    const int row = qBound(0, int((shape.inside.center().y() - handle.top()) * pixelRatio),
                           handlePicture.height() - 1);
    int first = 0;
    int end = handlePicture.width();
    while (first < end && !isVisible(handlePicture, first, row)) {
        ++first;
    }
    while (first < end && !isVisible(handlePicture, end - 1, row)) {
        --end;
    }
    shape.handleLeft = first / pixelRatio;
    shape.handleRight = end / pixelRatio;
    return shape;
}

// From the middle of the handle at the minimum to the middle at the maximum; to the left in a
// mirrored slider.
QRectF SliderGroove::handleWay(const QStyleOptionSlider &option) const
{
    const qreal start = QRectF(handleAt(option.minimum, option)).center().x();
    const qreal end = QRectF(handleAt(option.maximum, option)).center().x();
    return {start, 0, end - start, 0};
}

// A style that fills the groove at the minimum draws each half with the handle at the other end.
void SliderGroove::drawEmptyGroove(QStyleOptionSlider option, QPainter *painter) const
{
    option.sliderPosition = option.minimum;
    option.sliderValue = option.minimum;
    if (!m_shape.isFilledAtMinimum) {
        draw(m_shape.hasBorder ? QStyle::SC_SliderGroove : QStyle::SC_None, option, painter);
        return;
    }
    QRect half = m_pSlider->rect();
    half.setRight(half.center().x());
    for (const bool isLeft : {true, false}) {
        option.upsideDown = isLeft;
        painter->setClipRect(half);
        draw(QStyle::SC_SliderGroove, option, painter);
        half.moveLeft(half.right() + 1);
    }
    painter->setClipping(false);
}

void SliderGroove::fillGroove(const QStyleOptionSlider &option, QPainter *painter) const
{
    QBrush filling = brushes != nullptr ? brushes->brushOf(m_pSlider) : brush;
    const QRectF inside = m_shape.inside;
    QPainterPath path;
    path.addRoundedRect(inside, m_shape.radius, m_shape.radius);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setOpacity(m_pSlider->isEnabled() ? 1 : disabledOpacity);
    painter->setBrushOrigin(inside.topLeft());
    if (!filling.isOpaque()) {
        painter->fillPath(path, checkerboard());
    }
    if (filling.gradient() != nullptr) {
        QGradient gradient = *filling.gradient();
        gradient.setCoordinateMode(QGradient::LogicalMode);
        const QRectF way = handleWay(option);
        const QTransform own = filling.transform();
        filling = gradient;
        filling.setTransform(
            own * QTransform(way.width(), 0, 0, inside.height(), way.left(), inside.top()));
        painter->setBrushOrigin(0, 0);
    }
    painter->fillPath(path, filling);
    if (!m_shape.hasBorder) {
        painter->strokePath(path, QColor(128, 128, 128, 128)); // seen on white and on black
    }

    // A light and a dark line beside the handle: it is seen on each colour.
    const QRect handle = rectOf(QStyle::SC_SliderHandle, option);
    const QRectF visible(QPointF(handle.left() + m_shape.handleLeft, inside.top()),
                         QPointF(handle.left() + m_shape.handleRight, inside.bottom()));
    painter->fillRect(visible.adjusted(-2, 0, 2, 0) & inside, Qt::white);
    painter->fillRect(visible.adjusted(-1, 0, 1, 0) & inside, Qt::black);
    painter->restore();
}

// A styled groove has no tick marks.
void SliderGroove::drawTicks(const QStyleOptionSlider &option, QPainter *painter) const
{
    if (option.tickPosition == QSlider::NoTicks) {
        return;
    }
    constexpr int length = 4;
    constexpr double leastDistance = 3;
    const QRectF way = handleWay(option);
    const double range = double(option.maximum) - option.minimum;
    const int set = option.tickInterval > 0 ? option.tickInterval : option.pageStep;
    const double least = leastDistance * range / qMax(1.0, std::abs(way.width()));
    const double interval = qMax(1.0, qMax<double>(set, std::ceil(least)));
    painter->setPen(m_pSlider->palette().color(QPalette::Mid));
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

void SliderGroove::paint(QStyleOptionSlider option)
{
    if (m_pSlider->isSliderDown()) {
        option.activeSubControls = QStyle::SC_SliderHandle;
        option.state |= QStyle::State_Sunken;
    } else {
        option.activeSubControls = m_hovered;
    }
    const qreal pixelRatio = m_pSlider->devicePixelRatioF();
    if (m_dPixelRatio != pixelRatio || m_shape.groove != rectOf(QStyle::SC_SliderGroove, option)) {
        m_shape = measured(option);
        m_dPixelRatio = pixelRatio;
    }
    QPainter painter(m_pSlider);
    drawEmptyGroove(option, &painter);
    fillGroove(option, &painter);
    drawTicks(option, &painter);
    option.state |= QStyle::State_Selected;
    draw(QStyle::SC_SliderHandle, option, &painter);
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
