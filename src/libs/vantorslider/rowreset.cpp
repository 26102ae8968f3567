#include "rowreset_p.h"

#include "childwidget_p.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QLabel>

namespace Vantor {
namespace Widgets {
namespace Internal {

// A child of the row's label, which exists if the row has a default value.
class RowReset : public QObject
{
    Q_OBJECT

public:
    RowReset(QLabel *label, std::function<void()> reset)
        : QObject(label), m_label(label), m_reset(std::move(reset))
    {
        label->installEventFilter(this);
    }

    void perform() const
    {
        if (m_label->isEnabled()) {
            m_reset();
        }
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isClick = watched == m_label && event->type() == QEvent::MouseButtonDblClick
            && static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
        if (isClick) {
            perform();
        }
        return isClick;
    }

private:
    QLabel *const m_label;
    const std::function<void()> m_reset;
};

namespace {

RowReset *resetOf(const QObject *row)
{
    return row->findChild<RowReset *>();
}

// A row with a default value. Qt's interface of a QFrame has no action except setting the focus.
class ResettableRow : public QAccessibleWidget
{
public:
    explicit ResettableRow(QWidget *row) : QAccessibleWidget(row, QAccessible::Border) { }

    QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << resetAction();
    }

    QString localizedActionName(const QString &name) const override
    {
        return name == resetAction() ? SliderEditFrame::tr("Reset")
                                     : QAccessibleWidget::localizedActionName(name);
    }

    void doAction(const QString &name) override
    {
        const RowReset *const reset = resetOf(widget());
        if (name == resetAction() && reset != nullptr) {
            reset->perform();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    static QString resetAction() { return QStringLiteral("Reset"); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    const bool isRow = className == QLatin1String(SliderEditFrame::staticMetaObject.className())
        || className == QLatin1String(SliderEditFrameDouble::staticMetaObject.className());
    return isRow && resetOf(object) != nullptr ? new ResettableRow(static_cast<QWidget *>(object))
                                               : nullptr;
}

// Removed again, because a host may unload the library.
struct AccessibleFactory
{
    AccessibleFactory() { QAccessible::installFactory(createInterface); }
    ~AccessibleFactory() { QAccessible::removeFactory(createInterface); }
    Q_DISABLE_COPY(AccessibleFactory)
};

} // namespace

void makeResettable(QLabel *label, QWidget *row, const std::function<void()> &reset)
{
    new RowReset(label, reset);
    label->setProperty("isResettable", true);
    label->setCursor(Qt::PointingHandCursor);
    if (label->toolTip().isEmpty()) {
        label->setToolTip(SliderEditFrame::tr("Double-click to reset"));
    }
    applyStyleSheet(label);

    static const AccessibleFactory factory;
    // An interface that Qt created earlier for the row does not have the action.
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(row)));
}

QEvent::Type rowResetEvent()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor

#include "rowreset.moc"
