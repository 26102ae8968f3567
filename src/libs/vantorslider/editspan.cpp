#include "editspan_p.h"

#include "recteditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QTimer>

namespace Vantor {
namespace Widgets {
namespace Internal {

EditSpan::~EditSpan()
{
    for (Scope *scope = m_innermost; scope != nullptr; scope = scope->m_outer) {
        scope->m_span = nullptr;
    }
    leaveOuter();
}

// The EditSpan of the widget if it is of one of these classes, or null.
template <typename Editor, typename... Others> EditSpan *EditSpan::find(const QWidget *widget)
{
    if (const auto *editor = qobject_cast<const Editor *>(widget)) {
        return of(*editor);
    }
    if constexpr (sizeof...(Others) != 0) {
        return find<Others...>(widget);
    }
    return nullptr;
}

// A widget in its base class destructor is no longer of one of these classes.
EditSpan *EditSpan::around(const QWidget *widget)
{
    EditSpan *span = nullptr;
    while (span == nullptr && !widget->isWindow() && widget->parentWidget() != nullptr) {
        widget = widget->parentWidget();
        // One cast instead of six for the widgets between an editor and the child.
        if (qobject_cast<const QFrame *>(widget) != nullptr) {
            span = find<SliderEditFrame, SliderEditFrameDouble, RectEditFrame, RGBEditFrame,
                        RGBAllEditFrame, RGBOpacityEditFrame>(widget);
        }
    }
    return span;
}

void EditSpan::begin()
{
    if (isTold()) {
        return;
    }
    const Scope scope(this);
    EditSpan *const outer = m_isOpen && !m_isCounted ? nullptr : around(m_editor);
    m_isOpen = true;
    if (outer != nullptr) {
        if (!m_isCounted) {
            m_isCounted = true;
            m_isOuterTold = false;
            ++outer->m_openRows;
        }
        const Scope outerScope(outer);
        outer->begin();
        if (scope && outerScope) {
            m_isOuterTold = outer->isTold();
        }
    }
    if (scope && !m_isTold && !m_editor->signalsBlocked()) {
        m_isTold = true;
        if (m_hostWindow == nullptr) {
            m_hostWindow = std::make_unique<HostWindow>(m_editor);
        }
        m_hostWindow->rememberType();
        m_emit(m_editor, true);
    }
}

void EditSpan::endUnlessHeld()
{
    if (!m_isOpen || m_innermost != nullptr || m_holders != Nobody || m_openRows != 0) {
        return;
    }
    m_isOpen = false;
    const Scope scope(this);
    leaveOuter();
    if (!scope || !m_isTold || m_hostWindow->isBeingDestroyed()) {
        return;
    }
    if (m_editor->signalsBlocked()) {
        // If they are still blocked then, the next edit continues this one.
        QTimer::singleShot(0, m_editor, [this] { emitEnd(); });
    } else {
        emitEnd();
    }
}

void EditSpan::emitEnd()
{
    if (m_isTold && !m_isOpen && !m_editor->signalsBlocked()) {
        m_isTold = false;
        m_emit(m_editor, false);
    }
}

void EditSpan::leaveOuter()
{
    EditSpan *const outer = m_isCounted ? around(m_editor) : nullptr;
    m_isCounted = false;
    if (outer != nullptr) {
        --outer->m_openRows;
        outer->endUnlessHeld();
    }
}

EditSpan::Scope::Scope(EditSpan *span) : m_span(span)
{
    if (span != nullptr) {
        m_outer = span->m_innermost;
        span->m_innermost = this;
    }
}

EditSpan::Scope::~Scope()
{
    if (m_span != nullptr) {
        m_span->m_innermost = m_outer;
        m_span->endUnlessHeld();
    }
}

void EditSpan::Scope::begin(Holder holder)
{
    if (m_span != nullptr) {
        hold(holder);
        m_span->begin();
    }
}

void EditSpan::Scope::hold(Holder holder)
{
    if (m_span != nullptr) {
        m_span->m_holders |= holder;
    }
}

void EditSpan::Scope::release(Holder holder)
{
    if (m_span != nullptr) {
        m_span->release(holder);
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
