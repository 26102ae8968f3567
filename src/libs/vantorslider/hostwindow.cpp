#include "hostwindow_p.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A host may show its window in a constructor: it becomes one of a derived class
// after that.
void HostWindow::remember()
{
    rememberType();
    QTimer::singleShot(0, m_widget, [this] { rememberType(); });
}

void HostWindow::rememberType()
{
    const QWidget &window = *m_widget->window();
    m_window = &window;
    m_type = &typeid(window);
}

bool HostWindow::isBeingDestroyed() const
{
    const QWidget &window = *m_widget->window();
    // A destructor turns an object into one of its base class: what was a dialog
    // of the host is a plain QDialog when that hides itself.
    if (m_window == &window && *m_type != typeid(window)) {
        return true;
    }
    // ~QWidget has left the chain of the focus before it hides the window.
    const QWidget *next = window.nextInFocusChain();
    return next == nullptr || (next == &window && &window != m_widget);
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
