#include "panelcolumn_p.h"

#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>

#include <algorithm>

namespace Vantor::Widgets::Internal {

namespace {

bool isRow(const QWidget *widget)
{
    return qobject_cast<const SliderEditFrame *>(widget) != nullptr
        || qobject_cast<const SliderEditFrameDouble *>(widget) != nullptr;
}

} // namespace

PanelColumn::PanelColumn(QWidget *panel)
    : QObject(panel), m_isPolished(panel->testAttribute(Qt::WA_WState_Polished))
{
}

void PanelColumn::update()
{
    m_isPending = false;
    std::vector<QWidget *> rows;
    collect(static_cast<QWidget *>(parent()), rows);
    align(rows);
}

// Any widget in the panel may get a row later, and may be shown later.
void PanelColumn::collect(QWidget *widget, std::vector<QWidget *> &rows)
{
    widget->installEventFilter(this);
    if (widget != parent() && (widget->isHidden() || widget->isWindow() || isOtherColumn(widget))) {
        return;
    }
    if (isRow(widget)) {
        rows.push_back(widget);
        return;
    }
    for (QObject *child : widget->children()) {
        if (child->isWidgetType()) {
            collect(static_cast<QWidget *>(child), rows);
        }
    }
}

bool PanelColumn::isOtherColumn(const QWidget *widget) const
{
    const auto columns = widget->findChildren<PanelColumn *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(columns.begin(), columns.end(), [this](const PanelColumn *column) {
        return column->metaObject() == metaObject();
    });
}

void PanelColumn::polish(const QWidget *row) const
{
    if (m_isPolished) {
        row->ensurePolished();
    }
}

void PanelColumn::updateLater()
{
    if (!m_isPending) {
        m_isPending = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool PanelColumn::event(QEvent *event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    if (m_isPending) {
        update();
    }
    return true;
}

// A child that changes its need makes its row request a layout. When the panel is polished, which
// is before it gets its first size, lays out its rows or is shown, the column must be right at
// once.
bool PanelColumn::eventFilter(QObject *watched, QEvent *event)
{
    m_isPolished = m_isPolished || (watched == parent() && event->type() == QEvent::Polish);
    switch (event->type()) {
    case QEvent::LayoutRequest:
    case QEvent::Polish:
    case QEvent::Show:
        if (watched == parent()) {
            update();
            break;
        }
        [[fallthrough]];
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
        updateLater();
        break;
    default:
        break;
    }
    return false;
}

} // namespace Vantor::Widgets::Internal
