#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class EditSpan;
class RectEditFramePrivate;
} // namespace Internal

/*!
    \class RectEditFrame recteditframe.h vantorslider/recteditframe.h
    \brief An editor for a rectangle: x, y, width and height as four slider rows in two
    panels, each panel with a lock.

    An operation that takes a Type addresses the one field that it names; any other value,
    Position, Size and All among them, changes nothing and is reported by a warning in Qt's log.

    While the position lock is on, x and y move by the same distance. While the size lock is on,
    width and height do (OffsetLock) or keep their proportion (SizeScaleLock). The lock buttons
    are hidden until the host enables them; a placeholder of the same size stands in their
    place. They have no texts; a screen reader hears "Lock position" and "Lock size", which are
    translated in the context Vantor::Widgets::RectEditFrame.

    Style sheets select on "isSliderFrame" of the editor, "lockoutstate" of both lock buttons,
    "isLockPositionFrame" of the position's lock button and placeholder, "isBesideLock" (since 1.1)
    of a placeholder while the other panel's lock shows, and on the object names
    "frameX", "frameY", "frameWidth", "frameHeight", "framePosition", "frameSize",
    "toolButtonLockPosition" and "toolButtonLockSize".
*/
class VANTORSLIDER_EXPORT RectEditFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    /*! The fields, as single bits, and their combinations for setEditerVisible(). */
    enum Type : int {
        X = 2, //!< Left edge.
        Y = 4, //!< Top edge.
        Position = X | Y, //!< Both of X and Y.
        Width = 8, //!< Width.
        Height = 16, //!< Height.
        Size = Width | Height, //!< Both of Width and Height.
        All = Position | Size, //!< All four.
    };

    /*! How the size lock ties width and height. */
    enum LockType : int {
        OffsetLock = 0, //!< Both change by the same amount.
        SizeScaleLock =
            1, //!< They keep the proportion that they had when the lock was switched on.
    };

    /*! Builds the four fields without label texts and with hidden lock buttons. Emits nothing. */
    explicit RectEditFrame(QWidget *parent = nullptr);
    ~RectEditFrame() override;

    /*! Shows \a text as the name of the field \a type. */
    void setLabelText(Type type, const QString &text);

    /*! The name shown of the field \a type; empty where it names none. */
    QString labelText(Type type) const;

    /*!
        Shows the fields whose bit is set in \a types and hides the others; a panel without a
        field is hidden with its lock.
    */
    void setEditerVisible(int types);

    /*!
        SliderEditFrame::setHorizontalSpacing() of every field; \a nSliderButton is also the gap
        between a panel's fields and its lock, in pixels.
    */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*!
        Sets the gap between the panels, and that between a panel's fields and its lock, to
        \a nVal pixels. The latter is set by setHorizontalSpacing() too: the later call decides.
    */
    void setVerticalSpacing(const int &nVal);

    /*! SliderEditFrame::setLabelWidthRange() of the field \a type. */
    void setLabelWidthRange(Type type, int maxw, int minw);

    /*! setLabelWidthRange() of every field. \since 1.1 */
    void setLabelWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setLabelFixedWidth() of the field \a type. */
    void setLabelFixedWidth(Type type, int w);

    /*! setLabelFixedWidth() of every field. \since 1.1 */
    void setLabelFixedWidth(int w);

    /*! SliderEditFrame::setButtonWidthRange() of the field \a type. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! setButtonWidthRange() of every field. \since 1.1 */
    void setButtonWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setButtonFixedWidth() of the field \a type. */
    void setButtonFixedWidth(Type type, int w);

    /*! setButtonFixedWidth() of every field. \since 1.1 */
    void setButtonFixedWidth(int w);

    /*! SliderEditFrame::setSpinBoxWidthRange() of the field \a type. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! setSpinBoxWidthRange() of every field. \since 1.1 */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setSpinBoxFixedWidth() of the field \a type. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! setSpinBoxFixedWidth() of every field. \since 1.1 */
    void setSpinBoxFixedWidth(int w);

    /*! SliderEditFrame::setSpinBoxWheelEnable() of every field. */
    void setSpinBoxWheelEnable(bool b);

    /*! SliderEditFrame::setSliderVisible() of every field. \since 1.1 */
    void setSliderVisible(bool b);

    /*! SliderEditFrame::setButtonVisible() of every field. \since 1.1 */
    void setButtonVisible(bool b);

    /*! SliderEditFrame::setSliderProperty() of the field \a type. \since 1.1 */
    void setSliderProperty(Type type, const char *name, const QVariant &value);

    /*! SliderEditFrame::setFieldFocus() of the field \a type. \since 1.1 */
    void setFieldFocus(Type type);

    /*! SliderEditFrame::setEntryOptions() of every field. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on in the first field. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! Shows \a val in the field \a type, clamped to its range. Emits nothing. */
    virtual void setValue(Type type, int val);

    /*! Shows \a x, \a y, \a w and \a h, each clamped to its field's range. Emits nothing. */
    virtual void setValue(int x, int y, int w, int h);

    /*! Shows \a rect, each component clamped to its field's range. Emits nothing. */
    virtual void setValue(const QRect &rect);

    /*! Writes the fields' values to \a x, \a y, \a w and \a h. */
    void value(int &x, int &y, int &w, int &h);

    /*! The value of the field \a type; 0 where it names none. \since 1.1 */
    int value(Type type) const;

    /*! SliderEditFrame::setPrefix() of the field \a type. \since 1.1 */
    void setPrefix(Type type, const QString &text);

    /*! setPrefix() of every field. \since 1.1 */
    void setPrefix(const QString &text);

    /*! The prefix of the field \a type; empty where it names none. \since 1.1 */
    QString prefix(Type type) const;

    /*! SliderEditFrame::setSuffix() of the field \a type. \since 1.1 */
    void setSuffix(Type type, const QString &text);

    /*! setSuffix() of every field. \since 1.1 */
    void setSuffix(const QString &text);

    /*! The suffix of the field \a type; empty where it names none. \since 1.1 */
    QString suffix(Type type) const;

    /*! Writes the rectangle that the fields show to \a rect. */
    void value(QRect &rect);

    /*! SliderEditFrame::setRange() of the field \a type. Emits nothing. */
    virtual void setRange(Type type, int min, int max);

    /*!
        Writes the range of the field \a type to \a min and \a max; leaves them where it names
        none.
    */
    void range(Type type, int &min, int &max);

    /*! SliderEditFrame::setDefaultValue() of the field \a type. \since 1.1 */
    void setDefaultValue(Type type, int val);

    /*! The value that the field \a type goes back to; 0 where there is none. \since 1.1 */
    int defaultValue(Type type) const;

    /*! Whether the field \a type has a value to go back to. \since 1.1 */
    bool hasDefaultValue(Type type) const;

    /*! SliderEditFrame::resetValue() of the field \a type. Emits nothing. \since 1.1 */
    void resetValue(Type type);

    /*! SliderEditFrame::setSingleStep() of the field \a type. */
    void setSingleStep(Type type, int val);

    /*! The step of the field \a type; 0 where it names none. \since 1.1 */
    int singleStep(Type type) const;

    /*! SliderEditFrame::setPageStep() of the field \a type. */
    void setPageStep(Type type, int val);

    /*! The page step of the field \a type; 0 where it names none. \since 1.1 */
    int pageStep(Type type) const;

    /*! SliderEditFrame::setValueChangeDirection() of the field \a type. */
    void setValueChangeDirection(Type type, int directions, int val);

    /*! SliderEditFrame::setAutoRepeat() of every field. */
    void setAutoRepeat(bool b);

    /*! SliderEditFrame::setAutoRepeatDelay() of every field. */
    void setAutoRepeatDelay(int val);

    /*! SliderEditFrame::setAutoRepeatInterval() of every field. */
    void setAutoRepeatInterval(int val);

    /*! SliderEditFrame::setReleaseMode() of every field. */
    void setReleaseMode(bool b);

    /*! SliderEditFrame::setTimeSamplingRate() of every field. */
    void setTimeSamplingRate(int val);

    /*!
        Lets the space below the panels take the spare height, if \a b is true; else the panels
        do.
    */
    void setLastVerticalSpacerExpanding(bool b);

    /*! True while the pointer holds the slider of any field. */
    bool isMousePressed() const;

    /*! The width in pixels of the widest label text, in the font of x. \since 1.1 */
    int labelMaxLength() const;

    /*! Shows the position's lock button, if \a b is true, else its placeholder. The lock stays. */
    void setPositionLockEnable(bool b);

    /*!
        Shows the size's lock button, if \a b is true, else its placeholder, and makes the lock
        one of \a type. Whether it is on does not change.
    */
    void setSizeLockEnable(bool b, LockType type);

    /*!
        Switches the size lock to \a bLock and, on, takes the size shown as its basis. Emits
        sizeLockChanged() only where the button's state changes.
    */
    void setSizeLock(bool bLock);

    /*!
        Makes \a ratio, width by height, the proportion of the size lock, in thousandths. It
        lasts until the lock is switched on again. With one that rounds to 0 the width is free,
        and a change of the height sends the width to 0; one below 0 is of no use.
    */
    void setSizeLock(qreal ratio);

    /*!
        Switches the position lock to \a bLock and, on, takes the position shown as its basis.
        Emits PositionLockChanged() only where the button's state changes. \since 1.1
    */
    void setPositionLock(bool bLock);

    /*! True while the position lock is on, whether its button is shown or not. \since 1.1 */
    bool isPositionLocked() const;

    /*! True while the size lock is on, whether its button is shown or not. \since 1.1 */
    bool isSizeLocked() const;

    /*!
        The proportion that the size lock keeps or, of an OffsetLock, that the size had when the
        lock was switched on: width by height. One that was set is kept in thousandths. 0 while
        the lock is off, and where the height is 0. \since 1.1
    */
    qreal sizeLockRatio() const;

public Q_SLOTS:
    /*! SliderEditFrame::resetValue() of every field. Emits nothing. \since 1.1 */
    void resetValue();

Q_SIGNALS:
    /*! The user changed a field; emitted last, with all four values. */
    void valueChanged(int x, int y, int w, int h);

    /*! The user changed x to \a val; emitted before valueChanged(). */
    void xValueChanged(int val);

    /*! The user changed y to \a val; emitted before valueChanged(). */
    void yValueChanged(int val);

    /*!
        The user changed the width to \a val, or the proportional lock did after the height;
        emitted before valueChanged().
    */
    void widthValueChanged(int val);

    /*!
        The user changed the height to \a val, or the proportional lock did after the width;
        emitted before valueChanged().
    */
    void heightValueChanged(int val);

    /*! The size lock was switched to \a bLock, by the user or the host. */
    void sizeLockChanged(bool bLock);

    /*! The position lock was switched to \a bLock, by the user or the host. */
    void PositionLockChanged(bool bLock);

    /*!
        As SliderEditFrame::editStarted(), of any row: one edit takes in all signals of all
        rows. \since 1.1
    */
    void editStarted();

    /*! As SliderEditFrame::editFinished(), of all rows. \since 1.1 */
    void editFinished();

private:
    friend class Internal::EditSpan;

    Internal::RectEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
