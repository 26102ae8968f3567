#pragma once

#include "vantorslider_global.h"

#include <QtCore/QFlags>
#include <QtCore/QObject>

namespace Vantor {
namespace Widgets {

// Exported: a host needs it to read the names of the enumeration. Q_NAMESPACE redeclares it.
extern VANTORSLIDER_EXPORT const QMetaObject staticMetaObject;
Q_NAMESPACE

/*!
    \brief Options for how a spin box handles what the user types. All are off by default.

    Every editor and both spin boxes have setEntryOptions().
    \since 1.1
*/
enum EntryOption {
    NoEntryOptions = 0, //!< No option: the default. Forms need a name for it.
    /*!
        The user can type as many decimals as the editor has, instead of 2. Results are computed
        as \c double, instead of \c float: exact for each \c int, rounded to the decimals of a
        floating-point editor. They are clamped to the current range.
    */
    ExactEntry = 1,
    /*!
        A comma that is typed or pasted is replaced by a decimal point. A comma between the
        arguments of a function stays, as in a pasted Math.max(3,7).
    */
    DecimalComma = 2,
    /*!
        Escape discards what was typed, or a failed expression, shows the value again with its
        text selected, and emits no valueChanged(). Otherwise Escape goes to the parent widget.
    */
    EscapeRestores = 4,
    /*!
        Enter and "=" evaluate and report what was typed and keep the focus in the spin box,
        with its text selected. If nothing was typed, Enter goes to the parent widget.
    */
    EnterStays = 8,
    /*!
        The signs of any keyboard become those of an expression as they are typed, pasted or
        committed by an input method: a multiplication sign or dot, a division sign or slash, a
        minus sign or dash, full-width forms, the digits of every script and the Arabic decimal
        separator.
    */
    AnyKeyboard = 16,
    /*!
        Nothing typed by accident counts. An entry that ends empty, or as "=" alone, shows the
        value again and emits no valueChanged(). A character that is refused changes neither text
        nor selection, and neither does a paste whose last character is refused. Without it an
        empty entry is 0, and the refused character has replaced the selection.
    */
    SafeEntry = 32
};

Q_DECLARE_FLAGS(EntryOptions, EntryOption)
Q_FLAG_NS(EntryOptions)
Q_DECLARE_OPERATORS_FOR_FLAGS(EntryOptions)

/*!
    \brief Options for how a row handles the pointer. All are off by default.

    SliderEditFrame and SliderEditFrameDouble have setSliderOptions().
    \since 1.1
*/
enum SliderOption {
    NoSliderOptions = 0, //!< No option: the default.
    /*!
        A press of the left button, or of a finger, on the groove moves the handle under the
        pointer, and the drag goes on from there. It is reported like any drag. Without it a press
        on the groove moves by a page step.
    */
    GrooveMovesHandle = 1,
    /*!
        During a drag the handle moves the slower, the farther the pointer is above or below the
        slider: at 176 pixels and more by one position per pixel, if that is 16 to 256 times slower
        than at the slider, otherwise by the nearer of these. So does Shift at any distance. Back
        at the slider the handle approaches the pointer as it moves, without a jump.
    */
    FineDrag = 2,
    /*!
        A finger that moves up or down before it moves along does not operate the row: nothing
        changes, no edit starts, and a page with a QScroller scrolls. A press by a finger takes
        effect when it has moved along by QApplication::startDragDistance(), has rested for 150
        milliseconds or is lifted. Mouse events that do not come from a touch are not affected.
    */
    FlickScrolls = 4
};

Q_DECLARE_FLAGS(SliderOptions, SliderOption)
Q_FLAG_NS(SliderOptions)
Q_DECLARE_OPERATORS_FOR_FLAGS(SliderOptions)

} // namespace Widgets
} // namespace Vantor
