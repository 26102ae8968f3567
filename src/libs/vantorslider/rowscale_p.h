#pragma once

#include "logscale_p.h"
#include "slidereditframe_p.h"

#include <QtCore/QDebug>
#include <QtCore/QSignalBlocker>

namespace Vantor::Widgets::Internal {

// Maps the values of a row to the positions of its slider. The row's engine defines the linear
// scale; a logarithmic one has its own positions.
template <typename Owner, typename Value> class RowScale
{
public:
    explicit RowScale(const Owner &owner) : m_owner(owner) { }

    bool isLogarithmic() const { return m_isLogarithmic; }

    void setLogarithmic(bool isOn)
    {
        if (isOn == m_isLogarithmic || (isOn && !checkMinimum())) {
            return;
        }
        m_isLogarithmic = isOn;
        setEnds(engine().toPosition(least()), engine().toPosition(greatest()));
        if (!isOn) {
            leaveLogarithm();
        }
    }

    // The ends of a linear scale. A logarithmic one becomes linear if the minimum is 0 or less.
    void setEnds(int lowest, int highest)
    {
        const QSignalBlocker blocker(slider());
        if (m_isLogarithmic && checkMinimum()) {
            slider()->setRange(0, least() < greatest() ? lastLogPosition : 0);
            slider()->setSingleStep(1);
            slider()->setValue(spinPosition());
            return;
        }
        slider()->setScale(lowest, highest);
        if (m_isLogarithmic) {
            leaveLogarithm();
        }
    }

    Value least() const { return engine().spinBox()->minimum(); }
    Value greatest() const { return engine().spinBox()->maximum(); }

    int positionOf(Value val) const
    {
        return m_isLogarithmic ? logPosition(val, least(), greatest()) : engine().toPosition(val);
    }
    int spinPosition() const { return positionOf(engine().spinBox()->value()); }

    // The value at a position. On a logarithmic scale several values share a position: the last
    // value keeps its position, and the pressed position returns the value at the press.
    Value valueAt(int position) const
    {
        if (!m_isLogarithmic) {
            return engine().toValue(position);
        }
        if (position == positionOf(engine().lastValue())) {
            return engine().lastValue();
        }
        if (position == m_nPressedPosition && slider()->isSliderDown()) {
            return m_pressedValue;
        }
        return logValueAt(position);
    }

    // Moves the handle to the value. Several positions of a logarithmic scale can have the same
    // value, too: the handle stays under the pointer, and a key that has moved it goes on from
    // there.
    void show(Value val) const
    {
        const int position = slider()->sliderPosition();
        const bool isThere = m_isLogarithmic && least() > 0 && logValueAt(position) == val;
        const QSignalBlocker blocker(slider());
        slider()->setValue(isThere ? position : positionOf(val));
    }

    // The user has pressed the handle.
    void press()
    {
        m_nPressedPosition = slider()->value();
        m_pressedValue = engine().lastValue();
    }
    int pressedPosition() const { return m_nPressedPosition; }
    Value pressedValue() const { return m_pressedValue; }

private:
    const auto &engine() const { return m_owner.engine(); }
    SliderEditSlider *slider() const { return m_owner.slider(); }

    Value logValueAt(int position) const
    {
        return engine().rounded(logValue(position, least(), greatest()));
    }

    bool checkMinimum() const
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
        const QSignalBlocker blocker(slider());
        slider()->setSingleStep(engine().sliderStep());
        slider()->setValue(spinPosition());
    }

    const Owner &m_owner;
    int m_nPressedPosition = -1;
    Value m_pressedValue = 0;
    bool m_isLogarithmic = false;
};

} // namespace Vantor::Widgets::Internal
