#pragma once

#include "editspan_p.h"
#include "itemeditor_p.h"
#include "rowreset_p.h"
#include "rowscale_p.h"
#include "sampling_p.h"
#include "slidereditframe_p.h"
#include "sliderrow_p.h"

#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <memory>
#include <optional>

namespace Vantor::Widgets::Internal {

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
        row().prepare();
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

    SliderRow row() const { return {*ui, engine().spinBox(), m_pSliderEditer}; }

    void setHorizontalSpacing(int labelToSlider, int sliderToRest)
    {
        row().setHorizontalSpacing(labelToSlider, sliderToRest);
        m_pSliderEditer->installEventFilter(this);
    }

    // Installed on the frame once it has gaps.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange) {
            row().mirrorGaps();
        }
        return QObject::eventFilter(watched, event);
    }

    // Called for the events of the spin box and of the frame. Returns whether they end here.
    bool filter(const QObject *watched, QEvent *event) const
    {
        if (watched == engine().spinBox()) {
            row().selectTextAfter(event);
        }
        if (watched != m_pSliderEditer) {
            return false;
        }
        passFocus(m_pSliderEditer, event);
        return SliderRow::isHeldEnter(event) || passKey(m_pSliderEditer, event);
    }

    // Shows a value on both children and passes it to the calculator. Emits nothing.
    void apply(Value val)
    {
        m_nLastValue = val;
        engine().showInSpinBox(val);
        m_scale.show(val);
        engine().handToCalculator(val);
    }

    // A tick of one of the frame's timers.
    void sample(int timer)
    {
        if (!m_sampling.isDue(timer, m_scale.spinPosition())) {
            return;
        }
        const QPointer<SliderEngine> self(this);
        m_sampling.beginTick();
        emitValueChanged(spinValue());
        if (self) {
            m_sampling.endTick(m_scale.spinPosition());
        }
    }

    // How a drag is reported. The buttons' auto-repeat does not change.
    void setReleaseMode(bool isOn) { m_isReleaseMode = isOn; }
    bool isReleaseMode() const { return m_isReleaseMode; }
    Sampling &sampling() { return m_sampling; }

    // The side of the reference on which reported values stay.
    void setDirection(int directions, Value reference)
    {
        m_valueChangeDirection = directions;
        m_reference = reference;
    }

    bool hasDefaultValue() const { return m_defaultValue.has_value(); }
    Value defaultValue() const { return m_defaultValue.value_or(0); }
    void setDefaultValue(Value val)
    {
        if (!hasDefaultValue()) {
            new RowReset(ui->labelName, [this] { resetByUser(); });
        }
        m_defaultValue = val;
    }
    void clearDefaultValue()
    {
        if (hasDefaultValue()) {
            RowReset::of(m_pSliderEditer)->remove();
            m_defaultValue.reset();
        }
    }

    // Emits nothing, like the host's other setters.
    void reset()
    {
        if (hasDefaultValue()) {
            apply(shownDefault());
            QEvent event(rowResetEvent());
            QCoreApplication::sendEvent(m_pSliderEditer, &event);
        }
    }

    RowScale<SliderEngine, Value> &scale() { return m_scale; }
    const RowScale<SliderEngine, Value> &scale() const { return m_scale; }

    const Engine &engine() const { return static_cast<const Engine &>(*this); }
    SliderEditSlider *slider() const { return ui->slider; }
    Value lastValue() const { return m_nLastValue; }

protected:
    static constexpr int typedDecimals = 2; // of a typed number, also in an int row
    Form *form() const { return ui.get(); }
    Value spinValue() const { return engine().spinBox()->value(); }

    // The direction filter: without AllowedToBigger only smaller values are allowed, whatever the
    // other flags are. The report ends a pending entry. The receiver may delete the frame: neither
    // this function nor a caller for which it is the last call uses the frame after the signal.
    void emitValueChanged(Value val)
    {
        EditSpan::Scope edit(&m_edits);
        edit.begin();
        if (!edit) {
            return;
        }
        if ((m_valueChangeDirection & Editor::AllowedToAny) != Editor::AllowedToAny) {
            const bool isLowerBound = (m_valueChangeDirection & Editor::AllowedToBigger) != 0;
            val = isLowerBound ? qMax(val, m_reference) : qMin(val, m_reference);
            apply(val);
        }
        if (m_sampling.isInTick()) {
            m_sampling.setLast(m_scale.spinPosition());
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

    // With EnterStays the text was interpreted already.
    void enterFinished()
    {
        EditSpan::Scope edit(&m_edits);
        if (!staysInField()) {
            leaveField(edit);
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

    // One step of a button, unless it would pass the range.
    void step(int direction)
    {
        const EditSpan::Scope edit(&m_edits);
        if (const std::optional<Value> next = engine().stepped(direction)) {
            report(*next);
        }
    }

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
        const bool wasDown = ui->slider->isSliderDown();
        edit.begin(EditSpan::Handle);
        if (!edit || (wasDown && !ui->slider->isSliderDown())) {
            return; // a receiver has ended the drag
        }
        if (m_sampling.isOn()) {
            m_sampling.start(m_scale.spinPosition());
        }
        m_scale.press();
    }

    void sliderMoved(int position)
    {
        const Value val = m_scale.valueAt(position);
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
        if (m_sampling.isOn()) {
            m_sampling.move(position);
        } else {
            emitValueChanged(spinValue());
        }
    }

    // After a release in release mode, a page step or a key. No mode delays the report.
    void sliderValueChanged(int position)
    {
        const Value val = m_scale.valueAt(position);
        if (engine().isLastValue(val)) {
            return;
        }
        m_sampling.move(position);
        report(val);
    }

    // Called before Qt sets the slider's value to the handle's position.
    void sliderReleased()
    {
        EditSpan::Scope edit(&m_edits);
        edit.release(EditSpan::Handle);
        const int position = ui->slider->value();
        const Value val = m_scale.valueAt(position);
        if (!m_sampling.isOn()) {
            if (engine().isNewAtRelease(position)) {
                report(val);
            }
            return;
        }
        m_sampling.stop();
        if (m_sampling.isLast(m_scale.positionOf(val))) {
            return;
        }
        apply(val);
        if (m_sampling.isMoved()) {
            emitValueChanged(spinValue());
        }
    }

private:
    Engine &engine() { return static_cast<Engine &>(*this); }

    template <typename Sender, typename Signal, typename Slot>
    void connectTo(const Sender *sender, Signal signal, Slot slot)
    {
        QObject::connect(sender, signal, &engine(), slot);
    }

    // Keyboard tracking is off: the spin box interprets its text and reports the value when it
    // loses the focus. As the focus proxy of the frame it keeps the focus, so its text is
    // interpreted here.
    void leaveField(const EditSpan::Scope &edit)
    {
        m_pSliderEditer->setFocus(Qt::OtherFocusReason);
        if (edit && engine().spinBox()->hasFocus()) {
            engine().spinBox()->interpretText();
        }
    }

    // An entry that is pending in this or another row ends first: a screen reader does not move the
    // focus. A value that is already shown is not reported again, but shown without a mark.
    void resetByUser()
    {
        const QPointer<SliderEngine> self(this);
        const QWidget *focus = QApplication::focusWidget();
        if (qobject_cast<const SliderEditSpinBox *>(focus) != nullptr
            || qobject_cast<const SliderEditDoubleSpinBox *>(focus) != nullptr) {
            EditSpan::Scope edit(&m_edits);
            engine().spinBox()->setSlotEditingFinished();
            if (edit) {
                leaveField(edit);
            }
            edit.release(EditSpan::Entry);
        }
        if (!self || !hasDefaultValue()) {
            return;
        }
        if (engine().isLastValue(shownDefault())) {
            apply(shownDefault());
        } else {
            report(shownDefault());
        }
    }

    // Clamped and rounded like the spin box's value.
    Value shownDefault() const
    {
        return engine().rounded(std::clamp(*m_defaultValue, m_scale.least(), m_scale.greatest()));
    }

    Editor *m_pSliderEditer;
    const std::unique_ptr<Form> ui;
    EditSpan m_edits {m_pSliderEditer};
    RowScale<SliderEngine, Value> m_scale {*this};
    Sampling m_sampling {m_pSliderEditer};
    // The last value that was applied or accepted; a child's report of it is ignored.
    Value m_nLastValue = 0;
    bool m_isReleaseMode = false;
    Value m_reference = 0;
    int m_valueChangeDirection = Editor::AllowedToAny;
    std::optional<Value> m_defaultValue;
};

} // namespace Vantor::Widgets::Internal
