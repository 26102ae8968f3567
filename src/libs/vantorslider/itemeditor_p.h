#pragma once

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QWidget>

namespace Vantor::Widgets::Internal {

// A delegate of an item view creates an editor, and takes its value when the editor receives a key
// or loses the focus. A field that is the editor sees only what precedes these events. A field in
// an editor has to pass them on, and so have the other widgets that take the focus.

// The editor around the widget, or null. Neither an editor that stays open counts, nor a widget
// that the host has set for an index.
QWidget *itemEditorAround(QWidget *widget);

// Whether itemEditorAction() can be another one than None: not for a key that types.
inline bool isItemEditorEvent(const QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    return isKey ? static_cast<const QKeyEvent *>(event)->key() >= Qt::Key_Escape
                 : event->type() == QEvent::FocusAboutToChange;
}

// What the field does with its entry at the event.
enum class ItemEditorAction { None, Finish, Restore };
ItemEditorAction itemEditorAction(QWidget *field, const QEvent *event);

// Whether the event is a key press that a widget in an editor does not handle itself. Tab moves to
// the next field: Qt would let the view select the next item. Behind the last one the editor
// receives it, as it does Enter and Escape. The editor may be deleted later.
bool passKey(QWidget *widget, QEvent *event);

// An editor that receives the focus, because a view has opened it, passes it and all keys on to its
// first field. A widget that loses the focus tells the editor around it, which may be deleted
// later. An editor that is hidden returns the focus to the view.
void passFocus(QWidget *widget, const QEvent *event);

// Passes on what a composite editor receives, and the widgets in it that are in no row.
class ItemEditorFilter : public QObject
{
public:
    explicit ItemEditorFilter(QWidget *editor) { editor->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override;
};

// The value of an editor for its property. A view also takes it where no event of the field
// precedes: when the program sets another current item.
template <typename Editor, typename Getter>
auto committed(Editor *editor, Getter getter) -> decltype((editor->*getter)())
{
    const QPointer<Editor> self(editor);
    if (itemEditorAround(editor) != nullptr) {
        editor->finishEntry();
    }
    return self ? (editor->*getter)() : decltype((editor->*getter)())();
}

} // namespace Vantor::Widgets::Internal
