#include "cropeditframe.h"
#include "editoruser.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QThread>
#include <QtWidgets/QDialog>

#include <QAction> // of QtWidgets or, with Qt 6, of QtGui

#include <climits>
#include <cmath>
#include <ctime>
#include <limits>

using namespace Vantor::Widgets;

class tst_Robustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scripts_data();
    void scripts() { runTestCode(); }
    void hugeTexts_data();
    void hugeTexts() { runTestCode(); }
    void deletedInASignal_data();
    void deletedInASignal() { runTestCode(); }
    void takenAwayWhileHeld_data();
    void takenAwayWhileHeld() { runTestCode(); }
    void hostInAReport_data();
    void hostInAReport() { runTestCode(); }
    void extremeSettings_data();
    void extremeSettings() { runTestCode(); }
};

namespace {

// Pastes the text and presses Enter, within a processor time in ms, which the machine's
// other work does not lengthen. The field works on then.
template <typename AnyUser>
void pasteWithin(int mostMs, AnyUser &user, const QString &text, const QString &shown = {})
{
    user.perform("click");
    const std::clock_t start = std::clock();
    user.perform("paste " + text);
    user.perform("keys \n");
    const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC
        / qMax(1, qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS"));
    QVERIFY2(ms < mostMs, qPrintable(QString::number(ms)));
    if (!shown.isEmpty())
        QCOMPARE(user.shown(), shown);
    user.perform("elsewhere"); // the floating-point field keeps the focus
    user.perform("enter 1/1");
    QCOMPARE(double(user.frame->value()), 1.0);
}

} // namespace

void tst_Robustness::scripts_data()
{
    QTest::addColumn<TestCode>("code");
    const auto add = [](const QString &script, const QString &shown) {
        QTest::newRow(qPrintable(script)) << TestCode([=] {
            UserOf<SliderEditFrame> user;
            pasteWithin(350, user, script, shown);
        });
    };
    for (const char *script :
         {"eval('for(;;);')=", "({toString:function(){for(;;){}}})=",
          "(function f(n){return n<2?n:f(n-1)+f(n-2)})(50)=",
          "(function f(){try{f()}catch(e){f()}})()=", "(function f(){try{f()}finally{f()}})()=",
          "new Array(4294967295)=", "a=[];a.length=4294967295;a.join()=",
          "[].constructor(4294967295)=", "throw {toString:function(){for(;;);}}="})
        add(script, "10");
    // What these replace takes no part in the conversion of their result.
    for (const char *script : {"String=function(x){return {toString:function(){for(;;);}}};({})=",
                               "this.__defineSetter__('object',function(v){for(;;);});({})=",
                               "this.__proto__={set string(v){for(;;);}};({})="})
        add(script, "0");
}

// Evaluated at Enter in the one editor, at "=" in the other.
void tst_Robustness::hugeTexts_data()
{
    QTest::addColumn<TestCode>("code");
    // Qt lets a field have 32767 characters unless its host says more.
    const QMap<QString, QString> texts {
        {"zeros", QString(32000, '0') + '7'},
        {"points", QString(32000, '.')},
        {"equals", QString(32000, '=')},
        {"sum", QString("1+").repeated(16000) + '1'},
        {"signs", QString(32000, '-') + '1'},
        {"nested", QString(16000, '(') + '1' + QString(16000, ')')},
        {"nested pattern", "/1" + QString(100000, '(') + '1' + QString(100000, ')') + '/'},
        {"calls", '1' + QString("()").repeated(16000)},
        {"pattern", "/(" + QStringLiteral("1*").repeated(14) + "2)/(111111111111111111111)"},
        {"beyond the first plane", QString::fromUtf8("\xf0\x9f\x98\x80").repeated(16000)}};
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        addForBoth(text.key(), [typed = *text](auto &user) {
            user.row.field->setMaxLength(300000);
            pasteWithin(200, user, user.isWhole ? typed : typed + '=');
        });
    }
}

namespace {

// Whether one of the steps, done with each row in turn, causes the signal, in which
// the program deletes the editor: at once, or as soon as control is back in the loop
// around it.
template <typename Editor>
bool isDeleted(const QString &steps, const QMetaMethod &signal, bool isAtOnce)
{
    const QPointer<Editor> editor(new Editor);
    EditorUser user(editor);
    bool isMet = false;
    QAction program; // has a slot for any signal
    QObject::connect(&program, &QAction::triggered, [&] {
        if (std::exchange(isMet, true))
            return;
        if (isAtOnce)
            delete editor.data();
        else
            editor->deleteLater();
        QCoreApplication::processEvents(); // as a dialog of the receiver does
    });
    const QMetaObject &receiver = QAction::staticMetaObject;
    QObject::connect(editor, signal, &program, receiver.method(receiver.indexOfSlot("trigger()")));
    // deleteLater() called outside of any loop takes effect in the next one.
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        for (const EditorRow &row : user.rows) {
            for (const QString &step : steps.split(" | ")) {
                if (!isMet)
                    user.perform(row.step(step));
            }
        }
        loop.quit();
    });
    loop.exec();
    QTest::mouseRelease(user.page.windowHandle(), Qt::LeftButton);
    QCoreApplication::processEvents();
    if (editor.isNull() != isMet)
        QTest::qFail("the editor is still there", __FILE__, __LINE__);
    return isMet;
}

// Qt's own sender survives only the safe gestures where the editor is gone when its
// signal returns.
template <typename Editor>
void addDeletions(const QStringList &gestures, const QStringList &safe, const QString &start = {})
{
    const QMetaObject *const meta = &Editor::staticMetaObject;
    for (const bool isAtOnce : {false, true}) {
        for (const QString &gesture : isAtOnce ? safe : gestures + safe) {
            QTest::addRow("%s: %s, %s", meta->className(), qPrintable(gesture),
                          isAtOnce ? "delete" : "deleteLater")
                << TestCode([=] {
                       int count = 0;
                       for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
                           if (meta->method(i).methodType() == QMetaMethod::Signal)
                               count +=
                                   isDeleted<Editor>(start + gesture, meta->method(i), isAtOnce);
                       }
                       QVERIFY(count > 0);
                   });
        }
    }
}

} // namespace

// For the sanitizers and Valgrind, too: what is touched after the end need not show.
void tst_Robustness::deletedInASignal_data()
{
    QTest::addColumn<TestCode>("code");
    const QStringList gestures =
        QString(
            "plus; groove after; click | up; hold | drop | right; enter 5; type 5=\t; type 5\t; "
            "hold | move 40 | drop; released | hold | move 40 | drop; "
            "sampled | hold | move 40 | drop; sampled | hold | move 40 | hide; "
            "sampled | hold | move 40 | disable")
            .split("; ");
    const QStringList safe {"space", "sampled | hold | move 40 | tick"};
    addDeletions<SliderEditFrame>(gestures, safe);
    addDeletions<SliderEditFrameDouble>(gestures, safe);
    // Composite editors add what they do in their rows' reports.
    const QStringList some {"plus", "hold | move 40 | drop", "type 5\t"};
    addDeletions<RGBEditFrame>(some, safe);
    addDeletions<RGBAllEditFrame>(some, safe);
    addDeletions<RGBOpacityEditFrame>(some, safe);
    addDeletions<RectEditFrame>(some + QStringList {"lock size | lock position"}, safe);
    addDeletions<CropEditFrame>(some, safe);
    addDeletions<MaskEditFrame>(some, safe, "area 100 100 | ");
}

namespace {

template <typename AnyUser, typename Action> auto onReport(AnyUser &user, const Action &action)
{
    using Frame = std::remove_pointer_t<decltype(user.frame)>;
    return QObject::connect(user.frame, &Frame::valueChanged, &user.page, action);
}

// What the program does to an editor that the user holds.
template <typename AnyUser> void takeAway(AnyUser &user, const QString &removal)
{
    if (removal != "dialog") {
        user.perform(removal);
        return;
    }
    QDialog dialog(&user.page);
    QTimer::singleShot(0, &dialog, [&] {
        QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton);
        dialog.accept();
    });
    dialog.exec();
}

// Takes the editor away within the first report of what is held, or after it. A button
// is held until it repeats.
template <typename AnyUser>
void takeAwayHeld(AnyUser &user, const QString &steps, const QString &removal, bool isInReport)
{
    auto *const frame = user.frame;
    const EditorRow &row = user.row;
    bool isTaken = false;
    const auto take = [&] {
        if (!std::exchange(isTaken, true))
            takeAway(user, removal);
    };
    onReport(user, [&] {
        if (isInReport)
            take();
    });
    const bool isButton = steps.endsWith("plus");
    if (isButton) {
        frame->setAutoRepeat(true);
        frame->setAutoRepeatDelay(1);
        frame->setAutoRepeatInterval(1);
        if (steps == "mouse on plus")
            User::pressAt(row.plus, row.plus->rect().center());
        else
            QTest::keyPress(row.plus, Qt::Key_Space);
        QTRY_VERIFY(row.slider->value() > 10);
    } else {
        for (const QString &step : (steps + (isInReport ? " | tick | drop" : "")).split(" | "))
            user.perform(step);
    }
    QCOMPARE(isTaken, isInReport);
    take();
    QVERIFY(!row.slider->isSliderDown() && !row.plus->isDown());
    if constexpr (AnyUser::isWhole)
        QVERIFY(!frame->isMousePressed());
    QCOMPARE(qMax(samplingInterval(frame), samplingInterval(row.plus)), -1);
    const QString heard = user.heard();
    QVERIFY2(isButton || heard == "40", qPrintable(heard));
    const int position = row.slider->value();

    QTest::mouseRelease(user.page.windowHandle(), Qt::LeftButton);
    user.play("enable | show");
    user.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&user.page));
    QCOMPARE(qMax(samplingInterval(frame), samplingInterval(row.plus)), -1);
    user.play(QString("plus: %1").arg(position + 1));
}

} // namespace

void tst_Robustness::takenAwayWhileHeld_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QString removal : {"hide", "disable", "dialog"}) {
        for (const QString steps : {"hold 40", "mouse on plus", "space bar on plus",
                                    "released | hold 40", "sampled | hold 40"}) {
            for (const bool isInReport : {true, false})
                addForBoth(steps + ", " + removal + (isInReport ? " in the report" : ""),
                           [=](auto &user) { takeAwayHeld(user, steps, removal, isInReport); });
        }
    }
}

void tst_Robustness::hostInAReport_data()
{
    QTest::addColumn<TestCode>("code");
    addForBoth("lets the user drag on", [](auto &user) {
        user.play("sampled | hold 41");
        const auto connection = onReport(user, [&user] {
            user.perform("move 51");
            user.perform("tick");
        });
        user.play("tick: 41");
        disconnect(connection);
        user.play("drop: 51");
    });
    // A value that is held on one side is no new one at the end.
    addForBoth("disables the editor", [](auto &user) {
        user.play("sampled | direction 2 100 | hold 40");
        onReport(user, [&user] { user.perform("disable"); });
        user.play("tick: 100");
    });
    // The host's part of a window is gone when the window hides its editors.
    addForBoth("is gone", [](auto &user) {
        struct Host : QWidget
        {
        };
        auto *const host = new Host;
        user.frame->setParent(host);
        QVERIFY(User::show(*host));
        user.play("released | hold 40");
        delete host;
        QCOMPARE(user.heard(), QString());
    });
    // One click is one step.
    QTest::newRow("int, takes longer than a repetition") << TestCode([] {
        UserOf<SliderEditFrame> user;
        user.frame->setAutoRepeat(true);
        user.frame->setAutoRepeatDelay(20);
        user.frame->setAutoRepeatInterval(20);
        onReport(user, [] { QThread::msleep(300); });
        user.perform("plus");
        QTest::qWait(60);
        QCOMPARE(user.heard(), QString("11"));
    });
}

namespace {

// A range, a step and a value: whatever they are, what the row holds is within what it
// holds of the range. None is NaN then.
template <typename AnyUser, typename Value>
void setExtremes(AnyUser &user, const QVector<Value> &values)
{
    auto *const frame = user.frame;
    const QSlider *const slider = user.row.slider;
    const auto verify = [frame] {
        QVERIFY(std::isfinite(double(frame->value())) && frame->minimum() <= frame->value()
                && frame->value() <= frame->maximum());
    };
    for (const Value a : values) {
        for (const Value b : values) {
            frame->setMaximum(a);
            frame->setMinimum(b);
            verify();
            frame->setRange(a, b);
            frame->setSingleStep(a);
            for (const Value value : values) {
                frame->setValue(value);
                verify();
                for (const char *click : {"plus", "minus", "groove after"})
                    user.perform(click);
            }
            user.perform(QString("hold %1 %2").arg(slider->minimum()).arg(slider->maximum()));
            for (const char *step : {"drop", "enter 1/0,9999*9999*9999", "enter 0/0"})
                user.perform(step);
            verify();
        }
    }
}

} // namespace

// No assertion of Qt's, no overflow that the sanitizers see, and a value within the range.
void tst_Robustness::extremeSettings_data()
{
    QTest::addColumn<TestCode>("code");
    QTest::newRow("int") << TestCode([] {
        UserOf<SliderEditFrame> user;
        setExtremes(user, QVector<int> {INT_MIN, INT_MIN + 1, -1, 0, 7, INT_MAX});
    });
    for (const int decimals : {-1, 2, 300}) {
        QTest::addRow("double, %d decimals", decimals) << TestCode([decimals] {
            using Limits = std::numeric_limits<double>;
            UserOf<SliderEditFrameDouble> user;
            user.frame->setDecimals(decimals);
            setExtremes(user,
                        QVector<double> {-Limits::infinity(), -1e9, 0, 1e-300, 7, 3e7,
                                         Limits::max(), Limits::infinity(), std::nan("")});
        });
    }
}

QTEST_MAIN(tst_Robustness)

#include "tst_robustness.moc"
