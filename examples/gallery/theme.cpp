#include "theme.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QIcon>
#include <QtGui/QImageReader>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QToolButton>

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

// Qt paints the sub-page on the left even if the slider starts on the right.
QString mirrored(QString sheet)
{
    return sheet.replace(QLatin1String("::sub-page"), QLatin1String("::other-page"))
        .replace(QLatin1String("::add-page"), QLatin1String("::sub-page"))
        .replace(QLatin1String("::other-page"), QLatin1String("::add-page"));
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

// The editors' buttons have neither text nor icon: without a sheet the host
// sets their look. The texts that the desktop sheet gave them are cleared.
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
        button->setText(QString());
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
    // The sheets find their glyphs by this prefix; see the top of a sheet.
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
    qApp->setStyleSheet(QString());
    QApplication::setFont(m_font);
}

void Theme::adopt(QWidget *root)
{
    const auto widgets = root->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        // Except labels: their pages fit them to their texts.
        if (widget->inherits("QSlider") || widget->inherits("QAbstractSpinBox")
            || widget->inherits("QAbstractButton")
            || widget->objectName().startsWith(QLatin1String("frameSpacerLock"))) {
            m_sizes.insert(widget, {widget->minimumSize(), widget->maximumSize()});
            connect(widget, &QObject::destroyed, this, [this, widget] { m_sizes.remove(widget); });
        }
    }
    setIcons(root, m_kind == None);
}

void Theme::apply(Kind kind)
{
    if (kind != m_kind) {
        qApp->setStyleSheet(QString());
        restoreSizes();
    }
    m_kind = kind;
    QApplication::setPalette(paletteOf(kind));
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        setIcons(window, kind == None);
    }
    if (kind == None) {
        return;
    }
    const QString sheet = read(QStringLiteral("vantorslider:%1.qss").arg(names().at(kind).file))
        + read(QStringLiteral(":/gallery/fields.qss"));
    if (kind == Desktop) {
        qApp->setStyleSheet(sheet);
    } else {
        qApp->setStyleSheet((QApplication::isRightToLeft() ? mirrored(sheet) : sheet)
                            + read(QStringLiteral(":/gallery/chrome.qss")));
    }
}

void Theme::setFontScale(qreal scale)
{
    QFont font = m_font;
    font.setPointSizeF(m_font.pointSizeF() * scale);
    QApplication::setFont(font);
    apply(m_kind);
}

void Theme::setRightToLeft(bool on)
{
    QApplication::setLayoutDirection(on ? Qt::RightToLeft : Qt::LeftToRight);
    apply(m_kind);
}

// A sheet writes its min-width and similar values into the widgets, replacing those of
// their forms, and does not restore them when it is removed.
void Theme::restoreSizes()
{
    for (auto it = m_sizes.cbegin(); it != m_sizes.cend(); ++it) {
        it.key()->setMinimumSize(it.value().minimum);
        it.key()->setMaximumSize(it.value().maximum);
    }
}
