#include "applytheme.h"

#include "editorforms_p.h"
#include "themesheet_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace Vantor::Widgets {
namespace Internal {

// Keeps a theme in the style sheet of the application or of a widget, which owns this object.
//
// Nothing is set while an event is filtered: Qt sends it in the middle of applying another sheet.
// A sheet can change the font of a widget itself; only what differs from the state that the last
// sheet has left is a change of the host.
class ThemeKeeper : public QObject
{
    Q_OBJECT

public:
    // widget: null for the application.
    ThemeKeeper(QObject *owner, QWidget *widget) : QObject(owner), m_widget(widget) { }

    void setTheme(EditorTheme theme);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ThemeSurroundings surroundings() const;
    QString sheet() const;
    bool isOutdated() const;
    void apply();

    QWidget *const m_widget;
    EditorTheme m_theme = EditorTheme::NoTheme;
    bool m_isPending = false;
    // As of the last apply().
    QString m_sheet;
    ThemeSurroundings m_surroundings;
};

void ThemeKeeper::setTheme(EditorTheme theme)
{
    // Each theme starts from the forms.
    if (theme != m_theme && m_theme != EditorTheme::NoTheme) {
        m_theme = EditorTheme::NoTheme;
        apply();
        restoreForms(m_widget);
    }
    m_theme = theme;
    parent()->removeEventFilter(this);
    if (theme != EditorTheme::NoTheme) {
        apply();
        warnWithoutGlyphs(theme);
        parent()->installEventFilter(this);
    }
}

ThemeSurroundings ThemeKeeper::surroundings() const
{
    return {m_widget != nullptr ? m_widget->layoutDirection() : QApplication::layoutDirection(),
            m_widget != nullptr ? m_widget->font() : QApplication::font(), QApplication::palette()};
}

QString ThemeKeeper::sheet() const
{
    return m_widget != nullptr ? m_widget->styleSheet() : qApp->styleSheet();
}

bool ThemeKeeper::isOutdated() const
{
    return m_theme != EditorTheme::NoTheme
        && (sheet() != m_sheet || !(surroundings() == m_surroundings));
}

void ThemeKeeper::apply()
{
    m_sheet = withTheme(sheet(), m_theme, surroundings());
    if (m_widget == nullptr) {
        qApp->setStyleSheet(m_sheet);
    } else {
        if (!m_widget->styleSheet().isEmpty()) {
            m_widget->ensurePolished(); // or it may go on with the sheet that it has
        }
        m_widget->setStyleSheet(m_sheet);
    }
    m_surroundings = surroundings();
}

bool ThemeKeeper::event(QEvent *event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    m_isPending = false;
    if (isOutdated()) {
        apply();
    }
    return true;
}

// The application's filter sees the events of all widgets: one of them shows that another sheet
// has been set on the application.
bool ThemeKeeper::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ApplicationFontChange:
    case QEvent::ApplicationLayoutDirectionChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::FontChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::PaletteChange:
    case QEvent::Polish:
    case QEvent::StyleChange:
        if (!m_isPending && isOutdated()) {
            m_isPending = true;
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

namespace {

void applyThemeTo(QObject *owner, QWidget *widget, EditorTheme theme)
{
    auto *keeper = owner->findChild<ThemeKeeper *>(QString(), Qt::FindDirectChildrenOnly);
    if (keeper == nullptr && theme != EditorTheme::NoTheme) {
        keeper = new ThemeKeeper(owner, widget);
    }
    if (keeper != nullptr) {
        keeper->setTheme(theme);
    }
}

} // namespace

} // namespace Internal

void applyTheme(QApplication *application, EditorTheme theme)
{
    if (application != nullptr) {
        Internal::applyThemeTo(application, nullptr, theme);
    }
}

void applyTheme(QWidget *widget, EditorTheme theme)
{
    if (widget != nullptr) {
        Internal::applyThemeTo(widget, widget, theme);
    }
}

} // namespace Vantor::Widgets

#include "applytheme.moc"
