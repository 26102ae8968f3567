#pragma once

#include "edits.h"

#include <QtWidgets/QWidget>

// Shows the picture as large as the widget allows, with the adjustment and, on
// top, what the current page is about. The crop is moved or, by its edges and
// corners, resized with the pointer.
class PictureView : public QWidget
{
    Q_OBJECT

public:
    enum class Overlay { None, Crop, Mask, Layer };

    explicit PictureView(QWidget *parent = nullptr);

    void setPicture(const QImage &picture);
    QImage croppedPicture() const;

    void setEdits(const Edits &edits);
    void setOverlay(Overlay overlay);
    // A crop of a locked size is only moved.
    void setCropSizeLocked(bool locked);
    bool isCropPressed() const { return m_isCropPressed; }
    QRect cropInView() const { return toView(m_edits.crop).toRect(); }
    static QSize leastCropSize(const QSize &picture);

    QSize sizeHint() const override;

Q_SIGNALS:
    void cropPressed();
    void cropDragged(const QRect &crop);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRect pictureArea() const;
    QRectF toView(const QRect &rect) const;
    bool isCropAt(const QPoint &pos, Qt::Edges *edges) const;
    QRect draggedCrop(const QPoint &pos) const;
    void paintCrop(QPainter &painter);
    void paintMask(QPainter &painter);
    void paintLayer(QPainter &painter);

    QImage m_picture;
    QImage m_reduced; // what the preview is made of
    // Both in the size of pictureArea(), in device pixels, and made when painted.
    QImage m_preview;
    QImage m_shown; // the preview with the adjustment
    QImage m_layerPicture;
    Edits m_edits;
    Overlay m_overlay = Overlay::None;
    bool m_isCropSizeLocked = false;
    bool m_isCropPressed = false;
    QPoint m_dragStart; // where the pointer was pressed, in view pixels
    QRect m_dragCrop; // the crop at that moment
    Qt::Edges m_dragEdges; // those that follow the pointer; all, if none
};
