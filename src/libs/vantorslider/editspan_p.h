#pragma once

#include "hostwindow_p.h"

#include <QtCore/QtGlobal>

#include <memory>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Vantor {
namespace Widgets {

class RectEditFrame;
class RGBAllEditFrame;
class RGBEditFrame;
class RGBOpacityEditFrame;
class SliderEditFrame;
class SliderEditFrameDouble;

namespace Internal {

// One edit by the user, from editStarted() to editFinished(). Each editor has an EditSpan; the
// edit of a composite editor lasts as long as that of any of its rows.
//
// The edit is opened before the first change. It ends with the outermost Scope when no holder is
// left. So the two signals are paired, and valueChanged() is emitted only between them.
class EditSpan
{
public:
    // What keeps the edit of a row open between two events.
    enum Holder : unsigned { Nobody = 0, Handle = 1, Button = 2, Entry = 4 };

    class Scope;

    template <typename Editor>
    explicit EditSpan(Editor *editor) : m_editor(editor), m_emit(&emitSignal<Editor>)
    {
    }
    ~EditSpan();
    Q_DISABLE_COPY(EditSpan)

    // The EditSpan of the editor that contains the widget: the row's for a child of a row, the
    // composite editor's for a row. Null if there is none, or while the editor is being destroyed.
    static EditSpan *around(const QWidget *widget);

    bool isOpen() const { return m_isOpen; }
    // The edit ends with the current or the next outermost Scope.
    void release(Holder holder) { m_holders &= ~holder; }

private:
    using Emit = void (*)(QWidget *editor, bool isStart);

    template <typename Editor> static void emitSignal(QWidget *editor, bool isStart)
    {
        auto *const sender = static_cast<Editor *>(editor);
        Q_EMIT(isStart ? sender->editStarted() : sender->editFinished());
    }

    template <typename Editor, typename... Others> static EditSpan *find(const QWidget *widget);

    // Each is defined in the file of its editor's private class.
    static EditSpan *of(const RectEditFrame &editor);
    static EditSpan *of(const RGBAllEditFrame &editor);
    static EditSpan *of(const RGBEditFrame &editor);
    static EditSpan *of(const RGBOpacityEditFrame &editor);
    static EditSpan *of(const SliderEditFrame &editor);
    static EditSpan *of(const SliderEditFrameDouble &editor);

    // Whether editStarted() was emitted, also by the composite editor around this one.
    bool isTold() const { return m_isOpen && m_isTold && (!m_isCounted || m_isOuterTold); }

    void begin();
    void endUnlessHeld();
    void emitEnd();
    void leaveOuter();

    QWidget *const m_editor;
    const Emit m_emit;
    Scope *m_innermost = nullptr;
    std::unique_ptr<HostWindow> m_hostWindow;
    unsigned m_holders = Nobody;
    unsigned char m_openRows = 0;
    bool m_isOpen = false;
    // editStarted() was emitted and editFinished() not yet; signals may be blocked since.
    bool m_isTold = false;
    // Counted in m_openRows of the composite editor around this one.
    bool m_isCounted = false;
    bool m_isOuterTold = false;
};

// The edit does not end during the lifetime of a Scope. A Scope can outlive the editor.
class EditSpan::Scope
{
public:
    explicit Scope(EditSpan *span);
    ~Scope();
    Q_DISABLE_COPY(Scope)

    // Opens the edit unless it is open, and adds the holder. A receiver may delete the editor.
    void begin(Holder holder = Nobody);
    void hold(Holder holder);
    void release(Holder holder);
    // Whether there is an editor that has not been deleted.
    explicit operator bool() const { return m_span != nullptr; }

private:
    friend EditSpan;

    EditSpan *m_span;
    Scope *m_outer = nullptr;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
