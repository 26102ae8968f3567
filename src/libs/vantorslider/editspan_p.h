#pragma once

#include "hostwindow_p.h"

#include <QtCore/QObject>

#include <chrono>
#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor::Widgets::Internal {

// One edit by the user, from editStarted() to editFinished(). Each editor has an EditSpan; the
// edit of a composite editor lasts as long as that of any of its rows.
//
// The edit is opened before the first change. It ends with the outermost Scope when nothing keeps
// it open. So the two signals are paired, and valueChanged() is emitted only between them.
class EditSpan
{
public:
    // What keeps the edit of a row open between two events.
    enum Keeper : unsigned { Nobody = 0, Handle = 1, Button = 2, Entry = 4 };

    class Scope;

    template <typename Editor>
    explicit EditSpan(Editor *editor) : EditSpan(editor, &emitSignal<Editor>)
    {
    }
    ~EditSpan();
    Q_DISABLE_COPY(EditSpan)

    // The EditSpan of the editor that contains the widget: the row's for a child of a row, the
    // composite editor's for a row. Null if there is none, or while the editor is being destroyed.
    static EditSpan *around(const QWidget *widget);

    bool isOpen() const { return m_isOpen; }
    // The edit ends with the current or the next outermost Scope.
    void release(Keeper keeper) { m_keepers &= ~keeper; }

private:
    using Emit = void (*)(QWidget *editor, bool isStart);

    // What the composite editor around this one knows of the edit: nothing; it counts this row in
    // m_openRows; its host knows, too.
    enum class Outer : unsigned char { Unaware, Counts, IsTold };

    EditSpan(QWidget *editor, Emit sender);

    template <typename Editor> static void emitSignal(QWidget *editor, bool isStart)
    {
        auto *const sender = static_cast<Editor *>(editor);
        Q_EMIT(isStart ? sender->editStarted() : sender->editFinished());
    }

    // Whether each host knows of this edit: that of the composite editor, too.
    bool isTold() const { return m_isOpen && m_isTold && m_outer != Outer::Counts; }

    void begin();
    void endUnlessKept();
    void emitEnd(std::chrono::milliseconds retryInterval);
    void leaveOuter();

    QWidget *const m_editor;
    const Emit m_emit;
    Scope *m_innermost = nullptr;
    std::unique_ptr<HostWindow> m_hostWindow;
    unsigned m_keepers = Nobody;
    unsigned char m_openRows = 0;
    // Signals may be blocked at any time, so the host can lag behind:
    //
    //   m_isOpen  m_isTold
    //   false     false     no edit
    //   true      false     editStarted() is due: it is emitted with the next change
    //   true      true      editStarted() was emitted
    //   false     true      editFinished() is due, unless the next edit continues this one
    bool m_isOpen = false;
    bool m_isTold = false;
    Outer m_outer = Outer::Unaware;
    // A timer looks whether the signals are still blocked.
    bool m_isRetrying = false;
};

// The edit does not end during the lifetime of a Scope. A Scope can outlive the editor.
class EditSpan::Scope
{
public:
    explicit Scope(EditSpan *span);
    ~Scope();
    Q_DISABLE_COPY(Scope)

    // Opens the edit unless it is open, and adds the keeper. A receiver may delete the editor.
    void begin(Keeper keeper = Nobody);
    void keep(Keeper keeper);
    void release(Keeper keeper);
    // Whether there is an editor that has not been deleted.
    explicit operator bool() const { return m_span != nullptr; }

private:
    friend EditSpan;

    EditSpan *m_span;
    Scope *m_outer = nullptr;
};

} // namespace Vantor::Widgets::Internal
