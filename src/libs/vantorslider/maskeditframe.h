#pragma once

#include "recteditframe.h"

#include <QtCore/QMargins>

namespace Vantor {
namespace Widgets {

namespace Internal {
class MaskEditFramePrivate;
}

/*!
    \class MaskEditFrame maskeditframe.h vantorslider/maskeditframe.h
    \brief An editor for the four margins of a mask over an area, such as a picture.

    \code
    auto *mask = new MaskEditFrame(this);
    mask->setMaskRange(1920, 1080);
    mask->setMaskValue(0, 0, 240, 240);
    connect(mask, &MaskEditFrame::maskValueChanged, source, &Source::setMask);
    \endcode

    Call setMaskRange() first. The margins use the fields of RectEditFrame: Top is X, Bottom is Y,
    Left is Width and Right is Height. A margin that the user changes is limited so that top plus
    bottom stay in the area's height, and left plus right in its width.

    Connect to maskValueChanged(). valueChanged() follows it and contains the changed margin before
    it was limited. Style sheets select on the properties and names of RectEditFrame.
*/
class VANTORSLIDER_EXPORT MaskEditFrame : public RectEditFrame
{
    Q_OBJECT
    Q_PROPERTY(
        QMargins margins READ committedMargins WRITE setMargins NOTIFY maskValueChanged USER true)

public:
    /*! Creates the editor for an area of size 0 by 0, with hidden lock buttons. */
    explicit MaskEditFrame(QWidget *parent = nullptr);
    ~MaskEditFrame() override;

    /*!
        Sets the minimum size of what the margins leave of the area to \a nMinWidth by
        \a nMinHeight for later calls of setMaskRange(); 0 by 0 by default. It is limited to the
        size of the area. \since 1.1
    */
    void setMaskMinSize(int nMinWidth, int nMinHeight);

    /*!
        Sets the ranges of the margins for an area of \a width by \a height: from 0 to the extent
        of the area minus the minimum size. A value outside its range is clamped. Emits nothing.
    */
    void setMaskRange(int width, int height);

    /*!
        Shows the margins \a top, \a bottom, \a left and \a right, each clamped to its range. If a
        pair exceeds the area, it is shown and the user can only decrease it. Emits nothing.
    */
    void setMaskValue(int top, int bottom, int left, int right);

    /*!
        Writes the margins to the edges of \a maskRect: the left margin to its left edge and so
        on. The result is not a rectangle in the area.
    */
    void getMaskValue(QRect &maskRect);

    /*! Shows \a margins like setMaskValue(). Emits nothing. \since 1.1 */
    void setMargins(const QMargins &margins);

    /*! Returns the current margins. \since 1.1 */
    QMargins margins() const;

Q_SIGNALS:
    /*!
        The user changed the margins. Not emitted if they equal the margins that were last
        reported or set.
    */
    void maskValueChanged(int top, int bottom, int left, int right);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;
    void setRange(Type type, int min, int max) override;

    // The property: as the editor of an item view, ends a pending entry first.
    QMargins committedMargins();

    Internal::MaskEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
