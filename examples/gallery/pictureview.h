#pragma once

#include "composition.h"
#include "rectdrag.h"

#include <QtWidgets/QWidget>

// Shows the picture as it would be saved and, on top, the rectangle of the current page,
// which the pointer or the arrow keys move and resize. The wheel zooms. Outside the
// rectangle the pointer drags the picture itself.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    enum class Overlay { None, Crop, Mask, Layer };

    explicit PictureView(QWidget *parent = nullptr);

    void setPicture(const QImage &picture);
    QSize pictureSize() const { return m_composition.size(); }
    bool hasAlpha() const { return m_composition.hasAlpha(); }
    // A part as it is saved, in picture pixels.
    QImage painted(const QRect &part) { return m_composition.painted(m_edits, part); }

    void setEdits(const Edits &edits);
    void setOverlay(Overlay overlay, const RectRules &rules);
    Overlay overlay() const { return m_overlay; }

    // Device pixels for one pixel of the picture.
    double scale() const;
    void fit(); // also after each change of the widget's size
    void setScale(double scale); // about the middle
    void zoom(double factor, const QPointF &pos); // the picture stays under the position
    QRectF toView(const QRectF &rect) const;
    QPointF toPicture(const QPointF &pos) const;
    // The rectangle of the overlay, in picture pixels.
    QRect rectOf(Overlay overlay) const;
    QRectF rectInView() const { return toView(rectOf(m_overlay)); }

    QSize sizeHint() const override;

Q_SIGNALS:
    // Like an editor's signals: all moves between the two are one edit.
    void editStarted();
    void rectDragged(const QRect &rect);
    void editFinished();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Press { None, Rect, Picture };

    double fittingScale() const;
    QRectF pictureArea() const;
    bool isRectAt(const QPoint &pos) const;
    void release();
    void moveRect(const QRect &from, const QPoint &by);
    void updateCursor(const QPoint &pos);
    void paintPicture(QPainter &painter);
    void paintOverlay(QPainter &painter);
    void paintHandles(QPainter &painter, const QRectF &rect);

    Composition m_composition;
    QImage m_shown; // the last painted part with its scale; null: must be painted again
    QRect m_shownPart;
    double m_shownScale = 0;
    Edits m_edits;
    Overlay m_overlay = Overlay::None;
    RectRules m_rules;

    bool m_isFitted = true;
    double m_scale = 1; // unless fitted
    QPointF m_centre; // the point in the middle of the view, in picture pixels

    Press m_press = Press::None;
    QPoint m_pressPos; // in view pixels
    QRect m_pressRect; // the rectangle at that moment
    QPointF m_pressCentre;
    Qt::Edges m_edges; // the edges that were grabbed last; none: the whole
};
