#include "slidereditframedouble.h"

#include "saturation_p.h"
#include "slidereditframe_p.h"
#include "sliderengine_p.h"
#include "sliderrow_p.h"
#include "ui_slidereditframedouble.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtCore/QTimerEvent>

#include <cmath>

namespace Vantor {
namespace Widgets {

namespace Internal {

// The floating-point twin of the integer engine. The spin box holds the value;
// the slider's positions are the value times the magnification.
class SliderEditDoublePrivate : public QObject
{
    Q_OBJECT

public:
    explicit SliderEditDoublePrivate(SliderEditFrameDouble *editer);
    ~SliderEditDoublePrivate() override;

    void createWidgets();
    void createConnects();
    void startSamplingTimer();
    void stopSamplingTimer();
    void sample();
    void emitValueChanged(double val);

    SliderRow row() const { return {*ui, ui->doubleSpinBox}; }

    int toPosition(double val) const { return saturatedInt(std::round(val * m_nMagnification)); }
    double toValue(int position) const { return double(position) / m_nMagnification; }

    SliderEditFrameDouble *m_pSliderEditer;
    Ui::SliderEditFrameDouble *ui;
    // Last value applied or accepted: a child's report of it is an echo.
    double m_nLastValue = 0.0;
    // Values closer than this are equal; bounds are nudged up by it.
    double m_nMinPrecision = 1e-8;
    // Slider positions, like the value at the last tick.
    int m_nLastPressedValue = -1;
    int m_nLastTimerValue = -1;
    int m_nPrecision = 2;
    double m_dSingleStep = 0.01;
    // 10 to the power of the precision only once setDecimals() has run.
    int m_nMagnification = 1;
    bool m_isReleaseMode = false;
    bool m_isTimeSampling = false;
    bool m_isTimeSamplingValueChanged = false;
    int m_nTimeSamplingRate = 100;
    int m_nSamplingTimer = -1;
    double m_readValue = 0.0;
    int m_valueChangeDirection = SliderEditFrameDouble::AllowedToAny;
    bool m_isSampleInDelivery = false;
    // The user moved the handle meanwhile: the next tick has something to report.
    bool m_isMovedInDelivery = false;

private Q_SLOTS:
    void slotSpinBoxEditingFinished();
    void slotSpinBoxEnterFinished();
    void slotButtonSubtractClicked();
    void slotButtonSubtractPressed();
    void slotButtonSubtractReleased();
    void slotButtonPlusClicked();
    void slotButtonPlusPressed();
    void slotButtonPlusReleased();
    void slotSpinBoxValueChanged(double val);
    void slotSliderMoved(int pos);
    void slotSliderValueChanged(int pos);
    void slotSliderReleased();
    void slotSliderPressed();

private:
    friend struct EngineConnections;

    double spinValue() const { return ui->doubleSpinBox->value(); }
    bool isLastValue(double val) const { return std::fabs(val - m_nLastValue) < m_nMinPrecision; }
    void report(double val);
};

SliderEditDoublePrivate::SliderEditDoublePrivate(SliderEditFrameDouble *editer)
    : m_pSliderEditer(editer), ui(new Ui::SliderEditFrameDouble)
{
}

SliderEditDoublePrivate::~SliderEditDoublePrivate()
{
    delete ui;
    ui = nullptr;
}

void SliderEditDoublePrivate::createWidgets()
{
    ui->setupUi(m_pSliderEditer);
    row().prepare(m_pSliderEditer);
}

void SliderEditDoublePrivate::createConnects()
{
    EngineConnections::make(this, *ui, ui->doubleSpinBox,
                            QOverload<double>::of(&QDoubleSpinBox::valueChanged));
}

void SliderEditDoublePrivate::startSamplingTimer()
{
    stopSamplingTimer();
    m_isTimeSamplingValueChanged = false;
    m_nLastTimerValue = toPosition(spinValue());
    m_nSamplingTimer = m_pSliderEditer->startTimer(m_nTimeSamplingRate);
}

void SliderEditDoublePrivate::stopSamplingTimer()
{
    if (m_nSamplingTimer != -1) {
        m_pSliderEditer->killTimer(m_nSamplingTimer);
    }
    m_nSamplingTimer = -1;
}

// A receiver may run an event loop of its own, in which the timer ticks on.
void SliderEditDoublePrivate::sample()
{
    if (m_isSampleInDelivery || toPosition(spinValue()) == m_nLastTimerValue) {
        return;
    }
    const QPointer<SliderEditDoublePrivate> self(this);
    m_isSampleInDelivery = true;
    m_isMovedInDelivery = false;
    emitValueChanged(spinValue());
    if (self) {
        m_isSampleInDelivery = false;
        if (!m_isMovedInDelivery) {
            m_nLastTimerValue = toPosition(spinValue());
        }
    }
}

// The direction filter. What a tick reports is not reported again where the
// receiver ends the drag. Nothing of the frame is touched after the signal, here
// and wherever this is called last: the receiver may have deleted it.
void SliderEditDoublePrivate::emitValueChanged(double val)
{
    if (!isAnyDirectionAllowed(m_valueChangeDirection)) {
        val = heldValue(m_valueChangeDirection, m_readValue, val);
        m_pSliderEditer->setValue(val);
    }
    if (m_isSampleInDelivery) {
        m_nLastTimerValue = toPosition(spinValue());
    }
    Q_EMIT m_pSliderEditer->valueChanged(val);
}

void SliderEditDoublePrivate::report(double val)
{
    m_pSliderEditer->setValue(val);
    emitValueChanged(spinValue());
}

void SliderEditDoublePrivate::slotSpinBoxEditingFinished()
{
    const QPointer<SliderEditDoublePrivate> self(this);
    ui->doubleSpinBox->setSlotEditingFinished();
    if (self && !isLastValue(spinValue())) {
        m_nLastValue = spinValue();
        emitValueChanged(spinValue());
    }
}

// Keyboard tracking is off: losing the focus is what makes the spin box
// interpret its text and report the new value. It keeps the focus where a host has
// made it the frame's proxy.
void SliderEditDoublePrivate::slotSpinBoxEnterFinished()
{
    const QPointer<SliderEditDoublePrivate> self(this);
    m_pSliderEditer->setFocus(Qt::OtherFocusReason);
    if (self && ui->doubleSpinBox->hasFocus()) {
        ui->doubleSpinBox->interpretText();
    }
}

void SliderEditDoublePrivate::slotButtonSubtractClicked()
{
    const double next = spinValue() - ui->doubleSpinBox->singleStep();
    if (next >= ui->doubleSpinBox->minimum()) {
        report(next);
    }
}

void SliderEditDoublePrivate::slotButtonSubtractPressed() { }

void SliderEditDoublePrivate::slotButtonSubtractReleased() { }

void SliderEditDoublePrivate::slotButtonPlusClicked()
{
    const double next = spinValue() + ui->doubleSpinBox->singleStep();
    if (next <= ui->doubleSpinBox->maximum() + m_nMinPrecision) {
        report(next);
    }
}

void SliderEditDoublePrivate::slotButtonPlusPressed() { }

void SliderEditDoublePrivate::slotButtonPlusReleased() { }

void SliderEditDoublePrivate::slotSpinBoxValueChanged(double val)
{
    if (!isLastValue(val)) {
        report(val);
    }
}

// Unlike the integer field this one follows the handle in release mode too.
void SliderEditDoublePrivate::slotSliderMoved(int pos)
{
    if (isLastValue(toValue(pos))) {
        return;
    }
    m_pSliderEditer->setValue(toValue(pos));
    if (m_isReleaseMode) {
        return;
    }
    if (!m_isTimeSampling) {
        emitValueChanged(spinValue());
    } else if (pos != m_nLastTimerValue) {
        m_isTimeSamplingValueChanged = true;
        m_isMovedInDelivery = true;
    }
}

void SliderEditDoublePrivate::slotSliderValueChanged(int pos)
{
    if (isLastValue(toValue(pos))) {
        return;
    }
    if (pos != m_nLastTimerValue) {
        m_isTimeSamplingValueChanged = true;
    }
    report(toValue(pos));
}

void SliderEditDoublePrivate::slotSliderReleased()
{
    const int pos = ui->slider->value();
    if (!m_isTimeSampling) {
        // The slider's value has followed the handle, so no valueChanged() of
        // the slider comes: a drag in release mode is reported here.
        if (m_isReleaseMode && pos != m_nLastPressedValue) {
            report(toValue(pos));
        }
        return;
    }
    stopSamplingTimer();
    if (pos == m_nLastTimerValue) {
        return;
    }
    m_pSliderEditer->setValue(toValue(pos));
    if (m_isTimeSamplingValueChanged) {
        emitValueChanged(spinValue());
    }
}

void SliderEditDoublePrivate::slotSliderPressed()
{
    if (m_isTimeSampling) {
        startSamplingTimer();
    }
    m_nLastPressedValue = ui->slider->value();
}

} // namespace Internal

/*!
    \class SliderEditFrameDouble
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
    if (std::isnan(val)) {
        return;
    }
    d->m_nLastValue = val;
    {
        const QSignalBlocker blocker(d->ui->doubleSpinBox);
        d->ui->doubleSpinBox->setValue(val);
    }
    {
        const QSignalBlocker blocker(d->ui->slider);
        d->ui->slider->setValue(d->toPosition(val));
    }
    d->ui->doubleSpinBox->setSpinBoxCal(Internal::saturatedFloat(val),
                                        Internal::saturatedFloat(maximum()),
                                        Internal::saturatedFloat(minimum()), 2, 2, false);
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
    step follows with the next call that sets decimals or a range.
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

namespace {

constexpr int mostPasses = 10;

// Single precision on purpose: 0.1F has one decimal, (double)0.1F has many.
bool shiftDecimal(float &fraction)
{
    fraction *= 10.0F;
    return std::trunc(fraction) == fraction;
}

} // namespace

/*! The number of decimals of \a num: 1 for a whole number, 0 where it has more than 10. */
int SliderEditFrameDouble::getPrecision(float num)
{
    float fraction = num - std::trunc(num);
    for (int count = 1; count <= mostPasses; ++count) {
        if (shiftDecimal(fraction)) {
            return count;
        }
    }
    return 0;
}

/*! The power of ten that makes \a num whole, 10 at least and 1 000 000 000 at most. */
int SliderEditFrameDouble::getMagnification(float num)
{
    constexpr int greatest = 1000000000;
    float fraction = num - std::trunc(num);
    int magnification = 10;
    while (!shiftDecimal(fraction) && magnification < greatest) {
        magnification *= 10;
    }
    return magnification;
}

} // namespace Widgets
} // namespace Vantor

#include "slidereditframedouble.moc"
