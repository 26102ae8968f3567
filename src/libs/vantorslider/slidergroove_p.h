#pragma once

#include <QtCore/QRectF>
#include <QtGui/QBrush>
#include <QtWidgets/QStyle>

QT_BEGIN_NAMESPACE
class QEvent;
class QImage;
class QPainter;
class QSlider;
class QStyleOptionSlider;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// The brushes in the grooves of sliders that depend on each other.
class GrooveBrushes
{
public:
    virtual QBrush brushOf(const QSlider *slider) const = 0;
    // The slider has another value or range.
    virtual void sliderChanged(const QSlider *slider) = 0;

protected:
    ~GrooveBrushes() = default;
};

// Paints a slider with a brush in its groove. Style and style sheet paint the rest: the groove's
// border, the handle, the focus.
class SliderGroove
{
public:
    explicit SliderGroove(QSlider *slider);

    QBrush brush; // the host's
    GrooveBrushes *brushes = nullptr; // come before it

    // Called for each event that the slider has handled.
    void follow(const QEvent *event, const QStyleOptionSlider &option);
    void paint(QStyleOptionSlider option);
    // Called at the end, without which the slider keeps its own sheet.
    void removeSheet() const;

private:
    // Measured in the style's pictures of groove and handle. In logical pixels.
    struct Shape
    {
        QRect groove; // with its border
        QRectF inside;
        qreal radius = 0; // of the corners of inside
        bool hasBorder = false; // the style draws a groove of this height
        bool isFilledAtMinimum = false; // the style draws the end before the handle otherwise
        qreal handleLeft = 0; // the visible part of the handle, from the left edge of its rectangle
        qreal handleRight = 0;
    };

    void addSheet() const;
    QRect rectOf(QStyle::SubControl part, const QStyleOptionSlider &option) const;
    QRect handleAt(int position, QStyleOptionSlider option) const;
    void draw(QStyle::SubControls parts, QStyleOptionSlider option, QPainter *painter) const;
    QImage pictureOf(QStyle::SubControl part, QStyleOptionSlider option) const;
    Shape measured(QStyleOptionSlider option) const;
    QRectF handleWay(const QStyleOptionSlider &option) const;
    void drawEmptyGroove(QStyleOptionSlider option, QPainter *painter) const;
    void fillGroove(const QStyleOptionSlider &option, QPainter *painter) const;
    void drawTicks(const QStyleOptionSlider &option, QPainter *painter) const;

    QSlider *m_pSlider;
    Shape m_shape;
    qreal m_dPixelRatio = 0; // of the shape; 0 if it is to be measured again
    QStyle::SubControl m_hovered = QStyle::SC_None;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
