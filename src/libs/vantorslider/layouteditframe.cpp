#include "layouteditframe.h"

namespace Vantor {
namespace Widgets {

LayoutEditFrame::LayoutEditFrame(QWidget *parent) : RectEditFrame(parent) { }

LayoutEditFrame::~LayoutEditFrame() = default;

} // namespace Widgets
} // namespace Vantor
