#pragma once

#include "slidereditframe.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QToolButton>

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the integer and the floating-point value engine share.

inline bool isAnyDirectionAllowed(int directions)
{
    return (directions & SliderEditFrame::AllowedToAny) == SliderEditFrame::AllowedToAny;
}

// The value that may be reported: val, or the reference where val lies on its
// forbidden side. Without AllowedToBigger only smaller values are allowed,
// whatever the other bits say.
template <typename Value> Value heldValue(int directions, Value reference, Value val)
{
    if ((directions & SliderEditFrame::AllowedToBigger) != 0) {
        return qMax(val, reference);
    }
    return qMin(val, reference);
}

// The thirteen connections of an engine to its row's children. Their order is
// the order in which the slots of one sender run. An engine makes it a friend,
// for its slots are private.
struct EngineConnections
{
    template <typename Engine, typename Form, typename SpinBox, typename SpinBoxBase,
              typename Value>
    static void make(Engine *engine, const Form &form, const SpinBox *spinBox,
                     void (SpinBoxBase::*valueChanged)(Value))
    {
        const auto connect = [engine](const auto *sender, auto signal, auto slot) {
            QObject::connect(sender, signal, engine, slot);
        };
        const QAbstractButton *minus = form.sliderEditSubtract;
        const QAbstractButton *plus = form.sliderEditPlus;
        connect(spinBox, &SpinBox::editingFinished, &Engine::slotSpinBoxEditingFinished);
        connect(spinBox, &SpinBox::enterFinished, &Engine::slotSpinBoxEnterFinished);
        connect(plus, &QAbstractButton::clicked, &Engine::slotButtonPlusClicked);
        connect(minus, &QAbstractButton::clicked, &Engine::slotButtonSubtractClicked);
        connect(spinBox, valueChanged, &Engine::slotSpinBoxValueChanged);
        connect(form.slider, &QAbstractSlider::sliderMoved, &Engine::slotSliderMoved);
        connect(form.slider, &QAbstractSlider::valueChanged, &Engine::slotSliderValueChanged);
        connect(form.slider, &QAbstractSlider::sliderPressed, &Engine::slotSliderPressed);
        connect(form.slider, &QAbstractSlider::sliderReleased, &Engine::slotSliderReleased);
        connect(plus, &QAbstractButton::pressed, &Engine::slotButtonPlusPressed);
        connect(plus, &QAbstractButton::released, &Engine::slotButtonPlusReleased);
        connect(minus, &QAbstractButton::pressed, &Engine::slotButtonSubtractPressed);
        connect(minus, &QAbstractButton::released, &Engine::slotButtonSubtractReleased);
    }
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
