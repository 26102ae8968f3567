#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {
class CropEditFramePrivate;
}

/*!
    \class CropEditFrame cropeditframe.h vantorslider/cropeditframe.h
    \brief A rectangle editor that keeps a crop within an area.

    A field that the user changes stops where its position plus size would leave the area. What
    the host sets is not held, nor what the position or the offset lock moves along, until the
    user changes a field of that pair. Hosts take the crop from cropValueChanged(); the base's
    valueChanged() follows it and carries the changed field as the user set it, before it was
    held in the area.
*/
class VANTORSLIDER_EXPORT CropEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    /*! Builds the editor with the least position 0, 0 and the least size 1 by 1. */
    explicit CropEditFrame(QWidget *parent = nullptr);
    ~CropEditFrame() override;

    /*! Keeps \a nMinX and \a nMinY as least position for setCropRange() with two arguments. */
    void setCropMinPos(int nMinX, int nMinY);

    /*! Keeps \a nMinWidth and \a nMinHeight as least size for setCropRange() with two arguments. */
    void setCropMinSize(int nMinWidth, int nMinHeight);

    /*! Sets the fields' ranges for an area of \a width by \a height. Emits nothing. */
    void setCropRange(int width, int height);

    /*!
        Sets the fields' ranges for an area of \a nTotalHor by \a nTotalVer with
        least position \a nMinX, \a nMinY and least size \a nMinWidth by
        \a nMinHeight, none of which is kept for later calls. A field's value
        outside its range is clamped. Emits nothing.
    */
    void setCropRange(int nMinX, int nMinY, int nMinWidth, int nMinHeight, int nTotalHor,
                      int nTotalVer);

    /*! Shows the crop \a x, \a y, \a w, \a h, each clamped to its field's range. Emits nothing. */
    void setCropValue(int x, int y, int w, int h);

    /*! Shows the crop \a rect. Emits nothing. */
    void setCropValue(const QRect &rect);

    /*! As RectEditFrame::setRange(), for a field that is to differ from setCropRange(). */
    void setRange(Type type, int min, int max) override;

    /*! As RectEditFrame::resetValue(), and as setCropValue(). \since 1.1 */
    void resetValue(Type type);

public Q_SLOTS:
    /*! As RectEditFrame::resetValue(), and as setCropValue(). \since 1.1 */
    void resetValue();

Q_SIGNALS:
    /*! The user changed the crop. Not emitted where it is the one that was reported or set last. */
    void cropValueChanged(int x, int y, int w, int h);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;

    Internal::CropEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
