#pragma once

#include "childwidget_p.h"
#include "editorrows_p.h"
#include "rgbeditframe.h"

namespace Vantor::Widgets::Internal {

// The fourth row and the RGB editor of a four-value colour editor.
struct RGBAndRow
{
    // A flag other than the fourth row's goes to the RGB editor, which warns if it is no channel:
    // the two member functions have the same name.
    template <typename RowOperation, typename... BlockArguments, typename... Arguments>
    void one(int type, RowOperation rowOperation,
             void (RGBEditFrame::*blockOperation)(RGBEditFrame::Type, BlockArguments...),
             const Arguments &...arguments) const
    {
        if (type == fourth.type) {
            (fourth.frame->*rowOperation)(arguments...);
        } else {
            (block->*blockOperation)(static_cast<RGBEditFrame::Type>(type), arguments...);
        }
    }

    template <typename Operation, typename... Arguments>
    void all(Operation operation, const Arguments &...arguments) const
    {
        (fourth.frame->*operation)(arguments...);
        for (SliderEditFrame *channel : block->rows()) {
            (channel->*operation)(arguments...);
        }
    }

    SliderEditFrame *row(int type) const
    {
        return type == fourth.type ? fourth.frame
                                   : block->row(static_cast<RGBEditFrame::Type>(type));
    }

    QList<SliderEditFrame *> frames() const { return block->rows() << fourth.frame; }

    // Without a visible channel the RGB editor is hidden; its rows keep their visibility.
    void setVisible(int types) const
    {
        constexpr int channels = RGBEditFrame::R | RGBEditFrame::G | RGBEditFrame::B;
        setShown(fourth.frame, (types & fourth.type) != 0);
        setShown(block, (types & channels) != 0);
        if ((types & channels) != 0) {
            block->setEditerVisible(types);
        }
        markTopmost(block->parentWidget()->layout());
    }

    EditorRows::Row fourth;
    RGBEditFrame *block;
};

} // namespace Vantor::Widgets::Internal
