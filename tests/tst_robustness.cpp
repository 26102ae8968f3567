#include "editoruser.h"

#include <QtCore/QMetaMethod>

#include <QAction> // of QtWidgets or, with Qt 6, of QtGui

#include <cfloat>
#include <climits>
#include <ctime>

using namespace Vantor::Widgets;

class tst_Robustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pastedTexts_data();
    void pastedTexts() { runTestCode(); }
    void deletedInASignal_data();
    void deletedInASignal() { runTestCode(); }
    void whileHeld_data();
    void whileHeld() { runTestCode(); }
    void extremeSettings_data();
    void extremeSettings() { runTestCode(); }
};

// Huge texts. One without "=" is evaluated at Enter in the integer
// editor; in the other editor "=" is added. The field still works afterwards.
void tst_Robustness::pastedTexts_data()
{
    QTest::addColumn<TestCode>("code");
    // The processor time in ms, which does not include other processes.
    const auto add = [](const QString &name, const QString &text) {
        addForBoth(name, [=](auto &user) {
            user.row.field->setMaxLength(300000);
            double ms[2];
            for (const int half : {0, 1}) {
                const QString entry = half ? text : text.left(int(text.size()) / 2);
                user.perform("click");
                const std::clock_t start = std::clock();
                user.perform("paste " + (user.isWhole || text.endsWith('=') ? entry : entry + '='));
                user.perform("keys \n");
                ms[half] = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
                user.performAll("elsewhere | enter 1/1"); // the double field keeps the focus
                QCOMPARE(double(user.frame->value()), 1.0);
            }
            // Twice the text takes twice the time.
            QVERIFY2(ms[1] < 3 * ms[0] + 20, qPrintable(QString("%1 %2").arg(ms[0]).arg(ms[1])));
        });
    };
    // Qt limits a field to 32767 characters unless its host sets another limit.
    add("zeros", QString(32000, '0') + '7');
    add("points", QString(32000, '.'));
    add("equals", QString(32000, '='));
    add("nested pattern", "/1" + QString(100000, '(') + '1' + QString(100000, ')') + '/');
    add("calls", '1' + QString("()").repeated(16000));
    add("pattern", "/(" + QString("1*").repeated(14) + "2)/(111111111111111111111)");
    add("beyond the first plane", QString::fromUtf8("\xf0\x9f\x98\x80").repeated(16000));
}

namespace {

// Destroyed after main(), as a host's own statics are: the program must not crash then.
std::unique_ptr<SliderEditFrame> keptBeyondMain;

// Performs the steps with each row of a new editor, once for each signal of the class.
// In that signal the program deletes the editor: at once, or when control returns to the
// event loop.
template <typename Editor> void deleteInEachSignal(const QString &steps, bool isAtOnce)
{
    const QMetaObject &meta = Editor::staticMetaObject;
    bool isAnyMet = false;
    // moc lists the signals first.
    for (int i = meta.methodOffset(); meta.method(i).methodType() == QMetaMethod::Signal; ++i) {
        const QPointer<Editor> editor(new Editor);
        EditorUser user(editor);
        bool isMet = false;
        QAction program; // has a slot for every signal
        QObject::connect(&program, &QAction::triggered, [&] {
            if (std::exchange(isMet, true))
                return;
            if (isAtOnce)
                delete editor.data();
            else
                editor->deleteLater();
            QCoreApplication::processEvents(); // like a dialog of the receiver
        });
        const QMetaObject &receiver = QAction::staticMetaObject;
        QObject::connect(editor, meta.method(i), &program,
                         receiver.method(receiver.indexOfSlot("trigger()")));
        for (const EditorRow &row : user.rows) {
            for (const QString &step : steps.split(" | ")) {
                if (!isMet)
                    user.perform(row.step(step));
            }
        }
        isAnyMet |= isMet;
        QTest::mouseRelease(user.page.windowHandle(), Qt::LeftButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(editor.isNull(), isMet);
    }
    QVERIFY(isAnyMet);
}

// If the editor is deleted when its signal returns, Qt's own sender survives only the
// safe gestures.
template <typename Editor>
void addDeletions(const QString &gestures, const QString &safe, const QString &start = {})
{
    for (const bool isAtOnce : {false, true}) {
        for (const QString &gesture : (isAtOnce ? safe : gestures + "; " + safe).split("; ")) {
            QTest::addRow("%s: %s, %s", Editor::staticMetaObject.className(), qPrintable(gesture),
                          isAtOnce ? "delete" : "deleteLater")
                << TestCode([=] { deleteInEachSignal<Editor>(start + gesture, isAtOnce); });
        }
    }
}

} // namespace

// For the sanitizers and Valgrind, too: a use after free may have no visible effect.
void tst_Robustness::deletedInASignal_data()
{
    QTest::addColumn<TestCode>("code");
    const QString gestures =
        "reset; plus; groove after; click | up; hold | drop | right; enter 5; type 5=\t; type 5\t; "
        "hold | move 40 | drop; released | hold | move 40 | drop; sampled | hold | move 40 | drop; "
        "sampled | hold | move 40 | hide; sampled | hold | move 40 | disable";
    const QString safe = "space; sampled | hold | move 40 | tick";
    addDeletions<SliderEditFrame>(gestures, safe, "default 30 | ");
    addDeletions<SliderEditFrameDouble>(gestures, safe, "default 30 | ");
    // Composite editors add their own work in their rows' reports.
    const QString some = "plus; hold | move 40 | drop; type 5\t";
    addDeletions<RGBEditFrame>(some, safe);
    addDeletions<RGBAllEditFrame>(some, safe);
    addDeletions<RGBOpacityEditFrame>(some, safe);
    addDeletions<RectEditFrame>(some + "; lock size | lock position",
                                safe + "; sizeLock on; positionLock on");
    addDeletions<CropEditFrame>(some, safe);
    addDeletions<MaskEditFrame>(some, safe, "area 100 100 | ");
}

namespace {

const QString isFree = "isDown: no | pressed: no | timer: stands | ";

// Removes the editor during the first report of a button that repeats, or after it.
template <typename AnyUser>
void takeAwayPressed(AnyUser &user, const QString &press, const QString &removal, bool isInReport)
{
    user.performAll((isInReport ? "inReport " + removal + " | " : QString()) + "autoRepeat | "
                    + press);
    QVERIFY(comesTrue([&] { return user.row.slider->value() > 10; }));
    if (!isInReport)
        user.perform(removal);
    user.heard();
    const QString next = QString::number(user.row.slider->value() + 1);
    user.play(isFree
              + "repeating: yes yes | letGo | enable | show | timer: stands | plus: " + next);
}

} // namespace

// Actions of the program while the user presses the handle or a button.
void tst_Robustness::whileHeld_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addBoth = rowsOfBothAfter();
    const QString after = " | " + isFree + "drop | enable | show | timer: stands | plus: 41";
    for (const QString removal : {"hide", "disable", "dialog"}) {
        const QString report = "inReport " + removal + " | hold 40";
        for (const QString &steps :
             {"hold 40: 40 | " + removal, report + ": 40 | tick | drop",
              "released | hold 40 | " + removal + ": 40", "released | " + report + " | drop: 40",
              "sampled | hold 40 | " + removal + ": 40 | repeating: yes yes",
              "sampled | " + report + " | tick: 40 | drop | repeating: yes yes"})
            addBoth(steps, steps + after);
        for (const QString press : {"push", "keyDown"}) {
            for (const bool isInReport : {true, false})
                addForBoth(press + ", " + removal + (isInReport ? " in the report" : ""),
                           [=](auto &user) { takeAwayPressed(user, press, removal, isInReport); });
        }
    }
    addBoth("the user drags on in a report",
            "sampled | hold 41 | inReport move 51 | inReport tick | tick: 41 | drop: 51");
    // A value that is limited to one side is not a new value at the end.
    addBoth("a report of a value held on one side disables the editor",
            "sampled | direction 2 100 | hold 40 | inReport disable | tick: 100");
    addForBoth("nothing is left of a press", [](auto &user) {
        user.perform("noFocus handle plus");
        const auto objects = [&user] {
            user.performAll("hold 40 | drop | push | letGo | elsewhere");
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return user.frame->template findChildren<QObject *>().size();
        };
        const auto before = objects();
        QCOMPARE(objects(), before);
    });
    // One click is one step.
    addFor<SliderEditFrame>("a report takes longer than a repetition", [](auto &user) {
        user.perform("autoRepeat");
        user.onReport([] { QTest::qSleep(300); });
        user.perform("plus");
        QTest::qWait(60);
        QCOMPARE(user.heard(), QString("11"));
    });
}

namespace {

// For any range, step and value, the row's value is within the row's range. None of them
// is NaN.
template <typename Value, typename AnyUser>
void setExtremes(AnyUser &user, const QVector<Value> &values)
{
    auto *const frame = user.frame;
    const QSlider *const slider = user.row.slider;
    const auto perform = [&](const QString &step) {
        user.perform(step);
        QVERIFY(qIsFinite(double(frame->value())) && frame->minimum() <= frame->value()
                && frame->value() <= frame->maximum());
    };
    for (const Value a : values) {
        for (const Value b : values) {
            frame->setMaximum(a);
            frame->setMinimum(b);
            perform("shown");
            frame->setRange(a, b);
            frame->setSingleStep(a);
            for (const Value value : values) {
                frame->setValue(value);
                for (const QString step : {"shown", "plus", "minus", "groove after"})
                    perform(step);
            }
            perform(QString("hold %1 %2").arg(slider->minimum()).arg(slider->maximum()));
            for (const QString step : {"drop", "enter 1/0,9999*9999*9999", "enter 0/0"})
                perform(step);
        }
    }
}

} // namespace

// No assertion of Qt, no overflow that the sanitizers detect, and a value within the range.
void tst_Robustness::extremeSettings_data()
{
    QTest::addColumn<TestCode>("code");
    QTest::newRow("int") << TestCode([] {
        UserOf<SliderEditFrame> user;
        setExtremes<int>(user, {INT_MIN, INT_MIN + 1, -1, 0, 7, INT_MAX});
    });
    for (const int decimals : {-1, 2, 300}) {
        QTest::addRow("double, %d decimals", decimals) << TestCode([decimals] {
            UserOf<SliderEditFrameDouble> user;
            user.frame->setDecimals(decimals);
            setExtremes<double>(user, {-qInf(), -1e9, 0, 1e-300, 7, 3e7, DBL_MAX, qInf(), qQNaN()});
        });
    }
}

void tst_Robustness::initTestCase()
{
    keptBeyondMain = std::make_unique<SliderEditFrame>();
}

QTEST_MAIN(tst_Robustness)

#include "tst_robustness.moc"
