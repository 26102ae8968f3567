#pragma once

#include "slidergroove_p.h"

#include <QtCore/QList>

#include <vector>

namespace Vantor::Widgets {

class SliderEditFrame;
class SliderEditSlider;

namespace Internal {

// Shows in the groove of each row of a colour editor the colours that its handle would give, as
// long as it exists.
class ColorGrooves : public GrooveColors
{
public:
    // Red, green and blue, and after them the opacity, if there is one.
    explicit ColorGrooves(const QList<SliderEditFrame *> &rows);
    ~ColorGrooves();
    ColorGrooves(const ColorGrooves &) = delete;
    ColorGrooves &operator=(const ColorGrooves &) = delete;

    QVector<QColor> colorsOf(const QSlider *slider) const override;
    void sliderChanged(const QSlider *slider) override;

private:
    struct Channel
    {
        SliderEditFrame *row;
        SliderEditSlider *slider;
    };

    std::vector<Channel> m_channels;
};

} // namespace Internal
} // namespace Vantor::Widgets
