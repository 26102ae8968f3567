#include "layouteditframe.h"

namespace Vantor::Widgets {

LayoutEditFrame::LayoutEditFrame(QWidget *parent) : RectEditFrame(parent) { }

LayoutEditFrame::~LayoutEditFrame() = default;

} // namespace Vantor::Widgets
