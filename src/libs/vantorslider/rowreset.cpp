#include "rowreset_p.h"

#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

constexpr const char *resettable = "isResettable";

QLabel *resettableLabel(const QObject *row)
{
    auto *label = row->findChild<QLabel *>(QStringLiteral("labelName"));
    return label != nullptr && label->property(resettable).toBool() ? label : nullptr;
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

    // Sends the double click that a user makes on the label.
    void doAction(const QString &name) override
    {
        QLabel *const label = resettableLabel(widget());
        if (name != resetAction() || label == nullptr) {
            QAccessibleWidget::doAction(name);
            return;
        }
        QMouseEvent click(QEvent::MouseButtonDblClick, QPointF(), QPointF(), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(label, &click);
    }

private:
    static QString resetAction() { return QStringLiteral("Reset"); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    const bool isRow = className == QLatin1String(SliderEditFrame::staticMetaObject.className())
        || className == QLatin1String(SliderEditFrameDouble::staticMetaObject.className());
    return isRow && resettableLabel(object) != nullptr
        ? new ResettableRow(static_cast<QWidget *>(object))
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

void makeResettable(QLabel *label, QWidget *row)
{
    if (label->property(resettable).toBool()) {
        return;
    }
    label->setProperty(resettable, true);
    label->setCursor(Qt::PointingHandCursor);
    if (label->toolTip().isEmpty()) {
        label->setToolTip(SliderEditFrame::tr("Double-click to reset"));
    }
    // A style sheet applies a changed property only after a polish.
    label->style()->unpolish(label);
    label->style()->polish(label);
    label->installEventFilter(row);

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

bool isResetClick(const QLabel *label, const QObject *watched, const QEvent *event)
{
    return watched == label && event->type() == QEvent::MouseButtonDblClick && label->isEnabled()
        && static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
