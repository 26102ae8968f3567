#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

/*!
    \class LayoutEditFrame layouteditframe.h vantorslider/layouteditframe.h
    \brief The rectangle editor for layout rectangles: a RectEditFrame that hosts can
    tell apart by its class.
*/
class VANTORSLIDER_EXPORT LayoutEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    /*! Builds the editor as RectEditFrame does. */
    explicit LayoutEditFrame(QWidget *parent = nullptr);
    ~LayoutEditFrame() override;
};

} // namespace Widgets
} // namespace Vantor
