#include "layouteditframe.h"

namespace Vantor {
namespace Widgets {

/*!
    \class LayoutEditFrame layouteditframe.h vantorslider/layouteditframe.h
    \brief The rectangle editor for layout rectangles: a RectEditFrame that
    hosts can tell apart by its class.
*/

/*! Builds the editor as RectEditFrame does. */
LayoutEditFrame::LayoutEditFrame(QWidget *parent) : RectEditFrame(parent) { }

LayoutEditFrame::~LayoutEditFrame() = default;

} // namespace Widgets
} // namespace Vantor
