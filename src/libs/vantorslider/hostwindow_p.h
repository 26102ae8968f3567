#pragma once

#include <QtCore/QtGlobal>

#include <typeinfo>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// Whether the window around a widget is being destroyed. Qt hides such a window
// and takes its focus away, and children report then what is pending in them, a
// typed entry or a drag. The class of the host is gone at that time, with its
// slots still connected: nothing may be reported.
class HostWindow
{
public:
    explicit HostWindow(const QWidget *widget) : m_widget(widget) { }

    // When the user comes to the widget: the window is whole then, or soon.
    void remember();
    // The same where it is whole now.
    void rememberType();
    bool isBeingDestroyed() const;

private:
    const QWidget *m_widget;
    // Only to be compared; it may be gone.
    const QWidget *m_window = nullptr;
    const std::type_info *m_type = nullptr;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
