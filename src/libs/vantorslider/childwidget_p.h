#pragma once

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// Setters for a child of an editor. A style sheet sets its widths when the widget is polished,
// and a later setter would override them. These functions have the same result in any order,
// before and after the first show: a width in the style sheet takes precedence.
void setShown(QWidget *child, bool isShown);
void setWidthRange(QWidget *child, int maximum, int minimum);
void setFixedWidth(QWidget *child, int width);

// Polishes the widget, so that its style sheet applies a changed property and its widths. Does
// nothing without a style sheet.
void applyStyleSheet(QWidget *child);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
