#include "childwidget_p.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A child that is not hidden comes with its parent. Showing it would polish it now, by
// a sheet that may not be the last, and without the widths that the host sets next.
void setShown(QWidget *child, bool isShown)
{
    if (!isShown || child->isHidden()) {
        child->setVisible(isShown);
    }
}

void setWidthRange(QWidget *child, int maximum, int minimum)
{
    child->setMaximumWidth(maximum);
    child->setMinimumWidth(minimum);
    applyStyleSheet(child);
}

void setFixedWidth(QWidget *child, int width)
{
    child->setFixedWidth(width);
    applyStyleSheet(child);
}

// The attribute is set when a sheet has polished the widget.
void applyStyleSheet(QWidget *child)
{
    if (child->testAttribute(Qt::WA_StyleSheet)) {
        child->style()->unpolish(child);
        child->style()->polish(child);
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
