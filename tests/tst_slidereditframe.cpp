#include "editoruser.h"

#include <QtWidgets/QDoubleSpinBox>

using namespace Vantor::Widgets;

// The integer slider editor, and what its floating-point twin does alike.
class tst_SliderEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data();
    void settings() { runTestCode(); }
    void sequences_data();
    void sequences() { runTestCode(); }
    void samplingInRealTime();
};

namespace {

template <typename AnyUser> void compareSetters(AnyUser &user)
{
    auto &frame = *user.frame;
    const EditorRow &row = user.row;
    const auto widths = [&row] {
        QStringList texts;
        for (const QWidget *widget : QWidgetList({row.label, row.spinBox, row.minus, row.plus}))
            texts.append(limits(widget->minimumWidth(), widget->maximumWidth()));
        return texts.join(' ');
    };
    frame.setLabelText("Gain");
    QStringList names {row.label->text()};
    for (const QWidget *widget :
         QWidgetList({&frame, row.slider, row.spinBox, row.minus, row.plus}))
        names.append(widget->accessibleName());
    QCOMPARE(names.join(", "), QString("Gain, Gain, Gain, Gain, Gain \u2212, Gain +"));
    frame.setSliderProperty("channel", 3);
    QCOMPARE(row.slider->property("channel"), QVariant(3));

    // Limits in either order.
    frame.setLabelWidthRange(90, 40);
    frame.setButtonWidthRange(60, 20);
    frame.setSpinBoxWidthRange(80, 50);
    QCOMPARE(widths(), QString("40..90 50..80 20..60 20..60"));
    frame.setLabelFixedWidth(31);
    frame.setButtonFixedWidth(32);
    frame.setSpinBoxFixedWidth(33);
    QCOMPARE(widths(), QString("31..31 33..33 32..32 32..32"));

    // A margin to the right of each part but the last, beside what a host has set.
    const QLayout *layout = frame.layout();
    layout->itemAt(2)->layout()->setContentsMargins(1, 2, 3, 4);
    frame.setHorizontalSpacing(5, 7);
    QList<QMargins> margins;
    for (int i = 0; i < 3; ++i)
        margins.append(layout->itemAt(i)->layout()->contentsMargins());
    QCOMPARE(margins, QList<QMargins>({{0, 0, 5, 0}, {0, 0, 7, 0}, {1, 2, 7, 4}}));

    // A spacer takes the room of the slider, and only then any.
    const QSpacerItem *spacer = layout->itemAt(3)->layout()->itemAt(2)->spacerItem();
    for (const bool isVisible : {false, true}) {
        frame.setSliderVisible(isVisible);
        QCoreApplication::processEvents();
        QCOMPARE(row.slider->isHidden(), !isVisible);
        QCOMPARE(spacer->geometry().width() > 100, !isVisible);
        QCOMPARE(spacer->geometry().width() > 0, !isVisible);
    }
    if constexpr (AnyUser::isWhole) {
        frame.setButtonVisible(false);
        QVERIFY(row.minus->isHidden() && row.plus->isHidden());
    }
    QCOMPARE(user.heard(), QString());
}

// Release mode switches the buttons' repetition off, leaving it and sampling on.
template <typename AnyUser> void compareAutoRepeat(AnyUser &user)
{
    auto &frame = *user.frame;
    auto *const minus = user.row.minus;
    auto *const plus = user.row.plus;
    const std::function<void()> calls[] = {[] {},
                                           [&] { frame.setAutoRepeat(true); },
                                           [&] { frame.setReleaseMode(true); },
                                           [&] { frame.setReleaseMode(false); },
                                           [&] { frame.setAutoRepeat(false); },
                                           [&] { frame.setTimeSamplingRate(50); }};
    for (int i = 0; i < 6; ++i) {
        calls[i]();
        QCOMPARE(minus->autoRepeat(), i % 2 == 1);
        QCOMPARE(plus->autoRepeat(), i % 2 == 1);
    }
    frame.setAutoRepeatDelay(10);
    frame.setAutoRepeatInterval(5);
    // Each repetition is a step with its own signal.
    QTest::mousePress(plus, Qt::LeftButton);
    QTRY_VERIFY(user.row.slider->value() >= 13);
    QTest::mouseRelease(plus, Qt::LeftButton);
    QCOMPARE(user.heard().left(8), QString("11 12 13"));
}

// Under a host's own signal block no setter ends it; without one the children
// report nothing either.
template <typename AnyUser> void compareSilence(AnyUser &user)
{
    using SpinBox = std::conditional_t<AnyUser::isWhole, QSpinBox, QDoubleSpinBox>;
    using Value = decltype(user.frame->value());
    auto &frame = *user.frame;
    auto *const slider = user.row.slider;
    auto *const spinBox = user.row.spinBox;
    user.log.watch(qobject_cast<SpinBox *>(spinBox), QOverload<Value>::of(&SpinBox::valueChanged),
                   "spinBox");
    user.log.watch(slider, &QSlider::valueChanged, "slider");
    for (const bool isBlocked : {true, false}) {
        spinBox->blockSignals(isBlocked);
        slider->blockSignals(isBlocked);
        user.play("range 0 50 | value 70 | range 5 40 | step 2");
        if constexpr (!AnyUser::isWhole) {
            frame.setMaximum(0.3);
            frame.setMinimum(0.4);
            frame.setDecimals(1);
            frame.setDecimals(2);
        }
        QCOMPARE(spinBox->signalsBlocked(), isBlocked);
        QCOMPARE(slider->signalsBlocked(), isBlocked);
        user.play("shown: 40");
    }
}

// Clicking or tabbing into the field selects its text, unless it was disabled
// meanwhile or is gone.
template <typename AnyUser> void compareSelectAll(AnyUser &user)
{
    auto *const spinBox = user.row.spinBox;
    auto *const field = user.row.field;
    const QString text = spinBox->text();
    const std::function<void()> ways[] = {
        [&] { user.row.slider->setFocus(), User::press(Qt::Key_Tab); },
        [&] { User::click(spinBox); },
        // At the spin box's own edge, around its field.
        [&] {
            QTest::mouseClick(spinBox, Qt::LeftButton, {}, {spinBox->width() / 2, 1});
        }};
    for (const auto &enter : ways) {
        enter();
        QTRY_COMPARE(field->selectedText(), text);
        user.frame->setFocus();
        field->deselect();
    }

    spinBox->setFocus();
    spinBox->setEnabled(false);
    field->deselect();
    QCoreApplication::processEvents();
    QCOMPARE(field->selectedText(), QString());
    spinBox->setEnabled(true);
    spinBox->setFocus();
    delete user.frame;
    QCoreApplication::processEvents();
}

} // namespace

void tst_SliderEditFrame::settings_data()
{
    QTest::addColumn<TestCode>("code");
    addForBoth("setters", [](auto &user) { compareSetters(user); });
    addForBoth("auto-repeat", [](auto &user) { compareAutoRepeat(user); });
    addForBoth("silence", [](auto &user) { compareSilence(user); });
    addForBoth("select all", [](auto &user) { compareSelectAll(user); });
}

namespace {

template <typename Frame> void addSteps(const QString &name, const QString &steps)
{
    QTest::newRow(qPrintable(name)) << TestCode([steps] { UserOf<Frame>().play(steps); });
}

void addInt(const QString &name, const QString &steps)
{
    addSteps<SliderEditFrame>("int, " + name, steps);
}

void addDouble(const QString &name, const QString &steps)
{
    addSteps<SliderEditFrameDouble>("double, " + name, steps);
}

void addBoth(const QString &name, const QString &steps)
{
    addInt(name, steps);
    addDouble(name, steps);
}

} // namespace

void tst_SliderEditFrame::sequences_data()
{
    QTest::addColumn<TestCode>("code");
    for (const QString mode : {"", "released | ", "sampled | "}) {
        const bool isAtOnce = mode.isEmpty();
        const QString hold = mode + (isAtOnce ? "hold 20 60 40: 20 60 40 | " : "hold 20 60 40 | ");
        const QString last = isAtOnce ? "" : ": 40";
        addBoth(mode + "drag", hold + "drop" + last + " | shown: 40 | timer: stands");
        addBoth(mode + "slider hidden in a drag",
                hold + "hideSlider" + last + " | timer: stands | drop | shown: 40");
        // The handle is held by nobody any more.
        addBoth(mode + "editor disabled in a drag",
                hold + "disable" + last + " | enable | move 70 | timer: stands | drop | shown: 40");
        addBoth(mode + "dropped where taken",
                mode + "hold 30 10" + (isAtOnce ? ": 30 10" : "") + " | drop | shown: 10");
        addBoth(mode + "groove and keys",
                mode
                    + "pageStep 20 | groove after: 30 | right: 31 | groove before: 11 | plus: 12 | "
                      "minus: 11 | minus: 10 | shown: 10");
    }
    addBoth("ticks",
            "sampled | hold | timer: runs | tick | move 20 30 | tick: 30 | tick | "
            "move 50 30 | tick | move 40 | tick: 40 | drop | timer: stands | shown: 40");
    addBoth("a host's value in a drag", "sampled | hold | value 50 | drop | shown: 50");
    const QString drag = " | hold 90 95 120 130: ";
    const QString before = "range 0 200 | value 100 | direction ";
    addBoth("allowed to bigger", before + "2 100" + drag + "100 100 120 130 | drop | shown: 130");
    addBoth("no direction", before + "0 100" + drag + "90 95 100 100 | drop | shown: 100");
    addBoth("a held value is reported on every attempt",
            "direction 4 0 | plus: 0 | plus: 0 | shown: 0");
    // The last value is the one that was set, not the clamped one.
    addBoth("a child's echo",
            "value 200 | range 0 300 | step 100 | focus | up | shown: "
            "200/100 | down: 100 | shown: 100");
    addBoth("a host's value replaces an entry", "type 5 | value 10 | shown: 10");
    addBoth("wheel, disabled", "focus | wheel: page page");
    addBoth("wheel", "wheel: page page | wheelEnabled | wheel: page page | focus | wheel: page 11");

    addInt("sampled without release mode",
           "sampled | released | hold 20 40 | tick | shown: 10 | drop: 40");
    for (const QString end : {"drop", "focus", "hideSlider", "disable", "leave"})
        addInt("pressed until " + end,
               "pressed: no | hold | pressed: yes | " + end + " | pressed: no");
    addInt("minus at the minimum", "step 5 | value 5 | minus: 0 | value 3 | minus | shown: 3");
    addInt("plus at the maximum", "step 5 | value 95 | plus: 100 | value 97 | plus | shown: 97");
    const QString wide = "range -2147483648 2147483647 | step 5 | value ";
    addInt("minus past int", wide + "-2147483645 | minus | shown: -2147483645");
    addInt("plus past int", wide + "2147483644 | plus | shown: 2147483644");

    addDouble("10 to the power of 12 is no int",
              "decimals 12 | range 0 100 | value 100 | shown: 100/2147483647");
    addDouble("a value that the field rounds",
              "value 57 | type \t | shown: 57"); // 57 * 0.01 > 0.57
    addDouble("the spin box follows in release mode",
              "released | hold 20 40 | shown: 40 | drop: 40");
    addDouble("plus at the maximum",
              "step 10 | value 90 | plus: 100 | value 95 | plus | shown: 95");
    addDouble("minus onto the minimum", "step 10 | minus: 0 | shown: 0");
    // 0.2 + 0.1 comes out just above 0.3, 0.3 - 0.1 just below 0.2.
    addDouble("plus within the tolerance",
              "step 10 | range 0 30 | value 20 | plus: 30 | shown: 30");
    addDouble("minus without tolerance", "step 10 | range 20 99 | value 30 | minus | shown: 30");
}

// Elsewhere the ticks come by hand: here the timer runs.
void tst_SliderEditFrame::samplingInRealTime()
{
    UserOf<SliderEditFrame> user;
    user.frame->setTimeSamplingRate(5);
    user.perform("hold 40");
    QString heard;
    QTRY_COMPARE(heard += user.heard(), QString("40"));
    user.play("drop");
}

QTEST_MAIN(tst_SliderEditFrame)

#include "tst_slidereditframe.moc"
