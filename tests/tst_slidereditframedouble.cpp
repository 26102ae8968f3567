#include "editorrow.h"

#include <QtWidgets/QDoubleSpinBox>

using Vantor::Widgets::SliderEditFrameDouble;

using DoubleRow = EditorRow<SliderEditFrameDouble>;

namespace {

// An explicit instantiation may name private members: it lends them to this
// test without a friend in the class.
using FloatOperation = int (SliderEditFrameDouble::*)(float);
QPair<FloatOperation, FloatOperation> privateOperations();
template <FloatOperation first, FloatOperation second> struct Lend
{
    friend QPair<FloatOperation, FloatOperation> privateOperations() { return {first, second}; }
};
template struct Lend<&SliderEditFrameDouble::getPrecision,
                     &SliderEditFrameDouble::getMagnification>;

} // namespace

// What the integer editor has no like of: decimals and the scale of the slider.
class tst_SliderEditFrameDouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scale();
    void fineScale();
    void halfBound();
    void freshFrame();
    void locale();
    void entryBeyondText();
    void calculator();
    void precision();
};

// However the bounds are set, spin box and slider describe one interval.
void tst_SliderEditFrameDouble::scale()
{
    const auto check = [](int decimals, double minimum, double maximum, double value,
                          const QString &shown, const QString &range) {
        DoubleRow row;
        SliderEditFrameDouble &frame = *row.frame;
        const auto compareRange = [&] {
            QCOMPARE(QString("%1..%2 %3..%4")
                         .arg(frame.minimum(), 0, 'g', 10)
                         .arg(frame.maximum(), 0, 'g', 10)
                         .arg(row.slider->minimum())
                         .arg(row.slider->maximum()),
                     range);
        };
        frame.setDecimals(decimals);
        frame.setRange(minimum, maximum);
        compareRange();
        frame.setValue(value);
        QCOMPARE(row.shown(), shown);
        frame.setRange(0, 0);
        frame.setMinimum(minimum);
        frame.setMaximum(maximum);
        compareRange();
        frame.setRange(0, 0);
        frame.setMaximum(maximum);
        frame.setMinimum(minimum);
        compareRange();
        QCOMPARE(row.log.take(), QStringList());
    };
    check(2, 0, 1, 0.25, "0.25 25", "0..1 0..100");
    check(3, -0.5, 0.5, -0.125, "-0.125 -125", "-0.5..0.5 -500..500");
    check(1, -10, 10, -2.25, "-2.3 -23", "-10..10 -100..100"); // half away from zero
    check(0, 0.6, 9.4, 5.5, "6 6", "1..9 1..9");
    check(-1, -0.5, 9.4, 5.5, "6 6", "0..9 0..9");
    // Below and above the old range.
    check(2, -5, -3, -4, "-4.00 -400", "-5..-3 -500..-300");
    check(2, 3, 5, 4, "4.00 400", "3..5 300..500");
    check(2, -1e9, 1e9, 1e300, "21474836.47 2147483647",
          "-21474836.48..21474836.47 -2147483648..2147483647");
}

// 10 to the power of 12 is no int; positions stop at its end.
void tst_SliderEditFrameDouble::fineScale()
{
    DoubleRow row;
    row.frame->setDecimals(12);
    row.frame->setRange(0, 1);
    row.frame->setValue(1);
    QCOMPARE(row.shown(), QString("1.000000000000 2147483647"));
}

// 0.285 is just below the half as a double, but a bound of it means 0.29. One
// bound alone has the slider round it for itself.
void tst_SliderEditFrameDouble::halfBound()
{
    DoubleRow row;
    row.frame->setRange(0, 0.285);
    QCOMPARE(row.frame->maximum(), 0.29);
    QCOMPARE(row.slider->maximum(), 29);
    row.frame->setMaximum(0.285);
    QCOMPARE(row.frame->maximum(), 0.29);
    QCOMPARE(row.slider->maximum(), 28);
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
        DoubleRow row;
        QLocale::setDefault(QLocale::c());
        QVERIFY(User::show(row.page));
        QCOMPARE(row.shown(), QString("0.10 10"));
        row.log.take();
        row.type("1/4\n");
        QCOMPARE(row.log.take(), QStringList(row.report(25)));
    }
}

// The calculator's text is clamped in float and has two decimals: it may lie
// beyond the range, or stand beside a suffix. No entry may be lost in it or jump.
void tst_SliderEditFrameDouble::entryBeyondText()
{
    const auto check = [](int decimals, double max, const QString &suffix, double start,
                          const QString &typed, double value) {
        DoubleRow row;
        QVERIFY(User::show(row.page));
        row.frame->setDecimals(decimals);
        row.frame->setRange(0, max);
        qobject_cast<QDoubleSpinBox *>(row.spinBox)->setSuffix(suffix);
        row.frame->setValue(start);
        row.type(typed);
        QVERIFY(qAbs(row.frame->value() - value) < 1e-7);
        QVERIFY(row.spinBox->text().endsWith(suffix));
        QCOMPARE(row.log.take().filter("valueChanged").size(), value == start ? 0 : 1);
    };
    check(2, 999999.99, "", 0.1, "2000000\n", 999999.99);
    check(3, 0.996, "", 0.1, "5\n", 0.996);
    check(2, 1, "", 0.1, "0/0\n", 0.1);
    check(2, 100, "mm", 0.1, "10/4\n", 2.5);
    check(2, 100, "mm", 0.1, "7\t", 7);
    check(2, 100, "mm", 0.1, "1/4=\n", 0.25);
    check(2, 100, "mm", 0.1, "1/4=+1\n", 1.25);
    check(2, 100, "mm", 0.1, "1/0\n", 0.1);
    // A failed entry shows the value in six digits, which are an entry, too.
    check(3, 9999, "", 1234.567, "1/0\n", 1234.567);
    check(3, 9999, "", 1234.567, "1234.57\n", 1234.57);
    // More decimals than the field has.
    check(0, 100, "", 1, "8/3\n", 3);
    check(1, 100, "", 1, "8/3=\t", 2.7);
}

// The calculator learns a value and new bounds from setValue() alone, as floats.
void tst_SliderEditFrameDouble::calculator()
{
    DoubleRow row;
    QVERIFY(User::show(row.page));
    row.frame->setRange(0, 5);
    row.type("4=");
    QCOMPARE(row.field->text(), QString("1.00"));
    const auto textAfter = [&row](double value, const QString &typed) {
        row.frame->setFocus();
        row.frame->setValue(value);
        row.type(typed);
        return row.field->text();
    };
    QCOMPARE(textAfter(1, "4="), QString("4.00"));
    QCOMPARE(textAfter(1.5, "1/0="), QString("1.5"));
    QCOMPARE(textAfter(1e300, "1/0="), QString("3.40282e+38"));
}

void tst_SliderEditFrameDouble::precision()
{
    const auto check = [](float number, int precision, int magnification) {
        const auto [precisionOf, magnificationOf] = privateOperations();
        SliderEditFrameDouble frame;
        QCOMPARE((frame.*precisionOf)(number), precision);
        QCOMPARE((frame.*magnificationOf)(number), magnification);
    };
    check(0.25F, 2, 100);
    check(-7.125F, 3, 1000);
    check(3.0F, 1, 10);
    check(0.1F, 1, 10);
    check(1e-11F, 0, 1000000000);
}

int main(int argc, char *argv[])
{
    return runTest<tst_SliderEditFrameDouble>(argc, argv);
}

#include "tst_slidereditframedouble.moc"
