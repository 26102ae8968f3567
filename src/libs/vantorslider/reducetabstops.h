#pragma once

#include "vantorslider_global.h"

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

/*!
    Leaves two tab stops in each row of \a panel, or of a row that is passed itself: the slider
    and the field. The row's frame and its buttons get the focus only by a click; after Enter the
    frame has it as before. A dialog thus opens with the focus in its first slider. A click on a
    row's label moves the focus to the field, which selects its text.

    Call the function once, before or after adding the editors; it includes rows that are added
    later, until \a panel is deleted. Buttons that lock a position or size stay tab stops. Emits
    nothing. A null \a panel does nothing.

    \since 1.1
*/
VANTORSLIDER_EXPORT void reduceTabStops(QWidget *panel);

} // namespace Widgets
} // namespace Vantor
