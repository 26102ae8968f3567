#pragma once

#include "rgbeditframe.h"
#include "slidereditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// A fourth row beside a block of three channels, and how the two four-value
// colour editors address them.
struct RGBAndRow
{
    // An operation on one value: on the row if type is its own; else on the
    // block, which rejects what names no channel.
    template <typename... Parameters, typename... Arguments>
    void one(int type, void (SliderEditFrame::*rowOperation)(Parameters...),
             void (RGBEditFrame::*blockOperation)(RGBEditFrame::Type, Parameters...),
             const Arguments &...arguments) const
    {
        if (type == rowType) {
            (row->*rowOperation)(arguments...);
        } else {
            (block->*blockOperation)(static_cast<RGBEditFrame::Type>(type), arguments...);
        }
    }

    template <typename... Parameters, typename... Arguments>
    void all(void (SliderEditFrame::*rowOperation)(Parameters...),
             void (RGBEditFrame::*blockOperation)(Parameters...),
             const Arguments &...arguments) const
    {
        (row->*rowOperation)(arguments...);
        (block->*blockOperation)(arguments...);
    }

    // A block without a visible channel is hidden as a whole and keeps which of
    // its rows it showed.
    void setVisible(int types) const
    {
        constexpr int channels = RGBEditFrame::R | RGBEditFrame::G | RGBEditFrame::B;
        row->setVisible((types & rowType) != 0);
        block->setVisible((types & channels) != 0);
        if ((types & channels) != 0) {
            block->setEditerVisible(types);
        }
    }

    void value(int &r, int &g, int &b, int &fourth) const
    {
        fourth = row->value();
        block->value(r, g, b);
    }

    RGBEditFrame *block;
    SliderEditFrame *row;
    int rowType;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
