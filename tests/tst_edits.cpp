#include "editoruser.h"

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
    void resets_data();
    void resets() { runTestCode(); }
};

namespace {

// All repetitions of a held button belong to one edit.
template <typename AnyUser> void repeat(AnyUser &user)
{
    user.play("edits | autoRepeat | push: start");
    QVERIFY(comesTrue([&user] { return user.row.slider->value() >= 13; }));
    user.perform("letGo");
    const QString heard = user.heard();
    QVERIFY2(heard.startsWith("11 12 13 ") && heard.indexOf("end") == heard.size() - 3,
             qPrintable(heard));
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

// A dialog of the receiver, and the user's actions with the same row while it is open.
template <typename AnyUser> void nest(AnyUser &user, const QString &steps)
{
    user.play("edits | focus handle");
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

} // namespace

void tst_Edits::rows_data()
{
    QTest::addColumn<TestCode>("code");
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
        addBoth(mode + "drag without focus, menu",
                "noFocus handle plus | " + hold + "pageMenu" + last + " | timer: stands | drop");
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
    for (const QString focus : {"", " | noFocus handle plus"})
        addBoth("menu over a button" + focus,
                "autoRepeat" + focus
                    + " | push: start | pageMenu: end | isDown: no | timer: stands | "
                      "plus: start 11 end");
    addForBoth("repeated steps", [](auto &user) { repeat(user); });
    addForBoth("operated by a program", [](auto &user) { operateParts(user); });
    addForBoth("read by a screen reader", [](auto &user) { readSlider(user); });
    addForBoth("unblocked long after the end", [](auto &user) {
        user.play("edits | hold 20: start 20 | block | drop | block | unblock");
        QVERIFY(comesTrue([&user] { return user.heard() == "end"; }));
        user.play("plus: start 21 end");
    });
    for (const QString steps : {"plus", "hold 40 | drop", "groove after", "right", "type .5\t"})
        addForBoth("dialog in the report, " + steps, [=](auto &user) { nest(user, steps); });
    addTable(DATA "/edits.txt",
             {{"int", rowsAfter<SliderEditFrame>("edits | ")},
              {"double", rowsAfter<SliderEditFrameDouble>("edits | ")},
              {"both", addBoth},
              {"crop", rowsAfter<CropEditFrame>("area 100 100 | crop 1 2 40 20 | edits | ")},
              {"mask", rowsAfter<MaskEditFrame>("area 100 100 | edits | ")},
              {"rect", rowsAfter<RectEditFrame>("edits | ")},
              {"rgb", rowsAfter<RGBEditFrame>("edits | ")},
              {"all", rowsAfter<RGBAllEditFrame>("edits | ")},
              {"opacity", rowsAfter<RGBOpacityEditFrame>("edits | ")}});
}

// A double click on the label resets to the default, as a change by the user.
void tst_Edits::resets_data()
{
    QTest::addColumn<TestCode>("code");
    addForBoth("found", [](auto &user) { findReset(user); });
    const QString row = "default 30 | edits | ";
    addTable(DATA "/resets.txt",
             {{"int", rowsAfter<SliderEditFrame>(row)},
              {"double", rowsAfter<SliderEditFrameDouble>(row)},
              {"both", rowsOfBothAfter(row)},
              {"crop", rowsAfter<CropEditFrame>("area 100 100 | crop 1 2 40 20 | edits | ")},
              {"mask", rowsAfter<MaskEditFrame>("area 100 100 | mask 0 0 80 10 | edits | ")},
              {"all", rowsAfter<RGBAllEditFrame>("edits | ")},
              {"opacity", rowsAfter<RGBOpacityEditFrame>("edits | ")}});
}

QTEST_MAIN(tst_Edits)

#include "tst_edits.moc"
