#pragma once

#include "vantorslider_global.h"

#include <QtCore/qnamespace.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

/*!
    Gives the labels of all visible rows in \a panel the width that the widest label text
    needs. The sliders of the panel then line up in one column, whatever editors their rows
    belong to. Call it once, before or after adding the editors.

    The width is updated when a row's text or font changes and when a row is shown, hidden,
    added or deleted, until \a panel is deleted. It replaces the widths of setLabelFixedWidth(),
    setLabelWidthRange() and a style sheet; setHorizontalSpacing() still sets the gap to the
    slider. If panels are nested, a row belongs to the nearest ancestor that was passed to this
    function. Rows in a separate window are not aligned.

    \a alignment aligns the texts, Qt::AlignLeft or Qt::AlignRight, and is mirrored in a
    right-to-left layout. Without it each label keeps its alignment, which is Qt::AlignRight by
    default. A later call for the same panel changes the alignment.

    Emits nothing. A null \a panel does nothing.

    \sa alignFields()
    \since 1.1
*/
VANTORSLIDER_EXPORT void alignLabels(QWidget *panel, Qt::Alignment alignment = Qt::Alignment());

} // namespace Widgets
} // namespace Vantor
