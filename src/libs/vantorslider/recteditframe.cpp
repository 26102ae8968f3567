#include "recteditframe.h"

#include "childwidget_p.h"
#include "recteditframe_p.h"
#include "saturation_p.h"

#include <cmath>

namespace Vantor::Widgets {

using Row = SliderEditFrame;

// Whether the other panel's lock is shown. A style sheet can collapse the placeholder of a hidden
// lock unless it is set, so that the rows of both panels stay aligned.
static const char *const besideLock = "isBesideLock";

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

SliderEditFrame *RectEditFrame::row(Type type) const
{
    return d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Get Rect row");
}

QList<SliderEditFrame *> RectEditFrame::rows() const
{
    return d->rows().frames();
}

void RectEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label text", &Row::setLabelText, text);
}

// The warning is that of the setter since 1.0; hosts may look for it in their logs.
QString RectEditFrame::labelText(Type type) const
{
    const auto *field = d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Set Rect label text");
    return field != nullptr ? field->labelText() : QString();
}

void RectEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
    for (QWidget *panel : {d->ui->framePosition, d->ui->frameSize}) {
        Internal::setShown(panel, (types & d->rows().typesIn(panel)) != 0);
    }
    for (const QLayout *column : {d->ui->verticalLayout, d->ui->verticalLayoutFramePosition,
                                  d->ui->verticalLayoutFrameSize}) {
        Internal::markTopmost(column);
    }
}

void RectEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&Row::setHorizontalSpacing, nLabelSlider, nSliderButton);
    d->ui->horizontalLayout->setSpacing(nSliderButton);
    d->ui->horizontalLayout_2->setSpacing(nSliderButton);
}

void RectEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->horizontalLayout->setSpacing(nVal);
    d->ui->horizontalLayout_2->setSpacing(nVal);
    d->ui->verticalLayout->setSpacing(nVal);
}

void RectEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label width range", &Row::setLabelWidthRange,
                  maxw, minw);
}

void RectEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect label fixed width", &Row::setLabelFixedWidth,
                  w);
}

void RectEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect button width range", &Row::setButtonWidthRange,
                  maxw, minw);
}

void RectEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect button fixed width", &Row::setButtonFixedWidth,
                  w);
}

void RectEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect spinbox width range",
                  &Row::setSpinBoxWidthRange, maxw, minw);
}

void RectEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect spinbox fixed width",
                  &Row::setSpinBoxFixedWidth, w);
}

void RectEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&Row::setSpinBoxWheelEnable, b);
}

void RectEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value", &Row::setValue, val);
}

void RectEditFrame::setValue(int x, int y, int w, int h)
{
    d->ui->frameX->setValue(x);
    d->ui->frameY->setValue(y);
    d->ui->frameWidth->setValue(w);
    d->ui->frameHeight->setValue(h);
}

void RectEditFrame::setValue(const QRect &rect)
{
    d->ui->frameX->setValue(rect.left());
    d->ui->frameY->setValue(rect.top());
    d->ui->frameWidth->setValue(Internal::saturatedExtent(rect.left(), rect.right()));
    d->ui->frameHeight->setValue(Internal::saturatedExtent(rect.top(), rect.bottom()));
}

void RectEditFrame::value(int &x, int &y, int &w, int &h)
{
    x = d->ui->frameX->value();
    y = d->ui->frameY->value();
    w = d->ui->frameWidth->value();
    h = d->ui->frameHeight->value();
}

void RectEditFrame::value(QRect &rect)
{
    rect = rectangle();
}

void RectEditFrame::setRectangle(const QRect &rectangle)
{
    RectEditFrame::setValue(rectangle);
}

QRect RectEditFrame::rectangle() const
{
    return Internal::saturatedRect(d->ui->frameX->value(), d->ui->frameY->value(),
                                   d->ui->frameWidth->value(), d->ui->frameHeight->value());
}

QRect RectEditFrame::committedRectangle()
{
    return Internal::committed(this, &RectEditFrame::rectangle);
}

void RectEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value range", &Row::setRange, min, max);
}

void RectEditFrame::range(Type type, int &min, int &max)
{
    if (const auto *field = d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Get Rect value range")) {
        min = field->minimum();
        max = field->maximum();
    }
}

void RectEditFrame::resetValues()
{
    d->rows().all(&Row::resetValue);
}

void RectEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect single step", &Row::setSingleStep, val);
}

void RectEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect page step", &Row::setPageStep, val);
}

void RectEditFrame::setValueChangeDirection(Type type, int directions, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set Rect value change direction",
                  &Row::setValueChangeDirection, directions, val);
}

void RectEditFrame::setEntryOptions(EntryOptions options)
{
    d->rows().all(&Row::setEntryOptions, options);
}

EntryOptions RectEditFrame::entryOptions() const
{
    return d->ui->frameX->entryOptions();
}

bool RectEditFrame::hasPendingEntry() const
{
    return Internal::hasPendingEntry(rows());
}

void RectEditFrame::finishEntry()
{
    Internal::finishEntries(rows());
}

void RectEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&Row::setAutoRepeat, b);
}

void RectEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&Row::setAutoRepeatDelay, val);
}

void RectEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&Row::setAutoRepeatInterval, val);
}

void RectEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&Row::setReleaseMode, b);
}

void RectEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&Row::setTimeSamplingRate, val);
}

int RectEditFrame::lastVerticalSpace() const
{
    return d->ui->verticalSpacer->sizeHint().height();
}

void RectEditFrame::setLastVerticalSpace(int height)
{
    Internal::setSpacerHeight(d->ui->verticalSpacer, d->ui->verticalLayout, height);
}

void RectEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

bool RectEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

void RectEditFrame::setPositionLockEnable(bool b)
{
    Internal::setShown(d->ui->toolButtonLockPosition, b);
    Internal::setShown(d->ui->frameSpacerLockPosition, !b);
    Internal::setStyledProperty(d->ui->frameSpacerLockSize, besideLock, b);
}

void RectEditFrame::setSizeLockEnable(bool b, LockType type)
{
    Internal::setShown(d->ui->toolButtonLockSize, b);
    Internal::setShown(d->ui->frameSpacerLockSize, !b);
    Internal::setStyledProperty(d->ui->frameSpacerLockPosition, besideLock, b);
    d->m_sizeLockType = type;
}

QToolButton *RectEditFrame::lockButton(Type type) const
{
    if (type == Position) {
        return d->ui->toolButtonLockPosition;
    }
    if (type == Size) {
        return d->ui->toolButtonLockSize;
    }
    Internal::warnOfType(type, VANTORSLIDER_HERE, "Get Rect lock button");
    return nullptr;
}

bool RectEditFrame::lockToolTips() const
{
    return d->m_hasLockToolTips;
}

void RectEditFrame::setLockToolTips(bool b)
{
    d->m_hasLockToolTips = b;
    d->ui->toolButtonLockPosition->removeEventFilter(d);
    if (b) {
        d->ui->toolButtonLockPosition->installEventFilter(d);
    }
}

void RectEditFrame::setSizeLock(bool bLock)
{
    d->setSizeLock(bLock);
}

void RectEditFrame::setSizeLock(qreal ratio)
{
    constexpr int basis = 1000;
    d->m_lockedSize = QSize(Internal::saturatedInt(std::round(ratio * basis)), basis);
}

void RectEditFrame::setSizeLockRatio(const QSize &ratio)
{
    if (!ratio.isEmpty()) {
        d->m_lockedSize = ratio;
    }
}

void RectEditFrame::setPositionLock(bool bLock)
{
    d->setPositionLock(bLock);
}

bool RectEditFrame::isPositionLocked() const
{
    return d->m_isLockedPosition;
}

bool RectEditFrame::isSizeLocked() const
{
    return d->m_isLockedSize;
}

qreal RectEditFrame::sizeLockRatio() const
{
    const QSize basis = d->m_lockedSize;
    return isSizeLocked() && basis.height() != 0 ? qreal(basis.width()) / basis.height() : 0;
}

} // namespace Vantor::Widgets
