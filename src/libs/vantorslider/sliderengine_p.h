#pragma once

#include "editspan_p.h"
#include "logscale_p.h"
#include "rowreset_p.h"
#include "slidereditframe_p.h"
#include "sliderrow_p.h"

#include <QtCore/QDebug>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtWidgets/QAbstractButton>

#include <algorithm>
#include <memory>
#include <optional>

namespace Vantor {
namespace Widgets {
namespace Internal {

// Synchronises slider, spin box and buttons of a row and decides when its frame emits
// valueChanged(). The spin box holds the value. The slider's tracking is off: its value changes
// only when the handle is released.
//
// A derived class (CRTP) adapts it to int or double. It declares the slots, because moc does not
// support templates, and defines what differs: the spin box, the position of a value, equality, how
// a value is shown and evaluated, and what follows the handle in release mode.
template <typename Engine, typename Editor, typename Form, typename Value>
class SliderEngine : public QObject
{
public:
    explicit SliderEngine(Editor *editer) : m_pSliderEditer(editer), ui(new Form) { }

    void createWidgets()
    {
        ui->setupUi(m_pSliderEditer);
        row().prepare(m_pSliderEditer);
    }

    // The order matters: slots of the same sender run in order of connection.
    template <typename SpinBoxBase> void connectRow(void (SpinBoxBase::*valueChanged)(Value))
    {
        const auto *const spinBox = engine().spinBox();
        using SpinBox = std::remove_pointer_t<decltype(engine().spinBox())>;
        const QAbstractButton *minus = ui->sliderEditSubtract;
        const QAbstractButton *plus = ui->sliderEditPlus;
        connectTo(spinBox, &SpinBox::editingFinished, &Engine::slotSpinBoxEditingFinished);
        connectTo(spinBox, &SpinBox::enterFinished, &Engine::slotSpinBoxEnterFinished);
        connectTo(plus, &QAbstractButton::clicked, &Engine::slotButtonPlusClicked);
        connectTo(minus, &QAbstractButton::clicked, &Engine::slotButtonSubtractClicked);
        connectTo(spinBox, valueChanged, &Engine::slotSpinBoxValueChanged);
        connectTo(ui->slider, &QAbstractSlider::sliderMoved, &Engine::slotSliderMoved);
        connectTo(ui->slider, &QAbstractSlider::valueChanged, &Engine::slotSliderValueChanged);
        connectTo(ui->slider, &QAbstractSlider::sliderPressed, &Engine::slotSliderPressed);
        connectTo(ui->slider, &QAbstractSlider::sliderReleased, &Engine::slotSliderReleased);
        connectTo(plus, &QAbstractButton::pressed, &Engine::slotButtonPlusPressed);
        connectTo(plus, &QAbstractButton::released, &Engine::slotButtonPlusReleased);
        connectTo(minus, &QAbstractButton::pressed, &Engine::slotButtonSubtractPressed);
        connectTo(minus, &QAbstractButton::released, &Engine::slotButtonSubtractReleased);
    }

    SliderRow row() const { return {*ui, engine().spinBox()}; }

    // Shows a value on both children and passes it to the calculator. Emits nothing.
    void apply(Value val)
    {
        m_nLastValue = val;
        engine().showInSpinBox(val);
        {
            const QSignalBlocker blocker(ui->slider);
            ui->slider->setValue(handlePosition(val));
        }
        engine().handToCalculator(val);
    }

    // The tick of the sampling timer; the frame may have others. A receiver may run a local event
    // loop, in which the timer continues.
    void sample(int timer)
    {
        if (timer != m_nSamplingTimer || m_isSampleInDelivery
            || spinPosition() == m_nLastTimerValue) {
            return;
        }
        const QPointer<SliderEngine> self(this);
        m_isSampleInDelivery = true;
        m_isMovedInDelivery = false;
        emitValueChanged(spinValue());
        if (self) {
            m_isSampleInDelivery = false;
            if (!m_isMovedInDelivery) {
                m_nLastTimerValue = spinPosition();
            }
        }
    }

    // How a drag is reported. The buttons' auto-repeat does not change.
    void setReleaseMode(bool isOn) { m_isReleaseMode = isOn; }
    void setTimeSampling(int milliseconds)
    {
        m_nTimeSamplingRate = milliseconds;
        m_isTimeSampling = true;
    }
    bool isReleaseMode() const { return m_isReleaseMode; }
    int timeSamplingRate() const { return m_isTimeSampling ? m_nTimeSamplingRate : 0; }

    // The side of the reference on which reported values stay.
    void setDirection(int directions, Value reference)
    {
        m_valueChangeDirection = directions;
        m_readValue = reference;
    }

    bool hasDefaultValue() const { return m_defaultValue.has_value(); }
    Value defaultValue() const { return m_defaultValue.value_or(0); }
    void setDefaultValue(Value val)
    {
        m_defaultValue = val;
        makeResettable(ui->labelName, m_pSliderEditer);
    }

    // Emits nothing, like the host's other setters.
    void reset()
    {
        if (hasDefaultValue()) {
            apply(shownDefault());
        }
    }

    // A value that is already shown is not reported again.
    void resetByUser()
    {
        if (hasDefaultValue() && !engine().isLastValue(shownDefault())) {
            report(shownDefault());
        }
    }

    bool isResetClick(const QObject *watched, const QEvent *event) const
    {
        return Internal::isResetClick(ui->labelName, watched, event);
    }

    bool isLogarithmic() const { return m_isLogarithmic; }

    void setLogarithmic(bool isOn)
    {
        if (isOn == m_isLogarithmic || (isOn && !isAboveZero())) {
            return;
        }
        m_isLogarithmic = isOn;
        setScale(engine().toPosition(least()), engine().toPosition(greatest()));
        if (!isOn) {
            leaveLogarithm();
        }
    }

    // The ends of a linear scale. A logarithmic one becomes linear if the minimum is 0 or less.
    void setScale(int lowest, int highest)
    {
        const QSignalBlocker blocker(ui->slider);
        if (m_isLogarithmic && isAboveZero()) {
            ui->slider->setRange(0, least() < greatest() ? lastLogPosition : 0);
            ui->slider->setSingleStep(1);
            ui->slider->setValue(spinPosition());
            return;
        }
        ui->slider->setScale(lowest, highest);
        if (m_isLogarithmic) {
            leaveLogarithm();
        }
    }

    SliderEditSlider *slider() const { return ui->slider; }
    EditSpan *edits() { return &m_edits; }

protected:
    static constexpr int typedDecimals = 2; // of a typed number, also in an int row
    Form *form() const { return ui.get(); }
    Value lastValue() const { return m_nLastValue; }
    int lastPressedPosition() const { return m_nLastPressedValue; }
    Value lastPressedValue() const { return m_valueAtPress; }

    // The value at a position. On a logarithmic scale several values share a position: the last
    // value keeps its position, and the pressed position returns the value at the press.
    Value valueAt(int position) const
    {
        if (!m_isLogarithmic) {
            return engine().toValue(position);
        }
        if (position == positionOf(m_nLastValue)) {
            return m_nLastValue;
        }
        if (position == m_nLastPressedValue && ui->slider->isSliderDown()) {
            return m_valueAtPress;
        }
        return logValueAt(position);
    }
    Value spinValue() const { return engine().spinBox()->value(); }

    // The direction filter: without AllowedToBigger only smaller values are allowed, whatever the
    // other flags are. A value that a tick reports is not reported again if a receiver ends the
    // drag. The report ends a pending entry. The receiver may delete the frame: neither this
    // function nor a caller for which it is the last call uses the frame after the signal.
    void emitValueChanged(Value val)
    {
        EditSpan::Scope edit(&m_edits);
        edit.begin();
        if (!edit) {
            return;
        }
        if ((m_valueChangeDirection & Editor::AllowedToAny) != Editor::AllowedToAny) {
            const bool isHeldAbove = (m_valueChangeDirection & Editor::AllowedToBigger) != 0;
            val = isHeldAbove ? qMax(val, m_readValue) : qMin(val, m_readValue);
            apply(val);
        }
        if (m_isSampleInDelivery) {
            m_nLastTimerValue = spinPosition();
        }
        edit.release(EditSpan::Entry);
        Q_EMIT m_pSliderEditer->valueChanged(val);
    }

    void report(Value val)
    {
        EditSpan::Scope edit(&m_edits);
        edit.begin();
        if (edit) {
            apply(val);
            emitValueChanged(spinValue());
        }
    }

    void editingFinished()
    {
        const QPointer<SliderEngine> self(this);
        engine().spinBox()->setSlotEditingFinished();
        if (self && !engine().isLastValue(spinValue())) {
            m_nLastValue = spinValue();
            emitValueChanged(spinValue());
        }
    }

    bool staysInField() const { return engine().spinBox()->entryOptions().testFlag(EnterStays); }

    // Keyboard tracking is off: the spin box interprets its text and reports the value when it
    // loses the focus. As the focus proxy of the frame it keeps the focus, so its text is
    // interpreted here. With EnterStays it was interpreted already.
    void enterFinished()
    {
        EditSpan::Scope edit(&m_edits);
        if (!staysInField()) {
            m_pSliderEditer->setFocus(Qt::OtherFocusReason);
            if (edit && engine().spinBox()->hasFocus()) {
                engine().spinBox()->interpretText();
            }
        }
        edit.release(EditSpan::Entry);
    }

    void buttonPressed()
    {
        EditSpan::Scope edit(&m_edits);
        edit.begin(EditSpan::Button);
    }

    // clicked() follows.
    void buttonReleased() { m_edits.release(EditSpan::Button); }

    void spinBoxValueChanged(Value val)
    {
        if (engine().isLastValue(val)) {
            return;
        }
        if (!m_edits.isOpen()) {
            // Receivers of editStarted() read the old value.
            engine().showInSpinBox(m_nLastValue);
        }
        report(val);
    }

    void sliderPressed()
    {
        EditSpan::Scope edit(&m_edits);
        edit.begin(EditSpan::Handle);
        if (!edit) {
            return;
        }
        if (m_isTimeSampling) {
            startSamplingTimer();
        }
        m_nLastPressedValue = ui->slider->value();
        m_valueAtPress = m_nLastValue;
    }

    void sliderMoved(int position)
    {
        const Value val = valueAt(position);
        if (engine().isLastValue(val)
            || (m_isReleaseMode && !Engine::spinBoxFollowsInReleaseMode)) {
            return;
        }
        EditSpan::Scope edit(&m_edits);
        edit.begin();
        if (!edit) {
            return;
        }
        apply(val);
        if (m_isReleaseMode) {
            return;
        }
        if (!m_isTimeSampling) {
            emitValueChanged(spinValue());
        } else if (position != m_nLastTimerValue) {
            m_isTimeSamplingValueChanged = true;
            m_isMovedInDelivery = true;
        }
    }

    // After a release in release mode, a page step or a key. No mode delays the report.
    void sliderValueChanged(int position)
    {
        const Value val = valueAt(position);
        if (engine().isLastValue(val)) {
            return;
        }
        if (position != m_nLastTimerValue) {
            m_isTimeSamplingValueChanged = true;
        }
        report(val);
    }

    // Called before Qt sets the slider's value to the handle's position.
    void sliderReleased()
    {
        EditSpan::Scope edit(&m_edits);
        edit.release(EditSpan::Handle);
        const int position = ui->slider->value();
        if (!m_isTimeSampling) {
            if (engine().isNewAtRelease(position)) {
                report(valueAt(position));
            }
            return;
        }
        stopSamplingTimer();
        if (positionOf(valueAt(position)) == m_nLastTimerValue) {
            return;
        }
        apply(valueAt(position));
        if (m_isTimeSamplingValueChanged) {
            emitValueChanged(spinValue());
        }
    }

private:
    Engine &engine() { return static_cast<Engine &>(*this); }
    const Engine &engine() const { return static_cast<const Engine &>(*this); }

    template <typename Sender, typename Signal, typename Slot>
    void connectTo(const Sender *sender, Signal signal, Slot slot)
    {
        QObject::connect(sender, signal, &engine(), slot);
    }

    // Clamped and rounded like the spin box's value.
    Value shownDefault() const
    {
        return engine().rounded(std::clamp(*m_defaultValue, least(), greatest()));
    }

    Value least() const { return engine().spinBox()->minimum(); }
    Value greatest() const { return engine().spinBox()->maximum(); }
    int positionOf(Value val) const
    {
        return m_isLogarithmic ? logPosition(val, least(), greatest()) : engine().toPosition(val);
    }
    int spinPosition() const { return positionOf(spinValue()); }
    Value logValueAt(int position) const
    {
        return engine().rounded(logValue(position, least(), greatest()));
    }

    // Several positions of a logarithmic scale can have the same value, too: a held handle
    // stays under the pointer.
    int handlePosition(Value val) const
    {
        const int held = ui->slider->sliderPosition();
        return m_isLogarithmic && ui->slider->isSliderDown() && logValueAt(held) == val
            ? held
            : positionOf(val);
    }

    bool isAboveZero() const
    {
        if (least() <= 0) {
            qWarning() << "Set SliderEdit slider scale has failed. The minimum " << least()
                       << " is invalid.";
        }
        return least() > 0;
    }

    void leaveLogarithm()
    {
        m_isLogarithmic = false;
        const QSignalBlocker blocker(ui->slider);
        ui->slider->setSingleStep(engine().sliderStep());
        ui->slider->setValue(spinPosition());
    }

    void startSamplingTimer()
    {
        stopSamplingTimer();
        m_isTimeSamplingValueChanged = false;
        m_nLastTimerValue = spinPosition();
        m_nSamplingTimer = m_pSliderEditer->startTimer(m_nTimeSamplingRate);
    }

    void stopSamplingTimer()
    {
        if (m_nSamplingTimer != -1) {
            m_pSliderEditer->killTimer(m_nSamplingTimer);
        }
        m_nSamplingTimer = -1;
    }

    Editor *m_pSliderEditer;
    const std::unique_ptr<Form> ui;
    EditSpan m_edits {m_pSliderEditer};
    // The last value that was applied or accepted; a child's report of it is ignored.
    Value m_nLastValue = 0;
    // Slider positions: at the last press, and at the start of sampling or the last tick.
    int m_nLastPressedValue = -1;
    int m_nLastTimerValue = -1;
    Value m_valueAtPress = 0;
    bool m_isLogarithmic = false;
    bool m_isReleaseMode = false;
    bool m_isTimeSampling = false;
    bool m_isTimeSamplingValueChanged = false;
    int m_nTimeSamplingRate = 100;
    int m_nSamplingTimer = -1;
    Value m_readValue = 0;
    int m_valueChangeDirection = Editor::AllowedToAny;
    std::optional<Value> m_defaultValue;
    bool m_isSampleInDelivery = false;
    // The user moved the handle meanwhile, so the next tick reports.
    bool m_isMovedInDelivery = false;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
