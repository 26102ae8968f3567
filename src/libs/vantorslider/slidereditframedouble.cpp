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

void SliderEditFrameDouble::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->row().setHorizontalSpacing(nLabelSlider, nSliderButton);
}

void SliderEditFrameDouble::setLabelText(const QString &text)
{
    d->row().setLabelText(text);
}

QString SliderEditFrameDouble::labelText() const
{
    return d->ui->labelName->text();
}

void SliderEditFrameDouble::setLabelWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->labelName, maxw, minw);
}

void SliderEditFrameDouble::setLabelFixedWidth(int w)
{
    d->ui->labelName->setFixedWidth(w);
}

void SliderEditFrameDouble::setButtonWidthRange(int maxw, int minw)
{
    d->row().setButtonWidthRange(maxw, minw);
}

void SliderEditFrameDouble::setButtonFixedWidth(int w)
{
    d->row().setButtonFixedWidth(w);
}

void SliderEditFrameDouble::setSpinBoxWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->ui->doubleSpinBox, maxw, minw);
}

void SliderEditFrameDouble::setSpinBoxFixedWidth(int w)
{
    d->ui->doubleSpinBox->setFixedWidth(w);
}

void SliderEditFrameDouble::setSpinBoxWheelEnable(bool b)
{
    d->ui->doubleSpinBox->setWheelEnable(b);
}

void SliderEditFrameDouble::setSliderVisible(bool b)
{
    d->row().setSliderVisible(b);
}

void SliderEditFrameDouble::setSliderProperty(const char *name, const QVariant &value)
{
    d->ui->slider->setProperty(name, value);
}

void SliderEditFrameDouble::setValue(double val)
{
    if (!std::isnan(val)) {
        d->apply(val);
    }
}

double SliderEditFrameDouble::value()
{
    return d->ui->doubleSpinBox->value();
}

void SliderEditFrameDouble::setRange(double min, double max)
{
    if (std::isnan(min) || std::isnan(max)) {
        return;
    }
    const QSignalBlocker blocker(d->ui->doubleSpinBox);
    d->ui->doubleSpinBox->setRange(min + d->m_nMinPrecision, max + d->m_nMinPrecision);
    setDecimals(d->m_nPrecision);
}

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

double SliderEditFrameDouble::minimum() const
{
    return d->ui->doubleSpinBox->minimum();
}

double SliderEditFrameDouble::maximum() const
{
    return d->ui->doubleSpinBox->maximum();
}

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

int SliderEditFrameDouble::decimals() const
{
    return d->ui->doubleSpinBox->decimals();
}

void SliderEditFrameDouble::setSingleStep(double val)
{
    if (std::isnan(val)) {
        return;
    }
    d->m_dSingleStep = val;
    d->ui->doubleSpinBox->setSingleStep(val);
}

double SliderEditFrameDouble::singleStep() const
{
    return d->ui->doubleSpinBox->singleStep();
}

void SliderEditFrameDouble::setPageStep(int val)
{
    d->ui->slider->setPageStep(val);
}

int SliderEditFrameDouble::pageStep() const
{
    return d->ui->slider->pageStep();
}

void SliderEditFrameDouble::setAutoRepeat(bool b)
{
    d->row().setAutoRepeat(b);
}

void SliderEditFrameDouble::setAutoRepeatDelay(int val)
{
    d->row().setAutoRepeatDelay(val);
}

void SliderEditFrameDouble::setAutoRepeatInterval(int val)
{
    d->row().setAutoRepeatInterval(val);
}

void SliderEditFrameDouble::setReleaseMode(bool b)
{
    d->m_isReleaseMode = b;
    setAutoRepeat(!b);
}

void SliderEditFrameDouble::setTimeSamplingRate(int val)
{
    d->m_nTimeSamplingRate = val;
    d->m_isTimeSampling = true;
    setReleaseMode(false);
}

void SliderEditFrameDouble::setValueChangeDirection(int directions, int val)
{
    d->m_valueChangeDirection = directions;
    d->m_readValue = val;
}

bool SliderEditFrameDouble::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != d->ui->doubleSpinBox) {
        return QFrame::eventFilter(watched, event);
    }
    d->row().selectAllOnEntry(this, event);
    return false;
}

void SliderEditFrameDouble::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->m_nSamplingTimer) {
        d->sample();
    }
}

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

int SliderEditFrameDouble::getMagnification(float num)
{
    const int precision = getPrecision(num);
    return static_cast<int>(std::pow(10.0, precision == 0 ? 9 : qMin(precision, 9)));
}

} // namespace Widgets
} // namespace Vantor

#include "slidereditframedouble.moc"
