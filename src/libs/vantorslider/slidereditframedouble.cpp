#include "slidereditframedouble.h"

#include "childwidget_p.h"
#include "itemeditor_p.h"
#include "slidereditframedouble_p.h"

#include <QtCore/QSignalBlocker>
#include <QtCore/QTimerEvent>

#include <cmath>

namespace Vantor::Widgets {

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
    d->setHorizontalSpacing(nLabelSlider, nSliderButton);
}

void SliderEditFrameDouble::setLabelText(const QString &text)
{
    d->row().setLabelText(text);
}

QString SliderEditFrameDouble::labelText() const
{
    return d->row().label->text();
}

void SliderEditFrameDouble::setLabelWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->row().label, maxw, minw);
}

void SliderEditFrameDouble::setLabelFixedWidth(int w)
{
    Internal::setFixedWidth(d->row().label, w);
}

void SliderEditFrameDouble::setButtonWidthRange(int maxw, int minw)
{
    d->row().bothButtons(Internal::setWidthRange, maxw, minw);
}

void SliderEditFrameDouble::setButtonFixedWidth(int w)
{
    d->row().bothButtons(Internal::setFixedWidth, w);
}

void SliderEditFrameDouble::setSpinBoxWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->spinBox(), maxw, minw);
}

void SliderEditFrameDouble::setSpinBoxFixedWidth(int w)
{
    Internal::setFixedWidth(d->spinBox(), w);
}

void SliderEditFrameDouble::setSpinBoxWheelEnable(bool b)
{
    d->spinBox()->setWheelEnable(b);
}

void SliderEditFrameDouble::setEntryOptions(EntryOptions options)
{
    d->spinBox()->setEntryOptions(options);
}

EntryOptions SliderEditFrameDouble::entryOptions() const
{
    return d->spinBox()->entryOptions();
}

bool SliderEditFrameDouble::hasPendingEntry() const
{
    return d->spinBox()->hasPendingEntry();
}

void SliderEditFrameDouble::finishEntry()
{
    d->spinBox()->finishEntry();
}

double SliderEditFrameDouble::committedValue()
{
    return Internal::committed(this, &SliderEditFrameDouble::value);
}

void SliderEditFrameDouble::setSliderOptions(SliderOptions options)
{
    d->row().setSliderOptions(options);
}

SliderOptions SliderEditFrameDouble::sliderOptions() const
{
    return d->slider()->options();
}

void SliderEditFrameDouble::setSliderVisible(bool b)
{
    d->row().setSliderVisible(b);
}

bool SliderEditFrameDouble::isSliderVisible() const
{
    return !d->slider()->isHidden();
}

void SliderEditFrameDouble::setButtonVisible(bool b)
{
    d->row().bothButtons(Internal::setShown, b);
}

bool SliderEditFrameDouble::isButtonVisible() const
{
    return !d->row().plus->isHidden();
}

void SliderEditFrameDouble::setSliderProperty(const char *name, const QVariant &value)
{
    d->slider()->setProperty(name, value);
}

void SliderEditFrameDouble::setGrooveBrush(const QBrush &brush)
{
    d->slider()->setGrooveBrush(brush);
}

QBrush SliderEditFrameDouble::grooveBrush() const
{
    return d->slider()->grooveBrush();
}

void SliderEditFrameDouble::setFieldFocus()
{
    d->row().setFieldFocus();
}

void SliderEditFrameDouble::setValue(double val)
{
    if (!std::isnan(val)) {
        d->apply(val);
    }
}

double SliderEditFrameDouble::value()
{
    return d->spinBox()->value();
}

void SliderEditFrameDouble::setPrefix(const QString &text)
{
    d->spinBox()->setUnit(text, suffix());
    Internal::fieldTextsChanged(d->spinBox());
}

QString SliderEditFrameDouble::prefix() const
{
    return d->spinBox()->prefix();
}

void SliderEditFrameDouble::setSuffix(const QString &text)
{
    d->spinBox()->setUnit(prefix(), text);
    Internal::fieldTextsChanged(d->spinBox());
}

QString SliderEditFrameDouble::suffix() const
{
    return d->spinBox()->unitSuffix();
}

void SliderEditFrameDouble::setRange(double min, double max)
{
    if (std::isnan(min) || std::isnan(max)) {
        return;
    }
    const QSignalBlocker blocker(d->spinBox());
    d->spinBox()->setRange(min + Internal::leastDifference, max + Internal::leastDifference);
    setDecimals(d->precision());
}

void SliderEditFrameDouble::setMinimum(double min)
{
    if (std::isnan(min)) {
        return;
    }
    const QSignalBlocker blocker(d->spinBox());
    d->spinBox()->setMinimum(min + Internal::leastDifference);
    setDecimals(d->precision());
    // Without decimals the slider already has the rounded bound of the spin box.
    if (decimals() != 0) {
        d->scale().setEnds(d->toPosition(min), d->slider()->maximum());
    }
}

void SliderEditFrameDouble::setMaximum(double max)
{
    if (std::isnan(max)) {
        return;
    }
    const QSignalBlocker blocker(d->spinBox());
    const double bound = max + Internal::leastDifference;
    if (bound < minimum()) {
        // setMaximum() would lower the minimum, too, but the next setDecimals() would restore the
        // old one.
        d->spinBox()->setMinimum(bound);
    }
    d->spinBox()->setMaximum(bound);
    setDecimals(d->precision());
    if (decimals() != 0) {
        const int highest = d->toPosition(max);
        d->scale().setEnds(qMin(d->slider()->minimum(), highest), highest);
    }
}

double SliderEditFrameDouble::minimum() const
{
    return d->spinBox()->minimum();
}

double SliderEditFrameDouble::maximum() const
{
    return d->spinBox()->maximum();
}

void SliderEditFrameDouble::setDefaultValue(double val)
{
    if (!std::isnan(val)) {
        d->setDefaultValue(val);
    }
}

void SliderEditFrameDouble::clearDefaultValue()
{
    d->clearDefaultValue();
}

void SliderEditFrameDouble::writeHasDefaultValue(bool b)
{
    b ? d->setDefaultValue(d->defaultValue()) : d->clearDefaultValue();
}

double SliderEditFrameDouble::defaultValue() const
{
    return d->defaultValue();
}

bool SliderEditFrameDouble::hasDefaultValue() const
{
    return d->hasDefaultValue();
}

void SliderEditFrameDouble::resetValue()
{
    d->reset();
}

void SliderEditFrameDouble::setDecimals(int prec)
{
    const QSignalBlocker spinBoxBlocker(d->spinBox());
    d->setPrecision(prec);
    d->spinBox()->setDecimals(prec);

    const int lowest = d->toPosition(minimum());
    const int highest = d->toPosition(maximum());
    d->spinBox()->setRange(d->toValue(lowest), d->toValue(highest));

    d->scale().setEnds(lowest, highest);
    Internal::fieldTextsChanged(d->spinBox());
    if (d->singleStep() > Internal::leastDifference && !d->scale().isLogarithmic()) {
        const QSignalBlocker sliderBlocker(d->slider());
        d->slider()->setSingleStep(d->toPosition(d->singleStep()));
    }
}

int SliderEditFrameDouble::decimals() const
{
    return d->spinBox()->decimals();
}

void SliderEditFrameDouble::setSliderScale(SliderScale scale)
{
    d->scale().setLogarithmic(scale == LogarithmicScale);
}

SliderEditFrameDouble::SliderScale SliderEditFrameDouble::sliderScale() const
{
    return d->scale().isLogarithmic() ? LogarithmicScale : LinearScale;
}

void SliderEditFrameDouble::setSingleStep(double val)
{
    if (std::isnan(val)) {
        return;
    }
    d->setSingleStep(val);
    d->spinBox()->setSingleStep(val);
}

double SliderEditFrameDouble::singleStep() const
{
    return d->spinBox()->singleStep();
}

void SliderEditFrameDouble::setPageStep(int val)
{
    d->slider()->setPageStep(val);
}

int SliderEditFrameDouble::pageStep() const
{
    return d->slider()->pageStep();
}

void SliderEditFrameDouble::setAutoRepeat(bool b)
{
    d->row().bothButtons(&QToolButton::setAutoRepeat, b);
}

bool SliderEditFrameDouble::autoRepeat() const
{
    return d->row().plus->autoRepeat();
}

void SliderEditFrameDouble::setAutoRepeatDelay(int val)
{
    d->row().bothButtons(&QToolButton::setAutoRepeatDelay, val);
}

void SliderEditFrameDouble::setAutoRepeatInterval(int val)
{
    d->row().bothButtons(&QToolButton::setAutoRepeatInterval, val);
}

void SliderEditFrameDouble::setReleaseMode(bool b)
{
    d->setReleaseMode(b);
    setAutoRepeat(!b);
}

bool SliderEditFrameDouble::isReleaseMode() const
{
    return d->isReleaseMode();
}

void SliderEditFrameDouble::setTimeSamplingRate(int val)
{
    d->sampling().setRate(val);
    setReleaseMode(false);
}

void SliderEditFrameDouble::writeTimeSamplingRate(int val)
{
    if (val != 0) {
        setTimeSamplingRate(val);
    }
}

int SliderEditFrameDouble::timeSamplingRate() const
{
    return d->sampling().rate();
}

void SliderEditFrameDouble::setValueChangeDirection(int directions, int val)
{
    d->setDirection(directions, val);
}

bool SliderEditFrameDouble::isMousePressed() const
{
    return d->slider()->isMousePressed();
}

bool SliderEditFrameDouble::eventFilter(QObject *watched, QEvent *event)
{
    return d->filter(watched, event) || QFrame::eventFilter(watched, event);
}

void SliderEditFrameDouble::timerEvent(QTimerEvent *event)
{
    d->sample(event->timerId());
}

int SliderEditFrameDouble::getPrecision(float num)
{
    // Single precision on purpose: 0.1F has one decimal, double(0.1F) has many.
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

} // namespace Vantor::Widgets
