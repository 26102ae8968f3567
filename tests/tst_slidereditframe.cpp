#include "editoruser.h"

using namespace Vantor::Widgets;

// The integer and the floating-point slider editor.
class tst_SliderEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sequences_data();
    void sequences() { runTestCode(); }
    void scale_data();
    void scale() { runTestCode(); }
    void freshScale();
    void locale();
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
    for (const QString text : {"Gain", "&Gain", "<b>Gain</b>"}) {
        frame.setLabelText(text);
        QStringList names;
        for (const QWidget *widget :
             QWidgetList({&frame, row.slider, row.spinBox, row.minus, row.plus}))
            names.append(widget->accessibleName());
        QCOMPARE(names.join(", "), QString("Gain, Gain, Gain, Gain \u2212, Gain +"));
    }
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
    // They return when a sheet is removed that had widths.
    user.page.setStyleSheet(
        "QLabel, QAbstractSpinBox, QToolButton { min-width: 99px; max-width: 99px; }");
    QVERIFY(widths() != "31..31 33..33 32..32 32..32");
    user.page.setStyleSheet(" ");
    QCOMPARE(widths(), QString("31..31 33..33 32..32 32..32"));
    user.page.setStyleSheet(QString());
    QCOMPARE(widths(), QString("31..31 33..33 32..32 32..32"));

    // The host's own margin before the field stays.
    const QLayout *layout = frame.layout();
    layout->itemAt(2)->layout()->setContentsMargins(1, 0, 0, 0);
    frame.setHorizontalSpacing(5, 7);
    row.spinBox->setLayoutDirection(Qt::RightToLeft); // of the numbers only
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        user.page.setLayoutDirection(direction);
        QCoreApplication::processEvents();
        QCOMPARE(gaps(row), QString("5 8 7 0"));
    }
    frame.setHorizontalSpacing(4, 6);
    QCoreApplication::processEvents();
    QCOMPARE(gaps(row), QString("4 7 6 0"));
    user.page.setLayoutDirection(Qt::LeftToRight);

    // A spacer replaces a hidden slider, and otherwise takes no space. The shortcut of the label
    // gives the focus to the slider or, without it, to the field.
    frame.setLabelText("&Gain");
    const QSpacerItem *spacer = layout->itemAt(3)->layout()->itemAt(2)->spacerItem();
    for (const bool isVisible : {false, true}) {
        frame.setSliderVisible(isVisible);
        QCoreApplication::processEvents();
        QCOMPARE(row.slider->isHidden(), !isVisible);
        QCOMPARE(spacer->geometry().width() > 100, !isVisible);
        QCOMPARE(spacer->geometry().width() > 0, !isVisible);
        QTest::keyClick(&user.page, Qt::Key_G, Qt::AltModifier);
        QVERIFY(isVisible ? row.slider->hasFocus() : row.spinBox->hasFocus());
    }
    user.heard();
    frame.setButtonVisible(false);
    QVERIFY(row.minus->isHidden() && row.plus->isHidden());

    QVERIFY(!frame.autoRepeat() && !frame.isReleaseMode() && frame.timeSamplingRate() == 0);
    frame.setTimeSamplingRate(40);
    QVERIFY(frame.autoRepeat() && !frame.isReleaseMode() && frame.timeSamplingRate() == 40);
    frame.setReleaseMode(true);
    QVERIFY(!frame.autoRepeat() && frame.isReleaseMode() && frame.timeSamplingRate() == 40);
    QCOMPARE(user.heard(), QString());
}

// No setter ends a host's own signal block; without one the children emit nothing
// either.
template <typename AnyUser> void compareSilence(AnyUser &user)
{
    QAbstractSpinBox *const spinBox = user.row.spinBox;
    QSlider *const slider = user.row.slider;
    for (const bool isBlocked : {true, false}) {
        const QSignalSpy sliderReports(slider, &QSlider::valueChanged);
        const QSignalSpy spinBoxReports(
            spinBox, user.isWhole ? SIGNAL(valueChanged(int)) : SIGNAL(valueChanged(double)));
        spinBox->blockSignals(isBlocked);
        slider->blockSignals(isBlocked);
        user.play("range 0 50 | value 70 | range 5 40 | singleStep 2 | maximum 30 | minimum 40");
        user.play(user.isWhole ? "shown: 40" : "decimals 1 | decimals 2 | shown: 40");
        QVERIFY(spinBox->signalsBlocked() == isBlocked && slider->signalsBlocked() == isBlocked);
        if (!isBlocked)
            QVERIFY(sliderReports.isEmpty() && spinBoxReports.isEmpty());
    }
}

} // namespace

void tst_SliderEditFrame::sequences_data()
{
    QTest::addColumn<TestCode>("code");
    const auto addBoth = rowsOfBothAfter();
    addForBoth("setters", [](auto &user) { compareSetters(user); });
    addForBoth("silence", [](auto &user) { compareSilence(user); });
    // Other tests send the ticks themselves: here the timer runs.
    addForBoth("ticks in real time", [](auto &user) {
        user.frame->setTimeSamplingRate(5);
        user.perform("hold 40");
        QString heard;
        QVERIFY(comesTrue([&] { return (heard += user.heard()) == "40"; }));
        user.play("drop");
    });
    addForBoth("a timer of a derived class", [](auto &user) {
        user.play("sampled | hold | move 20");
        QTimerEvent event(user.frame->startTimer(60000));
        QCoreApplication::sendEvent(user.frame, &event);
        QCOMPARE(user.heard(), QString());
    });
    addForBoth("a click on the spin box's own edge selects the text", [](auto &user) {
        QTest::mouseClick(user.row.spinBox, Qt::LeftButton, {}, {user.row.spinBox->width() / 2, 1});
        user.play("selected: all");
    });
    // Past the row, which would refuse it: there is no logarithm of the minimum.
    addForBoth("logarithmic: a minimum of the spin box below 0", [](auto &user) {
        user.play("range 1 100 | scale logarithmic | value 50");
        user.row.spinBox->setProperty("minimum", -5 * user.position);
        user.play("groove after: -5");
    });
    // The handle reaches each position if the slider has as many pixels.
    const QString scale = "width 3000 | range 1 100000 | scale logarithmic | ";
    addTable(DATA "/slidereditframe.txt",
             {{"int", rowsAfter<SliderEditFrame>()},
              {"double", rowsAfter<SliderEditFrameDouble>()},
              {"both", addBoth},
              {"log", rowsOfBothAfter(scale)},
              {"logdouble", rowsAfter<SliderEditFrameDouble>(scale)}});
}

// Spin box and slider have the same interval, in whatever way the bounds are set.
void tst_SliderEditFrame::scale_data()
{
    QTest::addColumn<TestCode>("code");
    const auto add = rowsAfter<SliderEditFrameDouble>("range 0 0 | ", 1);
    for (const QString way :
         {"range %1 %2", "minimum %1 | maximum %2", "maximum %2 | minimum %1"}) {
        const auto row = [=](int decimals, double min, double max, const QString &found) {
            const QString bounds = way.arg(min).arg(max);
            add(QString("%1, %2 decimals").arg(bounds).arg(decimals),
                QString("decimals %1 | %2 | value %3").arg(decimals).arg(bounds, found));
        };
        row(2, 0, 1, "0.25 | shown: 0.25 | bounds: 0..1 | ranges: 0..100");
        row(3, -0.5, 0.5, "-0.125 | shown: -0.125 | bounds: -0.5..0.5 | ranges: -500..500");
        // Half away from zero.
        row(1, -10, 10, "-2.25 | shown: -2.3 | bounds: -10..10 | ranges: -100..100");
        row(0, 0.6, 9.4, "5.5 | shown: 6 | bounds: 1..9 | ranges: 1..9");
        row(-1, -0.5, 9.4, "5.5 | shown: 6 | bounds: 0..9 | ranges: 0..9");
        // Below and above the previous range.
        row(2, -5, -3, "-4 | shown: -4.00 | bounds: -5..-3 | ranges: -500..-300");
        row(2, 3, 5, "4 | shown: 4.00 | bounds: 3..5 | ranges: 300..500");
        // Positions saturate at the ends of int.
        row(2, -1e9, 1e9,
            "1e300 | shown: 21474836.47 | bounds: -21474836.48..21474836.47 | "
            "ranges: -2147483648..2147483647");
    }
    // As a double just below the half, but a bound of 0.285 means 0.29. If only one bound is
    // set, the slider rounds it separately.
    add("half bound",
        "range 0 0.285 | bounds: 0..0.29 | ranges: 0..29 | maximum 0.285 | bounds: 0..0.29 | "
        "ranges: 0..28");
    add("half bound, one decimal",
        "decimals 1 | maximum 0.349999995 | bounds: 0..0.4 | ranges: 0..3");
    // The slider's step is updated when decimals are next set, and is never 0.
    add("single step",
        "range 0 1 | value 0.1 | groove after: 0.2 | singleStep 0.05 | right: 0.21 | decimals 2 | "
        "right: 0.26 | singleStep 0 | decimals 2 | right: 0.31");
}

// The scale is 1 until decimals or a range are set; then the handle stays where
// it is until the next value.
void tst_SliderEditFrame::freshScale()
{
    SliderEditFrameDouble frame;
    const auto *slider = frame.findChild<QSlider *>();
    frame.setValue(5.0);
    QCOMPARE(slider->value(), 5);
    frame.setRange(0.0, 10.0);
    QCOMPARE(frame.value(), 5.0);
    QCOMPARE(slider->value(), 5);
    frame.setValue(5.0);
    QCOMPARE(slider->value(), 500);
}

// The calculator writes a decimal point in every locale; the field must read it.
void tst_SliderEditFrame::locale()
{
    QLocale::setDefault(QLocale("ar_EG"));
    UserOf<SliderEditFrameDouble> user(1);
    QLocale::setDefault(QLocale::c());
    user.play("shown: 0.10 | enter 1/4: 0.25");
}

QTEST_MAIN(tst_SliderEditFrame)

#include "tst_slidereditframe.moc"
