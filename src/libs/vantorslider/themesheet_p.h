#pragma once

#include <QtCore/QString>
#include <QtCore/Qt>
#include <QtGui/QFont>
#include <QtGui/QPalette>

namespace Vantor::Widgets {

enum class EditorTheme;

namespace Internal {

// What a theme depends on. Qt reads the palette, that of the application, when a sheet is set.
struct ThemeSurroundings
{
    bool operator==(const ThemeSurroundings &other) const
    {
        return direction == other.direction && font == other.font && palette == other.palette;
    }

    Qt::LayoutDirection direction = Qt::LeftToRight;
    QFont font;
    QPalette palette;
};

// The style sheet with the theme instead of the one that it may have. The theme is before the
// rules of the host, between two comments by which it is found again.
QString withTheme(QString sheet, EditorTheme theme, const ThemeSurroundings &surroundings);

// Writes to Qt's log, once, that Qt can't read the glyphs of this theme.
void warnWithoutGlyphs(EditorTheme theme);

} // namespace Internal
} // namespace Vantor::Widgets
