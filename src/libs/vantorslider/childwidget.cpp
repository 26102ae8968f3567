#include "childwidget_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QPoint>
#include <QtCore/QVariant>
#include <QtWidgets/QStyle>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

constexpr const char *hostWidthsProperty = "_vantorslider_hostWidths";

} // namespace

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
    child->setProperty(hostWidthsProperty, QPoint(minimum, maximum));
    child->setMaximumWidth(maximum);
    child->setMinimumWidth(minimum);
    applyStyleSheet(child);
}

void setFixedWidth(QWidget *child, int width)
{
    child->setProperty(hostWidthsProperty, QPoint(width, width));
    child->setFixedWidth(width);
    applyStyleSheet(child);
}

WidthRange hostWidths(const QWidget *child)
{
    const QVariant widths = child->property(hostWidthsProperty);
    return widths.isValid() ? WidthRange {widths.toPoint().x(), widths.toPoint().y()}
                            : WidthRange();
}

void fieldTextsChanged(QWidget *field)
{
    if (field->property(alignedFieldProperty).toBool()) {
        QCoreApplication::postEvent(field->parentWidget(), new QEvent(QEvent::LayoutRequest));
    }
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
