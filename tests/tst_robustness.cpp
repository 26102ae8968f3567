#include "cropeditframe.h"
#include "editorrow.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

#include <QtCore/QAbstractEventDispatcher>
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
    void scripts() { run(); }
    void hugeTexts_data();
    void hugeTexts() { run(); }
    void deletedInASignal_data();
    void deletedInASignal() { run(); }
    void takenAwayWhileHeld_data();
    void takenAwayWhileHeld() { run(); }
    void dropsATickDuringAnother_data();
    void dropsATickDuringAnother() { run(); }
    void tickEndsTheDrag_data();
    void tickEndsTheDrag() { run(); }
    void windowDestroyedInADrag_data();
    void windowDestroyedInADrag() { run(); }
    void oneClickIsOneStep();
    void extremeSettings_data();
    void extremeSettings() { run(); }
    void lockDoesNotDrift();

private:
    static void run()
    {
        QFETCH(Check, check);
        check();
    }
};

namespace {

// Processor time in ms, which the machine's other work does not lengthen.
double timeOf(const std::function<void()> &action)
{
    const std::clock_t start = std::clock();
    action();
    const double ms = 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC;
    return ms / qMax(1, qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS"));
}

template <typename Row> void compareFieldWorks(Row &row)
{
    row.type({});
    row.field->selectAll(); // the floating-point field keeps the focus
    User::type("1/1\n");
    QCOMPARE(double(row.frame->value()), 1.0);
}

// The program deletes the editor in the middle of something: at once or, in a
// loop of its own, as soon as control is back in the loop around it.
void destroy(QObject *editor, bool isAtOnce)
{
    if (isAtOnce) {
        delete editor;
        return;
    }
    editor->deleteLater();
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

// The text comes from the user's clipboard or from the program.
void tst_Robustness::scripts_data()
{
    QTest::addColumn<Check>("check");
    // What these replace takes no part in the conversion of their result.
    for (const QString script : {"String=function(x){return {toString:function(){for(;;);}}};({})=",
                                 "this.__defineSetter__('object',function(v){for(;;);});({})=",
                                 "this.__proto__={set string(v){for(;;);}};({})="}) {
        addForBoth(script, [=](auto &row) {
            row.type({});
            User::paste(script);
            QCOMPARE(row.field->text().toDouble(), 0.0);
            compareFieldWorks(row);
        });
    }
    for (const bool isPasted : {false, true}) {
        const QString way = isPasted ? "pasted " : "inserted ";
        const auto put = [isPasted](auto &row, const QString &script) {
            row.type({});
            isPasted ? User::paste(script) : row.field->insert(script);
        };
        for (const QString script :
             {"while(1);=", "for(;;){}=", "eval('for(;;);')=",
              "({toString:function(){for(;;){}}})=", "(function f(){return f()+f()})()=",
              "(function f(n){return n<2?n:f(n-1)+f(n-2)})(50)=",
              "(function f(){try{f()}catch(e){f()}})()=", "(function f(){try{f()}finally{f()}})()=",
              "new Array(4294967295)=", "a=[];a.length=4294967295;a.join()=",
              "[].constructor(4294967295)=", "throw {toString:function(){for(;;);}}=",
              "Error.prototype.name={toString:function(){for(;;);}};throw new Error="}) {
            addForBoth(way + script, [=](auto &row) {
                const double ms = timeOf([&] { put(row, script); });
                QVERIFY2(ms < 350, qPrintable(QString::number(ms)));
                QCOMPARE(row.shown().section(' ', 1), QString("10"));
                QCOMPARE(row.field->text().toDouble(), double(row.frame->value()));
                compareFieldWorks(row);
            });
        }
    }
}

void tst_Robustness::hugeTexts_data()
{
    QTest::addColumn<Check>("check");
    const QMap<QString, QString> texts {
        {"digits", QString(32000, '7')},
        {"letters", QString(32000, 'x')},
        {"points", QString(32000, '.')},
        {"sum", QString("1+").repeated(16000) + '1'},
        {"signs", QString(32000, '-') + '1'},
        {"spaced signs", QString("-(").repeated(16000) + '1'},
        {"opened", QString(100000, '(')},
        {"nested", QString(16000, '(') + '1' + QString(16000, ')')},
        {"calls", '1' + QString("()").repeated(16000)},
        {"division or pattern", "/(((1*)*)*)*2/(111111111111111111111)"},
        {"pattern", "/(" + QStringLiteral("1*").repeated(14) + "2)/(111111111111111111111)"},
        {"equals", QString(1000000, '=')},
        {"zeros", QString(1000000, '0') + '7'},
        {"million", QString("1+").repeated(500000) + '1'},
        {"beyond the first plane", QString::fromUtf8("\xf0\x9f\x98\x80").repeated(16000)}};
    // Longer than Qt lets a field be unless its host says so.
    addForBoth("nested pattern", [](auto &row) {
        row.field->setMaxLength(300000);
        row.type({});
        User::paste("/1" + QString(100000, '(') + '1' + QString(100000, ')') + '/');
        User::press(Qt::Key_Return);
        compareFieldWorks(row);
    });
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        for (const QString end : {"", "="}) {
            addForBoth(text.key() + end, [typed = *text + end](auto &row) {
                row.type({});
                const double ms = timeOf([&] {
                    User::paste(typed);
                    User::press(Qt::Key_Return);
                });
                QVERIFY2(ms < 200, qPrintable(QString::number(ms)));
                compareFieldWorks(row);
            });
        }
    }
}

namespace {

using Hands = EditorParts<QWidget>;
using Step = std::function<void(Hands &)>;

// What a user does with a row, and whether Qt's own sender survives that the
// editor is gone when its signal returns.
struct Gesture
{
    const char *name;
    Mode mode;
    QVector<Step> steps;
    bool isSafe = false;
};

const Step grab = [](Hands &row) { User::grabHandle(row.slider); };
const Step move = [](Hands &row) { User::moveHandle(row.slider, 40); };
const Step drop = [](Hands &row) { User::dropHandle(row.slider); };

Step enter(const QString &text)
{
    return [text](Hands &row) { row.type(text); };
}

Step clickLock(const char *name)
{
    return [name](Hands &row) {
        if (auto *button = row.frame->window()->findChild<QToolButton *>(name))
            User::click(button);
    };
}

const QVector<Gesture> gestures {
    {"button", Continuous, {[](Hands &row) { User::click(row.plus); }}},
    {"button by key",
     Continuous,
     {[](Hands &row) { QTest::keyClick(row.plus, Qt::Key_Space); }},
     true},
    {"drag", Continuous, {grab, move, drop}},
    {"drag, release mode", Released, {grab, move, drop}},
    {"drag, sampled", Sampled, {grab, move, drop}},
    {"drag, tick", Sampled, {grab, move, [](Hands &row) { tick(row.frame); }}, true},
    {"drag, hidden", Sampled, {grab, move, [](Hands &row) { row.slider->hide(); }}},
    {"drag, disabled", Sampled, {grab, move, [](Hands &row) { row.slider->setEnabled(false); }}},
    {"groove", Continuous, {[](Hands &row) { User::clickGroove(row.slider, true); }}},
    {"slider key", Continuous, {[](Hands &row) { QTest::keyClick(row.slider, Qt::Key_Right); }}},
    {"arrow key", Continuous, {enter({}), [](Hands &) { User::press(Qt::Key_Up); }}},
    {"Enter", Continuous, {enter("5\n")}},
    {"=", Continuous, {enter("5=\t")}},
    {"Tab", Continuous, {enter("5\t")}},
    {"locks", Continuous, {clickLock("toolButtonLockSize"), clickLock("toolButtonLockPosition")}},
};

// Whether the gesture, on the first row where it does, causes the signal, in
// which the editor is deleted.
template <typename Editor>
bool isDeleted(const Gesture &gesture, const QMetaMethod &signal, bool isAtOnce)
{
    QWidget page;
    page.setLayout(new QVBoxLayout);
    page.resize(800, 200);
    const QPointer<Editor> editor(new Editor(&page));
    page.layout()->addWidget(editor);
    setMode(editor.data(), gesture.mode);
    QVector<Hands> rows;
    for (auto *frame : editor->template findChildren<SliderEditFrame *>()) {
        frame->setRange(0, 100);
        frame->setValue(10);
        rows.append(Hands(frame));
    }
    if (rows.isEmpty())
        rows.append(Hands(editor));
    if constexpr (std::is_base_of_v<RectEditFrame, Editor>) {
        editor->setPositionLockEnable(true);
        editor->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    }
    User::show(page);

    bool isMet = false;
    QAction program; // has a slot for any signal
    QObject::connect(&program, &QAction::triggered, [&] {
        if (!std::exchange(isMet, true))
            destroy(editor, isAtOnce);
    });
    const QMetaObject &receiver = QAction::staticMetaObject;
    QObject::connect(editor, signal, &program, receiver.method(receiver.indexOfSlot("trigger()")));
    // deleteLater() called outside of any loop takes effect in the next one.
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        for (Hands &row : rows) {
            for (const Step &step : gesture.steps) {
                if (!isMet)
                    step(row);
            }
        }
        loop.quit();
    });
    loop.exec();
    QTest::mouseRelease(page.windowHandle(), Qt::LeftButton);
    QCoreApplication::processEvents();
    if (editor.isNull() != isMet)
        QTest::qFail("the editor is still there", __FILE__, __LINE__);
    return isMet;
}

template <typename Editor> void addDeletions()
{
    const QMetaObject *const meta = &Editor::staticMetaObject;
    for (const Gesture &gesture : gestures) {
        for (const bool isAtOnce : {false, true}) {
            const bool isForRect = gesture.name == QLatin1String("locks");
            if ((isAtOnce && !gesture.isSafe)
                || (isForRect && meta != &RectEditFrame::staticMetaObject))
                continue;
            QTest::addRow("%s: %s, %s", meta->className(), gesture.name,
                          isAtOnce ? "delete" : "deleteLater")
                << Check([=] {
                       int count = 0;
                       for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
                           if (meta->method(i).methodType() == QMetaMethod::Signal)
                               count += isDeleted<Editor>(gesture, meta->method(i), isAtOnce);
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
    addDeletions<SliderEditFrame>();
    addDeletions<SliderEditFrameDouble>();
    addDeletions<RGBEditFrame>();
    addDeletions<RGBAllEditFrame>();
    addDeletions<RGBOpacityEditFrame>();
    addDeletions<RectEditFrame>();
    addDeletions<CropEditFrame>();
    addDeletions<MaskEditFrame>();
}

namespace {

// What the program does to an editor that the user holds.
struct Removal
{
    const char *name;
    std::function<void(QWidget *page, QWidget *frame)> takeAway;
};

void openDialog(QWidget *page, QWidget *)
{
    QDialog dialog(page);
    QTimer::singleShot(0, &dialog, [&] {
        QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton);
        dialog.accept();
    });
    dialog.exec();
}

const QVector<Removal> removals {
    {"hidden", [](QWidget *, QWidget *frame) { frame->hide(); }},
    {"disabled", [](QWidget *, QWidget *frame) { frame->setEnabled(false); }},
    {"reparented", [](QWidget *, QWidget *frame) { frame->setParent(nullptr); }},
    {"window closed", [](QWidget *page, QWidget *) { page->close(); }},
    {"window disabled", [](QWidget *page, QWidget *) { page->setEnabled(false); }},
    {"dialog opened", openDialog},
};

enum Held { Handle, HandleInReleaseMode, HandleSampled, Button, ButtonByKey };

// The timers of an editor and its children, the cursor's apart.
int timersOf(QWidget *editor)
{
    QList<QAbstractEventDispatcher::TimerInfo> timers;
    for (QWidget *widget : editor->findChildren<QWidget *>() + QWidgetList {editor})
        timers += QAbstractEventDispatcher::instance()->registeredTimers(widget);
    return static_cast<int>(timers.size());
}

// Takes the editor away within the first report of what is held, or after it.
template <typename Row> void takeAway(Row &row, Held held, const Removal &removal, bool isInReport)
{
    auto *const frame = row.frame;
    int count = 0;
    bool isTaken = false;
    const auto take = [&] {
        if (!std::exchange(isTaken, true))
            removal.takeAway(&row.page, frame);
    };
    QObject::connect(frame, &std::remove_pointer_t<decltype(frame)>::valueChanged, &row.page, [&] {
        ++count;
        if (isInReport)
            take();
    });
    if (held >= Button) {
        frame->setAutoRepeat(true);
        frame->setAutoRepeatDelay(1);
        frame->setAutoRepeatInterval(1);
        if (held == Button)
            QTest::mousePress(row.page.windowHandle(), Qt::LeftButton, {},
                              row.plus->mapTo(&row.page, row.plus->rect().center()));
        else
            QTest::keyPress(row.plus, Qt::Key_Space);
        QTRY_VERIFY(count > 0);
    } else {
        setMode(frame, Mode(held));
        User::grabHandle(row.slider);
        User::moveHandle(row.slider, 40);
        if (isInReport && held == HandleSampled)
            tick(frame);
        else if (isInReport && held == HandleInReleaseMode)
            User::dropHandle(row.slider);
    }
    QCOMPARE(isTaken, isInReport);
    take();
    QVERIFY(!row.slider->isSliderDown() && !row.plus->isDown());
    if constexpr (Row::isInt)
        QVERIFY(!frame->isMousePressed());
    QCOMPARE(timersOf(frame), 0);
    const int position = row.slider->value();
    if (held < Button)
        QCOMPARE(row.log.take(), QStringList(row.report(40)));

    QTest::mouseRelease(row.page.windowHandle(), Qt::LeftButton);
    row.page.layout()->addWidget(frame);
    for (QWidget *widget : {frame->window(), static_cast<QWidget *>(frame)}) {
        widget->setEnabled(true);
        widget->show();
    }
    row.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&row.page));
    QCOMPARE(timersOf(frame), 0);
    row.log.take();
    User::click(row.plus);
    QCOMPARE(row.log.take(), QStringList(row.report(position + 1)));
}

} // namespace

void tst_Robustness::takenAwayWhileHeld_data()
{
    QTest::addColumn<Check>("check");
    const char *const names[] = {"drag", "drag in release mode", "sampled drag", "repeat by mouse",
                                 "repeat by key"};
    for (const Removal &removal : removals) {
        for (const Held held : {Handle, HandleInReleaseMode, HandleSampled, Button, ButtonByKey}) {
            for (const bool isInReport : {false, true}) {
                const QString when = isInReport ? "in the report" : "after it";
                addForBoth(QStringList({names[held], removal.name, when}).join(' '),
                           [=](auto &row) { takeAway(row, held, removal, isInReport); });
            }
        }
    }
}

void tst_Robustness::dropsATickDuringAnother_data()
{
    QTest::addColumn<Check>("check");
    addForBoth("tick", [](auto &row) {
        setMode(row.frame, Sampled);
        User::grabHandle(row.slider);
        User::moveHandle(row.slider, 41);
        const auto connection =
            connect(row.frame, &std::remove_pointer_t<decltype(row.frame)>::valueChanged, [&row] {
                User::moveHandle(row.slider, 51);
                tick(row.frame);
            });
        tick(row.frame);
        QCOMPARE(row.log.take(), QStringList(row.report(41)));
        // What was dropped is reported at the end.
        disconnect(connection);
        User::dropHandle(row.slider);
        QCOMPARE(row.log.take(), QStringList(row.report(51)));
    });
}

// A value that is held on one side is no new one at the end.
void tst_Robustness::tickEndsTheDrag_data()
{
    QTest::addColumn<Check>("check");
    addForBoth("disabled", [](auto &row) {
        setMode(row.frame, Sampled);
        row.frame->setValueChangeDirection(row.frame->AllowedToBigger, int(100 * row.unit));
        User::grabHandle(row.slider);
        User::moveHandle(row.slider, 40);
        connect(row.frame, &std::remove_pointer_t<decltype(row.frame)>::valueChanged,
                [&row] { row.frame->setEnabled(false); });
        tick(row.frame);
        QCOMPARE(row.log.take().size(), 1);
    });
}

// The host's part of the window is gone when it hides its editors.
void tst_Robustness::windowDestroyedInADrag_data()
{
    QTest::addColumn<Check>("check");
    struct Host : QWidget
    {
        ~Host() override { isGone = true; }
        void receive() { QVERIFY(!isGone); }
        bool isGone = false;
    };
    addForBoth("release mode", [](auto &row) {
        auto *const host = new Host;
        row.frame->setParent(host);
        QVERIFY(User::show(*host));
        connect(row.frame, &std::remove_pointer_t<decltype(row.frame)>::valueChanged, host,
                &Host::receive);
        setMode(row.frame, Released);
        User::grabHandle(row.slider);
        User::moveHandle(row.slider, 40);
        delete host;
        QCOMPARE(row.log.take(), QStringList());
    });
}

void tst_Robustness::oneClickIsOneStep()
{
    EditorRow<SliderEditFrame> row;
    row.frame->setAutoRepeat(true);
    row.frame->setAutoRepeatDelay(20);
    row.frame->setAutoRepeatInterval(20);
    QVERIFY(User::show(row.page));
    row.log.take();
    connect(row.frame, &SliderEditFrame::valueChanged, this, [] { QThread::msleep(300); });
    User::click(row.plus);
    QTest::qWait(60);
    QCOMPARE(row.log.take(), QStringList(row.report(11)));
}

namespace {

// What the row holds of the settings. Neither is NaN then.
template <typename Frame> void compareValue(Frame &frame, double setting)
{
    QVERIFY2(frame.minimum() <= frame.value() && frame.value() <= frame.maximum(),
             qPrintable(QString::number(setting)));
}

// A range, a step and a value.
template <typename Row, typename Value> void setExtremes(Row &row, const QVector<Value> &values)
{
    for (const Value a : values) {
        for (const Value b : values) {
            row.frame->setRange(a, b);
            row.frame->setSingleStep(a);
            row.frame->setPageStep(static_cast<int>(qBound(-1e9, double(b), 1e9)));
            for (const Value value : values) {
                row.frame->setValue(value);
                compareValue(*row.frame, value);
                User::click(row.plus);
                User::click(row.minus);
                User::clickGroove(row.slider, true);
            }
            User::grabHandle(row.slider);
            User::moveHandle(row.slider, row.slider->minimum());
            User::moveHandle(row.slider, row.slider->maximum());
            User::dropHandle(row.slider);
            row.type("1/0,9999*9999*9999\n");
            row.type("0/0\n");
            compareValue(*row.frame, b);
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

template <typename Row> void setExtremeWidths(Row &row)
{
    auto *const frame = row.frame;
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
        for (const QWidget *child :
             {static_cast<QWidget *>(row.label), static_cast<QWidget *>(row.plus)})
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
    QTest::newRow("int") << checkOf<SliderEditFrame>([](auto &row) {
        setExtremes(row, QVector<int> {INT_MIN, INT_MIN + 1, -1, 0, 7, INT_MAX});
    });
    QTest::newRow("double") << checkOf<SliderEditFrameDouble>(
        [values](auto &row) { setExtremes(row, values); });
    QTest::newRow("decimals") << Check([values] { setExtremeDecimals(values); });
    addForBoth("widths", [](auto &row) { setExtremeWidths(row); });
}

void tst_Robustness::lockDoesNotDrift()
{
    RectEditFrame frame;
    for (const auto type : {RectEditFrame::Width, RectEditFrame::Height})
        frame.setRange(type, 0, 4000);
    frame.setValue(0, 0, 1920, 1080);
    frame.setSizeLock(true);
    QVERIFY(User::show(frame));
    const Hands rows[] = {Hands(frame.findChild<QWidget *>("frameWidth")),
                          Hands(frame.findChild<QWidget *>("frameHeight"))};
    for (int i = 0; i < 10000; ++i) {
        User::click(i / 2 % 3 ? rows[i % 2].plus : rows[i % 2].minus);
        const int w = rows[0].slider->value(), h = rows[1].slider->value();
        QVERIFY2(qAbs(w * 1080 - h * 1920) * 2 <= 1920,
                 qPrintable(QString("%1: %2 x %3").arg(i).arg(w).arg(h)));
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_Robustness>(argc, argv);
}

#include "tst_robustness.moc"
