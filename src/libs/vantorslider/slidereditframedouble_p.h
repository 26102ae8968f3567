#pragma once

#include "saturation_p.h"
#include "slidereditframedouble.h"
#include "sliderengine_p.h"
#include "ui_slidereditframedouble.h"

#include <cmath>

namespace Vantor::Widgets::Internal {

// Values that differ by less are equal; it is added to the bounds of the range.
constexpr double leastDifference = 1e-8;

// A slider position is the value times the magnification.
class SliderEditDoublePrivate : public SliderEngine<SliderEditDoublePrivate, SliderEditFrameDouble,
                                                    Ui::SliderEditFrameDouble, double>
{
    Q_OBJECT

public:
    using SliderEngine::SliderEngine;

    void createConnects() { connectRow(QOverload<double>::of(&QDoubleSpinBox::valueChanged)); }

    SliderEditDoubleSpinBox *spinBox() const { return form()->doubleSpinBox; }
    int toPosition(double val) const { return saturatedInt(std::round(val * m_nMagnification)); }
    double rounded(double val) const;
    double toValue(int position) const { return double(position) / m_nMagnification; }
    bool isLastValue(double val) const { return std::fabs(val - lastValue()) < tolerance(); }
    // Unlike the integer spin box this one follows the handle in release mode, too. So does the
    // slider's value: the slider does not emit valueChanged() at release.
    static constexpr bool spinBoxFollowsInReleaseMode = true;
    bool isNewAtRelease(int pos) const
    {
        return isReleaseMode()
            && (scale().isLogarithmic() ? !isLastValue(scale().pressedValue())
                                        : pos != scale().pressedPosition());
    }
    std::optional<double> stepped(int direction) const;
    void showInSpinBox(double val);
    void handToCalculator(double val);

    int precision() const { return m_nPrecision; }
    void setPrecision(int decimals);
    double singleStep() const { return m_dSingleStep; }
    // Step of a linear slider, in positions.
    int sliderStep() const { return qMax(1, toPosition(m_dSingleStep)); }
    void setSingleStep(double step) { m_dSingleStep = step; }

private Q_SLOTS:
    // All thirteen exist since 1.0; their order is that of the meta-object.
    void slotSpinBoxEditingFinished() { editingFinished(); }
    void slotSpinBoxEnterFinished() { enterFinished(); }
    void slotButtonSubtractClicked() { step(-1); }
    void slotButtonSubtractPressed() { buttonPressed(); }
    void slotButtonSubtractReleased() { buttonReleased(); }
    void slotButtonPlusClicked() { step(1); }
    void slotButtonPlusPressed() { buttonPressed(); }
    void slotButtonPlusReleased() { buttonReleased(); }
    void slotSpinBoxValueChanged(double val) { spinBoxValueChanged(val); }
    void slotSliderMoved(int pos) { sliderMoved(pos); }
    void slotSliderValueChanged(int pos) { sliderValueChanged(pos); }
    void slotSliderReleased() { sliderReleased(); }
    void slotSliderPressed() { sliderPressed(); }

private:
    friend SliderEngine; // connects the slots

    double tolerance() const;

    int m_nPrecision = 2;
    double m_dSingleStep = 0.01;
    // 1 until setPrecision() is called, then 10 to the power of the precision.
    int m_nMagnification = 1;
};

} // namespace Vantor::Widgets::Internal
