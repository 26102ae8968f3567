#include "slidereditframedouble.h"

#include "saturation_p.h"
#include "sliderengine_p.h"
#include "ui_slidereditframedouble.h"

#include <QtCore/QSignalBlocker>
#include <QtCore/QTimerEvent>

#include <cmath>

namespace Vantor {
namespace Widgets {

namespace Internal {

// The slider's positions are the value times the magnification.
class SliderEditDoublePrivate : public SliderEngine<SliderEditDoublePrivate, SliderEditFrameDouble,
                                                    Ui::SliderEditFrameDouble, double>
{
    Q_OBJECT

public:
    using SliderEngine::SliderEngine;

    void createConnects() { connectRow(QOverload<double>::of(&QDoubleSpinBox::valueChanged)); }

    SliderEditDoubleSpinBox *spinBox() const { return ui->doubleSpinBox; }
    int toPosition(double val) const { return saturatedInt(std::round(val * m_nMagnification)); }
    double toValue(int position) const { return double(position) / m_nMagnification; }
    bool isLastValue(double val) const { return std::fabs(val - m_nLastValue) < m_nMinPrecision; }
    // Unlike the integer field this one follows the handle in release mode too, and
    // so has the slider's value: no valueChanged() of the slider comes at release.
    static constexpr bool spinBoxFollowsInReleaseMode = true;
    bool isNewAtRelease(int pos) const { return m_isReleaseMode && pos != m_nLastPressedValue; }
    void showInSpinBox(double val);
    void handToCalculator(double val);

    // Values closer than this are equal; bounds are nudged up by it.
    double m_nMinPrecision = 1e-8;
    int m_nPrecision = 2;
    double m_dSingleStep = 0.01;
    // 10 to the power of the precision only once setDecimals() has run.
    int m_nMagnification = 1;

private Q_SLOTS:
    // The interface fixes all thirteen; the presses and releases of the buttons
    // mean nothing yet.
    void slotSpinBoxEditingFinished() { editingFinished(); }
    void slotSpinBoxEnterFinished() { enterFinished(); }
    void slotButtonSubtractClicked();
    void slotButtonSubtractPressed() { }
    void slotButtonSubtractReleased() { }
    void slotButtonPlusClicked();
    void slotButtonPlusPressed() { }
    void slotButtonPlusReleased() { }
    void slotSpinBoxValueChanged(double val) { spinBoxValueChanged(val); }
    void slotSliderMoved(int pos) { sliderMoved(pos); }
    void slotSliderValueChanged(int pos) { sliderValueChanged(pos); }
    void slotSliderReleased() { sliderReleased(); }
    void slotSliderPressed() { sliderPressed(); }

private:
    friend SliderEngine; // connects the slots
};

void SliderEditDoublePrivate::showInSpinBox(double val)
{
    const QSignalBlocker blocker(ui->doubleSpinBox);
    ui->doubleSpinBox->setValue(val);
}

void SliderEditDoublePrivate::handToCalculator(double val)
{
    constexpr int shownDecimals = 2;
    constexpr bool hasSuffix = false;
    ui->doubleSpinBox->setSpinBoxCal(
        saturatedFloat(val), saturatedFloat(ui->doubleSpinBox->maximum()),
        saturatedFloat(ui->doubleSpinBox->minimum()), shownDecimals, typedDecimals, hasSuffix);
}

void SliderEditDoublePrivate::slotButtonSubtractClicked()
{
    const double next = spinValue() - ui->doubleSpinBox->singleStep();
    if (next >= ui->doubleSpinBox->minimum()) {
        report(next);
    }
}

void SliderEditDoublePrivate::slotButtonPlusClicked()
{
    const double next = spinValue() + ui->doubleSpinBox->singleStep();
    if (next <= ui->doubleSpinBox->maximum() + m_nMinPrecision) {
        report(next);
    }
}

} // namespace Internal

/*!
    \class SliderEditFrameDouble slidereditframedouble.h vantorslider/slidereditframedouble.h
    \brief A labelled editor for a floating-point parameter: the twin of
    SliderEditFrame for \c double values with a given number of decimals.

    The slider works in whole positions: the value times 10 to the power of
    the decimals. Values that would leave \c int there stop at its ends, so the
    range times that power should stay within \c int. Values that are not a
    number are ignored by every setter.

    valueChanged() reports what the user did, never what the setters did. The
    dynamic properties and object names are those of SliderEditFrame, except
    that the spin box is named "doubleSpinBox".
*/

/*!
    \enum SliderEditFrameDouble::ValueChangeDirection
    \brief On which side of a reference value reported values are held.

    \var SliderEditFrameDouble::AllowedToBigger
    Values may not fall below the reference.
    \var SliderEditFrameDouble::AllowedToSmaller
    Values may not rise above the reference.
    \var SliderEditFrameDouble::AllowedToAny
    No restriction; the default.
*/

/*!
    \fn void SliderEditFrameDouble::valueChanged(double val)
    \brief The user changed the value to \a val.
*/

/*!
    Builds a row with two decimals and Qt's default range of a spin box, 0 to
    99.99. Until the first call that sets decimals or a range, a slider
    position is the value rounded to a whole number.
*/
SliderEditFrameDouble::SliderEditFrameDouble(QWidget *parent)
    : QFrame(parent), d(new Internal::SliderEditDoublePrivate(this))
{
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

SliderEditFrameDouble::~SliderEditFrameDouble()
{
    delete d;
    d = nullptr;
}

/*! As SliderEditFrame::setHorizontalSpacing(). */
void SliderEditFrameDouble::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->row().setHorizontalSpacing(nLabelSlider, nSliderButton);
}

/*! As SliderEditFrame::setLabelText(). */
void SliderEditFrameDouble::setLabelText(const QString &text)
{
    d->row().setLabelText(text);
}

/*! The text shown as the row's name. */
QString SliderEditFrameDouble::labelText() const
{
    return d->ui->labelName->text();
}

/*! Limits the label's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrameDouble::setLabelWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->labelName, maxw, minw);
}

/*! Makes the label \a w pixels wide; 80 at first. */
void SliderEditFrameDouble::setLabelFixedWidth(int w)
{
    d->ui->labelName->setFixedWidth(w);
}

/*! Limits each button's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrameDouble::setButtonWidthRange(int maxw, int minw)
{
    d->row().setButtonWidthRange(maxw, minw);
}

/*! Makes each button \a w pixels wide. */
void SliderEditFrameDouble::setButtonFixedWidth(int w)
{
    d->row().setButtonFixedWidth(w);
}

/*! Limits the spin box's width to \a maxw at most and \a minw at least, in pixels. */
void SliderEditFrameDouble::setSpinBoxWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->doubleSpinBox, maxw, minw);
}

/*! Makes the spin box \a w pixels wide. */
void SliderEditFrameDouble::setSpinBoxFixedWidth(int w)
{
    d->ui->doubleSpinBox->setFixedWidth(w);
}

/*! As SliderEditFrame::setSpinBoxWheelEnable(). */
void SliderEditFrameDouble::setSpinBoxWheelEnable(bool b)
{
    d->ui->doubleSpinBox->setWheelEnable(b);
}

/*! As SliderEditFrame::setSliderVisible(). */
void SliderEditFrameDouble::setSliderVisible(bool b)
{
    d->row().setSliderVisible(b);
}

/*! Sets the slider's property \a name to \a value, for style sheets that select on it. */
void SliderEditFrameDouble::setSliderProperty(const char *name, const QVariant &value)
{
    d->ui->slider->setProperty(name, value);
}

/*!
    Shows \a val, rounded to the decimals and clamped to the range, and hands
    the range to the spin box's calculator. Emits nothing; not a number is
    ignored.
*/
void SliderEditFrameDouble::setValue(double val)
{
    if (!std::isnan(val)) {
        d->apply(val);
    }
}

/*! The value that the spin box holds. */
double SliderEditFrameDouble::value()
{
    return d->ui->doubleSpinBox->value();
}

/*!
    Sets the range to \a min up to \a max, each rounded to the decimals. A
    value outside is clamped. Emits nothing. The calculator learns the new
    range from the next setValue(), the handle its new place.
*/
void SliderEditFrameDouble::setRange(double min, double max)
{
    if (std::isnan(min) || std::isnan(max)) {
        return;
    }
    const QSignalBlocker blocker(d->ui->doubleSpinBox);
    d->ui->doubleSpinBox->setRange(min + d->m_nMinPrecision, max + d->m_nMinPrecision);
    setDecimals(d->m_nPrecision);
}

/*! Sets the lower end of the range to \a min; otherwise as setRange(). */
void SliderEditFrameDouble::setMinimum(double min)
{
    if (std::isnan(min)) {
        return;
    }
    {
        const QSignalBlocker blocker(d->ui->doubleSpinBox);
        d->ui->doubleSpinBox->setMinimum(min + d->m_nMinPrecision);
    }
    setDecimals(d->m_nPrecision);
    // Without decimals the slider stands at the spin box's rounded bound already.
    if (decimals() != 0) {
        const QSignalBlocker blocker(d->ui->slider);
        d->ui->slider->setScale(d->toPosition(min), d->ui->slider->maximum());
    }
}

/*! Sets the upper end of the range to \a max; otherwise as setRange(). */
void SliderEditFrameDouble::setMaximum(double max)
{
    if (std::isnan(max)) {
        return;
    }
    {
        const QSignalBlocker blocker(d->ui->doubleSpinBox);
        const double bound = max + d->m_nMinPrecision;
        if (bound < minimum()) {
            // Qt moves the other end along too, but forgets it at the next change
            // of decimals.
            d->ui->doubleSpinBox->setMinimum(bound);
        }
        d->ui->doubleSpinBox->setMaximum(bound);
    }
    setDecimals(d->m_nPrecision);
    if (decimals() != 0) {
        const QSignalBlocker blocker(d->ui->slider);
        const int highest = d->toPosition(max);
        d->ui->slider->setScale(qMin(d->ui->slider->minimum(), highest), highest);
    }
}

/*! The lower end of the range. */
double SliderEditFrameDouble::minimum() const
{
    return d->ui->doubleSpinBox->minimum();
}

/*! The upper end of the range. */
double SliderEditFrameDouble::maximum() const
{
    return d->ui->doubleSpinBox->maximum();
}

/*!
    Shows \a prec decimals, none where it is negative, and scales slider range
    and step by 10 to the power of \a prec. Range and value are rounded to the
    new decimals. The handle keeps its position until the next setValue().
    Emits nothing.
*/
void SliderEditFrameDouble::setDecimals(int prec)
{
    const QSignalBlocker spinBoxBlocker(d->ui->doubleSpinBox);
    d->m_nPrecision = prec;
    d->ui->doubleSpinBox->setDecimals(prec);
    d->m_nMagnification = qMax(1, Internal::saturatedInt(std::pow(10.0, prec)));

    const int lowest = d->toPosition(minimum());
    const int highest = d->toPosition(maximum());
    d->ui->doubleSpinBox->setRange(d->toValue(lowest), d->toValue(highest));

    const QSignalBlocker sliderBlocker(d->ui->slider);
    d->ui->slider->setScale(lowest, highest);
    if (d->m_dSingleStep > d->m_nMinPrecision) {
        d->ui->slider->setSingleStep(d->toPosition(d->m_dSingleStep));
    }
}

/*! The number of decimals shown. */
int SliderEditFrameDouble::decimals() const
{
    return d->ui->doubleSpinBox->decimals();
}

/*!
    Sets the step of buttons, arrow keys and wheel to \a val. The slider's own
    step, for its arrow keys, follows with the next call that sets decimals or
    a range: set the step before them.
*/
void SliderEditFrameDouble::setSingleStep(double val)
{
    if (std::isnan(val)) {
        return;
    }
    d->m_dSingleStep = val;
    d->ui->doubleSpinBox->setSingleStep(val);
}

/*! The step of the buttons. */
double SliderEditFrameDouble::singleStep() const
{
    return d->ui->doubleSpinBox->singleStep();
}

/*! Sets the step of a click on the slider's groove to \a val slider positions. */
void SliderEditFrameDouble::setPageStep(int val)
{
    d->ui->slider->setPageStep(val);
}

/*! The step of a click on the slider's groove, in slider positions. */
int SliderEditFrameDouble::pageStep() const
{
    return d->ui->slider->pageStep();
}

/*! As SliderEditFrame::setAutoRepeat(). */
void SliderEditFrameDouble::setAutoRepeat(bool b)
{
    d->row().setAutoRepeat(b);
}

/*! As SliderEditFrame::setAutoRepeatDelay(). */
void SliderEditFrameDouble::setAutoRepeatDelay(int val)
{
    d->row().setAutoRepeatDelay(val);
}

/*! As SliderEditFrame::setAutoRepeatInterval(). */
void SliderEditFrameDouble::setAutoRepeatInterval(int val)
{
    d->row().setAutoRepeatInterval(val);
}

/*! As SliderEditFrame::setReleaseMode(); the spin box follows the handle meanwhile. */
void SliderEditFrameDouble::setReleaseMode(bool b)
{
    d->m_isReleaseMode = b;
    setAutoRepeat(!b);
}

/*! As SliderEditFrame::setTimeSamplingRate(). */
void SliderEditFrameDouble::setTimeSamplingRate(int val)
{
    d->m_nTimeSamplingRate = val;
    d->m_isTimeSampling = true;
    setReleaseMode(false);
}

/*! As SliderEditFrame::setValueChangeDirection(); the reference \a val is a whole number. */
void SliderEditFrameDouble::setValueChangeDirection(int directions, int val)
{
    d->m_valueChangeDirection = directions;
    d->m_readValue = val;
}

/*! Selects the spin box's text when the user enters it. */
bool SliderEditFrameDouble::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->ui->doubleSpinBox) {
        return QFrame::eventFilter(watched, event);
    }
    d->row().selectAllOnEntry(this, event);
    return false;
}

/*! The sampling tick. */
void SliderEditFrameDouble::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->m_nSamplingTimer) {
        d->sample();
    }
}

/*! The number of decimals of \a num: 1 for a whole number, 0 where it has more than 10. */
int SliderEditFrameDouble::getPrecision(float num)
{
    // Single precision on purpose: 0.1F has one decimal, (double)0.1F has many.
    float fraction = num - std::trunc(num);
    for (int count = 1; count <= 10; ++count) {
        fraction *= 10.0F;
        if (std::trunc(fraction) == fraction) {
            return count;
        }
    }
    return 0;
}

/*! The power of ten that makes \a num whole, 10 at least and 1 000 000 000 at most. */
int SliderEditFrameDouble::getMagnification(float num)
{
    const int precision = getPrecision(num);
    return static_cast<int>(std::pow(10.0, precision == 0 ? 9 : qMin(precision, 9)));
}

} // namespace Widgets
} // namespace Vantor

#include "slidereditframedouble.moc"
