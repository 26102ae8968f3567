#include "cropeditframe.h"
#include "editorrow.h"
#include "layouteditframe.h"
#include "maskeditframe.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframe_p.h"
#include "slidereditframedouble.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QMetaMethod>
#include <QtCore/QThread>
#include <QtWidgets/QDialog>

#include <climits>
#include <cmath>
#include <ctime>
#include <limits>

using namespace Vantor::Widgets;
using Check = std::function<void()>;
Q_DECLARE_METATYPE(Check)

namespace {

// What the program does to the editor in the middle of something. Qt destroys an
// object behind deleteLater() when control is back where it was called: that is
// within the loop where the loop calls it.
enum Fate { Delete, DeleteLater, DeleteWithinLoop };

const QVector<QPair<Fate, const char *>> fates {
    {Delete, "delete"}, {DeleteLater, "deleteLater"}, {DeleteWithinLoop, "delete within a loop"}};

void meet(Fate fate, QObject *editor)
{
    if (fate == Delete) {
        delete editor;
        return;
    }
    QEventLoop loop;
    if (fate == DeleteLater) {
        editor->deleteLater();
        QTimer::singleShot(0, &loop, &QEventLoop::quit);
    } else {
        QObject::connect(editor, &QObject::destroyed, &loop, &QEventLoop::quit);
        QTimer::singleShot(0, editor, &QObject::deleteLater);
    }
    loop.exec();
}

// Processor time in ms, which the machine's other work does not lengthen.
class Watch
{
public:
    double elapsed() const { return 1000.0 * double(std::clock() - m_start) / CLOCKS_PER_SEC; }
    bool isWithin(double ms) const
    {
        static const int factor = qEnvironmentVariableIsSet("VANTORSLIDER_SLOWNESS")
            ? qEnvironmentVariableIntValue("VANTORSLIDER_SLOWNESS")
            : 1;
        return elapsed() < ms * factor;
    }

private:
    std::clock_t m_start = std::clock();
};

void put(bool isByKey, QLineEdit *field, const QString &text)
{
    if (isByKey)
        User::paste(text);
    else
        field->insert(text);
}

// The row 0 to 100 that stands at 10, with the whole text of its field selected.
template <typename Frame> struct Entry : EditorRow<Frame>
{
    Entry()
    {
        this->frame->setRange(0, 100);
        this->frame->setValue(10);
        User::show(this->page);
        this->type({});
    }
    bool works()
    {
        this->type({});
        this->field->selectAll(); // the floating-point field keeps the focus
        User::type("12*3\n");
        return qFuzzyCompare(double(this->frame->value()), 36.0);
    }
};

template <typename Frame> void endScript(const QString &script, bool isByKey)
{
    Entry<Frame> row;
    const Watch watch;
    put(isByKey, row.field, script);
    QVERIFY2(watch.isWithin(350), qPrintable(QString::number(watch.elapsed())));
    QCOMPARE(row.field->text().toDouble(), 10.0);
    QVERIFY(row.works());
}

template <typename Frame> void deleteInScript(Fate fate, bool isByKey)
{
    Entry<Frame> row;
    const QPointer<Frame> frame(row.frame);
    QTimer::singleShot(30, row.frame, [&] { meet(fate, row.frame); });
    put(isByKey, row.field, "while(1);=");
    QCoreApplication::processEvents();
    QVERIFY(!frame);
}

template <typename Frame> void answer(const QString &text)
{
    Entry<Frame> row;
    const Watch watch;
    put(true, row.field, text);
    User::press(Qt::Key_Return);
    QVERIFY2(watch.isWithin(200), qPrintable(QString::number(watch.elapsed())));
    QVERIFY(row.works());
}

// The timers of an editor and its children, the cursor's apart.
int timersOf(QWidget *editor)
{
    int count = 0;
    QList<QWidget *> widgets = editor->findChildren<QWidget *>();
    widgets.append(editor);
    for (QWidget *widget : qAsConst(widgets))
        count += QAbstractEventDispatcher::instance()->registeredTimers(widget).size();
    return count;
}

struct Hands
{
    QWidget *frame;
    QSlider *slider = frame->findChild<QSlider *>();
    QAbstractSpinBox *spinBox = frame->findChild<QAbstractSpinBox *>();
    QToolButton *plus = frame->findChild<QToolButton *>("sliderEditPlus");
};

using Step = std::function<void(Hands &)>;

const Step grab = [](Hands &row) { User::grabHandle(row.slider); };
const Step move = [](Hands &row) { User::moveHandle(row.slider, 40); };
const Step drop = [](Hands &row) { User::dropHandle(row.slider); };
const Step enterField = [](Hands &row) {
    User::click(row.spinBox);
    QCoreApplication::processEvents();
};

Step press(Qt::Key key)
{
    return [key](Hands &) { User::press(key); };
}

template <typename Frame> void act(Hands &row, void (*action)(Frame *))
{
    if (auto *frame = qobject_cast<Frame *>(row.frame))
        action(frame);
}

Step release(bool isReleaseMode)
{
    return [=](Hands &row) {
        if (auto *frame = qobject_cast<SliderEditFrame *>(row.frame))
            frame->setReleaseMode(isReleaseMode);
        if (auto *frame = qobject_cast<SliderEditFrameDouble *>(row.frame))
            frame->setReleaseMode(isReleaseMode);
    };
}

const Step sample = [](Hands &row) {
    if (auto *frame = qobject_cast<SliderEditFrame *>(row.frame))
        frame->setTimeSamplingRate(60000);
    if (auto *frame = qobject_cast<SliderEditFrameDouble *>(row.frame))
        frame->setTimeSamplingRate(60000);
};

// What a user does with a row, and whether Qt's own sender survives that the
// editor is gone when its signal returns.
struct Gesture
{
    const char *name;
    QVector<Step> steps;
    bool isSafe = false;
};

const QVector<Gesture> gestures {
    {"button", {[](Hands &row) { User::click(row.plus); }}},
    {"button by key", {[](Hands &row) { row.plus->setFocus(); }, press(Qt::Key_Space)}, true},
    {"drag", {grab, move, drop}},
    {"drag, release mode", {release(true), grab, move, drop}},
    {"drag, sampled", {sample, grab, move, drop}},
    {"drag, tick", {sample, grab, move, [](Hands &row) { tick(row.frame); }}, true},
    {"drag, hidden", {sample, grab, move, [](Hands &row) { row.slider->hide(); }}},
    {"drag, disabled", {sample, grab, move, [](Hands &row) { row.slider->setEnabled(false); }}},
    {"groove", {[](Hands &row) { User::clickGroove(row.slider, true); }}},
    {"slider key", {[](Hands &row) { row.slider->setFocus(); }, press(Qt::Key_Right)}},
    {"arrow key", {enterField, press(Qt::Key_Up)}},
    {"Enter", {enterField, press(Qt::Key_5), press(Qt::Key_Return)}},
    {"=", {enterField, press(Qt::Key_5), press(Qt::Key_Equal), press(Qt::Key_Tab)}},
    {"Tab", {enterField, press(Qt::Key_5), press(Qt::Key_Tab)}},
};

// Receives one signal, the first time.
class Program : public QObject
{
    Q_OBJECT

public:
    std::function<void()> act;

public Q_SLOTS:
    void receive()
    {
        if (const auto action = std::exchange(act, nullptr))
            action();
    }
};

// As in a running program: within a loop, for deleteLater() called outside of any
// takes effect in the next one, though it be nested.
void inLoop(const std::function<void()> &action)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        action();
        loop.quit();
    });
    loop.exec();
}

template <typename Editor> QVector<Hands> rowsOf(Editor *editor)
{
    QVector<Hands> rows;
    for (auto *frame : editor->template findChildren<SliderEditFrame *>()) {
        frame->setRange(0, 100);
        frame->setValue(10);
        rows.append({frame});
    }
    if (rows.isEmpty())
        rows.append({editor});
    return rows;
}

// Whether the gesture, on the first row where it does, causes the signal, in
// which the editor meets its fate.
template <typename Editor> bool isMet(const Gesture &gesture, const QMetaMethod &signal, Fate fate)
{
    QWidget page;
    page.setLayout(new QVBoxLayout);
    const QPointer<Editor> editor(new Editor(&page));
    page.layout()->addWidget(editor);
    QVector<Hands> rows = rowsOf(editor.data());
    if constexpr (std::is_base_of_v<RectEditFrame, Editor>) {
        editor->setPositionLockEnable(true);
        editor->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    }
    page.resize(800, 200);
    User::show(page);
    Program program;
    program.act = [&] { meet(fate, editor); };
    const auto &receiver = Program::staticMetaObject;
    QObject::connect(editor, signal, &program, receiver.method(receiver.indexOfSlot("receive()")));
    for (Hands &row : rows) {
        for (const Step &step : gesture.steps) {
            if (program.act)
                inLoop([&] { step(row); });
        }
    }
    const auto names = {"toolButtonLockSize", "toolButtonLockPosition"};
    for (const char *name : names) {
        if (fate == DeleteLater && program.act && editor->template findChild<QToolButton *>(name))
            inLoop([&] { User::click(editor->template findChild<QToolButton *>(name)); });
    }
    const bool isMet = !program.act;
    QTest::mouseRelease(page.windowHandle(), Qt::LeftButton);
    QCoreApplication::processEvents();
    if (editor.isNull() != isMet)
        QTest::qFail("the editor is still there", __FILE__, __LINE__);
    return isMet;
}

template <typename Editor> void addFates()
{
    const QByteArray name = QByteArray(Editor::staticMetaObject.className()).split(':').last();
    for (const Gesture &gesture : gestures) {
        for (const auto &fate : fates) {
            if (!gesture.isSafe && fate.first != DeleteLater)
                continue;
            QTest::addRow("%s: %s, %s", name.constData(), gesture.name, fate.second) << Check([=] {
                const QMetaObject &meta = Editor::staticMetaObject;
                int count = 0;
                for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
                    if (meta.method(i).methodType() == QMetaMethod::Signal)
                        count += isMet<Editor>(gesture, meta.method(i), fate.first);
                }
                QVERIFY(count > 0);
            });
        }
    }
}

// What the program does to an editor that the user holds, and what gives it back.
struct Removal
{
    const char *name;
    std::function<void(QWidget *page, QWidget *frame)> takeAway;
    std::function<void(QWidget *page, QWidget *frame)> giveBack;
};

void showAgain(QWidget *page, QWidget *frame)
{
    page->layout()->addWidget(frame);
    page->show();
    for (QWidget *child : frame->findChildren<QWidget *>()) {
        if (child->isHidden() && child->isEnabledTo(frame))
            child->setVisible(true);
    }
    frame->setEnabled(true);
    frame->show();
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

const QVector<Removal> removals {
    {"hidden", [](QWidget *, QWidget *frame) { frame->hide(); }, showAgain},
    {"disabled", [](QWidget *, QWidget *frame) { frame->setEnabled(false); }, showAgain},
    {"reparented", [](QWidget *, QWidget *frame) { frame->setParent(nullptr); }, showAgain},
    {"window closed", [](QWidget *page, QWidget *) { page->close(); }, showAgain},
    {"window disabled", [](QWidget *page, QWidget *) { page->setEnabled(false); },
     [](QWidget *page, QWidget *) { page->setEnabled(true); }},
    {"dialog opened", openDialog, [](QWidget *page, QWidget *) { page->activateWindow(); }},
};

// Within a report of the change, or after it.
template <typename Frame> void takeAwayInDrag(Mode mode, const Removal &removal, bool isInReport)
{
    EditorRow<Frame> row;
    row.setMode(mode);
    QVERIFY(User::show(row.page));
    QStringList expected = reports<typename EditorRow<Frame>::Value>({40 * row.unit});
    Program program;
    program.act = [&] { removal.takeAway(&row.page, row.frame); };
    if (isInReport)
        QObject::connect(row.frame, &Frame::valueChanged, &program, &Program::receive);
    row.hold({40});
    if (!isInReport)
        program.receive();
    else if (mode == Sampled)
        tick(row.frame);
    else if (mode == Released)
        row.drop();
    row.log.take();
    QVERIFY(!program.act);
    QVERIFY(!row.slider->isSliderDown());
    if constexpr (row.isInt)
        QVERIFY(!row.frame->isMousePressed());
    QCOMPARE(timersOf(row.frame), 0);
    QCOMPARE(row.slider->value(), 40);
    QTest::mouseRelease(row.page.windowHandle(), Qt::LeftButton);
    removal.giveBack(&row.page, row.frame);
    QVERIFY(QTest::qWaitForWindowActive(&row.page));
    row.log.take();
    row.click(row.plus);
    QCOMPARE(row.log.take(), reports<typename EditorRow<Frame>::Value>({41 * row.unit}));
}

template <typename Frame>
void takeAwayInRepeat(bool isByKey, const Removal &removal, bool isInReport)
{
    EditorRow<Frame> row;
    row.frame->setAutoRepeat(true);
    row.frame->setAutoRepeatDelay(1);
    row.frame->setAutoRepeatInterval(1);
    QVERIFY(User::show(row.page));
    Program program;
    int count = 0;
    program.act = [&] { removal.takeAway(&row.page, row.frame); };
    QObject::connect(row.frame, &Frame::valueChanged, &program, [&] {
        if (++count == 3 && isInReport)
            program.receive();
    });
    row.plus->setFocus();
    if (isByKey)
        QTest::keyPress(row.plus, Qt::Key_Space);
    else
        QTest::mousePress(row.page.windowHandle(), Qt::LeftButton, {},
                          row.plus->mapTo(&row.page, row.plus->rect().center()));
    QTRY_VERIFY(count >= 3);
    program.receive();
    QVERIFY(!row.plus->isDown());
    QCOMPARE(timersOf(row.frame), 0);
    QTest::mouseRelease(row.page.windowHandle(), Qt::LeftButton);
    removal.giveBack(&row.page, row.frame);
    QVERIFY(QTest::qWaitForWindowActive(&row.page));
    QCOMPARE(timersOf(row.frame), 0);
    row.log.take();
    row.click(row.plus);
    QCOMPARE(row.log.take().size(), 1);
}

template <typename Frame> void addRemovals(const char *name)
{
    for (const Removal &removal : removals) {
        for (const bool isInReport : {false, true}) {
            const char *const when = isInReport ? "in the report" : "after it";
            for (const auto &mode : {std::make_pair(Continuous, "drag"),
                                     std::make_pair(Released, "drag in release mode"),
                                     std::make_pair(Sampled, "sampled drag")}) {
                QTest::addRow("%s: %s, %s %s", name, mode.second, removal.name, when)
                    << Check([=] { takeAwayInDrag<Frame>(mode.first, removal, isInReport); });
            }
            for (const bool isByKey : {false, true})
                QTest::addRow("%s: repeat by %s, %s %s", name, isByKey ? "key" : "mouse",
                              removal.name, when)
                    << Check([=] { takeAwayInRepeat<Frame>(isByKey, removal, isInReport); });
        }
    }
}

// Every setter once.
template <typename Frame> void setAll(Frame &frame, typename EditorRow<Frame>::Value value)
{
    frame.setRange(0, value);
    frame.setValue(value);
    frame.setSingleStep(value);
    frame.setPageStep(3);
    frame.setReleaseMode(true);
    frame.setTimeSamplingRate(50);
    frame.setValueChangeDirection(Frame::AllowedToSmaller, 2);
    frame.setSpinBoxWheelEnable(true);
    frame.setLabelText("Gain");
    if constexpr (std::is_same_v<Frame, SliderEditFrameDouble>) {
        frame.setDecimals(3);
        frame.setMinimum(-1.0);
        frame.setMaximum(value + 1);
    }
}

template <typename Frame> void keepBlocks(bool isBlocked)
{
    Frame frame;
    const auto children = frame.template findChildren<QWidget *>();
    for (QWidget *child : children)
        child->blockSignals(isBlocked);
    setAll(frame, 7);
    for (QWidget *child : children)
        QCOMPARE(child->signalsBlocked(), isBlocked);
}

// A range, a value and a step; the row holds what it can of them.
template <typename Frame, typename Value> void setExtremes(const QVector<Value> &values)
{
    EditorRow<Frame> row;
    QVERIFY(User::show(row.page));
    const auto check = [&](Value a, Value b) {
        const auto where = QStringLiteral("%1 %2: %3 in %4 to %5")
                               .arg(a)
                               .arg(b)
                               .arg(row.frame->value())
                               .arg(row.frame->minimum())
                               .arg(row.frame->maximum());
        QVERIFY2(row.frame->minimum() <= row.frame->value()
                     && row.frame->value() <= row.frame->maximum(),
                 qPrintable(where));
        QVERIFY2(row.slider->minimum() <= row.slider->value()
                     && row.slider->value() <= row.slider->maximum(),
                 qPrintable(where));
    };
    for (const Value a : values) {
        for (const Value b : values) {
            row.frame->setRange(a, b);
            row.frame->setSingleStep(a);
            row.frame->setPageStep(static_cast<int>(qBound(-1e9, double(b), 1e9)));
            for (const Value value : values) {
                row.frame->setValue(value);
                check(a, b);
                row.click(row.plus);
                row.click(row.minus);
                User::clickGroove(row.slider, true);
                check(a, b);
            }
            row.drag({row.slider->minimum(), row.slider->maximum()});
            row.type("1/0,9999*9999*9999\n");
            row.type("0/0\n");
            check(a, b);
        }
    }
}

void setExtremeDecimals()
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double greatest = std::numeric_limits<double>::max();
    SliderEditFrameDouble frame;
    for (int decimals = -1; decimals <= 300; ++decimals) {
        frame.setDecimals(decimals);
        for (const double val :
             {-inf, -greatest, -1e9, -0.3, 0.0, 1e-300, 1.0, 1e9, greatest, inf, std::nan("")}) {
            frame.setMaximum(val);
            frame.setMinimum(val);
            frame.setRange(-val, val);
            frame.setSingleStep(val);
            frame.setValue(val);
            QVERIFY2(frame.minimum() <= frame.value() && frame.value() <= frame.maximum(),
                     qPrintable(QStringLiteral("%1 %2").arg(decimals).arg(val)));
            QVERIFY(std::isfinite(frame.value()));
        }
    }
}

template <typename Frame> void setExtremeWidths()
{
    EditorRow<Frame> row;
    QVERIFY(User::show(row.page));
    for (const int width : {INT_MIN, -1, 0, 16777216, INT_MAX}) {
        row.frame->setHorizontalSpacing(width, width);
        row.frame->setLabelWidthRange(width, width);
        row.frame->setButtonWidthRange(width, width);
        row.frame->setSpinBoxWidthRange(width, width);
        row.frame->setLabelFixedWidth(width);
        row.frame->setButtonFixedWidth(width);
        row.frame->setSpinBoxFixedWidth(width);
        row.frame->setAutoRepeatDelay(width);
        row.frame->setAutoRepeatInterval(width);
        row.frame->setTimeSamplingRate(width);
        QVERIFY(row.label->minimumWidth() >= 0);
        QVERIFY(row.plus->minimumWidth() >= 0 && row.minus->maximumWidth() <= QWIDGETSIZE_MAX);
    }
}

} // namespace

class tst_Robustness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endlessScriptsEnd_data();
    void endlessScriptsEnd() { run(); }
    void oneEvaluationAtATime();
    void evaluatesAnyScript();
    void answersHugeTexts_data();
    void answersHugeTexts() { run(); }
    void deletedInASignal_data();
    void deletedInASignal() { run(); }
    void takenAwayWhileHeld_data();
    void takenAwayWhileHeld() { run(); }
    void dropsATickDuringAnother();
    void oneClickIsOneStep();
    void keepsTheProgramsBlocks_data();
    void keepsTheProgramsBlocks() { run(); }
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

void tst_Robustness::endlessScriptsEnd_data()
{
    QTest::addColumn<Check>("check");
    const char *const scripts[] = {
        "while(1);=", "for(;;){}=", "({toString:function(){while(1);}})=",
        "(function f(){return f()+f()})()="};
    for (const bool isByKey : {false, true}) {
        const char *const way = isByKey ? "key" : "insert";
        for (const char *script : scripts) {
            QTest::addRow("int, %s, %s", way, script)
                << Check([=] { endScript<SliderEditFrame>(script, isByKey); });
            QTest::addRow("double, %s, %s", way, script)
                << Check([=] { endScript<SliderEditFrameDouble>(script, isByKey); });
        }
        for (const auto &fate : fates) {
            QTest::addRow("int, %s, %s", way, fate.second)
                << Check([=] { deleteInScript<SliderEditFrame>(fate.first, isByKey); });
            QTest::addRow("double, %s, %s", way, fate.second)
                << Check([=] { deleteInScript<SliderEditFrameDouble>(fate.first, isByKey); });
        }
    }
}

void tst_Robustness::oneEvaluationAtATime()
{
    Entry<SliderEditFrame> row;
    QString meanwhile;
    QTimer::singleShot(30, row.frame, [&] {
        row.field->setText("5*5=");
        meanwhile = row.field->text();
    });
    User::paste("while(1);=");
    QCOMPARE(meanwhile, QStringLiteral("5*5="));
    QCOMPARE(row.field->text(), QStringLiteral("10"));
    QVERIFY(row.works());
}

void tst_Robustness::evaluatesAnyScript()
{
    Entry<SliderEditFrame> row;
    User::paste("Math.max(3,4)=");
    QCOMPARE(row.frame->value(), 4);
}

void tst_Robustness::answersHugeTexts_data()
{
    QTest::addColumn<Check>("check");
    const QVector<QPair<const char *, QString>> texts {
        {"digits", QString(32000, '7')},
        {"letters", QString(32000, 'x')},
        {"points", QString(32000, '.')},
        {"sum", QStringLiteral("1+").repeated(16000) + '1'},
        {"signs", QString(32000, '-') + '1'},
        {"spaced signs", QStringLiteral("-(").repeated(16000) + '1'},
        {"commas", QString(32000, ',')},
        {"opened", QString(100000, '(')},
        {"nested", QString(16000, '(') + '1' + QString(16000, ')')},
        {"calls", '1' + QStringLiteral("()").repeated(16000)},
        {"division or pattern", QStringLiteral("/(((1*)*)*)*2/(111111111111111111111)")},
        {"equals", QString(1000000, '=')},
        {"spaces", QString(32000, ' ')},
        {"beyond the first plane", QString::fromUtf8("\xf0\x9f\x98\x80").repeated(16000)},
    };
    for (const auto &text : texts) {
        for (const char *end : {"", "="}) {
            QTest::addRow("int, %s %s", text.first, end)
                << Check([=] { answer<SliderEditFrame>(text.second + end); });
            QTest::addRow("double, %s %s", text.first, end)
                << Check([=] { answer<SliderEditFrameDouble>(text.second + end); });
        }
    }
}

void tst_Robustness::deletedInASignal_data()
{
    QTest::addColumn<Check>("check");
    addFates<SliderEditFrame>();
    addFates<SliderEditFrameDouble>();
    addFates<RGBEditFrame>();
    addFates<RGBAllEditFrame>();
    addFates<RGBOpacityEditFrame>();
    addFates<RectEditFrame>();
    addFates<CropEditFrame>();
    addFates<MaskEditFrame>();
}

void tst_Robustness::takenAwayWhileHeld_data()
{
    QTest::addColumn<Check>("check");
    addRemovals<SliderEditFrame>("int");
    addRemovals<SliderEditFrameDouble>("double");
}

void tst_Robustness::dropsATickDuringAnother()
{
    EditorRow<SliderEditFrame> row;
    row.setMode(Sampled);
    QVERIFY(User::show(row.page));
    int depth = 0;
    connect(row.frame, &SliderEditFrame::valueChanged, this, [&] {
        QVERIFY(++depth == 1);
        User::moveHandle(row.slider, 50 + row.slider->value() % 10);
        tick(row.frame);
        --depth;
    });
    row.hold({41});
    row.tick();
    QCOMPARE(row.log.take(),
             QStringList() << "tick"
                           << "valueChanged(41)");
    // What was dropped is reported at the end.
    User::dropHandle(row.slider);
    QCOMPARE(row.frame->value(), 51);
    QCOMPARE(row.log.take(), reports({51}));
}

void tst_Robustness::oneClickIsOneStep()
{
    EditorRow<SliderEditFrame> row;
    row.frame->setAutoRepeat(true);
    row.frame->setAutoRepeatDelay(20);
    row.frame->setAutoRepeatInterval(20);
    QVERIFY(User::show(row.page));
    connect(row.frame, &SliderEditFrame::valueChanged, this, [] { QThread::msleep(300); });
    row.click(row.plus);
    QTest::qWait(60);
    QCOMPARE(row.log.take(), reports({11}));
}

void tst_Robustness::keepsTheProgramsBlocks_data()
{
    QTest::addColumn<Check>("check");
    for (const bool isBlocked : {false, true}) {
        QTest::addRow("int, %d", isBlocked)
            << Check([=] { keepBlocks<SliderEditFrame>(isBlocked); });
        QTest::addRow("double, %d", isBlocked)
            << Check([=] { keepBlocks<SliderEditFrameDouble>(isBlocked); });
    }
}

void tst_Robustness::extremeSettings_data()
{
    QTest::addColumn<Check>("check");
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double greatest = std::numeric_limits<double>::max();
    QTest::newRow("int") << Check([] {
        setExtremes<SliderEditFrame, int>({INT_MIN, INT_MIN + 1, -1, 0, 7, INT_MAX});
    });
    QTest::newRow("double") << Check([=] {
        setExtremes<SliderEditFrameDouble, double>(
            {-inf, -greatest, -1e9, -0.01, 0, 1e-300, 7, 3e7, greatest, inf, std::nan("")});
    });
    QTest::newRow("decimals") << Check(setExtremeDecimals);
    QTest::newRow("widths, int") << Check(setExtremeWidths<SliderEditFrame>);
    QTest::newRow("widths, double") << Check(setExtremeWidths<SliderEditFrameDouble>);
}

void tst_Robustness::lockDoesNotDrift()
{
    RectEditFrame frame;
    for (const auto type :
         {RectEditFrame::X, RectEditFrame::Y, RectEditFrame::Width, RectEditFrame::Height})
        frame.setRange(type, 0, 4000);
    frame.setValue(0, 0, 1920, 1080);
    frame.setSizeLock(true);
    QVERIFY(User::show(frame));
    const Hands width {frame.findChild<QWidget *>("frameWidth")};
    const Hands height {frame.findChild<QWidget *>("frameHeight")};
    for (int i = 0; i < 10000; ++i) {
        const Hands &row = i % 2 ? height : width;
        User::click(row.frame->findChild<QToolButton *>(i / 2 % 3 ? "sliderEditPlus"
                                                                  : "sliderEditSubtract"));
        int x, y, w, h;
        frame.value(x, y, w, h);
        const auto where = QStringLiteral("%1: %2 x %3").arg(i).arg(w).arg(h);
        QVERIFY2(qAbs(w * 1080 - h * 1920) * 2 <= 1920, qPrintable(where));
    }
}

int main(int argc, char *argv[])
{
    return runTest<tst_Robustness>(argc, argv);
}

#include "tst_robustness.moc"
