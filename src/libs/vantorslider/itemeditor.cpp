#include "itemeditor_p.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>

namespace Vantor::Widgets::Internal {

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

// The view of which the widget is an editor or an index widget, or null.
QAbstractItemView *viewOf(const QWidget *widget)
{
    QWidget *const viewport = widget->isWindow() ? nullptr : widget->parentWidget();
    auto *view =
        viewport != nullptr ? qobject_cast<QAbstractItemView *>(viewport->parentWidget()) : nullptr;
    return view != nullptr && view->viewport() == viewport ? view : nullptr;
}

// The field after or before the widget that the focus can reach, in the order of the rows.
QAbstractSpinBox *nextField(const QWidget *editor, const QWidget *widget, bool isForward)
{
    QAbstractSpinBox *before = nullptr;
    bool isAfter = widget == editor;
    for (QWidget *child : editor->findChildren<QWidget *>()) {
        auto *const field = qobject_cast<QAbstractSpinBox *>(child);
        if (child == widget && !isForward) {
            return before;
        }
        if (child == widget) {
            isAfter = true;
        } else if (field != nullptr && field->isVisibleTo(editor) && field->isEnabledTo(editor)) {
            if (isAfter) {
                return field;
            }
            before = field;
        }
    }
    return nullptr;
}

} // namespace

QWidget *itemEditorAround(QWidget *widget)
{
    for (QWidget *editor = widget; editor != nullptr && !editor->isWindow();
         editor = editor->parentWidget()) {
        if (const QAbstractItemView *const view = viewOf(editor)) {
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
        switch (static_cast<const QKeyEvent *>(event)->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            action = ItemEditorAction::Finish;
            break;
        case Qt::Key_Escape:
            if (event->type() == QEvent::KeyPress) {
                action = ItemEditorAction::Restore;
            }
            break;
        default:
            break;
        }
    }
    const bool isWanted = action != ItemEditorAction::None && itemEditorAround(field) != nullptr;
    return isWanted ? action : ItemEditorAction::None;
}

bool passKey(QWidget *widget, QEvent *event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent *>(event)->key();
    const bool isTab = key == Qt::Key_Tab || key == Qt::Key_Backtab;
    if (!isTab && key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape) {
        return false;
    }
    QWidget *const editor = itemEditorAround(widget);
    if (editor == nullptr || editor == widget) {
        return false;
    }
    const bool isForward = key == Qt::Key_Tab;
    if (QWidget *const next = isTab ? nextField(editor, widget, isForward) : nullptr) {
        next->setFocus(isForward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    } else {
        QCoreApplication::sendEvent(editor, event);
    }
    return true;
}

void passFocus(QWidget *widget, const QEvent *event)
{
    QWidget *editor = nullptr;
    switch (event->type()) {
    case QEvent::FocusIn:
        editor = itemEditorAround(widget);
        if (QAbstractSpinBox *const field =
                editor == widget ? nextField(editor, editor, true) : nullptr) {
            editor->setFocusProxy(field);
            field->setFocus(Qt::OtherFocusReason);
            field->selectAll();
        }
        break;
    case QEvent::FocusOut:
        editor = itemEditorAround(widget);
        if (editor != nullptr && editor != widget) {
            QFocusEvent out(QEvent::FocusOut, static_cast<const QFocusEvent *>(event)->reason());
            QCoreApplication::sendEvent(editor, &out);
        }
        break;
    case QEvent::Hide:
        // The view takes the focus back only from the editor itself or its proxy. From any other
        // child Qt would move it on by Tab, which changes the current item.
        if (QAbstractItemView *const view = viewOf(widget)) {
            if (widget->focusProxy() != nullptr && view->isVisible()
                && widget->isAncestorOf(QApplication::focusWidget())) {
                view->setFocus(Qt::OtherFocusReason);
            }
        }
        break;
    default:
        break;
    }
}

bool ItemEditorFilter::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = static_cast<QWidget *>(watched);
    passFocus(widget, event);
    return passKey(widget, event);
}

} // namespace Vantor::Widgets::Internal
