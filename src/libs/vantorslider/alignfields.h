#pragma once

#include "vantorslider_global.h"

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

/*!
    Gives the fields of all visible rows in \a panel the width that the widest text needs: the
    text of any value in a row's range with its decimals, prefix and suffix, or the special value
    text of its spin box. No value is clipped then. An expression that is longer scrolls while it
    is typed. Call the function once, before or after adding the editors.

    The width is updated when one of these or a font or style sheet changes, and when a row is
    shown, hidden, added or deleted, until \a panel is deleted. It replaces the 65 pixels that a
    field has otherwise, and the widths of the library's own style sheets. A width that the host
    sets stays: that of setSpinBoxFixedWidth(), setSpinBoxWidthRange() or a rule for the field in
    its own sheet. A field with a fixed width does not widen the others, and in a range of widths a
    field comes as close to the others as the range permits.

    If panels are nested, a row belongs to the nearest ancestor that was passed to this function.
    Rows in a separate window are not aligned. Emits nothing. A null \a panel does nothing.

    \sa alignLabels()
    \since 1.1
*/
VANTORSLIDER_EXPORT void alignFields(QWidget *panel);

} // namespace Widgets
} // namespace Vantor
