#include "hostwindow_p.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

namespace Vantor::Widgets::Internal {

// A host may show its window in a constructor; its dynamic type changes after that.
void HostWindow::rememberNowAndSoon()
{
    rememberNow();
    QTimer::singleShot(0, m_widget, [this] { rememberNow(); });
}

void HostWindow::rememberNow()
{
    const QWidget &window = *m_widget->window();
    m_window = &window;
    m_type = &typeid(window);
}

bool HostWindow::isBeingDestroyed() const
{
    const QWidget &window = *m_widget->window();
    // In a base class destructor the dynamic type is the base class: a dialog of the host is a
    // plain QDialog when ~QDialog hides it.
    if (m_window == &window && *m_type != typeid(window)) {
        return true;
    }
    // ~QWidget has removed the window from the focus chain before it hides it.
    const QWidget *next = window.nextInFocusChain();
    return next == nullptr || (next == &window && &window != m_widget);
}

} // namespace Vantor::Widgets::Internal
