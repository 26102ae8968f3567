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

// What the user does with an editor in one go, from editStarted() to editFinished(). Each
// editor has one; that of a composite editor lasts as long as that of any of its rows.
//
// It is opened before the first change, and it ends with the outermost Scope in which nothing
// holds it any more. So the two signals come in pairs, and all reports between them.
class EditSpan
{
public:
    // What holds the edit of a row open when nothing is delivered.
    enum Holder : unsigned { Nobody = 0, Handle = 1, Button = 2, Entry = 4 };

    class Scope;

    template <typename Editor>
    explicit EditSpan(Editor *editor) : m_editor(editor), m_emit(&emitSignal<Editor>)
    {
    }
    ~EditSpan();
    Q_DISABLE_COPY(EditSpan)

    // That of the editor around a widget: a row's for its parts, a composite editor's for a
    // row. Null where there is none, and while the editor is being destroyed.
    static EditSpan *around(const QWidget *widget);

    bool isOpen() const { return m_isOpen; }
    // The edit ends with the scope around this or the next one.
    void release(Holder holder) { m_holders &= ~holder; }

private:
    using Emit = void (*)(QWidget *editor, bool isStart);

    template <typename Editor> static void emitSignal(QWidget *editor, bool isStart)
    {
        auto *const sender = static_cast<Editor *>(editor);
        Q_EMIT(isStart ? sender->editStarted() : sender->editFinished());
    }

    template <typename... Editors> static EditSpan *find(const QWidget *widget);

    // Each is defined beside its editor's private object.
    static EditSpan *of(const RectEditFrame &editor);
    static EditSpan *of(const RGBAllEditFrame &editor);
    static EditSpan *of(const RGBEditFrame &editor);
    static EditSpan *of(const RGBOpacityEditFrame &editor);
    static EditSpan *of(const SliderEditFrame &editor);
    static EditSpan *of(const SliderEditFrameDouble &editor);

    // Whether the host knows of it, by the composite editor around it, too.
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
    // The host was told of the start and not of the end; its signals may be blocked.
    bool m_isTold = false;
    // It counts among the open rows of the composite editor around it.
    bool m_isCounted = false;
    bool m_isOuterTold = false;
};

// While one lives, the edit of its editor does not end. It outlives the editor.
class EditSpan::Scope
{
public:
    explicit Scope(EditSpan *span);
    ~Scope();
    Q_DISABLE_COPY(Scope)

    // Opens the edit, unless it is open, for as long as the holder says. A receiver may
    // delete the editor.
    void begin(Holder holder = Nobody);
    void hold(Holder holder);
    void release(Holder holder);
    // Whether there is an editor, or still one.
    explicit operator bool() const { return m_span != nullptr; }

private:
    friend EditSpan;

    EditSpan *m_span;
    Scope *m_outer = nullptr;
};

} // namespace Internal
} // namespace Widgets
} // namespace Vantor
