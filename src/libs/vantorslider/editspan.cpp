#include "editspan_p.h"

#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace Vantor::Widgets::Internal {

namespace {

using SpansOfEditors = QHash<const QWidget *, EditSpan *>;

constexpr std::chrono::milliseconds shortestRetry(10);
constexpr std::chrono::milliseconds longestRetry(1000);

// A host may keep an editor longer than the library's own objects.
Q_GLOBAL_STATIC(SpansOfEditors, spans)

} // namespace

EditSpan::EditSpan(QWidget *editor, Emit sender) : m_editor(editor), m_emit(sender)
{
    if (!spans.isDestroyed()) {
        spans->insert(editor, this);
    }
}

EditSpan::~EditSpan()
{
    if (!spans.isDestroyed()) {
        spans->remove(m_editor);
    }
    for (Scope *scope = m_innermost; scope != nullptr; scope = scope->m_outer) {
        scope->m_span = nullptr;
    }
    leaveOuter();
}

EditSpan *EditSpan::around(const QWidget *widget)
{
    EditSpan *span = nullptr;
    while (span == nullptr && !spans.isDestroyed() && !widget->isWindow()
           && widget->parentWidget() != nullptr) {
        widget = widget->parentWidget();
        span = spans->value(widget);
    }
    return span;
}

void EditSpan::begin()
{
    if (isTold()) {
        return;
    }
    const Scope scope(this);
    // An edit that was opened without an outer editor stays uncounted.
    EditSpan *const outer = m_isOpen && m_outer == Outer::Unaware ? nullptr : around(m_editor);
    m_isOpen = true;
    if (outer != nullptr) {
        if (m_outer == Outer::Unaware) {
            m_outer = Outer::Counts;
            ++outer->m_openRows;
        }
        const Scope outerScope(outer);
        outer->begin();
        if (scope && outerScope && outer->isTold()) {
            m_outer = Outer::IsTold;
        }
    }
    if (scope && !m_isTold && !m_editor->signalsBlocked()) {
        m_isTold = true;
        if (m_hostWindow == nullptr) {
            m_hostWindow = std::make_unique<HostWindow>(m_editor);
        }
        m_hostWindow->rememberNow();
        m_emit(m_editor, true);
    }
}

void EditSpan::endUnlessKept()
{
    if (!m_isOpen || m_innermost != nullptr || m_keepers != Nobody || m_openRows != 0) {
        return;
    }
    m_isOpen = false;
    const Scope scope(this);
    leaveOuter();
    if (scope && m_isTold && !m_hostWindow->isBeingDestroyed()) {
        emitEnd(std::chrono::milliseconds(0));
    }
}

// Qt does not tell when signals are unblocked. The interval grows, since a host may never do it.
void EditSpan::emitEnd(std::chrono::milliseconds retryInterval)
{
    if (!m_isTold || m_isOpen) {
        return;
    }
    if (!m_editor->signalsBlocked()) {
        m_isTold = false;
        m_emit(m_editor, false);
    } else if (!m_isRetrying) {
        m_isRetrying = true;
        QTimer::singleShot(retryInterval, m_editor, [this, retryInterval] {
            m_isRetrying = false;
            emitEnd(std::clamp(2 * retryInterval, shortestRetry, longestRetry));
        });
    }
}

void EditSpan::leaveOuter()
{
    EditSpan *const outer = m_outer != Outer::Unaware ? around(m_editor) : nullptr;
    m_outer = Outer::Unaware;
    if (outer != nullptr) {
        --outer->m_openRows;
        outer->endUnlessKept();
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
        m_span->endUnlessKept();
    }
}

void EditSpan::Scope::begin(Keeper keeper)
{
    if (m_span != nullptr) {
        keep(keeper);
        m_span->begin();
    }
}

void EditSpan::Scope::keep(Keeper keeper)
{
    if (m_span != nullptr) {
        m_span->m_keepers |= keeper;
    }
}

void EditSpan::Scope::release(Keeper keeper)
{
    if (m_span != nullptr) {
        m_span->release(keeper);
    }
}

} // namespace Vantor::Widgets::Internal
