#pragma once

#include "saturation_p.h"
#include "slidereditframedouble.h"
#include "sliderengine_p.h"
#include "ui_slidereditframedouble.h"

#include <cmath>

namespace Vantor {
namespace Widgets {
namespace Internal {

// Values closer than this are equal; bounds are nudged up by it.
constexpr double minPrecision = 1e-8;

// The slider's positions are the value times the magnification.
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
    bool isLastValue(double val) const { return std::fabs(val - lastValue()) < minPrecision; }
    // Unlike the integer field this one follows the handle in release mode too, and
    // so has the slider's value: no valueChanged() of the slider comes at release.
    static constexpr bool spinBoxFollowsInReleaseMode = true;
    bool isNewAtRelease(int pos) const
    {
        return isReleaseMode()
            && (isLogarithmic() ? !isLastValue(lastPressedValue()) : pos != lastPressedPosition());
    }
    void showInSpinBox(double val);
    void handToCalculator(double val);

    int precision() const { return m_nPrecision; }
    void setPrecision(int decimals);
    double singleStep() const { return m_dSingleStep; }
    // Of the slider, in positions of a linear scale.
    int sliderStep() const { return qMax(1, toPosition(m_dSingleStep)); }
    void setSingleStep(double step) { m_dSingleStep = step; }

private Q_SLOTS:
    // The interface fixes all thirteen.
    void slotSpinBoxEditingFinished() { editingFinished(); }
    void slotSpinBoxEnterFinished() { enterFinished(); }
    void slotButtonSubtractClicked();
    void slotButtonSubtractPressed() { buttonPressed(); }
    void slotButtonSubtractReleased() { buttonReleased(); }
    void slotButtonPlusClicked();
    void slotButtonPlusPressed() { buttonPressed(); }
    void slotButtonPlusReleased() { buttonReleased(); }
    void slotSpinBoxValueChanged(double val) { spinBoxValueChanged(val); }
    void slotSliderMoved(int pos) { sliderMoved(pos); }
    void slotSliderValueChanged(int pos) { sliderValueChanged(pos); }
    void slotSliderReleased() { sliderReleased(); }
    void slotSliderPressed() { sliderPressed(); }

private:
    friend SliderEngine; // connects the slots

    int m_nPrecision = 2;
    double m_dSingleStep = 0.01;
    // 10 to the power of the precision only once that was set.
    int m_nMagnification = 1;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
