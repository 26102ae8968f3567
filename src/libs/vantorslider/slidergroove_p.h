#pragma once

#include "grooveshape_p.h"

#include <QtCore/QVector>
#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

QT_BEGIN_NAMESPACE
class QEvent;
class QHoverEvent;
class QPainter;
class QPainterPath;
class QSlider;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// The colours in the grooves of sliders that depend on each other.
class GrooveColors
{
public:
    // At equal distances on the way of the handle, at least two.
    virtual QVector<QColor> colorsOf(const QSlider *slider) const = 0;
    // The slider has another value or range.
    virtual void sliderChanged(const QSlider *slider) = 0;

protected:
    ~GrooveColors() = default;
};

// Paints a slider with a brush or with colours in its groove. Style and style sheet paint the
// rest: the groove's border, the handle, the focus.
class SliderGroove
{
public:
    explicit SliderGroove(QSlider *slider);

    // The host's brush, and the colours that are shown instead of it if they are not null.
    void fill(const QBrush &brush, GrooveColors *colors);
    const QBrush &brush() const { return m_brush; }
    GrooveColors *colors() const { return m_pColors; }
    // The colors() are others: repaints the inside of the groove.
    void updateColors() const;

    // Called for each event that the slider has handled.
    void follow(const QEvent *event);
    void hover(const QHoverEvent &event, const QStyleOptionSlider &option);
    void paint(QStyleOptionSlider option, const QRect &painted);
    // Called at the end, without which the slider keeps its own sheet.
    void removeSheet() const;

private:
    void addSheet() const;
    void measure(const QStyleOptionSlider &option);
    bool isDrawnAlike(const QStyleOptionSlider &option) const;
    QPainterPath insidePath() const;
    QImage coverage() const;
    using Layer = void (SliderGroove::*)(QStyleOptionSlider option, QPainter *painter) const;
    void drawLayer(Layer layer, bool isKept, QImage &picture, const QStyleOptionSlider &option,
                   QPainter *painter) const;
    void drawGround(QStyleOptionSlider option, QPainter *painter) const;
    void drawColors(QPainter *painter) const;
    void drawOverlay(QStyleOptionSlider option, QPainter *painter) const;
    QImage colorsPicture(const QVector<QColor> &colors) const;

    QSlider *m_pSlider;
    QBrush m_brush;
    GrooveColors *m_pColors = nullptr;
    GrooveShape m_shape;
    qreal m_dPixelRatio = 0; // of the shape; 0 if it is to be measured again
    QStyle::SubControl m_hovered = QStyle::SC_None;

    // As it was drawn by the style the last time, and the pictures that are kept of that.
    QStyleOptionSlider m_option;
    QRectF m_way;
    QImage m_ground; // what lies below the colours
    QImage m_overlay; // what lies above them
    QImage m_coverage; // of the pixels of inside, by the opacity
};

} // namespace Vantor::Widgets::Internal
