#include "editoruser.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QDialog>

using namespace Vantor::Widgets;

// At rest the field of a slider editor shows its value, which is also the last report, if
// there was one, whatever was typed, pasted or stepped.
class tst_TypedEntries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whole_data();
    void whole() { runTestCode(); }
    void fraction_data();
    void fraction() { runTestCode(); }
    void windows_data();
    void windows() { runTestCode(); }
    void replacedLineEdit();
};

// The range is from one number to another, and the value; a fourth is the decimals.
template <typename Frame>
static void addEntry(const QString &range, const QString &steps, const QString &shown)
{
    QString name = range + " | " + steps;
    name.replace('\n', "Enter").replace('\t', "Tab");
    QTest::newRow(qPrintable(name)) << TestCode([=] {
        const QStringList numbers = range.split(' ');
        UserOf<Frame> user(1);
        if (numbers.size() > 3)
            user.perform("decimals " + numbers[3]);
        user.play("range " + numbers[0] + ' ' + numbers[1] + " | value " + numbers[2]);
        user.play(steps + " | shown: " + shown);
        // Entering and leaving the field again reports nothing.
        for (const QString action : {"show", "click", "elsewhere"})
            user.perform(action);
        QCOMPARE(user.shown(), shown);
        QCOMPARE(user.heard().remove("finished").trimmed(), QString());
    });
}

void tst_TypedEntries::whole_data()
{
    QTest::addColumn<TestCode>("code");
    const auto row = addEntry<SliderEditFrame>;
    row("0 100 10", "enter 5*2 | focused: editor", "10");
    row("0 100 10", "enter -5: 0 | refused: no", "0");
    row("0 100 10", "type 12*3=: finished 36 finished left", "36");
    // The bounds are those at the time of the last value.
    row("0 100 10", "range 0 300 | enter 250: 100 | enter 250: 250", "250");
    row("0 100 10", "value 500 | type \t: finished 100 finished", "100");
    row("0 243 243", "range 0 191 | type 1/0\n: finished 191 finished finished left", "191");
    row("0 2147483647 10", "type 9999999999\t: finished 2147483647 finished", "2147483647");
    row("-2147483648 9 1", "type -9999999999 | hide: -2147483648 finished finished", "-2147483648");
    // The calculator's precision.
    row("0 2147483647 10", "enter 16777217: 16777216", "16777216");
    row("0 16777217 16777217", "enter ((1) | refused: yes | elsewhere | refused: yes", "16777217");
    row("0 16777217 16777217", "click | paste 1 000 | hide: finished finished", "16777217");
    row("0 16777217 16777217", "type 0/0\t: finished finished | refused: yes", "16777217");
    row("0 100 50", "enter 127/2: 64", "64");
    row("0 100 50", "type 127/2 | hide: 64 finished finished", "64");
    row("0 100 50", "type 127/2 | up: 65 | elsewhere: finished finished", "65");
    row("0 100 50", "type 127/2 | down: 63 | elsewhere: finished finished", "63");
    row("0 100 50", "type 1/0 | up: 51 | refused: no | elsewhere: finished finished", "51");
    row("0 100 50", "type 7 | down: 6 | elsewhere: finished finished", "6");
    row("0 100 50", "click | paste a=6;a+1=: finished 7 finished left", "7");
    row("0 100 50", "click | paste Math.max(3, 7) | keys \t: finished 7 finished", "7");
    row("0 100 50", "click | paste inf  | up: 51 | elsewhere: finished finished", "51");
    row("0 100 50", "suffix  px | enter 12*3: 36", "36 px");
    row("0 100 50", "suffix  px | type 12*3=: finished 36 finished left | elsewhere", "36 px");
    row("0 100 50", "prefix $ | type 12*3\t: finished 36 finished", "$36");
    row("0 100 50", "prefix + | suffix /s | type 07a | up: 8 | hide: finished finished", "+8/s");
    row("0 9999999 1234567", "suffix  px | enter 1/0", "1234567 px");
    row("0 1000 50", "suffix  mm | click | press End | keys 9\t: finished 509 finished", "509 mm");
    row("0 1000 50", "suffix  mm | click | press End | keys *2\t: finished 100 finished", "100 mm");
    row("0 1000 50", "suffix  mm | click | press End | keys \b\t: finished 5 finished", "5 mm");
    row("0 1000 50", "prefix 1 | click | press Home | keys 2\t: finished 250 finished", "1250");
    row("0 1000 50", "suffix  mm | click | press Ctrl+K | keys 7\t: finished 7 finished", "7 mm");
    // Another unit keeps the entry and the cursor position.
    row("0 100 50",
        "prefix + | type 12*3 | suffix  px | prefix >> | shown: >>12*3 px/50 | keys 1\t: "
        "finished 100 finished",
        ">>100 px");
    row("0 100 50", "enter 1/0 | suffix  px | refused: yes | prefix $", "$50 px");
    row("0 100 50", "suffix  px | click | suffix  | keys 7\t: finished 7 finished", "7");
    // A comma is not a group separator.
    row("0 9999 1234", "enter 1,234: 234", "234");
    row("0 9999 10", "type 1,234 | up: 235 | elsewhere: finished finished", "235");
    row("0 100 0", "specialValueText off | click | elsewhere: finished finished", "off");
    row("0 100 7", "specialValueText off | enter 0: 0", "off");
    // After the field's own menu the user continues typing; a menu of the page may read values.
    row("0 100 50", "type 12* | menu 3 | selected: nothing | keys +1\t: finished 37 finished",
        "37");
    row("0 100 50", "type 12*2 | pageMenu: finished 24 finished | selected: all", "24");
    // Only a correction clears the field's history; without a history the page receives the keys.
    row("0 100 50",
        "click | undo: page | redo: page | keys 12*3 | undo | redo | hide: 36 finished finished",
        "36");
    row("0 100 50",
        "type 12*3 | undo | undo: page | redo | redo: page | keys \t: finished 36 finished", "36");
    row("0 100 50", "type 12a | undo: page | hide: 12 finished finished", "12");
    row("0 100 50", "type 12* | paste 07 | undo: page | keys \t: finished 84 finished", "84");
    // Calls of the program drop or keep a pending entry.
    for (const QString drop : {"value 50", "singleStep 2"})
        row("0 100 50", "type 12*3 | " + drop + " | undo: page", "50");
    row("0 100 50", "type 12*3 | range 0 40 | elsewhere: finished 40 finished", "40");
    row("0 100 50", "type 12*3 | range 0 90 | elsewhere: finished 36 finished", "36");
    // At the end of the range there is no step, and the entry stays.
    row("0 100 100", "type 5/1 | up | elsewhere: finished 5 finished", "5");
    // The program ends an entry as Enter does, and the focus stays.
    row("0 100 50",
        "type 12*3 | pending: yes | finish: finished 36 | pending: no | keys +4\t: finished 40 "
        "finished",
        "40");
    row("0 100 50", "finish | type 50 | pending: yes | finish: finished | pending: no", "50");
    row("0 100 50", "type 1/0 | finish: finished | refused: yes | pending: no", "50");
    // A held Enter ends one entry.
    row("0 100 50", "enter 12*3: 36 | held | held | keys \n: key", "36");
    // An entry stays refused until something else is typed, stepped or set.
    row("0 100 10", "type 2+=: finished finished left | refused: yes", "10");
    row("0 100 10", "click | paste while(1) | hide: finished finished | refused: yes", "10");
    row("0 100 10", "enter 1/0 | type 3 | refused: no | hide: 3 finished finished", "3");
    row("0 100 10", "enter 1/0 | type 10 | refused: no | hide: finished finished", "10");
    row("0 100 10", "enter 1/0 | plus: 11 | refused: no | enter ( | value 11 | refused: no", "11");
}

void tst_TypedEntries::fraction_data()
{
    QTest::addColumn<TestCode>("code");
    const auto row = addEntry<SliderEditFrameDouble>;
    row("0 1 0.1", "enter 1/4: 0.25 | focused: editor", "0.25");
    row("0 1 0.1", "type 1/4= | shown: 0.25/10 | focused: other | keys \t: 0.25", "0.25");
    row("0 1 0.1", "enter 0.259: 0.25", "0.25");
    row("0 1 0.1", "enter 0.1", "0.10");
    row("0 1 0.1", "enter 9: 1", "1.00");
    row("0 10 1", "type 4.6= | elsewhere: 4.6", "4.60");
    row("0 10 1", "enter 4.6=+: 4.6", "4.60"); // the last result that was accepted counts
    row("0 10 1", "click | paste Math.sqrt( 49 ) | keys \n: 7", "7.00");
    row("0 10 1", "type 5/4 | up: 1.26 | elsewhere", "1.26");
    row("0 10 1", "type 5/4 | down: 1.24 | elsewhere", "1.24");
    row("0 10 1", "type 3/2 | hide: 1.5", "1.50");
    for (const QString drop : {"value 1", "range 0 9", "singleStep 2", "decimals 2"})
        row("0 10 1", "type 3/2 | " + drop, "1.00");
    row("0 9999 1.234 3", "enter 0/0", "1.234");
    row("0 9999 1.234 3", "click | paste 1,,2 | elsewhere", "1.234");
    row("0 1e7 1234567 2", "enter 1/0", "1234567.00"); // shown as 1.23457e+06
    row("0 99999 12345.67 2", "prefix $ | type 1/0\t", "$12345.67");
    row("0 10 1", "locale de_DE | enter 2.5: 2.5", "2.50");
    row("0 9999999 1234567.891 3", "suffix mm | click | elsewhere", "1234567.891mm");
    row("0 100 12.25", "suffix 5 | click | elsewhere", "12.255");
    row("0 100 2", "suffix 5 | enter 12.25: 12.25", "12.255");
    row("0 100 12.5", "prefix $ | suffix mm | click | elsewhere", "$12.50mm");
    row("-5 100 -5", "specialValueText off | suffix mm | click | elsewhere", "off/-500");
    row("0 100 10", "suffix mm | type 12* | menu 2 | selected: nothing | elsewhere: 24", "24.00mm");
    row("0 9999 2 4", "suffix mm | click | elsewhere", "2.0000mm");
    row("0 10 1", "suffix mm | type 3 | elsewhere: 3", "3.00mm");
    row("0 10 1", "suffix mm | type 3/2= | elsewhere: 1.5", "1.50mm");
    row("0 10 1", "prefix $ | enter 3/2: 1.5", "$1.50");
    row("0 100 0.1", "suffix mm | type 1/4=+1\n: 1.25", "1.25mm");
    row("0 100 0.1", "suffix mm | enter 1/0", "0.10mm");
    row("0 10 1", "suffix mm | type 3/2 | finish: 1.5 | pending: no | press End | keys *2\t: 3",
        "3.00mm");
    row("0 10 1", "enter 3/2: 1.5 | held | keys \n: key", "1.50");
    // The unit that was set last is restored, and is hidden while the field is edited.
    row("0 10 1", "click | suffix mm | shown: 1.00 | prefix $ | elsewhere", "$1.00mm");
    row("0 10 1", "suffix mm | type 3/2 | suffix s | prefix $ | shown: $3/2/100 | elsewhere: 1.5",
        "$1.50s");
    row("0 10 1", "suffix mm | click | suffix  | keys 7 | elsewhere: 7 | suffix s", "7.00s");
    row("0 10 1", "suffix mm | click | elsewhere | suffix s | hide", "1.00s");
    row("0 10 1", "suffix mm | click | elsewhere | suffix  | hide", "1.00");
    row("0 10 1", "suffix mm | type 3/2= | suffix s | shown: 1.50/100 | elsewhere: 1.5", "1.50s");
    // The calculator's text is clamped in float and has two decimals.
    row("0 999999.99 0.1", "enter 2000000: 999999.99", "999999.99");
    row("0 0.996 0.1 3", "enter 5: 0.996", "0.996");
    // A failed entry shows the value with six digits, which are a new entry.
    row("0 9999 1234.567 3", "enter 1/0 | enter 1234.57: 1234.57", "1234.570");
    // It takes over value and bounds only with the program's next value, as floats.
    row("0 1 0.1", "range 0 5 | type 4=\t: 1 | value 1 | enter 4: 4", "4.00");
    row("0 10 1.5", "type 1/0= | shown: 1.5 | keys \t", "1.50");
    row("0 10 1", "value 1e300 | type 1/0=: 10 | shown: 3.40282e+38/1000 | keys \t", "10.00");
    // More decimals than the field has.
    row("0 100 1 0", "enter 8/3: 3", "3");
    row("0 100 1 1", "type 8/3=\t: 2.7", "2.7");
    row("0 10 0", "specialValueText off | suffix mm | click | elsewhere", "off");
}

namespace {

void showIn(QWidget &window, const EditorRow &row)
{
    row.frame->setParent(&window);
    row.frame->show();
    QVERIFY(User::show(window));
    row.spinBox->setFocus();
}

struct ShownByItsConstructor : QDialog
{
    explicit ShownByItsConstructor(const EditorRow &row) { showIn(*this, row); }
};

// A class of the host: the window is still of its base class when the field receives
// the focus, and again when its destructor hides the field.
struct HostDialog : ShownByItsConstructor
{
    using ShownByItsConstructor::ShownByItsConstructor;
};

template <typename SpinBox> struct WithPlainField : SpinBox
{
    WithPlainField() { this->setLineEdit(new QLineEdit); }
};

void destroyAfter(EditorUser &user, const QString &gesture, QWidget *window)
{
    showIn(*window, user.rows[0]);
    user.play("edits");
    if (gesture == "button")
        User::pressAt(user.rows[0].plus, user.rows[0].plus->rect().center());
    else
        user.performAll(gesture);
    QVERIFY(user.heard().contains("start"));
    delete window;
    QCOMPARE(user.heard(), QString());
}

} // namespace

// Qt hides an editor after the host's part of its window is destroyed. A pending entry is
// then dropped, a gesture reports nothing, and its edit does not end.
void tst_TypedEntries::windows_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QString gesture :
         {"type 42", "type 1+1", "type 7=", "hold 40", "released | hold 40", "button"}) {
        addForBoth("widget, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new QWidget); });
        // It is then already a plain widget.
        addForBoth("frame, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new QFrame); });
        addForBoth("host's dialog, " + gesture,
                   [=](auto &user) { destroyAfter(user, gesture, new HostDialog(user.row)); });
    }
    addForBoth("shown by its constructor", [](auto &user) {
        HostDialog window(user.row);
        QCoreApplication::processEvents();
        user.row.field->selectAll();
        user.play(user.isWhole ? "keys 1/4*4\t: finished 1 finished" : "keys 1/4*4\t: 100");
        user.frame->setParent(&user.page);
    });
    // Enter can't move the focus to the row in this case.
    addForBoth("focus proxy", [](auto &user) {
        user.frame->setFocusProxy(user.row.spinBox);
        user.play(user.isWhole ? "type 3*9\n: finished 27 left" : "enter 3*9: 100");
        QVERIFY(user.row.spinBox->hasFocus());
    });
}

// A line edit that a subclass sets instead of the calculator's evaluates nothing.
void tst_TypedEntries::replacedLineEdit()
{
    const auto check = [](auto &&box) {
        box.setSuffix("s");
        box.setSlotEditingFinished();
        QVERIFY(User::show(box));
        box.setFocus();
        box.selectAll();
        User::type("50");
        User::press(Qt::Key_Up);
        QCOMPARE(int(box.value()), 51);
    };
    check(WithPlainField<SliderEditSpinBox>());
    check(WithPlainField<SliderEditDoubleSpinBox>());
}

QTEST_MAIN(tst_TypedEntries)

#include "tst_typedentries.moc"
