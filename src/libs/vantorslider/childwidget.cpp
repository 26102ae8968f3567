#include "childwidget_p.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A child that is not hidden is shown with its parent. Showing it here would polish it too early:
// with a style sheet that may change, and before the host has set its widths.
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

// The attribute is set after a style sheet has polished the widget.
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
