#include "reducetabstops.h"

#include "panelcolumn_p.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QToolButton>

namespace Vantor::Widgets {
namespace Internal {

class TabStops : public PanelColumn
{
    Q_OBJECT

public:
    using PanelColumn::PanelColumn;

protected:
    void align(const std::vector<QWidget *> &rows) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};

// A click still moves the focus to frame and buttons: it ends a pending entry.
void TabStops::align(const std::vector<QWidget *> &rows)
{
    for (QWidget *row : rows) {
        row->setFocusPolicy(Qt::ClickFocus);
        const auto buttons =
            row->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
        for (QToolButton *button : buttons) {
            button->setFocusPolicy(Qt::ClickFocus);
        }
        auto *label =
            row->findChild<QWidget *>(QStringLiteral("labelName"), Qt::FindDirectChildrenOnly);
        if (label != nullptr) {
            label->installEventFilter(this);
        }
    }
}

bool TabStops::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress
        && watched->objectName() == QLatin1String("labelName")
        && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        auto *field =
            watched->parent()->findChild<QAbstractSpinBox *>(QString(), Qt::FindDirectChildrenOnly);
        if (field != nullptr) {
            field->setFocus(Qt::MouseFocusReason);
        }
    }
    return PanelColumn::eventFilter(watched, event);
}

} // namespace Internal

void reduceTabStops(QWidget *panel)
{
    if (panel != nullptr) {
        Internal::columnOf<Internal::TabStops>(panel)->update();
    }
}

} // namespace Vantor::Widgets

#include "reducetabstops.moc"
