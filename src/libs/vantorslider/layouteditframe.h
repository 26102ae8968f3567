#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

/*!
    \class LayoutEditFrame layouteditframe.h vantorslider/layouteditframe.h
    \brief A RectEditFrame for the rectangles of a layout.

    It behaves like RectEditFrame. Use it where style sheets or code select an editor by its class.
*/
class VANTORSLIDER_EXPORT LayoutEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    /*! Creates the editor with the defaults of RectEditFrame. */
    explicit LayoutEditFrame(QWidget *parent = nullptr);
    ~LayoutEditFrame() override;
};

} // namespace Widgets
} // namespace Vantor
