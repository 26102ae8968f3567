#include "accessiblerow_p.h"

#include "rowreset_p.h"
#include "slidereditframe.h"
#include "slidereditframe_p.h"
#include "slidereditframedouble.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAccessibleWidget>

namespace Vantor::Widgets::Internal {

namespace {

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
        const RowReset *const reset = RowReset::of(widget());
        if (name == resetAction() && reset != nullptr) {
            reset->perform();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    static QString resetAction() { return QStringLiteral("Reset"); }
};

QAbstractSpinBox *spinBoxBeside(const QObject *slider)
{
    const QObject *const row = slider->parent();
    return row != nullptr ? row->findChild<QAbstractSpinBox *>() : nullptr;
}

// The value and its limits are those of the spin box. A new value is an edit by the user.
class RowSlider : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit RowSlider(QWidget *slider) : QAccessibleWidget(slider, QAccessible::Slider) { }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text text) const override
    {
        return text == QAccessible::Value ? currentValue().toString()
                                          : QAccessibleWidget::text(text);
    }

    QVariant currentValue() const override { return ofSpinBox("value"); }
    QVariant minimumValue() const override { return ofSpinBox("minimum"); }
    QVariant maximumValue() const override { return ofSpinBox("maximum"); }
    QVariant minimumStepSize() const override { return ofSpinBox("singleStep"); }

    void setCurrentValue(const QVariant &value) override
    {
        if (QAbstractSpinBox *const spinBox = spinBoxBeside(object())) {
            spinBox->setProperty("value", value);
        }
    }

private:
    QVariant ofSpinBox(const char *property) const
    {
        const QAbstractSpinBox *const spinBox = spinBoxBeside(object());
        return spinBox != nullptr ? spinBox->property(property) : QVariant();
    }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    const auto is = [&className](const QMetaObject &meta) {
        return className == QLatin1String(meta.className());
    };
    if (is(SliderEditSlider::staticMetaObject)) {
        return new RowSlider(static_cast<QWidget *>(object));
    }
    const bool isRow =
        is(SliderEditFrame::staticMetaObject) || is(SliderEditFrameDouble::staticMetaObject);
    return isRow && RowReset::of(object) != nullptr
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

void provideAccessibleRows()
{
    static const AccessibleFactory factory;
}

} // namespace Vantor::Widgets::Internal
