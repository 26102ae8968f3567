#include "theme.h"

#include "applytheme.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QIcon>
#include <QtGui/QImageReader>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

using Vantor::Widgets::applyTheme;
using Vantor::Widgets::EditorTheme;

namespace {

QPalette paletteOf(Theme::Kind kind)
{
    if (kind == Theme::Desktop || kind == Theme::None) {
        return QApplication::style()->standardPalette();
    }
    const bool dark = kind == Theme::TouchDark;
    const QColor window(dark ? 0xff1b1d21 : 0xffeef0f3);
    const QColor base(dark ? 0xff131417 : 0xffffffff);
    const QColor button(dark ? 0xff30343b : 0xffdfe3e8);
    const QColor text(dark ? 0xffe8eaed : 0xff1b1d21);
    const QColor faint(dark ? 0xff8d939c : 0xff6a7079);
    const QColor accent(dark ? 0xff4da3ff : 0xff0b5cad);

    QPalette palette(button, window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    palette.setColor(QPalette::PlaceholderText, faint);
#endif
    palette.setColor(QPalette::Mid, faint);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, dark ? QColor(0xff0b0d10) : Qt::white);
    palette.setColor(QPalette::Link, accent);
    return palette;
}

QString read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qWarning("Cannot read the style sheet %s.", qPrintable(path));
    }
    return QString::fromUtf8(file.readAll());
}

EditorTheme editorTheme(Theme::Kind kind)
{
    switch (kind) {
    case Theme::TouchDark:
        return EditorTheme::TouchDark;
    case Theme::TouchLight:
        return EditorTheme::TouchLight;
    case Theme::Desktop:
        return EditorTheme::Desktop;
    case Theme::None:
        break;
    }
    return EditorTheme::NoTheme;
}

QIcon glyph(const QString &name, const QString &checked = QString())
{
    const QString path = QStringLiteral("vantorslider:glyphs/%1-on-light.svg");
    QIcon icon(path.arg(name));
    if (!checked.isEmpty()) {
        icon.addFile(path.arg(checked), QSize(), QIcon::Normal, QIcon::On);
    }
    return icon;
}

// The editors' buttons have neither text nor icon: without a theme the host sets their look.
void setIcons(QWidget *root, bool on)
{
    const auto buttons = root->findChildren<QToolButton *>();
    for (QToolButton *button : buttons) {
        QIcon icon;
        if (button->property("isSliderEditSubtract").toBool()) {
            icon = glyph(QStringLiteral("minus"));
        } else if (button->property("isSliderEditPlus").toBool()) {
            icon = glyph(QStringLiteral("plus"));
        } else if (button->property("lockoutstate").toBool()) {
            icon = glyph(QStringLiteral("lock-open"), QStringLiteral("lock-closed"));
        } else {
            continue;
        }
        button->setIcon(on ? icon : QIcon());
        button->setIconSize(QSize(40, 40));
    }
}

} // namespace

QVector<Theme::Name> Theme::names()
{
    return {{QStringLiteral("touch-dark"), tr("Touch, &dark")},
            {QStringLiteral("touch-light"), tr("Touch, &light")},
            {QStringLiteral("desktop"), tr("D&esktop")},
            {QStringLiteral("none"), tr("&None")}};
}

void Theme::setUpApplication()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // glyphs as sharp as the screen
#endif
    QApplication::setApplicationName(QStringLiteral("gallery"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    // For the icons without a theme.
    QDir::addSearchPath(QStringLiteral("vantorslider"), QStringLiteral(":/styles"));
}

bool Theme::hasGlyphs()
{
    if (QImageReader::supportedImageFormats().contains("svg")) {
        return true;
    }
    qCritical(
        "Qt can't read SVG here, and buttons and handles would be blank: install its plug-in, "
        "on Debian %s.",
        QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? "libqt5svg5"
                                               : "qt6-svg-plugins, or libqt6svg6 before Debian 13");
    return false;
}

Theme::Theme(QObject *parent) : QObject(parent), m_font(QApplication::font()) { }

// Restores the application's state for the next window.
Theme::~Theme()
{
    applyTheme(qApp, EditorTheme::NoTheme);
    qApp->setStyleSheet(QString());
    QApplication::setFont(m_font);
}

void Theme::adopt(QWidget *root)
{
    setIcons(root, m_kind == None);
}

// The program's own rules are set first: the theme comes before them at once.
void Theme::apply(Kind kind)
{
    m_kind = kind;
    QApplication::setPalette(paletteOf(kind));
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        setIcons(window, kind == None);
    }
    QString rules;
    if (kind != None) {
        rules = read(QStringLiteral(":/gallery/fields.qss"));
        if (kind != Desktop) {
            rules += read(QStringLiteral(":/gallery/chrome.qss"));
        }
    }
    qApp->setStyleSheet(rules);
    applyTheme(qApp, editorTheme(kind));
}

void Theme::setFontScale(qreal scale)
{
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * scale);
    QApplication::setFont(font);
}

void Theme::setRightToLeft(bool on)
{
    QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
}
