#pragma once

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// What the host says of a child of an editor. A style sheet writes its own widths into
// a widget when the widget is polished, and loses to those that are set later. These
// calls come to the same in any order, before and after the first show: where the sheet
// gives a width, it is the sheet's.
void setShown(QWidget *child, bool isShown);
void setWidthRange(QWidget *child, int maximum, int minimum);
void setFixedWidth(QWidget *child, int width);

// Lets a style sheet see a property that has changed, or write its widths again. Costs
// nothing without a sheet.
void applyStyleSheet(QWidget *child);

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
