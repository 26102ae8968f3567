#include "slidereditframe.h"

#include "saturation_p.h"
#include "sliderengine_p.h"
#include "ui_slidereditframe.h"

#include <QtCore/QTimerEvent>

#include <array>
#include <charconv>

namespace Vantor {
namespace Widgets {

namespace Internal {

class SliderEditPrivate
    : public SliderEngine<SliderEditPrivate, SliderEditFrame, Ui::SliderEditFrame, int>
{
    Q_OBJECT

public:
    using SliderEngine::SliderEngine;

    void createConnects() { connectRow(QOverload<int>::of(&QSpinBox::valueChanged)); }

    SliderEditSpinBox *spinBox() const { return ui->spinBox; }
    static int toPosition(int val) { return val; }
    static int toValue(int position) { return position; }
    bool isLastValue(int val) const { return val == m_nLastValue; }
    bool isNewAtRelease(int position) const { return !isLastValue(position); }
    static constexpr bool spinBoxFollowsInReleaseMode = false;
    void showInSpinBox(int val);
    void handToCalculator(int val);

private Q_SLOTS:
    // The interface fixes all thirteen; the presses and releases of the buttons
    // mean nothing yet.
    void slotSpinBoxEditingFinished();
    void slotSpinBoxEnterFinished();
    void slotButtonSubtractClicked();
    void slotButtonSubtractPressed() { }
    void slotButtonSubtractReleased() { }
    void slotButtonPlusClicked();
    void slotButtonPlusPressed() { }
    void slotButtonPlusReleased() { }
    void slotSpinBoxValueChanged(int val) { spinBoxValueChanged(val); }
    void slotSliderMoved(int val) { sliderMoved(val); }
    void slotSliderValueChanged(int val) { sliderValueChanged(val); }
    void slotSliderReleased() { sliderReleased(); }
    void slotSliderPressed() { sliderPressed(); }

private:
    friend SliderEngine; // connects the slots
};

namespace {

// text == QString::number(val), without the string.
bool isTextOf(const QString &text, int val)
{
    std::array<char, 12> digits;
    const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), val).ptr;
    return text == QLatin1String(digits.data(), static_cast<int>(end - digits.data()));
}

} // namespace

// Composite editors set all their rows at every move of one. The text decides
// as well: a failed entry may show another number than the value.
void SliderEditPrivate::showInSpinBox(int val)
{
    if (val == spinValue() && isTextOf(ui->spinBox->text(), val)) {
        return;
    }
    const QSignalBlocker blocker(ui->spinBox);
    ui->spinBox->setValue(val);
}

void SliderEditPrivate::handToCalculator(int val)
{
    constexpr int shownDecimals = 0;
    ui->spinBox->setSpinBoxCal(val, ui->spinBox->maximum(), ui->spinBox->minimum(), shownDecimals,
                               typedDecimals);
}

void SliderEditPrivate::slotSpinBoxEditingFinished()
{
    qDebug("SpinBox editing finished");
    editingFinished();
}

void SliderEditPrivate::slotSpinBoxEnterFinished()
{
    enterFinished();
    qDebug("SpinBox lose focus.");
}

void SliderEditPrivate::slotButtonSubtractClicked()
{
    const qint64 next = qint64(spinValue()) - ui->spinBox->singleStep();
    if (next >= ui->spinBox->minimum()) {
        report(saturatedInt(next));
    }
}

void SliderEditPrivate::slotButtonPlusClicked()
{
    const qint64 next = qint64(spinValue()) + ui->spinBox->singleStep();
    if (next <= ui->spinBox->maximum()) {
        report(saturatedInt(next));
    }
}

} // namespace Internal

/*!
    \class SliderEditFrame slidereditframe.h vantorslider/slidereditframe.h
    \brief A labelled editor for an integer parameter: name, slider, spin box,
    minus and plus button in one row.

    The spin box takes a typed arithmetic expression. valueChanged() reports
    what the user did through the row's children, never what the setters did:
    no setter emits anything, even where it clamps the value. Hiding or disabling
    the slider ends a drag, whose last value is reported then.

    Style sheets select on the dynamic properties "isSliderFrame" of the frame,
    "isSliderEditSubtract" and "isSliderEditPlus" of the buttons, and on the
    children's object names "labelName", "slider", "spinBox",
    "sliderEditSubtract" and "sliderEditPlus".
*/

/*!
    \enum SliderEditFrame::ValueChangeDirection
    \brief On which side of a reference value reported values are held.

    \var SliderEditFrame::AllowedToBigger
    Values may not fall below the reference.
    \var SliderEditFrame::AllowedToSmaller
    Values may not rise above the reference.
    \var SliderEditFrame::AllowedToAny
    No restriction; the default.
*/

/*!
    \fn void SliderEditFrame::valueChanged(int val)
    \brief The user changed the value to \a val.

    When it is emitted during a drag is decided by setReleaseMode() and
    setTimeSamplingRate(). A value held at the reference of
    setValueChangeDirection() is emitted on every attempt to pass it.

    A receiver that does away with the editor calls deleteLater(): above the
    signal may stand functions of QSlider or QSpinBox that go on with it.
*/

/*! Builds a row with Qt's default range of a spin box, 0 to 99. Emits nothing. */
SliderEditFrame::SliderEditFrame(QWidget *parent)
    : QFrame(parent), d(new Internal::SliderEditPrivate(this))
{
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

SliderEditFrame::~SliderEditFrame()
{
    delete d;
    d = nullptr;
}

/*!
    Sets the distance between label and slider to \a nLabelSlider and the
    distances from the slider to the spin box and on to the buttons to
    \a nSliderButton, in pixels.
*/
void SliderEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->row().setHorizontalSpacing(nLabelSlider, nSliderButton);
}

/*!
    Shows \a text as the row's name. It also becomes the accessible name of
    the row, its slider and its spin box, and with a minus or plus sign that of the buttons.
*/
void SliderEditFrame::setLabelText(const QString &text)
{
    d->row().setLabelText(text);
}

/*! The text shown as the row's name. */
QString SliderEditFrame::labelText() const
{
    return d->ui->labelName->text();
}

/*! Limits the label's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrame::setLabelWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->labelName, maxw, minw);
}

/*! Makes the label \a w pixels wide. */
void SliderEditFrame::setLabelFixedWidth(int w)
{
    d->ui->labelName->setFixedWidth(w);
}

/*! Limits each button's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrame::setButtonWidthRange(int maxw, int minw)
{
    d->row().setButtonWidthRange(maxw, minw);
}

/*! Makes each button \a w pixels wide. */
void SliderEditFrame::setButtonFixedWidth(int w)
{
    d->row().setButtonFixedWidth(w);
}

/*! Limits the spin box's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrame::setSpinBoxWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->spinBox, maxw, minw);
}

/*! Makes the spin box \a w pixels wide. */
void SliderEditFrame::setSpinBoxFixedWidth(int w)
{
    d->ui->spinBox->setFixedWidth(w);
}

/*! Lets the wheel step the spin box while it has the focus, if \a b is true; off at first. */
void SliderEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->ui->spinBox->setWheelEnable(b);
}

/*!
    Shows or hides the slider; without it the other children stay packed beside
    the label. Hiding it ends a drag, whose last value is reported then.
*/
void SliderEditFrame::setSliderVisible(bool b)
{
    d->row().setSliderVisible(b);
}

/*! Shows or hides both buttons. */
void SliderEditFrame::setButtonVisible(bool b)
{
    d->row().setButtonVisible(b);
}

/*! Sets the slider's property \a name to \a value, for style sheets that select on it. */
void SliderEditFrame::setSliderProperty(const char *name, const QVariant &value)
{
    d->ui->slider->setProperty(name, value);
}

/*!
    Shows \a val on slider and spin box, clamped to their range, and hands the
    range to the spin box's calculator. Emits nothing.
*/
void SliderEditFrame::setValue(int val)
{
    d->apply(val);
}

/*! The value that the spin box holds. */
int SliderEditFrame::value()
{
    return d->ui->spinBox->value();
}

/*!
    Sets the range of slider and spin box to \a min up to \a max; an inverted
    range becomes \a min alone. A value outside is clamped. Emits nothing. The
    calculator learns the new range from the next setValue(). The handle of a
    range of exactly 2 to the 31st steps begins one above \a min.
*/
void SliderEditFrame::setRange(int min, int max)
{
    {
        const QSignalBlocker blocker(d->ui->spinBox);
        d->ui->spinBox->setRange(min, max);
    }
    const QSignalBlocker blocker(d->ui->slider);
    d->ui->slider->setScale(min, max);
}

/*! Sets the lower end of the range to \a min, raising the upper one to it; as setRange(). */
void SliderEditFrame::setMinimum(int min)
{
    setRange(min, qMax(min, maximum()));
}

/*! Sets the upper end of the range to \a max, lowering the lower one to it; as setRange(). */
void SliderEditFrame::setMaximum(int max)
{
    setRange(qMin(minimum(), max), max);
}

/*! The lower end of the range. */
int SliderEditFrame::minimum() const
{
    return d->ui->spinBox->minimum();
}

/*! The upper end of the range. */
int SliderEditFrame::maximum() const
{
    return d->ui->spinBox->maximum();
}

/*!
    Sets the step of buttons, arrow keys and wheel to \a val. A negative one is
    ignored by the spin box; the slider's own step becomes its absolute value.
*/
void SliderEditFrame::setSingleStep(int val)
{
    d->ui->spinBox->setSingleStep(val);
    d->ui->slider->setSingleStep(val);
}

/*! The step of the buttons. */
int SliderEditFrame::singleStep()
{
    return d->ui->spinBox->singleStep();
}

/*! Sets the step of a click on the slider's groove to \a val. */
void SliderEditFrame::setPageStep(int val)
{
    d->ui->slider->setPageStep(val);
}

/*! The step of a click on the slider's groove. */
int SliderEditFrame::pageStep() const
{
    return d->ui->slider->pageStep();
}

/*! Lets a held button repeat its step, if \a b is true. Each repetition is reported. */
void SliderEditFrame::setAutoRepeat(bool b)
{
    d->row().setAutoRepeat(b);
}

/*! Sets the time before a held button repeats to \a val milliseconds. */
void SliderEditFrame::setAutoRepeatDelay(int val)
{
    d->row().setAutoRepeatDelay(val);
}

/*! Sets the time between a held button's repetitions to \a val milliseconds. */
void SliderEditFrame::setAutoRepeatInterval(int val)
{
    d->row().setAutoRepeatInterval(val);
}

/*!
    Reports a drag once, when the handle is let go, if \a b is true. Release
    mode switches the buttons' auto-repeat off, leaving it switches it on.
*/
void SliderEditFrame::setReleaseMode(bool b)
{
    d->m_isReleaseMode = b;
    setAutoRepeat(!b);
}

/*!
    Reports a drag at most once every \a val milliseconds and at its end.
    Leaves release mode, which switches the buttons' auto-repeat on. Nothing
    switches sampling off again.
*/
void SliderEditFrame::setTimeSamplingRate(int val)
{
    d->m_nTimeSamplingRate = val;
    d->m_isTimeSampling = true;
    setReleaseMode(false);
}

/*!
    Holds every reported value on one side of \a val. \a directions is a
    combination of ValueChangeDirection; anything without AllowedToBigger means
    AllowedToSmaller. The value shown now does not change.
*/
void SliderEditFrame::setValueChangeDirection(int directions, int val)
{
    d->m_valueChangeDirection = directions;
    d->m_readValue = val;
}

/*! True while the pointer holds the slider; false as soon as it leaves it. */
bool SliderEditFrame::isMousePressed() const
{
    return d->ui->slider->isMousePressed();
}

/*! Selects the spin box's text when the user enters it. */
bool SliderEditFrame::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->ui->spinBox) {
        return QFrame::eventFilter(watched, event);
    }
    d->row().selectAllOnEntry(this, event);
    return false;
}

/*! The sampling tick. */
void SliderEditFrame::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->m_nSamplingTimer) {
        d->sample();
    }
}

} // namespace Widgets
} // namespace Vantor

#include "slidereditframe.moc"
