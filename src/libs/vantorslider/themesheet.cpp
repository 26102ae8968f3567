#include "themesheet_p.h"

#include "applytheme.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtGui/QFontMetrics>
#include <QtGui/QImageReader>

#include <utility>

// A static library has no resources otherwise. The macro declares a function of no namespace.
static void addThemes()
{
    Q_INIT_RESOURCE(vantorslider);
}

namespace Vantor::Widgets::Internal {

namespace {

const QLatin1String themeStart("/* libvantorslider: start of the theme */\n");
const QLatin1String themeEnd("/* libvantorslider: end of the theme */\n");

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The glyphs of a sheet file are found by a search path.
QString themeRules(EditorTheme theme)
{
    addThemes();
    QString name = QStringLiteral("desktop");
    if (theme == EditorTheme::TouchLight) {
        name = QStringLiteral("touch-light");
    } else if (theme == EditorTheme::TouchDark) {
        name = QStringLiteral("touch-dark");
    }
    return read(QStringLiteral(":/vantorslider/%1.qss").arg(name))
        .replace(QLatin1String("url(vantorslider:"), QLatin1String("url(:/vantorslider/"));
}

// In pixels of this font. Qt would take the application's, and measures it, like here, without the
// resolution of a widget.
QString withLengths(QString rules, const QFont &font)
{
    static const QRegularExpression length(QStringLiteral("([0-9]+(?:\\.[0-9]+)?)(em|ex)\\b"));
    QFont measured;
    measured.fromString(font.toString());
    const QFontMetrics metrics(measured);
    for (QRegularExpressionMatch found = length.match(rules); found.hasMatch();
         found = length.match(rules, found.capturedStart() + 1)) {
        const int unit =
            found.captured(2) == QLatin1String("em") ? metrics.height() : metrics.xHeight();
        rules.replace(found.capturedStart(), found.capturedLength(),
                      QStringLiteral("%1px").arg(qRound(found.captured(1).toDouble() * unit)));
    }
    return rules;
}

// Qt paints the sub-page on the left even if the slider starts on the right.
QString mirrored(QString rules)
{
    return rules.replace(QLatin1String("::sub-page"), QLatin1String("::other-page"))
        .replace(QLatin1String("::add-page"), QLatin1String("::sub-page"))
        .replace(QLatin1String("::other-page"), QLatin1String("::add-page"));
}

// A sheet can also be the name of a file, whose other files are beside it.
QString rulesOfHost(QString sheet)
{
    const QLatin1String file("file:///");
    if (sheet.startsWith(file)) {
        static const QRegularExpression relative(
            QStringLiteral("\\burl\\(\\s*(['\"]?)(?![:/'\"]|[a-z]+:)"),
            QRegularExpression::CaseInsensitiveOption);
        const QString path = sheet.mid(file.size());
        return read(path).replace(relative,
                                  QStringLiteral("url(\\1%1/").arg(QFileInfo(path).absolutePath()));
    }
    for (auto start = sheet.indexOf(themeStart); start >= 0; start = sheet.indexOf(themeStart)) {
        const auto end = sheet.indexOf(themeEnd, start);
        sheet.remove(start, (end < 0 ? sheet.length() : end + themeEnd.size()) - start);
    }
    return sheet;
}

} // namespace

QString withTheme(QString sheet, EditorTheme theme, const ThemeSurroundings &surroundings)
{
    QString host = rulesOfHost(std::move(sheet));
    if (theme == EditorTheme::NoTheme) {
        return host;
    }
    QString rules = withLengths(themeRules(theme), surroundings.font);
    if (theme != EditorTheme::Desktop && surroundings.direction == Qt::RightToLeft) {
        rules = mirrored(std::move(rules));
    }
    return themeStart + rules + themeEnd + host;
}

void warnWithoutGlyphs(EditorTheme theme)
{
    static bool isKnown = false;
    if (theme != EditorTheme::Desktop && !isKnown) {
        isKnown = true;
        if (!QImageReader::supportedImageFormats().contains("svg")) {
            qWarning("Qt's SVG plug-in is missing: the theme shows no glyphs.");
        }
    }
}

} // namespace Vantor::Widgets::Internal
