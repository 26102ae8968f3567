#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtWidgets/QFrame>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

class SliderEditFrame;

namespace Internal {
class RectEditFramePrivate;
} // namespace Internal

/*!
    \class RectEditFrame recteditframe.h vantorslider/recteditframe.h
    \brief An editor for a rectangle: x, y, width and height in four slider rows, with a position
    lock and a size lock.

    Use it for windows, regions and layers. CropEditFrame keeps the rectangle in an area,
    MaskEditFrame edits margins.

    \code
    auto *place = new RectEditFrame(this);
    for (auto type : {RectEditFrame::X, RectEditFrame::Y, RectEditFrame::Width,
                      RectEditFrame::Height}) {
        place->setRange(type, 0, 4096);
    }
    place->setLabelText(RectEditFrame::X, tr("X")); // and so on
    place->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    place->setValue(QRect(0, 0, 1920, 1080));
    connect(place, &RectEditFrame::valueChanged, layer, &Layer::setPlace);
    \endcode

    Each field is a SliderEditFrame; x and y are in one panel, width and height in the other. A
    function with a Type argument addresses one field. Any other value, such as Position, Size or
    All, changes nothing and logs one warning. No setter emits valueChanged() or the signal of a
    field.

    The notify signal of a property is emitted for the user's changes only, never by its setter.
    The getters of 1.0 are not const: rectangle() reads a const editor.

    While the position lock is on, x and y change by the same amount. While the size lock is on,
    width and height change by the same amount (OffsetLock) or keep their ratio (SizeScaleLock).
    The user switches a lock with its button. The button is hidden until the host enables it; a
    placeholder of the same size takes its place. Its accessible name is "Lock position" or
    "Lock size", translated in the context Vantor::Widgets::RectEditFrame.

    Style sheets select on the dynamic properties "isSliderFrame" of the editor, "lockoutstate" of
    both lock buttons, "isLockPositionFrame" of the button and placeholder of the position lock,
    and "isBesideLock" (since 1.1) of a placeholder while the other panel's lock button is shown;
    and on the object names "frameX", "frameY", "frameWidth", "frameHeight", "framePosition",
    "frameSize", "toolButtonLockPosition" and "toolButtonLockSize".
*/
class VANTORSLIDER_EXPORT RectEditFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)
    Q_PROPERTY(
        QRect rectangle READ committedRectangle WRITE setRectangle NOTIFY valueChanged USER true)
    Q_PROPERTY(bool lockToolTips READ lockToolTips WRITE setLockToolTips)
    Q_PROPERTY(int lastVerticalSpace READ lastVerticalSpace WRITE setLastVerticalSpace)

public:
    /*! The fields, as flags. setEditerVisible() accepts combinations. */
    enum Type : int {
        X = 2, //!< Position of the left edge.
        Y = 4, //!< Position of the top edge.
        Position = X | Y, //!< Both of X and Y.
        Width = 8, //!< Width.
        Height = 16, //!< Height.
        Size = Width | Height, //!< Both of Width and Height.
        All = Position | Size, //!< All four.
        Top = X, //!< The top margin of a MaskEditFrame. \since 1.1
        Bottom = Y, //!< The bottom margin of a MaskEditFrame. \since 1.1
        Left = Width, //!< The left margin of a MaskEditFrame. \since 1.1
        Right = Height, //!< The right margin of a MaskEditFrame. \since 1.1
    };

    /*! How the size lock relates width and height. */
    enum LockType : int {
        OffsetLock = 0, //!< Both change by the same amount.
        //! They keep the ratio from when the lock was turned on, and the rectangle in an area that
        //! begins at the minima of x and y and is as large as the maxima of width and height.
        SizeScaleLock = 1,
    };

    /*!
        Creates four fields with empty labels, the range 0 to 99 and the value 0. Both locks are
        off and their buttons hidden.
    */
    explicit RectEditFrame(QWidget *parent = nullptr);
    ~RectEditFrame() override;

    /*!
        Returns the row of the flag \a type: X, Y, Width or Height. It has the settings that this
        class does not forward: unit, default value, scale, step getters and so on. It belongs to
        the editor and is deleted with it. Any other value returns null and logs one warning.
        \since 1.1
    */
    SliderEditFrame *row(Type type) const;

    /*! Returns all rows in the order of their flags. \since 1.1 */
    QList<SliderEditFrame *> rows() const;

    /*! Shows \a text in the label of the field \a type; empty by default. */
    void setLabelText(Type type, const QString &text);

    /*! Returns the label text of the field \a type; empty if \a type is invalid. */
    QString labelText(Type type) const;

    /*!
        Shows the fields whose flag is set in \a types and hides the others; all are visible by
        default. A panel without a visible field is hidden with its lock.
    */
    void setEditerVisible(int types);

    /*!
        Sets the gap between label and slider to \a nLabelSlider, and the gaps between slider,
        spin box and buttons to \a nSliderButton, in pixels, in all fields. \a nSliderButton is
        also the gap between a panel's fields and its lock; see setVerticalSpacing().
    */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*!
        Sets the gap between the panels, and the gap between a panel's fields and its lock, to
        \a nVal pixels; 0 by default. setHorizontalSpacing() also sets the second gap: the later
        call takes effect.
    */
    void setVerticalSpacing(const int &nVal);

    /*! Limits the width of the label in the field \a type to \a minw to \a maxw pixels. */
    void setLabelWidthRange(Type type, int maxw, int minw);

    /*! Makes the label in the field \a type \a w pixels wide. */
    void setLabelFixedWidth(Type type, int w);

    /*! Limits the width of each button in the field \a type to \a minw to \a maxw pixels. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! Makes each button in the field \a type \a w pixels wide; 49 by default. */
    void setButtonFixedWidth(Type type, int w);

    /*! Limits the width of the spin box in the field \a type to \a minw to \a maxw pixels. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! Makes the spin box in the field \a type \a w pixels wide; 65 by default. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! Lets the wheel step a spin box that has the focus, if \a b is true; false by default. */
    void setSpinBoxWheelEnable(bool b);

    /*! Sets how all spin boxes handle what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options of the first field. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! Returns whether a row has a pending entry, see SliderEditFrame. \since 1.1 */
    bool hasPendingEntry() const;

    /*!
        Ends the pending entries of the rows as Enter does, and leaves the focus where it is.
        Does nothing if no entry is pending. \since 1.1
    */
    void finishEntry();

    /*! Shows \a val in the field \a type, clamped to its range. Emits nothing. */
    virtual void setValue(Type type, int val);

    /*! Shows \a x, \a y, \a w and \a h, each clamped to its field's range. Emits nothing. */
    virtual void setValue(int x, int y, int w, int h);

    /*! Shows \a rect, each component clamped to its field's range. Emits nothing. */
    virtual void setValue(const QRect &rect);

    /*! Writes the current values to \a x, \a y, \a w and \a h. */
    void value(int &x, int &y, int &w, int &h);

    /*! Writes the current rectangle to \a rect. */
    void value(QRect &rect);

    /*!
        Shows \a rectangle, each component clamped to its field's range. Emits nothing. In a
        CropEditFrame use setCrop(), in a MaskEditFrame setMargins(). \since 1.1
    */
    void setRectangle(const QRect &rectangle);

    /*! Returns the current rectangle. \since 1.1 */
    QRect rectangle() const;

    /*!
        Sets the range of the field \a type to \a min to \a max, 0 to 99 by default, see
        SliderEditFrame::setRange(). Emits nothing.
    */
    virtual void setRange(Type type, int min, int max);

    /*!
        Writes the range of the field \a type to \a min and \a max; does not change them if
        \a type is invalid.
    */
    void range(Type type, int &min, int &max);

    /*!
        Sets the step of buttons, arrow keys and wheel in the field \a type to \a val, 1 by
        default.
    */
    void setSingleStep(Type type, int val);

    /*! Sets the step of a click on the groove in the field \a type to \a val, 10 by default. */
    void setPageStep(Type type, int val);

    /*!
        Keeps every value that the user sets in the field \a type on one side of \a val, see
        SliderEditFrame::setValueChangeDirection().
    */
    void setValueChangeDirection(Type type, int directions, int val);

    /*! Lets held buttons of all fields repeat their step, if \a b is true; false by default. */
    void setAutoRepeat(bool b);

    /*! Sets the time until a held button first repeats to \a val ms; Qt's 300 by default. */
    void setAutoRepeatDelay(int val);

    /*! Sets the time between a held button's repetitions to \a val ms; Qt's 100 by default. */
    void setAutoRepeatInterval(int val);

    /*!
        Reports a drag once, when the handle is released, if \a b is true; false by default.
        Applies to all fields, see SliderEditFrame::setReleaseMode().
    */
    void setReleaseMode(bool b);

    /*!
        Reports a drag at most every \a val milliseconds and at its end; off by default. Applies
        to all fields, see SliderEditFrame::setTimeSamplingRate().
    */
    void setTimeSamplingRate(int val);

    /*!
        Gives the spare height to the space below the panels if \a b is true, else to the panels.
        True by default.
    */
    void setLastVerticalSpacerExpanding(bool b);

    /*!
        Gives the space below the panels a height of \a height pixels, beside the spare height that
       it takes; 14 by default. Does nothing after setLastVerticalSpacerExpanding(). In a style
       sheet: qproperty-lastVerticalSpace. \since 1.1
    */
    void setLastVerticalSpace(int height);

    /*! Returns the height of the space below the panels without spare height. \since 1.1 */
    int lastVerticalSpace() const;

    /*! Returns whether a mouse button is down on the slider of any field. */
    bool isMousePressed() const;

    /*!
        Shows the button of the position lock if \a b is true, else its placeholder; false by
        default. The lock does not change.
    */
    void setPositionLockEnable(bool b);

    /*!
        Shows the button of the size lock if \a b is true, else its placeholder, and sets the type
        of the lock to \a type; false and SizeScaleLock by default. The lock is not turned on or
        off.
    */
    void setSizeLockEnable(bool b, LockType type);

    /*!
        Returns the button of the position lock for Position, that of the size lock for Size, for
        the host's tool tip, icon or text. It belongs to the editor and is deleted with it. Any
        other value returns null and logs one warning. \since 1.1
    */
    QToolButton *lockButton(Type type) const;

    /*!
        Gives both lock buttons a tool tip, their accessible name, if \a b is true; false by
        default. A tool tip that the host sets takes precedence, also that of the editor or of a
        widget around it. In a style sheet: qproperty-lockToolTips. \since 1.1
    */
    void setLockToolTips(bool b);

    /*! Returns whether the lock buttons have a tool tip of their own. \since 1.1 */
    bool lockToolTips() const;

    /*!
        Turns the size lock on or off; off by default. Each call with true takes the current size
        as its basis. Emits sizeLockChanged() if the state changes.
    */
    void setSizeLock(bool bLock);

    /*!
        Sets the ratio of the size lock, width divided by height, to \a ratio, rounded to
        thousandths. It is used until the lock is turned on again; turning the lock on replaces it
        by the current ratio.

        If it rounds to 0, the width is free and a change of the height sets the width to 0. A
        negative ratio is invalid: the sizes are then undefined. An integer argument is ambiguous
        between the two overloads: write setSizeLock(1.0). For an exact ratio there is
        setSizeLockRatio().
    */
    void setSizeLock(qreal ratio);

    /*!
        Sets the ratio of the size lock to the width and height of \a ratio, exactly, like
        setSizeLock(qreal). A ratio that is not above 0 changes nothing. \since 1.1
    */
    void setSizeLockRatio(const QSize &ratio);

    /*!
        Turns the position lock on or off; off by default. Each call with true takes the current
        position as its basis. Emits PositionLockChanged() if the state changes. \since 1.1
    */
    void setPositionLock(bool bLock);

    /*! Returns whether the position lock is on, also if its button is hidden. \since 1.1 */
    bool isPositionLocked() const;

    /*! Returns whether the size lock is on, also if its button is hidden. \since 1.1 */
    bool isSizeLocked() const;

    /*!
        Returns the ratio of the size lock, width divided by height; for OffsetLock the ratio of
        the size at which the lock was turned on. One that was set by
        setSizeLock(qreal) is rounded to thousandths. Returns 0 while the lock is off or if the
       height is 0. \since 1.1
    */
    qreal sizeLockRatio() const;

public Q_SLOTS:
    /*! Shows the default value of each field that has one. Emits nothing. \since 1.1 */
    void resetValues();

Q_SIGNALS:
    /*! The user changed a field; emitted last, with all four values. */
    void valueChanged(int x, int y, int w, int h);

    /*! The user changed x to \a val; emitted before valueChanged(). */
    void xValueChanged(int val);

    /*! The user changed y to \a val; emitted before valueChanged(). */
    void yValueChanged(int val);

    /*!
        The user changed the width to \a val, or SizeScaleLock did after a change of the height;
        emitted before valueChanged().
    */
    void widthValueChanged(int val);

    /*!
        The user changed the height to \a val, or SizeScaleLock did after a change of the width;
        emitted before valueChanged().
    */
    void heightValueChanged(int val);

    /*! The user or the host turned the size lock on or off. */
    void sizeLockChanged(bool bLock);

    /*! The user or the host turned the position lock on or off. */
    void PositionLockChanged(bool bLock);

    /*!
        The user starts an edit in any field, see SliderEditFrame::editStarted(). All signals of
        the edit come before editFinished(). \since 1.1
    */
    void editStarted();

    /*! The edit has ended in all fields, see SliderEditFrame::editFinished(). \since 1.1 */
    void editFinished();

private:
    // The property: as the editor of an item view, ends a pending entry first.
    QRect committedRectangle();

    Internal::RectEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
