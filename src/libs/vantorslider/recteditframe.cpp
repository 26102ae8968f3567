#include "recteditframe.h"

#include "recteditframe_p.h"
#include "saturation_p.h"

#include <cmath>

namespace Vantor {
namespace Widgets {

/*!
    \class RectEditFrame recteditframe.h vantorslider/recteditframe.h
    \brief An editor for a rectangle: x, y, width and height as four slider
    rows in two panels, each panel with a lock.

    An operation that takes a Type addresses the one field that it names; any
    other value, Position, Size and All among them, changes nothing and is
    reported by a warning in Qt's log.

    While the position lock is on, x and y move by the same distance. While the
    size lock is on, width and height do (OffsetLock) or keep their proportion
    (SizeScaleLock). The lock buttons are hidden until the host enables them; a
    placeholder of the same size stands in their place. They have no texts; a
    screen reader hears "Lock position" and "Lock size", which are translated
    in the context Vantor::Widgets::RectEditFrame.

    Style sheets select on "isSliderFrame" of the editor, "lockoutstate" of
    both lock buttons, "isLockPositionFrame" of the position's lock button and
    placeholder, and on the object names "frameX", "frameY", "frameWidth",
    "frameHeight", "framePosition", "frameSize", "toolButtonLockPosition" and
    "toolButtonLockSize".
*/

/*!
    \enum RectEditFrame::Type
    \brief The fields, as single bits, and their combinations for setEditerVisible().

    \var RectEditFrame::X
    Left edge.
    \var RectEditFrame::Y
    Top edge.
    \var RectEditFrame::Position
    Both of X and Y.
    \var RectEditFrame::Width
    Width.
    \var RectEditFrame::Height
    Height.
    \var RectEditFrame::Size
    Both of Width and Height.
    \var RectEditFrame::All
    All four.
*/

/*!
    \enum RectEditFrame::LockType
    \brief How the size lock ties width and height.

    \var RectEditFrame::OffsetLock
    Both change by the same amount.
    \var RectEditFrame::SizeScaleLock
    They keep the proportion that they had when the lock was switched on.
*/

/*!
    \fn void RectEditFrame::valueChanged(int x, int y, int w, int h)
    \brief The user changed a field; emitted last, with all four values.

    \fn void RectEditFrame::xValueChanged(int val)
    \brief The user changed x to \a val; emitted before valueChanged().

    \fn void RectEditFrame::yValueChanged(int val)
    \brief The user changed y to \a val; emitted before valueChanged().

    \fn void RectEditFrame::widthValueChanged(int val)
    \brief The user changed the width to \a val, or the proportional lock did
    after the height; emitted before valueChanged().

    \fn void RectEditFrame::heightValueChanged(int val)
    \brief The user changed the height to \a val, or the proportional lock did
    after the width; emitted before valueChanged().

    \fn void RectEditFrame::sizeLockChanged(bool bLock)
    \brief The size lock was switched to \a bLock, by the user or the host.

    \fn void RectEditFrame::PositionLockChanged(bool bLock)
    \brief The user switched the position lock to \a bLock.
*/

/*! Builds the four fields without label texts and with hidden lock buttons. Emits nothing. */
RectEditFrame::RectEditFrame(QWidget *parent)
    : QFrame(parent), d(new Internal::RectEditFramePrivate(this))
{
    d->ui->setupUi(this);
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

RectEditFrame::~RectEditFrame()
{
    delete d;
    d = nullptr;
}

/*! Shows \a text as the name of the field \a type. */
void RectEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label text", &SliderEditFrame::setLabelText,
                  text);
}

/*! The name shown of the field \a type; empty where it names none. */
QString RectEditFrame::labelText(Type type) const
{
    const auto *field = d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Set Rect label text");
    return field != nullptr ? field->labelText() : QString();
}

/*!
    Shows the fields whose bit is set in \a types and hides the others; a panel
    without a field is hidden with its lock.
*/
void RectEditFrame::setEditerVisible(int types)
{
    d->ui->frameX->setVisible((types & X) != 0);
    d->ui->frameY->setVisible((types & Y) != 0);
    d->ui->framePosition->setVisible((types & Position) != 0);
    d->ui->frameWidth->setVisible((types & Width) != 0);
    d->ui->frameHeight->setVisible((types & Height) != 0);
    d->ui->frameSize->setVisible((types & Size) != 0);
}

/*!
    SliderEditFrame::setHorizontalSpacing() of every field; \a nSliderButton is
    also the gap between a panel's fields and its lock, in pixels.
*/
void RectEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&SliderEditFrame::setHorizontalSpacing, nLabelSlider, nSliderButton);
    d->ui->horizontalLayout->setSpacing(nSliderButton);
    d->ui->horizontalLayout_2->setSpacing(nSliderButton);
}

/*!
    Sets the gap between the panels, and that between a panel's fields and its
    lock, to \a nVal pixels. The latter is set by setHorizontalSpacing() too: the
    later call decides.
*/
void RectEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->horizontalLayout->setSpacing(nVal);
    d->ui->horizontalLayout_2->setSpacing(nVal);
    d->ui->verticalLayout->setSpacing(nVal);
}

/*! SliderEditFrame::setLabelWidthRange() of the field \a type. */
void RectEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label width range",
                  &SliderEditFrame::setLabelWidthRange, maxw, minw);
}

/*! SliderEditFrame::setLabelFixedWidth() of the field \a type. */
void RectEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label fixed width",
                  &SliderEditFrame::setLabelFixedWidth, w);
}

/*! SliderEditFrame::setButtonWidthRange() of the field \a type. */
void RectEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect button width range",
                  &SliderEditFrame::setButtonWidthRange, maxw, minw);
}

/*! SliderEditFrame::setButtonFixedWidth() of the field \a type. */
void RectEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect button fixed width",
                  &SliderEditFrame::setButtonFixedWidth, w);
}

/*! SliderEditFrame::setSpinBoxWidthRange() of the field \a type. */
void RectEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect spinbox width range",
                  &SliderEditFrame::setSpinBoxWidthRange, maxw, minw);
}

/*! SliderEditFrame::setSpinBoxFixedWidth() of the field \a type. */
void RectEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect spinbox fixed width",
                  &SliderEditFrame::setSpinBoxFixedWidth, w);
}

/*! SliderEditFrame::setSpinBoxWheelEnable() of every field. */
void RectEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&SliderEditFrame::setSpinBoxWheelEnable, b);
}

/*! Shows \a val in the field \a type, clamped to its range. Emits nothing. */
void RectEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value", &SliderEditFrame::setValue, val);
}

/*! Shows \a x, \a y, \a w and \a h, each clamped to its field's range. Emits nothing. */
void RectEditFrame::setValue(int x, int y, int w, int h)
{
    d->ui->frameX->setValue(x);
    d->ui->frameY->setValue(y);
    d->ui->frameWidth->setValue(w);
    d->ui->frameHeight->setValue(h);
}

/*! Shows \a rect, each component clamped to its field's range. Emits nothing. */
void RectEditFrame::setValue(const QRect &rect)
{
    d->ui->frameX->setValue(rect.left());
    d->ui->frameY->setValue(rect.top());
    d->ui->frameWidth->setValue(Internal::saturatedInt(qint64(rect.right()) - rect.left() + 1));
    d->ui->frameHeight->setValue(Internal::saturatedInt(qint64(rect.bottom()) - rect.top() + 1));
}

/*! Writes the fields' values to \a x, \a y, \a w and \a h. */
void RectEditFrame::value(int &x, int &y, int &w, int &h)
{
    x = d->ui->frameX->value();
    y = d->ui->frameY->value();
    w = d->ui->frameWidth->value();
    h = d->ui->frameHeight->value();
}

/*! Writes the rectangle that the fields show to \a rect. */
void RectEditFrame::value(QRect &rect)
{
    rect = Internal::saturatedRect(d->ui->frameX->value(), d->ui->frameY->value(),
                                   d->ui->frameWidth->value(), d->ui->frameHeight->value());
}

/*! SliderEditFrame::setRange() of the field \a type. Emits nothing. */
void RectEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value range", &SliderEditFrame::setRange, min,
                  max);
}

/*! Writes the range of the field \a type to \a min and \a max; leaves them where it names none. */
void RectEditFrame::range(Type type, int &min, int &max)
{
    if (const auto *field = d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Get Rect value range")) {
        min = field->minimum();
        max = field->maximum();
    }
}

/*! SliderEditFrame::setSingleStep() of the field \a type. */
void RectEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect single step", &SliderEditFrame::setSingleStep,
                  val);
}

/*! SliderEditFrame::setPageStep() of the field \a type. */
void RectEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect page step", &SliderEditFrame::setPageStep,
                  val);
}

/*! SliderEditFrame::setValueChangeDirection() of the field \a type. */
void RectEditFrame::setValueChangeDirection(Type type, int directions, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value change direction",
                  &SliderEditFrame::setValueChangeDirection, directions, val);
}

/*! SliderEditFrame::setAutoRepeat() of every field. */
void RectEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&SliderEditFrame::setAutoRepeat, b);
}

/*! SliderEditFrame::setAutoRepeatDelay() of every field. */
void RectEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatDelay, val);
}

/*! SliderEditFrame::setAutoRepeatInterval() of every field. */
void RectEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatInterval, val);
}

/*! SliderEditFrame::setReleaseMode() of every field. */
void RectEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&SliderEditFrame::setReleaseMode, b);
}

/*! SliderEditFrame::setTimeSamplingRate() of every field. */
void RectEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&SliderEditFrame::setTimeSamplingRate, val);
}

/*! Lets the space below the panels take the spare height, if \a b is true; else the panels do. */
void RectEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

/*! True while the pointer holds the slider of any field. */
bool RectEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

/*! Shows the position's lock button, if \a b is true, else its placeholder. The lock stays. */
void RectEditFrame::setPositionLockEnable(bool b)
{
    d->ui->toolButtonLockPosition->setVisible(b);
    d->ui->frameSpacerLockPosition->setVisible(!b);
}

/*!
    Shows the size's lock button, if \a b is true, else its placeholder, and
    makes the lock one of \a type. Whether it is on does not change.
*/
void RectEditFrame::setSizeLockEnable(bool b, LockType type)
{
    d->ui->toolButtonLockSize->setVisible(b);
    d->ui->frameSpacerLockSize->setVisible(!b);
    d->m_sizeLockType = type;
}

/*!
    Switches the size lock to \a bLock and, on, takes the size shown as its
    basis. Emits sizeLockChanged() only where the button's state changes.
*/
void RectEditFrame::setSizeLock(bool bLock)
{
    d->setSizeLock(bLock);
}

/*!
    Makes \a ratio, width by height, the proportion of the size lock, in
    thousandths. It lasts until the lock is switched on again. With one that
    rounds to 0 the width is free, and a change of the height sends the width
    to 0; one below 0 is of no use.
*/
void RectEditFrame::setSizeLock(qreal ratio)
{
    constexpr int basis = 1000;
    d->m_lockedSize = QSize(Internal::saturatedInt(std::round(ratio * basis)), basis);
}

} // namespace Widgets
} // namespace Vantor
