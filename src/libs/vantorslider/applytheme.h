#pragma once

#include "vantorslider_global.h"

#include <QtCore/qglobal.h>

QT_BEGIN_NAMESPACE
class QApplication;
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

/*!
    \brief The looks that come with the library.
    \since 1.1
*/
enum class EditorTheme {
    NoTheme, /*!< The application's style alone. */
    Desktop, /*!< For mouse and keyboard, in the colours of the host's palette. */
    TouchLight, /*!< For fingers: targets of 48 pixels, light. */
    TouchDark /*!< The same, dark. */
};

/*!
    Gives all editors of the application the look of \a theme, and keeps it right when the
    application's font, palette or layout direction changes. Nothing is read from files: sheets
    and glyphs are in the library. Qt needs its SVG plug-in for the touch themes; if it is missing,
    one warning is written to Qt's log.

    The theme is a part of the application's style sheet: its rules come first, those of the host
    follow and take precedence if they are as specific. QApplication::styleSheet() returns both.
    The host can set its sheet before or after this call, as text or as "file:///" with a path: the
    theme is put before it again as soon as the program returns to its event loop, before anything
    is painted.

    Another \a theme replaces the last one, the same one applies it again. EditorTheme::NoTheme
    removes it: the sheet is that of the host alone, and fields, sliders and buttons have again the
    sizes and texts that they have without a sheet. Sizes of a row's setters, such as
    setSpinBoxFixedWidth(), stay; what the host has set on a child itself it sets again.

    Call the function at any time after the application's constructor. A null \a application
    does nothing.

    \since 1.1
*/
VANTORSLIDER_EXPORT void applyTheme(QApplication *application, EditorTheme theme);

/*!
    The same for the editors in \a widget, a window or a panel, by its own style sheet and with its
    own font and layout direction, until it is deleted. The colours of EditorTheme::Desktop are
    those of the application's palette. Qt passes a font that the host sets on \a widget later on to
    its children only with Qt::AA_UseStyleSheetPropagationInWidgetStyles, as with any style sheet.
    The theme's rules take precedence over those of an application's theme, which also apply: do not
    combine two different themes.

    \since 1.1
    \overload
*/
VANTORSLIDER_EXPORT void applyTheme(QWidget *widget, EditorTheme theme);

} // namespace Widgets
} // namespace Vantor
