#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {
class MaskEditFramePrivate;
}

/*!
    \class MaskEditFrame maskeditframe.h vantorslider/maskeditframe.h
    \brief An editor for the four margins of a mask over an area.

    The margins stand in the fields of RectEditFrame: top in X, bottom in Y, left in Width,
    right in Height. A margin that the user changes stops where top and bottom together would
    pass the area's height, left and right its width. Hosts take the margins from
    maskValueChanged(); the base's valueChanged() follows it and carries the changed margin as
    the user set it. Usable after setMaskRange().
*/
class VANTORSLIDER_EXPORT MaskEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    /*! Builds the editor for an area of no size, with hidden lock buttons. */
    explicit MaskEditFrame(QWidget *parent = nullptr);
    ~MaskEditFrame() override;

    /*!
        Keeps \a nMinWidth and \a nMinHeight for setMaskRange(): what the margins leave of the
        area is that large at least, or as large as the area where that is smaller. 0 by 0 at
        first: the margins may leave nothing. \since 1.1
    */
    void setMaskMinSize(int nMinWidth, int nMinHeight);

    /*!
        Sets the margins' ranges for an area of \a width by \a height, from 0 to what the least
        size leaves of it. Emits nothing.
    */
    void setMaskRange(int width, int height);

    /*!
        Shows the margins \a top, \a bottom, \a left and \a right, each clamped to its range. A
        pair beyond the area is shown as it is, but may only shrink then. Emits nothing.
    */
    void setMaskValue(int top, int bottom, int left, int right);

    /*!
        Writes the margins to the four edges of \a maskRect: its left edge is the left margin
        and so on. It is no rectangle of the area.
    */
    void getMaskValue(QRect &maskRect);

    /*! As RectEditFrame::resetValue(), and as setMaskValue(). \since 1.1 */
    void resetValue(Type type);

public Q_SLOTS:
    /*! As RectEditFrame::resetValue(), and as setMaskValue(). \since 1.1 */
    void resetValue();

Q_SIGNALS:
    /*!
        The user changed the margins. Not emitted where they are those that were reported or set
        last.
    */
    void maskValueChanged(int top, int bottom, int left, int right);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;
    void setRange(Type type, int min, int max) override;

    Internal::MaskEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
