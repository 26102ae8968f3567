#pragma once

#include "childwidget_p.h"
#include "editorrows_p.h"
#include "rgbeditframe.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

// The fourth row and the RGB editor of a four-value colour editor. A call takes two member
// functions of the same name: the row's and the RGB editor's.
struct RGBAndRow
{
    // A flag other than the fourth row's goes to the RGB editor, which warns if it is no channel.
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

    // Without a visible channel the RGB editor is hidden; its rows keep their visibility.
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
