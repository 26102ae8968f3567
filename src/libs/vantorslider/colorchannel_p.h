#pragma once

#include "slidereditframe.h"

#include <QtGui/QColor>
#include <QtGui/QRgba64>

namespace Vantor::Widgets::Internal {

// A row as a channel of a QColor: its minimum is 0, its maximum the full channel. The 16 bits of
// a QColor's channel keep the values of every range up to 65,535 steps.
constexpr quint16 fullChannel = 65535;

inline quint16 channelOf(SliderEditFrame &row)
{
    const qint64 steps = qint64(row.maximum()) - row.minimum();
    const double part = steps > 0 ? double(qint64(row.value()) - row.minimum()) / double(steps) : 0;
    return static_cast<quint16>(qRound(part * fullChannel));
}

inline void setChannel(SliderEditFrame &row, quint16 channel)
{
    const qint64 steps = qint64(row.maximum()) - row.minimum();
    const qint64 value = row.minimum() + qRound64(double(steps) * channel / fullChannel);
    row.setValue(static_cast<int>(value));
}

} // namespace Vantor::Widgets::Internal
