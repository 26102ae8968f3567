#pragma once

#include "cropeditframe.h"
#include "eventlog.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "testuser.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <functional>

// A slider editor of either kind, single or in a composite editor, and its
// children.
struct EditorRow
{
    // Clicks into the field, which selects its text, and types over it.
    void type(const QString &text) const;
    // The child of that name: handle, minus, plus, field, label; or the other one.
    QWidget *part(const QString &name, QWidget *other) const;
    // Whether the handle or a button is pressed.
    bool isHeld() const;
    // The action as a step of a table.
    QString step(const QString &action) const
    {
        return name.isEmpty() ? action : name + ' ' + action;
    }

    QString name; // in a composite editor: x, y, w, h, r, g, b, all or opacity
    QWidget *frame;
    // The frame if it is the integer one.
    Vantor::Widgets::SliderEditFrame *whole =
        qobject_cast<Vantor::Widgets::SliderEditFrame *>(frame);
    QLabel *label = frame->findChild<QLabel *>("labelName");
    QSlider *slider = frame->findChild<QSlider *>("slider");
    QAbstractSpinBox *spinBox = frame->findChild<QAbstractSpinBox *>();
    QLineEdit *field = spinBox->findChild<QLineEdit *>();
    QToolButton *minus = frame->findChild<QToolButton *>("sliderEditSubtract");
    QToolButton *plus = frame->findChild<QToolButton *>("sliderEditPlus");
};

// The rows of an editor in the order of their type flags: 2, 4, 8, 16. A mask's
// margins are also named x, y, w and h.
QVector<EditorRow> rowsOf(QWidget &editor);

// Any of exact, comma, escape, stays, signs, safe.
Vantor::Widgets::EntryOptions entryOptions(const QString &names);

// "0..99"
QString limits(int min, int max);

// The pixels between label, slider, field, minus and plus, in either direction: "5 7 7 0"
QString gaps(const EditorRow &row);

// The page around the editor under test. It logs the events that it receives.
class Page : public QWidget
{
public:
    explicit Page(EventLog &log);

protected:
    void wheelEvent(QWheelEvent *) override { m_log.add("page"); }
    void keyPressEvent(QKeyEvent *event) override;

private:
    EventLog &m_log;
};

// An editor on a page, its user and the program around it, which perform the steps of
// a table:
//
//     range 0 50 | hold 20 60: 20 50 | drop | shown: 50
//
// Each step is an action and, after the colon, all that it causes to be recorded, in order.
// In a composite editor a row's name comes first: "w enter 3: h(2) w(3) (0,0,3,2)".
//
// Records: "20" is a row's report, "h(2)" a rectangle editor's signal of that
// field, "(0,0,3,2)" any editor's valueChanged(), "too early" a row's report before its
// slider is updated; "finished" and "left" are the messages of an entry, "page" a wheel
// event or a shortcut, and "key" a key that the page around the editor receives.
// "start" and "end" are those of an edit, recorded only in rows that ask for "edits";
// "late" is a start at which a value has already changed.
//
// What the user does:
//   plus, minus, space      clicks a step button, presses plus by the space bar
//   push, letGo             presses plus by the mouse, releases it
//   keyDown, keyUp          presses the space bar over plus, releases it
//   hold, move, drop        presses the slider's handle, moves it to each of the
//                           positions that follow, releases it
//   rightClick              of the mouse on the handle, while its left button is down
//   groove before, after    clicks beside the handle
//   pressAt                 presses the groove where the handle would be at the position
//   touch                   a finger touches handle, minus, plus, field, label or the place
//                           of the handle at a position; touch2: a second finger
//   swipe 4 -40             moves by about that many pixels; fingerTo: along to each position
//   rest, lift, lift2       waits until the touch is a press; lifts the finger
//   click, elsewhere        clicks into the field, on the page
//   type 12*3               clicks into the field and types; "\n" is Enter
//   keys *2, paste 07       types or pastes where the focus is
//   enter 12*3              types and presses Enter; its messages are implied
//   compose 1, commit 12    what an input method shows in the field, and inserts
//   replace 1 45            inserts 45 for the character before the cursor
//   menu 07                 pastes by the field's own menu; pageMenu: opens one of the page
//   noFocus page row plus   these take no focus
//   undo, redo              presses their keys
//   up, down, left, right, home, end, escape press that key; press Shift+End: any key
//   held                    Enter again, as a key that is held repeats it
//   wheel                   turns it over the slider, then over the field
//   leave                   moves the pointer off the slider
//   reset, screenReader     double-clicks the label, performs the action of a screen reader
//   lock position, size     clicks a lock button
// What the program does to any row:
//   value, range, default, resetValue, tick (of the sampling), focus (of the field, or of
//   handle, minus or plus), focusProxy (of the row: its field), show, hide, disable, enable,
//   delete; resetValues (of all rows of a composite editor); dialog (shows a modal one and closes
//   it)
// to all rows: sampled, released, autoRepeat (fast); off ends the last two; options as of
//   entryOptions(); finish (an entry); block and unblock (the editor's
//   signals; posted events are then delivered); inReport and inStart, with the action that each
//   report or start of an edit then causes
// to a slider editor:
//   minimum, maximum, singleStep, pageStep, decimals, direction (flags and value),
//   sliderOptions, any of groove, fine and flick;
//   wheelEnabled, suffix, prefix, scale, hideSlider, fieldFocus; specialValueText and
//   locale of the spin box
// to a rectangle, a crop or a mask:
//   set, sizeLock and positionLock on or off, ratio; area, areaFrom, leastPosition,
//   leastSize, crop, rect; area, leastSize, mask
// What both read:
//   shown      the values of the fields, each with the slider's position after a slash if
//              that differs
//   handle     the slider's position
//   ranges     of the sliders of all rows; bounds: of a slider editor's values
//   timer      whether the one of the sampling or of plus "runs", or both are still: "stands"
//   focused    "editor" if the row has the focus, or "other"
//   selected   "all" of the field's text, "nothing" or the text, after all posted events
//   locks      of a rectangle: is the position locked, is the size, and its ratio
//   pressed, refused   whether the row says that it is pressed, and its entry refused
//   isDown     whether handle, minus or plus is pressed
//   pending    whether an entry is pending
//   repeating  whether minus and plus repeat while they are held
class EditorUser
{
public:
    // A slider editor has a range of 0 to 100 positions of its slider, a step of one and
    // the value 10. Its values are counted in units. A rectangle editor has its locks.
    explicit EditorUser(QWidget *editor, double unit = 1);

    // Fails the test at the first step whose records differ from the expected ones.
    void play(const QString &steps);
    void perform(const QString &action);
    // Performs steps that may record anything.
    void performAll(const QString &steps);
    // The records since the last call.
    QString heard();
    QString shown() const;

    EventLog log;
    Page page {log};
    QVector<EditorRow> rows;

private:
    struct Step
    {
        const EditorRow &row;
        int index;
        QString verb;
        QString text; // after the verb
        QString word(int i) const { return text.section(' ', i, i); }
        // The word as a whole number.
        int operator[](int i) const { return word(i).toInt(); }
    };
    using Action = std::function<void(const Step &)>;

    void addGestures();
    void addSights();
    template <typename Frame> void add(Frame *frame);
    template <typename Frame> void addModes(Frame *frame);
    template <typename Frame> void addComposite(Frame *frame);
    void addRect(Vantor::Widgets::RectEditFrame *rect);
    void addCrop(Vantor::Widgets::CropEditFrame *crop);
    void addMask(Vantor::Widgets::MaskEditFrame *mask);
    template <typename Frame> void addIf(QWidget *editor, void (EditorUser::*add)(Frame *));
    void on(const QString &verbs, const Action &action);
    QVariantList values() const;
    QString inUnits(double value) const { return QString::number(value / m_unit, 'g', 12); }

    QMap<QString, Action> m_actions;
    const double m_unit;
    QVariantList m_valuesBefore; // the step, or at the end of an edit within it
};

// The user of an editor of that class. The default unit of a slider editor is a position
// of the slider.
template <typename Frame> class UserOf : public EditorUser
{
public:
    static constexpr bool isWhole = !std::is_same_v<Frame, Vantor::Widgets::SliderEditFrameDouble>;
    static constexpr double position = isWhole ? 1 : 0.01;

    explicit UserOf(double unit = position, Frame *editor = new Frame)
        : EditorUser(editor, unit), frame(editor)
    {
    }

    template <typename Action> void onReport(const Action &action)
    {
        QObject::connect(frame, &Frame::valueChanged, &page, action);
    }

    Frame *const frame;
    // The only, or first, row.
    const EditorRow row = rows.first();
};

// A test whose data rows bring their own code.
using TestCode = std::function<void()>;
Q_DECLARE_METATYPE(TestCode)

inline void runTestCode()
{
    QFETCH(TestCode, code);
    code();
}

// Adds a row of code that receives the user of an editor of that class.
template <typename Frame, typename Code>
void addFor(const QString &name, const Code &code, double unit = UserOf<Frame>::position)
{
    QTest::addRow("%s, %s", Frame::staticMetaObject.className(), qPrintable(name)) << TestCode([=] {
        UserOf<Frame> user(unit);
        code(user);
    });
}

// The same code for the integer and the floating-point editor.
template <typename Code> void addForBoth(const QString &name, const Code &code)
{
    addFor<Vantor::Widgets::SliderEditFrame>(name, code);
    addFor<Vantor::Widgets::SliderEditFrameDouble>(name, code);
}

// Returns what adds rows of steps that all begin with the same steps.
template <typename Frame>
auto rowsAfter(const QString &start = {}, double unit = UserOf<Frame>::position)
{
    return [=](const QString &name, const QString &steps) {
        addFor<Frame>(
            name, [=](auto &user) { user.play(start + steps); }, unit);
    };
}

// The same rows for the integer and the floating-point editor.
inline auto rowsOfBothAfter(const QString &start = {})
{
    return [=](const QString &name, const QString &steps) {
        rowsAfter<Vantor::Widgets::SliderEditFrame>(start)(name, steps);
        rowsAfter<Vantor::Widgets::SliderEditFrameDouble>(start)(name, steps);
    };
}

// Adds the rows of a file to a kind of editor each. A row is a kind and a name and, below,
// indented, its steps, or the steps alone after the kind. "\n" is Enter, "\t" Tab, "\b" Backspace
// and "\s" a space that counts; a line that begins with "#" is a comment.
using AddRow = std::function<void(const QString &name, const QString &steps)>;
void addTable(const QString &path, const QMap<QString, AddRow> &kinds);
