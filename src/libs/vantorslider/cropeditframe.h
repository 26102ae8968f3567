#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {
class CropEditFramePrivate;
}

/*!
    \class CropEditFrame cropeditframe.h vantorslider/cropeditframe.h
    \brief A rectangle editor that keeps a crop in an area, such as a picture.

    \code
    auto *crop = new CropEditFrame(this);
    crop->setCropRange(1920, 1080);
    crop->setCropValue(0, 0, 1280, 720);
    connect(crop, &CropEditFrame::cropValueChanged, source, &Source::setCrop);
    \endcode

    A field that the user changes is limited so that position plus size stay in the area. Values
    that the host sets, and those that the position lock or OffsetLock changes along, are not
    limited until the user changes a field of the same pair: x and width, or y and height.

    Connect to cropValueChanged(). valueChanged() follows it and contains the changed field before
    it was limited. Style sheets select on the properties and names of RectEditFrame.
*/
class VANTORSLIDER_EXPORT CropEditFrame : public RectEditFrame
{
    Q_OBJECT
    Q_PROPERTY(QRect crop READ committedCrop WRITE setCrop NOTIFY cropValueChanged USER true)

public:
    /*!
        Creates the editor with the minimum position 0, 0, the minimum size 1 by 1, and the
        defaults of RectEditFrame.
    */
    explicit CropEditFrame(QWidget *parent = nullptr);
    ~CropEditFrame() override;

    /*!
        Sets the minimum position for later calls of setCropRange(int, int) to \a nMinX, \a nMinY;
        0, 0 by default. The fields do not change.
    */
    void setCropMinPos(int nMinX, int nMinY);

    /*!
        Sets the minimum size for later calls of setCropRange(int, int) to \a nMinWidth by
        \a nMinHeight; 1 by 1 by default. The fields do not change.
    */
    void setCropMinSize(int nMinWidth, int nMinHeight);

    /*!
        Sets the ranges of the fields for an area of \a width by \a height, with the minimum
        position and size. A value outside its range is clamped. Emits nothing.
    */
    void setCropRange(int width, int height);

    /*!
        Sets the ranges of the fields for an area of \a nTotalHor by \a nTotalVer, with the
        minimum position \a nMinX, \a nMinY and the minimum size \a nMinWidth by \a nMinHeight,
        which apply to this call only. A value outside its range is clamped. Emits nothing.
    */
    void setCropRange(int nMinX, int nMinY, int nMinWidth, int nMinHeight, int nTotalHor,
                      int nTotalVer);

    /*! Shows the crop \a x, \a y, \a w, \a h, each clamped to its field's range. Emits nothing. */
    void setCropValue(int x, int y, int w, int h);

    /*! Shows the crop \a rect, each component clamped to its field's range. Emits nothing. */
    void setCropValue(const QRect &rect);

    /*! Shows the crop \a rect like setCropValue(). Emits nothing. \since 1.1 */
    void setCrop(const QRect &rect);

    /*! Returns the current crop. \since 1.1 */
    QRect crop() const;

    /*!
        Sets the range of one field, see RectEditFrame::setRange(); for a field that differs from
        setCropRange().
    */
    void setRange(Type type, int min, int max) override;

Q_SIGNALS:
    /*!
        The user changed the crop. Not emitted if it equals the crop that was last reported or
        set.
    */
    void cropValueChanged(int x, int y, int w, int h);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;

    // The property: as the editor of an item view, ends a pending entry first.
    QRect committedCrop();

    Internal::CropEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
