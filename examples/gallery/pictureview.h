#pragma once

#include "pictureadjustment.h"

#include <QtCore/QMargins>
#include <QtWidgets/QWidget>

// Shows the picture as large as the widget allows, with the adjustment and, on
// top, what the current page is about. All rectangles are in picture pixels.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    enum class Overlay { None, Crop, Mask, Layer };

    explicit PictureView(QWidget *parent = nullptr);

    void setPicture(const QImage &picture);
    const QImage &picture() const { return m_picture; }
    QImage croppedPicture() const;

    const PictureAdjustment &adjustment() const { return m_adjustment; }
    void setAdjustment(const PictureAdjustment &adjustment);
    void setOverlay(Overlay overlay);
    void setCrop(const QRect &crop);
    void setMask(const QMargins &mask);
    void setLayer(const QRect &layer);

    QSize sizeHint() const override;

Q_SIGNALS:
    void cropDragged(const QRect &crop);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void rescale();
    QRect pictureArea() const;
    QRectF toView(const QRect &rect) const;
    void paintCrop(QPainter &painter);
    void paintMask(QPainter &painter);
    void paintLayer(QPainter &painter);

    QImage m_picture;
    QImage m_preview; // the picture in the size of pictureArea()
    QImage m_shown; // the preview with the adjustment
    QImage m_layerPicture;
    PictureAdjustment m_adjustment;
    Overlay m_overlay = Overlay::None;
    QRect m_crop;
    QMargins m_mask;
    QRect m_layer;
    QPoint m_dragStart; // of the pointer, in view pixels
    QRect m_dragCrop; // the crop at that moment, null while nothing is dragged
};
