#include "editoruser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

using namespace Vantor::Widgets;

// The start and the end of an edit of the user, for hosts that undo it in one step.
class tst_Edits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows() { runTestCode(); }
    void composites_data();
    void composites() { runTestCode(); }
    void resets_data();
    void resets() { runTestCode(); }
};

namespace {

// All repetitions of a held button belong to one edit.
template <typename AnyUser> void repeat(AnyUser &user)
{
    user.play("edits | autoRepeat");
    user.frame->setAutoRepeatDelay(10);
    user.frame->setAutoRepeatInterval(5);
    User::pressAt(user.row.plus, user.row.plus->rect().center());
    QCOMPARE(user.heard(), QString("start"));
    QVERIFY(comesTrue([&user] { return user.row.slider->value() >= 13; }));
    QVERIFY(user.heard().startsWith("11 12 13"));
    User::releaseAt(user.row.plus, user.row.plus->rect().center());
    const QString heard = user.heard();
    QVERIFY2(heard.endsWith(" end") && heard.count("end") == 1, qPrintable(heard));
}

// Actions of a screen reader, and a host's own gestures: the children receive no event.
template <typename AnyUser> void operateParts(AnyUser &user)
{
    user.perform("edits");
    user.row.plus->click();
    QCOMPARE(user.heard(), QString("start 11 end"));
    user.row.slider->setValue(30);
    QCOMPARE(user.heard(), QString("start 30 end"));
    user.row.spinBox->setProperty("value", 40 * user.position);
    QCOMPARE(user.heard(), QString("start 40 end"));
    user.row.slider->setSliderDown(true);
    user.row.slider->setSliderPosition(50);
    QCOMPARE(user.heard(), QString("start 50"));
    user.row.slider->setSliderDown(false);
    QCOMPARE(user.heard(), QString("end"));
}

// The value is the row's, not the position of the handle, and can be set to any value.
template <typename AnyUser> void readSlider(AnyUser &user)
{
    user.play("edits | range 1 100000 | scale logarithmic | value 7 | shown: 7");
    QAccessibleInterface *const slider = QAccessible::queryAccessibleInterface(user.row.slider);
    QAccessibleValueInterface *const value = slider->valueInterface();
    QCOMPARE(slider->text(QAccessible::Value), QString::number(7 * user.position));
    QCOMPARE(value->currentValue().toDouble(), 7 * user.position);
    QCOMPARE(value->minimumValue().toDouble(), user.position);
    QCOMPARE(value->maximumValue().toDouble(), 100000 * user.position);
    QCOMPARE(value->minimumStepSize().toDouble(), user.position);
    value->setCurrentValue(12345 * user.position);
    QCOMPARE(user.heard(), QString("start 12345 end"));
}

// A menu of the program takes the release.
template <typename AnyUser> void openMenu(AnyUser &user)
{
    user.play("edits | autoRepeat");
    User::pressAt(user.row.plus, user.row.plus->rect().center());
    QCOMPARE(user.heard(), QString("start"));
    user.play("pageMenu: end");
    QVERIFY(!user.row.plus->isDown());
    QCOMPARE(samplingInterval(user.row.plus), -1);
    user.play("plus: start 11 end");
}

// A dialog of the receiver, and the user's actions with the same row while it is open.
template <typename AnyUser> void nest(AnyUser &user, const QString &steps)
{
    user.perform("edits");
    user.row.slider->setFocus();
    bool isNested = false;
    user.onReport([&] {
        if (!std::exchange(isNested, true)) {
            user.perform("dialog");
            QTest::keyClick(user.row.slider, Qt::Key_Right);
        }
    });
    user.performAll(steps);
    const QStringList heard = user.heard().split(' ');
    QVERIFY2(heard.first() == "start" && heard.indexOf("end") == heard.size() - 1,
             qPrintable(heard.join(' ')));
}

// A receiver moves the focus while the groove is held: the release still comes.
template <typename AnyUser> void focusMoves(AnyUser &user)
{
    user.perform("edits");
    user.row.slider->setFocus();
    user.onReport([&user] { user.row.plus->setFocus(); });
    const QPoint groove(user.row.slider->width() - 2, user.row.slider->height() / 2);
    User::pressAt(user.row.slider, groove);
    QCOMPARE(user.heard(), QString("start 20"));
    User::releaseAt(user.row.slider, groove);
    QCOMPARE(user.heard(), QString("end"));
}

// The property, cursor and accessible action of a row, for style sheet, pointer and screen reader.
QStringList signsOf(const EditorRow &row)
{
    QAccessibleInterface *const interface = QAccessible::queryAccessibleInterface(row.frame);
    QStringList signs = interface->actionInterface()->actionNames();
    signs.removeAll(QAccessibleActionInterface::setFocusAction());
    signs << row.label->toolTip() << (interface->role() == QAccessible::Border ? "border" : "")
          << (row.label->cursor().shape() == Qt::PointingHandCursor ? "hand" : "")
          << row.label->property("isResettable").toString();
    return signs;
}

template <typename AnyUser> void findReset(AnyUser &user)
{
    QCOMPARE(signsOf(user.row), QStringList({"", "border", "", ""}));
    QVERIFY(!user.frame->hasDefaultValue() && user.frame->defaultValue() == 0);
    user.play("reset | resetValue | default 20 | default 30");
    QVERIFY(user.frame->hasDefaultValue() && user.frame->defaultValue() == 30 * user.position);
    QCOMPARE(signsOf(user.row),
             QStringList({"Reset", "Double-click to reset", "border", "hand", "true"}));
    user.play("edits | screenReader: start 30 end | disable | value 9 | screenReader | enable");
    // Only where there is no other tool tip.
    for (const QString tip : {"Double-click to reset", "Gain in dB"}) {
        if (tip != user.row.label->toolTip())
            user.frame->setToolTip(tip);
        const QPoint pos = user.row.label->rect().center();
        QHelpEvent event(QEvent::ToolTip, pos, user.row.label->mapToGlobal(pos));
        QApplication::sendEvent(user.row.label, &event);
        QCOMPARE(QToolTip::text(), tip);
    }
    {
        const User::UpperCase language;
        QCOMPARE(user.row.label->toolTip(), QString("DOUBLE-CLICK TO RESET"));
    }
    // A receiver of the entry that a reset ends may want no reset.
    user.onReport([&user] { user.frame->clearDefaultValue(); });
    user.performAll("type 77 | screenReader");
    user.heard();
    QVERIFY(!user.frame->hasDefaultValue());
    QVERIFY(user.frame->value() > 30 * user.position); // as typed, not the default
    QCOMPARE(signsOf(user.row), QStringList({"", "border", "", ""}));
    user.play("reset");
}

// Two taps of a finger on the label.
template <typename AnyUser> void doubleTap(AnyUser &user)
{
    static auto *const device = QTest::createTouchDevice();
    user.play("default 30 | edits");
    user.frame->setLabelText("Gain");
    QCoreApplication::processEvents();
    const QPoint pos = user.row.label->mapTo(&user.page, user.row.label->rect().center());
    for (int tap = 0; tap < 2; ++tap) {
        QTest::touchEvent(&user.page, device).press(0, pos, &user.page);
        QTest::touchEvent(&user.page, device).release(0, pos, &user.page);
    }
    QCOMPARE(user.heard(), QString("start 30 end"));
}

} // namespace

void tst_Edits::rows_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addInt = rowsAfter<SliderEditFrame>("edits | ");
    const auto addDouble = rowsAfter<SliderEditFrameDouble>("edits | ");
    const auto addBoth = rowsOfBothAfter("edits | ");
    for (const QString mode : {"", "released | ", "sampled | "}) {
        const bool isAtOnce = mode.isEmpty();
        const QString hold =
            mode + (isAtOnce ? "hold 20 60 40: start 20 60 40 | " : "hold 20 60 40: start | ");
        const QString last = isAtOnce ? ": end" : ": 40 end";
        addBoth(mode + "drag", hold + "drop" + last + " | shown: 40 | timer: stands");
        addBoth(mode + "drag, slider hidden",
                hold + "hideSlider" + last + " | timer: stands | drop | shown: 40");
        // The handle is no longer pressed.
        addBoth(mode + "drag, disabled",
                hold + "disable" + last + " | enable | move 70 | timer: stands | drop | shown: 40");
        addBoth(mode + "drag, dialog", hold + "dialog" + last + " | drop");
        addBoth(mode + "drag, menu", hold + "pageMenu" + last + " | timer: stands | drop");
        addBoth(mode + "drag, left", hold + "leave | drop" + last);
        addBoth(mode + "nothing dragged", mode + "hold: start | drop: end");
        addBoth(mode + "dropped where taken",
                mode + "hold 30 10: start" + (isAtOnce ? " 30 10" : "")
                    + " | drop: end | shown: 10");
        addBoth(mode + "steps",
                mode
                    + "pageStep 20 | groove after: start 30 end | right: start 31 end | "
                      "groove before: start 11 end | plus: start 12 end | minus: start 11 end | "
                      "minus: start 10 end | space: start 11 end | shown: 11");
    }
    for (const QString removal : {"hide", "hideSlider", "disable", "dialog"})
        addBoth("taken at the start of a drag, " + removal,
                "sampled | inStart " + removal + " | hold 40: start end | timer: stands | drop");
    addForBoth("menu over a button", [](auto &user) { openMenu(user); });
    addBoth("ticks",
            "sampled | hold: start | timer: runs | tick | move 20 30 | tick: 30 | tick | "
            "move 50 30 | tick | move 40 | tick: 40 | drop: end | timer: stands | shown: 40");
    addBoth("nothing to step", "value 100 | plus: start end | right | focus | up");
    addBoth("wheel", "wheelEnabled | focus | wheel: page start 11 end");
    addBoth("the program", "value 20 | range 0 15 | value 9 | hide | show | disable | enable");
    addForBoth("repeated steps", [](auto &user) { repeat(user); });
    addForBoth("operated by a program", [](auto &user) { operateParts(user); });
    addForBoth("read by a screen reader", [](auto &user) { readSlider(user); });
    addInt("entry, Enter",
           "type 5: start | keys 0 | keys \n: finished finished 50 finished left end");
    addInt("entry, Tab", "type 5: start | keys 0 | keys \t: finished 50 finished end");
    addDouble("entry, Enter", "type 5: start | keys 0/100 | keys \n: 50 end");
    addDouble("entry, Tab", "type 5: start | keys 0/100 | keys \t: 50 end");
    addInt("entry, =", "type 5*4: start | keys =: finished 20 finished left end");
    addDouble("entry, =", "type 1/5: start | keys = | elsewhere: 20 end");
    addInt("refused, =", "type 5*: start | keys =: finished finished left end");
    addDouble("refused, =", "type 5*: start | keys =: end | elsewhere");
    addInt("entry, stays",
           "options stays | type 5*4: start | keys \n: finished 20 end | keys 7=: start 7 end");
    addDouble("entry, stays",
              "options stays | type 1/5: start | keys =: 20 end | keys 1\n: start 100 end");
    addBoth("entry, restored", "options escape | type 7: start | escape: end | escape: key");
    addInt("taken back", "type 10: start | elsewhere: finished finished end");
    addDouble("taken back", "type .10: start | elsewhere: end");
    addInt("refused", "type 1/0: start | hide: end finished finished");
    addDouble("refused", "type 1/0: start | hide: end");
    addInt("entry, disabled", "type 5: start | disable: finished 5 finished end");
    addInt("entry, dialog", "type 5: start | dialog: finished 5 finished end");
    addInt("entry, own menu", "type 1: start | menu 2 | keys \t: finished 12 finished end");
    addDouble("entry, own menu", "type .1: start | menu 2 | keys \t: 12 end");
    addInt("replaced by the program",
           "type 5: start | value 20 | elsewhere: finished finished end");
    addInt("nothing entered", "click | elsewhere: finished finished");
    // A step causes one report for both, and ends the entry.
    addInt("entry and key", "type 7: start | up: 8 end | up: start 9 end");
    addDouble("entry and key", "type .07: start | up: 8 end | up: start 9 end");
    // The focus leaves the field first.
    addInt("entry and button", "type 7: start | minus: finished 7 finished end start 6 end");
    addDouble("entry and button", "type .07: start | minus: 7 end start 6 end");
    addInt("entry and handle",
           "type 10: start | hold 20: finished finished end start 20 | drop: end");
    addForBoth("entry and button without focus", [](auto &user) {
        // If none of these takes the focus, a button replaces the pending entry by its step.
        for (QWidget *part : QWidgetList({&user.page, user.frame, user.row.plus, user.row.slider}))
            part->setFocusPolicy(Qt::NoFocus);
        user.play("edits | type 7: start | plus: 11 end | type 7: start | hold 30: 30 | drop: end");
    });
    addForBoth("entry and button, which alone takes the focus", [](auto &user) {
        user.page.setFocusPolicy(Qt::NoFocus);
        user.frame->setFocusPolicy(Qt::NoFocus);
        user.perform("edits");
        for (const QString button : {"plus", "minus"}) {
            user.performAll("value 50 | type .1 | " + button);
            QVERIFY(user.heard().contains("end start"));
        }
    });
    addForBoth("focus moved, groove", [](auto &user) { focusMoves(user); });
    addBoth("blocked at the end",
            "hold 20: start 20 | block | drop | unblock: end | plus: start 21 end");
    addForBoth("unblocked long after the end", [](auto &user) {
        user.play("edits | hold 20: start 20 | block | drop | block | unblock");
        QVERIFY(comesTrue([&user] { return user.heard() == "end"; }));
        user.play("plus: start 21 end");
    });
    // The next edit continues the one that the host knows.
    addBoth("blocked from the end to the next start",
            "hold 20: start 20 | block | drop | block | hold 50 | drop | hold 55 | unblock | move "
            "60: 60 | drop: end");
    addBoth("blocked at the start",
            "block | hold 20 | drop | hold 30 | unblock | move 40: start 40 | drop: end");
    for (const QString steps : {"plus", "hold 40 | drop", "groove after", "right", "type .5\t"})
        addForBoth("dialog in the report, " + steps, [=](auto &user) { nest(user, steps); });
}

// One edit contains the signals of all rows.
void tst_Edits::composites_data()
{
    QTest::addColumn<TestCode>("code");
    const auto crop = rowsAfter<CropEditFrame>("area 100 100 | crop 1 2 40 20 | edits | ");
    crop("locked position",
         "lock position: positionLock(true) | x plus: start crop(2,3,40,20) x(2) (2,3,40,20) end");
    crop(
        "locked size",
        "lock size: sizeLock(true) | w released | w hold 60: start | w drop: crop(1,2,60,30) h(30) "
        "w(60) (1,2,60,30) end");
    crop("from row to row",
         "x type 5: start | y minus: finished crop(5,2,40,20) x(5) (5,2,40,20) finished end start "
         "crop(5,1,40,20) y(1) (5,1,40,20) end");
    crop("taken at the start of a drag",
         "x sampled | inStart x disable | x hold 60: start end | x timer: stands | crop 5 6 7 8");
    crop("held at the edge", "w hold 99: start crop(1,2,99,20) w(99) (1,2,99,20) | w drop: end");
    crop("the program", "sizeLock on: sizeLock(true) | crop 3 4 5 6 | hide | show");
    const auto mask = rowsAfter<MaskEditFrame>("area 100 100 | edits | ");
    mask("margin", "x plus: start mask(1,0,0,0) x(1) (1,0,0,0) end");
    const auto rgb = rowsAfter<RGBEditFrame>("edits | ");
    rgb("drag", "g hold 60 70: start (50,60,50) (50,70,50) | g drop: end");
    const auto all = rowsAfter<RGBAllEditFrame>("edits | ");
    all("own row", "all plus: start (50,50,50,51) end");
    all("blocked at the start",
        "block | r hold 20 | unblock | r move 40: start (40,50,50,50) | r drop: end");
    rgb("blocked at the start",
        "block | r hold 20 | unblock | r move 40: start (40,50,50) | r drop: end");
    all("block", "b hold 60: start (50,50,60,50) | b disable: end | b enable | b drop");
    const auto opacity = rowsAfter<RGBOpacityEditFrame>("edits | ");
    opacity("own row", "opacity minus: start (50,50,50,99) end");
    opacity("entry", "r type 9: start | opacity click: finished (9,50,50,100) finished end");
    // Two fingers, of which the second presses a key.
    addFor<RectEditFrame>("two rows at once", [](auto &user) {
        user.play("edits | x hold 7: start x(7) (7,0,0,0)");
        QTest::keyPress(user.rows[1].plus, Qt::Key_Space);
        user.play("x drop");
        QTest::keyRelease(user.rows[1].plus, Qt::Key_Space);
        QCOMPARE(user.heard(), QString("y(1) (7,1,0,0) end"));
    });
}

// A double click on the label resets to the default, as a change by the user.
void tst_Edits::resets_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addInt = rowsAfter<SliderEditFrame>("default 30 | edits | ");
    const auto addDouble = rowsAfter<SliderEditFrameDouble>("default 30 | edits | ");
    const auto addBoth = rowsOfBothAfter("default 30 | edits | ");
    addForBoth("found", [](auto &user) { findReset(user); });
    addForBoth("double tap", [](auto &user) { doubleTap(user); });
    addBoth("once", "reset: start 30 end | shown: 30 | reset | elsewhere");
    addBoth("by the program", "resetValue | shown: 30");
    addBoth("in any mode",
            "sampled | reset: start 30 end | released | value 9 | reset: start 30 end");
    addBoth("beyond the range", "range 0 20 | reset: start 20 end | reset | click | shown: 20");
    addBoth("beyond the range, by the program", "range 0 20 | resetValue | range 0 90 | shown: 20");
    addInt("held on one side", "direction 4 20 | reset: start 20 end | reset: start 20 end");
    addBoth("disabled", "disable | reset");
    addInt("entry", "type 7: start | reset: finished 7 finished end start 30 end");
    addInt("entry, by a screen reader",
           "type 7: start | screenReader: finished 7 finished end start 30 end");
    addDouble("entry, by a screen reader", "type .07: start | screenReader: 7 end start 30 end");
    addInt("entry over the default, by a screen reader",
           "value 30 | type 7: start | screenReader: finished 7 finished end start 30 end");
    addForBoth("entry in the focus proxy, by a screen reader", [](auto &user) {
        user.frame->setFocusProxy(user.row.spinBox);
        const QString typed = user.isWhole ? "5*4" : "1/5";
        user.play("default 30 | edits | type " + typed
                  + ": start | screenReader: 20 end start 30 end");
    });
    addInt("a refused entry over the default",
           "value 30 | type 1/0: start | elsewhere: finished finished end | refused: yes | reset | "
           "refused: no | shown: 30");
    addDouble("a refused entry over the default",
              "value 30 | enter 1/0: start end | refused: yes | reset | refused: no | shown: 30");
    addDouble("between two positions", "default 30.4 | reset: start 30 end | reset | elsewhere");
    addDouble("NaN", "default nan | reset: start 30 end");
    const auto crop = rowsAfter<CropEditFrame>("area 100 100 | crop 1 2 40 20 | edits | ");
    crop("locked position",
         "lock position: positionLock(true) | x default 9 | x reset: start crop(9,10,40,20) x(9) "
         "(9,10,40,20) end");
    crop(
        "entry in another row, by a screen reader",
        "y default 9 | x type 5: start | y screenReader: finished crop(5,2,40,20) x(5) (5,2,40,20) "
        "finished end start crop(5,9,40,20) y(9) (5,9,40,20) end");
    crop("entry in another row, by the program",
         "y default 9 | x type 5: start | y resetValue | elsewhere: finished crop(5,9,40,20) x(5) "
         "(5,9,40,20) finished end");
    crop("held in the area",
         "w default 100 | w reset: start crop(1,2,99,20) w(100) (1,2,100,20) end | shown: 1 2 99 "
         "20");
    const auto mask = rowsAfter<MaskEditFrame>("area 100 100 | mask 0 0 80 10 | edits | ");
    for (const QString reset : {"x resetValue", "resetValues"})
        crop("back to the crop before, " + reset,
             "x default 2 | " + reset + " | x minus: start crop(1,2,40,20) x(1) (1,2,40,20) end");
    crop("away from the edge",
         "w value 98 | w plus: start crop(1,2,99,20) w(99) (1,2,99,20) end | w default 9 | "
         "w resetValue | w plus: start crop(1,2,10,20) w(10) (1,2,10,20) end");
    crop("lock stays",
         "lock position: positionLock(true) | x default 50 | resetValues | "
         "x plus: start crop(51,52,40,20) x(51) (51,52,40,20) end");
    for (const QString reset : {"h resetValue", "resetValues"})
        mask("held in the area, " + reset,
             "h default 50 | " + reset + " | w plus: start mask(0,0,50,50) w(80) (0,0,80,50) end");
    const auto opacity = rowsAfter<RGBOpacityEditFrame>("edits | ");
    opacity("rows",
            "g default 9 | opacity default 8 | g reset: start (50,9,50,100) end | "
            "opacity reset: start (50,9,50,8) end | r reset");
    opacity("all rows", "g default 9 | opacity default 8 | resetValues | shown: 50 9 50 8");
    const auto all = rowsAfter<RGBAllEditFrame>("edits | ");
    all("all rows", "r default 1 | all default 4 | resetValues | shown: 1 50 50 4");
}

QTEST_MAIN(tst_Edits)

#include "tst_edits.moc"
