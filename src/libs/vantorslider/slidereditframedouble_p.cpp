#include "slidereditframedouble_p.h"

#include <QtCore/QSignalBlocker>

#include <cmath>

namespace Vantor::Widgets::Internal {

void SliderEditDoublePrivate::setPrecision(int decimals)
{
    m_nPrecision = decimals;
    m_nMagnification = qMax(1, saturatedInt(std::pow(10.0, decimals)));
}

// An exact entry can change a value by less.
double SliderEditDoublePrivate::tolerance() const
{
    const bool isExact = spinBox()->entryOptions().testFlag(ExactEntry);
    return isExact ? qMin(leastDifference, 0.5 * std::pow(10.0, -spinBox()->decimals()))
                   : leastDifference;
}

// Rounds like QDoubleSpinBox.
double SliderEditDoublePrivate::rounded(double val) const
{
    return QString::number(val, 'f', spinBox()->decimals()).toDouble();
}

void SliderEditDoublePrivate::showInSpinBox(double val)
{
    const QSignalBlocker blocker(spinBox());
    spinBox()->setValue(val);
}

void SliderEditDoublePrivate::handToCalculator(double val)
{
    constexpr int shownDecimals = 2;
    constexpr bool hasSuffix = false;
    spinBox()->setSpinBoxCal(saturatedFloat(val), saturatedFloat(spinBox()->maximum()),
                             saturatedFloat(spinBox()->minimum()), shownDecimals, typedDecimals,
                             hasSuffix);
}

// Only the upper end has a tolerance.
std::optional<double> SliderEditDoublePrivate::stepped(int direction) const
{
    const double next = spinValue() + direction * spinBox()->singleStep();
    const bool isInRange =
        next >= spinBox()->minimum() && next <= spinBox()->maximum() + tolerance();
    return isInRange ? std::optional<double>(next) : std::nullopt;
}

} // namespace Vantor::Widgets::Internal
