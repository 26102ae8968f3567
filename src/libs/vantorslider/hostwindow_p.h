#pragma once

#include <QtCore/QtGlobal>

#include <typeinfo>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// Detects that the window of a widget is being destroyed. Qt then hides the window and clears its
// focus, and its children would report a pending entry or drag. The destructor of the host's
// class has run already while its slots are still connected: nothing may be emitted.
class HostWindow
{
public:
    explicit HostWindow(const QWidget *widget) : m_widget(widget) { }

    // Called when the user enters the widget: the window is constructed then, or soon.
    void rememberNowAndSoon();
    // If the window is certainly constructed.
    void rememberNow();
    bool isBeingDestroyed() const;

private:
    const QWidget *m_widget;
    // Only compared; it may dangle.
    const QWidget *m_window = nullptr;
    const std::type_info *m_type = nullptr;
};

} // namespace Vantor::Widgets::Internal
