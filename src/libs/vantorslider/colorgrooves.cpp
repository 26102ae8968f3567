#include "colorgrooves_p.h"

#include "colorchannel_p.h"
#include "logscale_p.h"
#include "slidereditframe.h"
#include "slidereditframe_p.h"

#include <array>

namespace Vantor::Widgets::Internal {

namespace {

constexpr std::size_t opacity = 3; // the index of its row
constexpr int logarithmicParts = 16; // straight in between

// The channel at a place on the way of the row's handle, from 0 to 1.
quint16 channelAt(double place, const SliderEditFrame &row)
{
    if (row.sliderScale() == SliderEditFrame::LogarithmicScale) {
        const double least = row.minimum();
        const double value = logValue(qRound(place * lastLogPosition), least, row.maximum());
        place = (value - least) / qMax(1.0, row.maximum() - least);
    }
    return static_cast<quint16>(qRound(place * fullChannel));
}

} // namespace

ColorGrooves::ColorGrooves(const QList<SliderEditFrame *> &rows)
{
    for (SliderEditFrame *row : rows) {
        auto *slider = row->findChild<SliderEditSlider *>();
        m_channels.push_back({row, slider});
        slider->setGrooveColors(this);
    }
}

ColorGrooves::~ColorGrooves()
{
    for (const Channel &channel : m_channels) {
        if (channel.slider->grooveColors() == this) {
            channel.slider->setGrooveColors(nullptr);
        }
    }
}

// An opacity is not seen in the other grooves.
QVector<QColor> ColorGrooves::colorsOf(const QSlider *slider) const
{
    std::array<quint16, 4> color {0, 0, 0, fullChannel};
    std::size_t own = 0;
    for (std::size_t i = 0; i < m_channels.size(); ++i) {
        if (m_channels[i].slider == slider) {
            own = i;
        } else if (i != opacity) {
            color[i] = channelOf(*m_channels[i].row);
        }
    }
    const SliderEditFrame &row = *m_channels[own].row;
    const bool isLinear = row.sliderScale() == SliderEditFrame::LinearScale;
    const int parts = isLinear ? 1 : logarithmicParts;
    QVector<QColor> colors;
    colors.reserve(parts + 1);
    for (int part = 0; part <= parts; ++part) {
        color[own] = channelAt(double(part) / parts, row);
        colors.append(QColor::fromRgba64(color[0], color[1], color[2], color[opacity]));
    }
    return colors;
}

void ColorGrooves::sliderChanged(const QSlider *slider)
{
    if (m_channels.size() > opacity && m_channels[opacity].slider == slider) {
        return;
    }
    for (const Channel &channel : m_channels) {
        if (channel.slider != slider) {
            channel.slider->updateGroove();
        }
    }
}

} // namespace Vantor::Widgets::Internal
