#include "childwidget_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QVariant>
#include <QtWidgets/QStyle>

namespace Vantor::Widgets::Internal {

namespace {

// The widths that the host has set for a child. When a style sheet that sets widths is removed,
// Qt leaves none.
class HostWidths : public QObject
{
    Q_OBJECT

public:
    static HostWidths *of(const QWidget *child)
    {
        return child->findChild<HostWidths *>({}, Qt::FindDirectChildrenOnly);
    }

    static void set(QWidget *child, const WidthRange &range)
    {
        HostWidths *widths = of(child);
        if (widths == nullptr) {
            widths = new HostWidths(child);
            child->installEventFilter(widths);
        }
        widths->m_range = range;
        widths->apply();
    }

    const WidthRange &range() const { return m_range; }

    void apply()
    {
        m_child->setMaximumWidth(m_range.greatest);
        m_child->setMinimumWidth(m_range.least);
        applyStyleSheet(m_child);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        // A column of aligned fields sets their widths itself.
        if (event->type() == QEvent::StyleChange
            && !m_child->property(alignedFieldProperty).toBool()) {
            apply();
        }
        return false;
    }

private:
    explicit HostWidths(QWidget *child) : QObject(child), m_child(child) { }

    QWidget *const m_child;
    WidthRange m_range;
};

} // namespace

// A child that is not hidden is shown with its parent. Showing it here would polish it too early:
// with a style sheet that may change, and before the host has set its widths.
void setShown(QWidget *child, bool isShown)
{
    if (!isShown || child->isHidden()) {
        child->setVisible(isShown);
    }
}

void setWidthRange(QWidget *child, int maximum, int minimum)
{
    HostWidths::set(child, {minimum, maximum});
}

void setFixedWidth(QWidget *child, int width)
{
    HostWidths::set(child, {width, width});
}

void applyWidths(QWidget *child)
{
    HostWidths *const widths = HostWidths::of(child);
    if (widths != nullptr) {
        widths->apply();
    } else {
        applyStyleSheet(child);
    }
}

WidthRange hostWidths(const QWidget *child)
{
    const HostWidths *const widths = HostWidths::of(child);
    return widths != nullptr ? widths->range() : WidthRange();
}

void fieldTextsChanged(QWidget *field)
{
    if (field->property(alignedFieldProperty).toBool()) {
        QCoreApplication::postEvent(field->parentWidget(), new QEvent(QEvent::LayoutRequest));
    }
}

bool hasToolTip(const QWidget *widget)
{
    while (widget->toolTip().isEmpty() && !widget->isWindow()) {
        widget = widget->parentWidget();
    }
    return !widget->toolTip().isEmpty();
}

void setStyledProperty(QWidget *child, const char *name, bool value)
{
    if (child->property(name).toBool() != value) {
        child->setProperty(name, value);
        applyStyleSheet(child);
    }
}

// The attribute is set after a style sheet has polished the widget.
void applyStyleSheet(QWidget *child)
{
    if (child->testAttribute(Qt::WA_StyleSheet)) {
        child->style()->unpolish(child);
        child->style()->polish(child);
    }
}

} // namespace Vantor::Widgets::Internal

#include "childwidget.moc"
