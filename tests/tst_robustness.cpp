#include "cropeditframe.h"
#include "editoruser.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QMetaMethod>
#include <QtCore/QThread>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLayout>

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
    void scripts() { runCheck(); }
    void hugeTexts_data();
    void hugeTexts() { runCheck(); }
    void deletedInASignal_data();
    void deletedInASignal() { runCheck(); }
    void takenAwayWhileHeld_data();
    void takenAwayWhileHeld() { runCheck(); }
    void hostInAReport_data();
    void hostInAReport() { runCheck(); }
    void extremeSettings_data();
    void extremeSettings() { runCheck(); }
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
    User::press(Qt::Key_Return);
    const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC
        / qMax(1, qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS"));
    QVERIFY2(ms < mostMs, qPrintable(QString::number(ms)));
    if (!shown.isEmpty())
        QCOMPARE(user.shown(), shown);
    user.perform("click");
    user.row.field->selectAll(); // the floating-point field keeps the focus
    user.perform("keys 1/1\n");
    QCOMPARE(double(user.frame->value()), 1.0);
}

} // namespace

void tst_Robustness::scripts_data()
{
    QTest::addColumn<Check>("check");
    const auto add = [](const QString &script, const QString &shown) {
        QTest::newRow(qPrintable(script)) << Check([=] {
            UserOf<SliderEditFrame> user;
            pasteWithin(350, user, script, shown);
        });
    };
    for (const char *script :
         {"while(1);=", "for(;;){}=", "eval('for(;;);')=", "({toString:function(){for(;;){}}})=",
          "(function f(){return f()+f()})()=", "(function f(n){return n<2?n:f(n-1)+f(n-2)})(50)=",
          "(function f(){try{f()}catch(e){f()}})()=", "(function f(){try{f()}finally{f()}})()=",
          "new Array(4294967295)=", "a=[];a.length=4294967295;a.join()=",
          "[].constructor(4294967295)=", "throw {toString:function(){for(;;);}}=",
          "Error.prototype.name={toString:function(){for(;;);}};throw new Error="})
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
    QTest::addColumn<Check>("check");
    // Qt lets a field have 32767 characters unless its host says more.
    const QMap<QString, QString> texts {
        {"digits", QString(32000, '7')},
        {"zeros", QString(32000, '0') + '7'},
        {"letters", QString(32000, 'x')},
        {"points", QString(32000, '.')},
        {"equals", QString(32000, '=')},
        {"sum", QString("1+").repeated(16000) + '1'},
        {"signs", QString(32000, '-') + '1'},
        {"spaced signs", QString("-(").repeated(16000) + '1'},
        {"opened", QString(32000, '(')},
        {"nested", QString(16000, '(') + '1' + QString(16000, ')')},
        {"nested pattern", "/1" + QString(100000, '(') + '1' + QString(100000, ')') + '/'},
        {"calls", '1' + QString("()").repeated(16000)},
        {"division or pattern", "/(((1*)*)*)*2/(111111111111111111111)"},
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
                << Check([=] {
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

void tst_Robustness::deletedInASignal_data()
{
    QTest::addColumn<Check>("check");
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

void openDialog(QWidget *page, QWidget *)
{
    QDialog dialog(page);
    QTimer::singleShot(0, &dialog, [&] {
        QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton);
        dialog.accept();
    });
    dialog.exec();
}

// What the program does to an editor that the user holds.
using TakeAway = std::function<void(QWidget *page, QWidget *frame)>;
const QMap<QString, TakeAway> removals {
    {"hidden", [](QWidget *, QWidget *frame) { frame->hide(); }},
    {"disabled", [](QWidget *, QWidget *frame) { frame->setEnabled(false); }},
    {"reparented", [](QWidget *, QWidget *frame) { frame->setParent(nullptr); }},
    {"window closed", [](QWidget *page, QWidget *) { page->close(); }},
    {"window disabled", [](QWidget *page, QWidget *) { page->setEnabled(false); }},
    {"dialog opened", openDialog},
};

// The timers of an editor and its children, the cursor's apart.
int timersOf(QWidget *editor)
{
    QList<QAbstractEventDispatcher::TimerInfo> timers;
    for (QWidget *widget : editor->findChildren<QWidget *>() + QWidgetList {editor})
        timers += QAbstractEventDispatcher::instance()->registeredTimers(widget);
    return static_cast<int>(timers.size());
}

// Takes the editor away within the first report of what is held, or after it. A button
// is held until it repeats.
template <typename AnyUser>
void takeAwayHeld(AnyUser &user, const QString &steps, const TakeAway &takeAway, bool isInReport)
{
    auto *const frame = user.frame;
    const EditorRow &row = user.row;
    bool isTaken = false;
    const auto take = [&] {
        if (!std::exchange(isTaken, true))
            takeAway(&user.page, frame);
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
        for (const QString &step : steps.split(" | "))
            user.perform(step);
    }
    QCOMPARE(isTaken, isInReport);
    take();
    QVERIFY(!row.slider->isSliderDown() && !row.plus->isDown());
    if constexpr (AnyUser::isWhole)
        QVERIFY(!frame->isMousePressed());
    QCOMPARE(timersOf(frame), 0);
    const QString heard = user.heard();
    QVERIFY2(isButton || heard == "40", qPrintable(heard));
    const int position = row.slider->value();

    QTest::mouseRelease(user.page.windowHandle(), Qt::LeftButton);
    user.page.layout()->addWidget(frame);
    for (QWidget *widget : {frame->window(), static_cast<QWidget *>(frame)}) {
        widget->setEnabled(true);
        widget->show();
    }
    user.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&user.page));
    QCOMPARE(timersOf(frame), 0);
    user.log.take();
    user.play(QString("plus: %1").arg(position + 1));
}

} // namespace

void tst_Robustness::takenAwayWhileHeld_data()
{
    QTest::addColumn<Check>("check");
    for (auto removal = removals.begin(); removal != removals.end(); ++removal) {
        const auto add = [&](const QString &steps, bool isInReport) {
            addForBoth(steps + ", " + removal.key() + (isInReport ? " in the report" : ""),
                       [=, takeAway = *removal](auto &user) {
                           takeAwayHeld(user, steps, takeAway, isInReport);
                       });
        };
        for (const char *steps : {"hold 40", "mouse on plus", "space bar on plus",
                                  "released | hold 40 | drop", "sampled | hold 40 | tick"})
            add(steps, true);
        for (const char *steps : {"hold 40", "mouse on plus", "space bar on plus",
                                  "released | hold 40", "sampled | hold 40"})
            add(steps, false);
    }
}

namespace {

// The host's part of a window is gone when the window hides its editors.
struct Host : QWidget
{
    ~Host() override { isGone = true; }
    void receive() { QVERIFY(!isGone); }
    bool isGone = false;
};

} // namespace

void tst_Robustness::hostInAReport_data()
{
    QTest::addColumn<Check>("check");
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
    addForBoth("is gone", [](auto &user) {
        auto *const host = new Host;
        user.frame->setParent(host);
        QVERIFY(User::show(*host));
        using Frame = std::remove_pointer_t<decltype(user.frame)>;
        connect(user.frame, &Frame::valueChanged, host, &Host::receive);
        user.play("released | hold 40");
        delete host;
        QCOMPARE(user.heard(), QString());
    });
    // One click is one step.
    QTest::newRow("int, takes longer than a repetition") << Check([] {
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

// What the row holds of the settings. Neither is NaN then.
template <typename Frame> void compareValue(Frame &frame, double setting)
{
    QVERIFY2(frame.minimum() <= frame.value() && frame.value() <= frame.maximum(),
             qPrintable(QString::number(setting)));
}

// A range, a step and a value.
template <typename AnyUser, typename Value>
void setExtremes(AnyUser &user, const QVector<Value> &values)
{
    auto *const frame = user.frame;
    const QSlider *const slider = user.row.slider;
    for (const Value a : values) {
        for (const Value b : values) {
            frame->setRange(a, b);
            frame->setSingleStep(a);
            frame->setPageStep(static_cast<int>(qBound(-1e9, double(b), 1e9)));
            for (const Value value : values) {
                frame->setValue(value);
                compareValue(*frame, double(value));
                for (const char *click : {"plus", "minus", "groove after"})
                    user.perform(click);
            }
            user.perform(QString("hold %1 %2").arg(slider->minimum()).arg(slider->maximum()));
            for (const char *step : {"drop", "enter 1/0,9999*9999*9999", "enter 0/0"})
                user.perform(step);
            compareValue(*frame, double(b));
        }
    }
}

void setExtremeDecimals(const QVector<double> &values)
{
    SliderEditFrameDouble frame;
    for (int decimals = -1; decimals <= 300; ++decimals) {
        frame.setDecimals(decimals);
        for (const double value : values) {
            frame.setMaximum(value);
            frame.setMinimum(value);
            frame.setRange(-value, value);
            frame.setSingleStep(value);
            frame.setValue(value);
            compareValue(frame, value);
            QVERIFY(std::isfinite(frame.value()));
        }
    }
}

template <typename AnyUser> void setExtremeWidths(AnyUser &user)
{
    auto *const frame = user.frame;
    for (const int width : {INT_MIN, -1, 0, QWIDGETSIZE_MAX + 1, INT_MAX}) {
        frame->setHorizontalSpacing(width, width);
        frame->setLabelWidthRange(width, width);
        frame->setButtonWidthRange(width, width);
        frame->setSpinBoxWidthRange(width, width);
        frame->setLabelFixedWidth(width);
        frame->setButtonFixedWidth(width);
        frame->setSpinBoxFixedWidth(width);
        frame->setAutoRepeatDelay(width);
        frame->setAutoRepeatInterval(width);
        frame->setTimeSamplingRate(width);
        for (const QWidget *child : QWidgetList {user.row.label, user.row.plus})
            QVERIFY(child->minimumWidth() >= 0 && child->maximumWidth() <= QWIDGETSIZE_MAX);
    }
}

} // namespace

void tst_Robustness::extremeSettings_data()
{
    QTest::addColumn<Check>("check");
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double greatest = std::numeric_limits<double>::max();
    const QVector<double> values {-inf, -greatest, -1e9, -0.01,    0,   1e-300,
                                  7,    3e7,       1e9,  greatest, inf, std::nan("")};
    QTest::newRow("int") << Check([] {
        UserOf<SliderEditFrame> user;
        setExtremes(user, QVector<int> {INT_MIN, INT_MIN + 1, -1, 0, 7, INT_MAX});
    });
    QTest::newRow("double") << Check([values] {
        UserOf<SliderEditFrameDouble> user;
        setExtremes(user, values);
    });
    QTest::newRow("decimals") << Check([values] { setExtremeDecimals(values); });
    addForBoth("widths", [](auto &user) { setExtremeWidths(user); });
}

int main(int argc, char *argv[])
{
    return runTest<tst_Robustness>(argc, argv);
}

#include "tst_robustness.moc"
