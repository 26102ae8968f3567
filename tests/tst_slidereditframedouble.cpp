#include "editoruser.h"

using Vantor::Widgets::SliderEditFrameDouble;

namespace {

// An explicit instantiation may name private members: it lends them to this test
// without a friend in the class.
using Operation = int (SliderEditFrameDouble::*)(float);
QPair<Operation, Operation> privateOperations();
template <Operation first, Operation second> struct Lend
{
    friend QPair<Operation, Operation> privateOperations() { return {first, second}; }
};
template struct Lend<&SliderEditFrameDouble::getPrecision,
                     &SliderEditFrameDouble::getMagnification>;

} // namespace

// What the integer editor has no like of: decimals and the scale of the slider.
class tst_SliderEditFrameDouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scale_data();
    void scale();
    void halfBound();
    void freshFrame();
    void locale();
    void precision();
};

void tst_SliderEditFrameDouble::scale_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown"); // with the slider's position
    QTest::addColumn<QString>("range"); // with the slider's
    const auto row = [](int decimals, double minimum, double maximum, double value,
                        const char *shown, const char *range) {
        QTest::addRow("%g..%g, %d", minimum, maximum, decimals)
            << decimals << minimum << maximum << value << shown << range;
    };
    row(2, 0, 1, 0.25, "0.25 25", "0..1 0..100");
    row(3, -0.5, 0.5, -0.125, "-0.125 -125", "-0.5..0.5 -500..500");
    row(1, -10, 10, -2.25, "-2.3 -23", "-10..10 -100..100"); // half away from zero
    row(0, 0.6, 9.4, 5.5, "6 6", "1..9 1..9");
    row(-1, -0.5, 9.4, 5.5, "6 6", "0..9 0..9");
    // Below and above the range that was.
    row(2, -5, -3, -4, "-4.00 -400", "-5..-3 -500..-300");
    row(2, 3, 5, 4, "4.00 400", "3..5 300..500");
    // Positions stop at the ends of int.
    row(2, -1e9, 1e9, 1e300, "21474836.47 2147483647",
        "-21474836.48..21474836.47 -2147483648..2147483647");
}

// However the bounds are set, spin box and slider describe one interval.
void tst_SliderEditFrameDouble::scale()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, decimals);
    QFETCH(double, value);
    UserOf<SliderEditFrameDouble> user;
    SliderEditFrameDouble &frame = *user.frame;
    const QSlider &slider = *user.row.slider;
    const std::function<void()> ways[] = {
        [&] { frame.setRange(minimum, maximum); },
        [&] { frame.setMinimum(minimum), frame.setMaximum(maximum); },
        [&] { frame.setMaximum(maximum), frame.setMinimum(minimum); }};
    frame.setDecimals(decimals);
    for (const auto &setBounds : ways) {
        frame.setRange(0, 0);
        setBounds();
        const QString range = QString("%1..%2 %3")
                                  .arg(frame.minimum(), 0, 'g', 10)
                                  .arg(frame.maximum(), 0, 'g', 10)
                                  .arg(limits(slider.minimum(), slider.maximum()));
        QTEST(range, "range");
        frame.setValue(value);
        QTEST(user.row.spinBox->text() + ' ' + QString::number(slider.value()), "shown");
    }
    QCOMPARE(user.heard(), QString());
}

// 0.285 is just below the half as a double, but a bound of it means 0.29. One
// bound alone has the slider round it for itself.
void tst_SliderEditFrameDouble::halfBound()
{
    UserOf<SliderEditFrameDouble> user;
    user.frame->setRange(0, 0.285);
    QCOMPARE(user.frame->maximum(), 0.29);
    QCOMPARE(user.row.slider->maximum(), 29);
    user.frame->setMaximum(0.285);
    QCOMPARE(user.frame->maximum(), 0.29);
    QCOMPARE(user.row.slider->maximum(), 28);
}

// The scale is 1 until decimals or a range are set; then the handle stays where
// it is until the next value.
void tst_SliderEditFrameDouble::freshFrame()
{
    SliderEditFrameDouble frame;
    const auto *slider = frame.findChild<QSlider *>("slider");
    frame.setValue(5.0);
    QCOMPARE(slider->value(), 5);
    frame.setRange(0.0, 10.0);
    QCOMPARE(slider->value(), 5);
    QCOMPARE(frame.value(), 5.0);
    QCOMPARE(slider->maximum(), 1000);
    frame.setValue(5.0);
    QCOMPARE(slider->value(), 500);
    frame.setSingleStep(0.05);
    QCOMPARE(slider->singleStep(), 1);
    frame.setDecimals(2);
    QCOMPARE(slider->singleStep(), 5);
    frame.setSingleStep(0);
    frame.setDecimals(2);
    QCOMPARE(slider->singleStep(), 5);
}

// The calculator writes a decimal point in every country; so must be read.
void tst_SliderEditFrameDouble::locale()
{
    for (const char *name : {"de_DE", "ar_EG"}) {
        QLocale::setDefault(QLocale(name));
        UserOf<SliderEditFrameDouble> user(1);
        QLocale::setDefault(QLocale::c());
        user.play("shown: 0.10 | enter 1/4: 0.25");
    }
}

// Nothing calls them any more, but hosts find them among the symbols.
void tst_SliderEditFrameDouble::precision()
{
    const auto [precisionOf, magnificationOf] = privateOperations();
    SliderEditFrameDouble frame;
    QVector<int> results;
    for (const float number : {0.25F, -7.125F, 3.0F, 0.1F, 1e-11F})
        results << (frame.*precisionOf)(number) << (frame.*magnificationOf)(number);
    QCOMPARE(results, QVector<int>({2, 100, 3, 1000, 1, 10, 1, 10, 0, 1000000000}));
}

QTEST_MAIN(tst_SliderEditFrameDouble)

#include "tst_slidereditframedouble.moc"
