#include "slidereditframe.h"

#include "childwidget_p.h"
#include "itemeditor_p.h"
#include "saturation_p.h"
#include "sliderengine_p.h"
#include "ui_slidereditframe.h"

#include <QtCore/QTimerEvent>

#include <array>
#include <charconv>

namespace Vantor::Widgets {

namespace Internal {

class SliderEditPrivate
    : public SliderEngine<SliderEditPrivate, SliderEditFrame, Ui::SliderEditFrame, int>
{
    Q_OBJECT

public:
    using SliderEngine::SliderEngine;

    void createConnects() { connectRow(QOverload<int>::of(&QSpinBox::valueChanged)); }

    SliderEditSpinBox *spinBox() const { return form()->spinBox; }
    static int toPosition(int val) { return val; }
    static int toValue(int position) { return position; }
    static int rounded(double val) { return saturatedInt(std::round(val)); }
    int sliderStep() const { return spinBox()->singleStep(); }
    bool isLastValue(int val) const { return val == lastValue(); }
    bool isNewAtRelease(int position) const { return !isLastValue(scale().valueAt(position)); }
    std::optional<int> stepped(int direction) const;
    static constexpr bool spinBoxFollowsInReleaseMode = false;
    void showInSpinBox(int val);
    void handToCalculator(int val);

private Q_SLOTS:
    // All thirteen exist since 1.0; their order is that of the meta-object.
    void slotSpinBoxEditingFinished();
    void slotSpinBoxEnterFinished();
    void slotButtonSubtractClicked() { step(-1); }
    void slotButtonSubtractPressed() { buttonPressed(); }
    void slotButtonSubtractReleased() { buttonReleased(); }
    void slotButtonPlusClicked() { step(1); }
    void slotButtonPlusPressed() { buttonPressed(); }
    void slotButtonPlusReleased() { buttonReleased(); }
    void slotSpinBoxValueChanged(int val) { spinBoxValueChanged(val); }
    void slotSliderMoved(int val) { sliderMoved(val); }
    void slotSliderValueChanged(int val) { sliderValueChanged(val); }
    void slotSliderReleased() { sliderReleased(); }
    void slotSliderPressed() { sliderPressed(); }

private:
    friend SliderEngine; // connects the slots
};

namespace {

// text == QString::number(val), without creating the string: 5 % of a mouse move in a crop
// editor, which compares all of its rows.
bool isTextOf(const QString &text, int val)
{
    std::array<char, 12> digits;
    const char *const end = std::to_chars(digits.data(), digits.data() + digits.size(), val).ptr;
    return text == QLatin1String(digits.data(), static_cast<int>(end - digits.data()));
}

} // namespace

// Composite editors set all rows whenever one changes, so an unchanged value is skipped. The text
// is compared, too: after a failed expression it can differ from the value.
void SliderEditPrivate::showInSpinBox(int val)
{
    if (val == spinValue() && isTextOf(spinBox()->text(), val)) {
        return;
    }
    const QSignalBlocker blocker(spinBox());
    spinBox()->setValue(val);
}

void SliderEditPrivate::handToCalculator(int val)
{
    constexpr int shownDecimals = 0;
    spinBox()->setSpinBoxCal(val, spinBox()->maximum(), spinBox()->minimum(), shownDecimals,
                             typedDecimals);
}

void SliderEditPrivate::slotSpinBoxEditingFinished()
{
    qDebug("SpinBox editing finished");
    editingFinished();
}

void SliderEditPrivate::slotSpinBoxEnterFinished()
{
    const bool losesFocus = !staysInField();
    enterFinished();
    if (losesFocus) {
        qDebug("SpinBox lose focus.");
    }
}

std::optional<int> SliderEditPrivate::stepped(int direction) const
{
    const qint64 next = spinValue() + qint64(direction) * spinBox()->singleStep();
    const bool isInRange = next >= spinBox()->minimum() && next <= spinBox()->maximum();
    return isInRange ? std::optional<int>(static_cast<int>(next)) : std::nullopt;
}

} // namespace Internal

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

void SliderEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->setHorizontalSpacing(nLabelSlider, nSliderButton);
}

void SliderEditFrame::setLabelText(const QString &text)
{
    d->row().setLabelText(text);
}

QString SliderEditFrame::labelText() const
{
    return d->row().label->text();
}

void SliderEditFrame::setLabelWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->row().label, maxw, minw);
}

void SliderEditFrame::setLabelFixedWidth(int w)
{
    Internal::setFixedWidth(d->row().label, w);
}

void SliderEditFrame::setButtonWidthRange(int maxw, int minw)
{
    d->row().bothButtons(Internal::setWidthRange, maxw, minw);
}

void SliderEditFrame::setButtonFixedWidth(int w)
{
    d->row().bothButtons(Internal::setFixedWidth, w);
}

void SliderEditFrame::setSpinBoxWidthRange(int maxw, int minw)
{
    Internal::setWidthRange(d->spinBox(), maxw, minw);
}

void SliderEditFrame::setSpinBoxFixedWidth(int w)
{
    Internal::setFixedWidth(d->spinBox(), w);
}

void SliderEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->spinBox()->setWheelEnable(b);
}

void SliderEditFrame::setEntryOptions(EntryOptions options)
{
    d->spinBox()->setEntryOptions(options);
}

EntryOptions SliderEditFrame::entryOptions() const
{
    return d->spinBox()->entryOptions();
}

bool SliderEditFrame::hasPendingEntry() const
{
    return d->spinBox()->hasPendingEntry();
}

void SliderEditFrame::finishEntry()
{
    d->spinBox()->finishEntry();
}

int SliderEditFrame::committedValue()
{
    return Internal::committed(this, &SliderEditFrame::value);
}

void SliderEditFrame::setSliderOptions(SliderOptions options)
{
    d->row().setSliderOptions(options);
}

SliderOptions SliderEditFrame::sliderOptions() const
{
    return d->slider()->options();
}

void SliderEditFrame::setSliderVisible(bool b)
{
    d->row().setSliderVisible(b);
}

bool SliderEditFrame::isSliderVisible() const
{
    return !d->slider()->isHidden();
}

void SliderEditFrame::setButtonVisible(bool b)
{
    d->row().bothButtons(Internal::setShown, b);
}

bool SliderEditFrame::isButtonVisible() const
{
    return !d->row().plus->isHidden();
}

void SliderEditFrame::setSliderProperty(const char *name, const QVariant &value)
{
    d->slider()->setProperty(name, value);
}

void SliderEditFrame::setGrooveBrush(const QBrush &brush)
{
    d->slider()->setGrooveBrush(brush);
}

QBrush SliderEditFrame::grooveBrush() const
{
    return d->slider()->grooveBrush();
}

void SliderEditFrame::setFieldFocus()
{
    d->row().setFieldFocus();
}

void SliderEditFrame::setValue(int val)
{
    d->apply(val);
}

int SliderEditFrame::value()
{
    return d->spinBox()->value();
}

void SliderEditFrame::setPrefix(const QString &text)
{
    d->spinBox()->setUnit(text, suffix());
    Internal::fieldTextsChanged(d->spinBox());
}

QString SliderEditFrame::prefix() const
{
    return d->spinBox()->prefix();
}

void SliderEditFrame::setSuffix(const QString &text)
{
    d->spinBox()->setUnit(prefix(), text);
    Internal::fieldTextsChanged(d->spinBox());
}

QString SliderEditFrame::suffix() const
{
    return d->spinBox()->suffix();
}

void SliderEditFrame::setRange(int min, int max)
{
    const QSignalBlocker blocker(d->spinBox());
    d->spinBox()->setRange(min, max);
    d->scale().setEnds(min, max);
    Internal::fieldTextsChanged(d->spinBox());
}

void SliderEditFrame::setMinimum(int min)
{
    setRange(min, qMax(min, maximum()));
}

void SliderEditFrame::setMaximum(int max)
{
    setRange(qMin(minimum(), max), max);
}

int SliderEditFrame::minimum() const
{
    return d->spinBox()->minimum();
}

int SliderEditFrame::maximum() const
{
    return d->spinBox()->maximum();
}

void SliderEditFrame::setDefaultValue(int val)
{
    d->setDefaultValue(val);
}

void SliderEditFrame::clearDefaultValue()
{
    d->clearDefaultValue();
}

void SliderEditFrame::writeHasDefaultValue(bool b)
{
    b ? d->setDefaultValue(d->defaultValue()) : d->clearDefaultValue();
}

int SliderEditFrame::defaultValue() const
{
    return d->defaultValue();
}

bool SliderEditFrame::hasDefaultValue() const
{
    return d->hasDefaultValue();
}

void SliderEditFrame::resetValue()
{
    d->reset();
}

void SliderEditFrame::setSliderScale(SliderScale scale)
{
    d->scale().setLogarithmic(scale == LogarithmicScale);
}

SliderEditFrame::SliderScale SliderEditFrame::sliderScale() const
{
    return d->scale().isLogarithmic() ? LogarithmicScale : LinearScale;
}

void SliderEditFrame::setSingleStep(int val)
{
    d->spinBox()->setSingleStep(val);
    if (!d->scale().isLogarithmic()) {
        d->slider()->setSingleStep(val);
    }
}

int SliderEditFrame::singleStep()
{
    return d->spinBox()->singleStep();
}

void SliderEditFrame::setPageStep(int val)
{
    d->slider()->setPageStep(val);
}

int SliderEditFrame::pageStep() const
{
    return d->slider()->pageStep();
}

void SliderEditFrame::setAutoRepeat(bool b)
{
    d->row().bothButtons(&QToolButton::setAutoRepeat, b);
}

bool SliderEditFrame::autoRepeat() const
{
    return d->row().plus->autoRepeat();
}

void SliderEditFrame::setAutoRepeatDelay(int val)
{
    d->row().bothButtons(&QToolButton::setAutoRepeatDelay, val);
}

void SliderEditFrame::setAutoRepeatInterval(int val)
{
    d->row().bothButtons(&QToolButton::setAutoRepeatInterval, val);
}

void SliderEditFrame::setReleaseMode(bool b)
{
    d->setReleaseMode(b);
    setAutoRepeat(!b);
}

bool SliderEditFrame::isReleaseMode() const
{
    return d->isReleaseMode();
}

void SliderEditFrame::setTimeSamplingRate(int val)
{
    d->sampling().setRate(val);
    setReleaseMode(false);
}

void SliderEditFrame::writeTimeSamplingRate(int val)
{
    if (val != 0) {
        setTimeSamplingRate(val);
    }
}

int SliderEditFrame::timeSamplingRate() const
{
    return d->sampling().rate();
}

void SliderEditFrame::setValueChangeDirection(int directions, int val)
{
    d->setDirection(directions, val);
}

bool SliderEditFrame::isMousePressed() const
{
    return d->slider()->isMousePressed();
}

bool SliderEditFrame::eventFilter(QObject *watched, QEvent *event)
{
    return d->filter(watched, event) || QFrame::eventFilter(watched, event);
}

void SliderEditFrame::timerEvent(QTimerEvent *event)
{
    d->sample(event->timerId());
}

} // namespace Vantor::Widgets

#include "slidereditframe.moc"
