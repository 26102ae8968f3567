#pragma once

#include <QtWidgets/QWidget>

#include <algorithm>

namespace Vantor::Widgets::Internal {

// Setters for a child of an editor. A style sheet sets its widths when the widget is polished,
// and a later setter would override them. These functions have the same result in any order,
// before and after the first show: a width in the style sheet takes precedence, until the sheet is
// removed.
void setShown(QWidget *child, bool isShown);
void setWidthRange(QWidget *child, int maximum, int minimum);
void setFixedWidth(QWidget *child, int width);

// The widths that the host permits: what the last of these setters was called with, also while a
// style sheet overrides it.
struct WidthRange
{
    int within(int wanted) const { return std::max(least, std::min(wanted, greatest)); }

    int least = 0;
    int greatest = QWIDGETSIZE_MAX;
};
WidthRange hostWidths(const QWidget *child);
// Gives the child these widths again, and those of its style sheet, if there are any.
void applyWidths(QWidget *child);

// A field whose width alignFields() sets. Style sheets read the property, too.
constexpr const char *alignedFieldProperty = "isFieldAligned";

// Called after a change of the texts that a row's field can show: has its column aligned again,
// if there is one.
void fieldTextsChanged(QWidget *field);

// Whether the widget or one around it in its window has a tool tip.
bool hasToolTip(const QWidget *widget);

// Sets a dynamic property that style sheets select.
void setStyledProperty(QWidget *child, const char *name, bool value);

// Polishes the widget, so that its style sheet applies a changed property and its widths. Does
// nothing without a style sheet.
void applyStyleSheet(QWidget *child);

} // namespace Vantor::Widgets::Internal
