#pragma once

#include "vantorslider_global.h"

#include <QtCore/qnamespace.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

/*!
    Gives the labels of all visible rows below \a panel one width: what the widest
    of them needs for its text in its font. The sliders of one panel then begin in
    one column, whatever editors their rows belong to.

    The width follows when a row's text or font changes, and when a row is shown,
    hidden, added or deleted, until \a panel is deleted. It replaces what
    setLabelFixedWidth() and setLabelWidthRange() have set, and what a style sheet
    says of the label's width; the gap to the slider stays that of
    setHorizontalSpacing(). A row below a nearer panel that was passed to this
    function belongs to that one's column; a row in a window of its own to none.

    \a alignment is where the texts stand in the column, Qt::AlignLeft or
    Qt::AlignRight, mirrored in a layout from right to left. Without it they stay as they are; an
   editor starts with Qt::AlignRight. A later call for the same panel changes the alignment.

    Emits nothing. A null \a panel does nothing.

    \since 1.1
*/
VANTORSLIDER_EXPORT void alignLabels(QWidget *panel, Qt::Alignment alignment = Qt::Alignment());

} // namespace Widgets
} // namespace Vantor
