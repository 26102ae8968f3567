#pragma once

#include "vantorslider_global.h"

#include <QtCore/QFlags>
#include <QtCore/QObject>

namespace Vantor {
namespace Widgets {

// Q_NAMESPACE declares it once more; a host that reads the enumeration's names needs it.
extern VANTORSLIDER_EXPORT const QMetaObject staticMetaObject;
Q_NAMESPACE

/*!
    \brief What a number field does otherwise with what the user enters. Each is off until the
    host asks for it.
    \since 1.1
*/
enum EntryOption {
    /*!
        As many decimals can be typed and are shown as the editor has, and a result is a
        \c double: an \c int is exact over its whole range, a floating-point editor gets the value
        of its decimals that is nearest to the result. It is clamped to the range that holds
        when it is written.
    */
    ExactEntry = 1,
    /*!
        A comma is a decimal point, which takes its place as it is typed or pasted. Between the
        arguments of a function, as in a pasted Math.max(3,7), it stays.
    */
    DecimalComma = 2,
    /*!
        Escape over a pending or a refused entry shows the value again, all selected, and
        reports nothing. With nothing pending it goes on to the parent.
    */
    EscapeRestores = 4,
    /*!
        Enter and "=" evaluate and report the entry and leave the focus in the field, with its
        text selected. With nothing pending Enter goes on to the parent.
    */
    EnterStays = 8
};

Q_DECLARE_FLAGS(EntryOptions, EntryOption)
Q_FLAG_NS(EntryOptions)
Q_DECLARE_OPERATORS_FOR_FLAGS(EntryOptions)

} // namespace Widgets
} // namespace Vantor
