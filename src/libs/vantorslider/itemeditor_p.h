#pragma once

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {
namespace Internal {

// A field in an editor that a delegate of an item view has created, or as that editor. The delegate
// takes the value when it sees a key or a loss of focus of the editor. As the editor, the field
// sees only what precedes these events. In an editor, it has to pass them on.

// The editor around the field, or null. Neither an editor that stays open counts, nor a widget that
// the host has set for an index.
QWidget *itemEditorAround(QWidget *field);

// Whether itemEditorAction() can be another one than None: not for a key that types.
inline bool isItemEditorEvent(const QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    return isKey ? static_cast<const QKeyEvent *>(event)->key() >= Qt::Key_Escape
                 : event->type() == QEvent::FocusAboutToChange;
}

enum class ItemEditorAction { None, Finish, FinishAndPass, RestoreAndPass };

// What the field does with its entry at the event, and whether the event goes on to the editor.
ItemEditorAction itemEditorAction(QWidget *field, const QEvent *event);

// The field has lost the focus. The editor may be deleted later.
void tellItemEditor(QWidget *field, const QFocusEvent *event);

// The value of a row for its property. A view also takes it where no event of the field precedes:
// when the program sets another current item.
template <typename Row> auto committedValue(Row *row) -> decltype(row->value())
{
    const QPointer<Row> self(row);
    if (itemEditorAround(row) != nullptr) {
        row->finishEntry();
    }
    return self ? row->value() : 0;
}

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
