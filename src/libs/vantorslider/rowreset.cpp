#include "rowreset_p.h"

#include "childwidget_p.h"
#include "slidereditframe.h"

#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QLabel>

namespace Vantor::Widgets::Internal {

RowReset::RowReset(QLabel *label, std::function<void()> reset)
    : QObject(label), m_label(label), m_reset(std::move(reset))
{
    label->installEventFilter(this);
    label->setProperty("isResettable", true);
    label->setCursor(Qt::PointingHandCursor);
    showHint();
    updateLabel();
}

// A tool tip of the host stays.
void RowReset::showHint()
{
    if (m_label->toolTip() == m_hint) {
        m_hint = SliderEditFrame::tr("Double-click to reset");
        m_label->setToolTip(m_hint);
    }
}

void RowReset::remove()
{
    m_label->removeEventFilter(this);
    m_label->setProperty("isResettable", QVariant());
    m_label->unsetCursor();
    if (m_label->toolTip() == m_hint) {
        m_label->setToolTip(QString());
    }
    setParent(nullptr);
    deleteLater();
    updateLabel();
}

void RowReset::updateLabel()
{
    applyStyleSheet(m_label);
    // An interface that Qt created earlier for the row has other actions.
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(m_label->parentWidget())));
}

void RowReset::perform() const
{
    if (m_label->isEnabled()) {
        m_reset();
    }
}

bool RowReset::eventFilter(QObject *watched, QEvent *event)
{
    Q_UNUSED(watched)
    if (event->type() == QEvent::MouseButtonDblClick
        && static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton) {
        perform();
        return true;
    }
    if (event->type() == QEvent::LanguageChange) {
        showHint();
    }
    if (event->type() == QEvent::ToolTip && isHintInTheWay()) {
        event->ignore(); // Qt passes it to the parents
        return true;
    }
    return false;
}

// Whether the hint would hide the host's own tool tip of the row or of a widget around it.
bool RowReset::isHintInTheWay() const
{
    return m_label->toolTip() == m_hint && hasToolTip(m_label->parentWidget());
}

QEvent::Type rowResetEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace Vantor::Widgets::Internal
