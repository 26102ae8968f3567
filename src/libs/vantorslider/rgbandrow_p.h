#pragma once

#include "childwidget_p.h"
#include "editorrows_p.h"
#include "rgbeditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// How the two four-value colour editors reach their own row and the block of
// three channels beside it. An operation is given twice, the row's and the
// block's of the same name.
struct RGBAndRow
{
    // What the own row's flag does not name is the block's, which warns of what
    // names no channel.
    template <typename RowOperation, typename... BlockArguments, typename... Arguments>
    void one(int type, RowOperation rowOperation,
             void (RGBEditFrame::*blockOperation)(RGBEditFrame::Type, BlockArguments...),
             const Arguments &...arguments) const
    {
        if (SliderEditFrame *frame = row.find(type)) {
            (frame->*rowOperation)(arguments...);
        } else {
            (block->*blockOperation)(static_cast<RGBEditFrame::Type>(type), arguments...);
        }
    }

    template <typename RowGetter, typename BlockGetter>
    auto get(int type, RowGetter rowGetter, BlockGetter blockGetter) const
    {
        SliderEditFrame *frame = row.find(type);
        return frame != nullptr ? (frame->*rowGetter)()
                                : (block->*blockGetter)(static_cast<RGBEditFrame::Type>(type));
    }

    void range(int type, int &min, int &max) const
    {
        if (const SliderEditFrame *frame = row.find(type)) {
            min = frame->minimum();
            max = frame->maximum();
        } else {
            block->range(static_cast<RGBEditFrame::Type>(type), min, max);
        }
    }

    bool isMousePressed() const { return row.isMousePressed() || block->isMousePressed(); }
    int labelMaxLength() const { return qMax(block->labelMaxLength(), row.labelMaxLength()); }

    template <typename RowOperation, typename BlockOperation, typename... Arguments>
    void all(RowOperation rowOperation, BlockOperation blockOperation,
             const Arguments &...arguments) const
    {
        row.all(rowOperation, arguments...);
        (block->*blockOperation)(arguments...);
    }

    // A block without a visible channel is hidden as a whole and keeps which of
    // its rows it showed.
    void setVisible(int types) const
    {
        constexpr int channels = RGBEditFrame::R | RGBEditFrame::G | RGBEditFrame::B;
        row.setVisible(types);
        setShown(block, (types & channels) != 0);
        if ((types & channels) != 0) {
            block->setEditerVisible(types);
        }
    }

    EditorRows row;
    RGBEditFrame *block;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
