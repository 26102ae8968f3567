#pragma once

#include <QtCore/QObject>

#include <optional>

namespace Vantor::Widgets::Internal {

// Time sampling of a drag: when a tick or the release reports. It compares positions of the slider.
class Sampling
{
public:
    // The frame receives the ticks.
    explicit Sampling(QObject *frame) : m_frame(frame) { }

    void setRate(int milliseconds) { m_rate = milliseconds; }
    bool isOn() const { return m_rate.has_value(); }
    int rate() const { return m_rate.value_or(0); }

    void start(int position)
    {
        stop();
        m_isMoved = false;
        m_nLastPosition = position;
        m_nTimer = m_frame->startTimer(*m_rate);
    }

    void stop()
    {
        if (m_nTimer != -1) {
            m_frame->killTimer(m_nTimer);
        }
        m_nTimer = -1;
    }

    // The user has moved the slider.
    void move(int position)
    {
        if (position != m_nLastPosition) {
            m_isMoved = true;
            m_isMovedInTick = true;
        }
    }

    // Whether the timer is that of the sampling and its tick reports the position. A receiver may
    // run a local event loop, in which the timer continues.
    bool isDue(int timer, int position) const
    {
        return timer == m_nTimer && !m_isInTick && position != m_nLastPosition;
    }

    void beginTick()
    {
        m_isInTick = true;
        m_isMovedInTick = false;
    }

    bool isInTick() const { return m_isInTick; }
    // A tick's value is not reported again if a receiver ends the drag.
    void setLast(int position) { m_nLastPosition = position; }

    // The next tick reports what the user has moved meanwhile, but not what the host has set.
    void endTick(int position)
    {
        m_isInTick = false;
        if (!m_isMovedInTick) {
            m_nLastPosition = position;
        }
    }

    bool isLast(int position) const { return position == m_nLastPosition; }
    // Since the start, by the user.
    bool isMoved() const { return m_isMoved; }

private:
    QObject *const m_frame;
    std::optional<int> m_rate;
    int m_nTimer = -1;
    // At the start, or at the last tick.
    int m_nLastPosition = -1;
    bool m_isMoved = false;
    bool m_isInTick = false;
    bool m_isMovedInTick = false;
};

} // namespace Vantor::Widgets::Internal
