#include "slidereditframe_p.h"

namespace Vantor {
namespace Widgets {
namespace Internal {

Survival::Scope::Scope(Survival &survival) : m_survival(&survival), m_outer(survival.m_innermost)
{
    survival.m_innermost = this;
}

Survival::Scope::~Scope()
{
    if (m_survival == nullptr) {
        return;
    }
    m_survival->m_innermost = m_outer;
    if (m_outer == nullptr && m_survival->m_isOrphaned) {
        m_survival->m_widget->deleteLater();
    }
}

Survival::~Survival()
{
    for (Scope *scope = m_innermost; scope != nullptr; scope = scope->m_outer) {
        scope->m_survival = nullptr;
    }
}

void Survival::outliveParent()
{
    if (m_innermost != nullptr && !m_isOrphaned) {
        m_isOrphaned = true;
        m_widget->setParent(nullptr);
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
