#include "itemeditor_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>

namespace Vantor {
namespace Widgets {
namespace Internal {

namespace {

// Not while only widgets are open that the host has set for an index, or editors that stay open.
bool isEditing(const QAbstractItemView *view)
{
    struct Access : QAbstractItemView
    {
        using QAbstractItemView::EditingState;
        using QAbstractItemView::state;
    };
    return (view->*&Access::state)() == Access::EditingState;
}

} // namespace

QWidget *itemEditorAround(QWidget *field)
{
    for (QWidget *editor = field; !editor->isWindow() && editor->parentWidget() != nullptr;
         editor = editor->parentWidget()) {
        const QWidget *const viewport = editor->parentWidget();
        const auto *view = qobject_cast<const QAbstractItemView *>(viewport->parentWidget());
        if (view != nullptr && view->viewport() == viewport) {
            return isEditing(view) ? editor : nullptr;
        }
    }
    return nullptr;
}

ItemEditorAction itemEditorAction(QWidget *field, const QEvent *event)
{
    auto action = ItemEditorAction::None;
    if (event->type() == QEvent::FocusAboutToChange) {
        action = ItemEditorAction::Finish;
    } else if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        const bool isPress = event->type() == QEvent::KeyPress;
        switch (static_cast<const QKeyEvent *>(event)->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            action = isPress ? ItemEditorAction::FinishAndPass : ItemEditorAction::Finish;
            break;
        case Qt::Key_Escape:
            action = isPress ? ItemEditorAction::RestoreAndPass : ItemEditorAction::None;
            break;
        default:
            break;
        }
    }
    const bool isWanted = action != ItemEditorAction::None && itemEditorAround(field) != nullptr;
    return isWanted ? action : ItemEditorAction::None;
}

void tellItemEditor(QWidget *field, const QFocusEvent *event)
{
    QWidget *const editor = itemEditorAround(field);
    if (editor != nullptr && editor != field) {
        QFocusEvent out(QEvent::FocusOut, event->reason());
        QCoreApplication::sendEvent(editor, &out);
    }
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
