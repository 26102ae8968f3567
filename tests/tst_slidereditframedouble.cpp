#include "editorrow.h"

#include <QtWidgets/QDoubleSpinBox>

#include <memory>

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
class TestSliderEditFrameDouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_row.reset(); }
    void scale_data();
    void scale();
    void fineScale();
    void freshFrame();
    void locale();
    void calculator();
    void entryBeyondText_data();
    void entryBeyondText();
    void precision();

private:
    std::unique_ptr<DoubleRow> m_row;
};

void TestSliderEditFrameDouble::init()
{
    m_row = std::make_unique<DoubleRow>();
    QVERIFY(User::show(m_row->page));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::scale_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("range"); // of the spin box, then of the slider

    const auto row = [](const char *name, int decimals, double minimum, double maximum,
                        double value, const char *shown, const char *range) {
        QTest::newRow(name) << decimals << minimum << maximum << value << shown << range;
    };
    row("two decimals", 2, 0, 1, 0.25, "0.25 25", "0 1 0 100");
    row("three decimals", 3, -0.5, 0.5, -0.125, "-0.125 -125", "-0.5 0.5 -500 500");
    row("half away from zero", 1, -10, 10, -2.25, "-2.3 -23", "-10 10 -100 100");
    row("no decimals", 0, -3, 12, 5, "5 5", "-3 12 -3 12");
    row("no decimals, broken bounds", 0, 0.6, 9.4, 5.5, "6 6", "1 9 1 9");
    row("below the old range", 2, -5, -3, -4, "-4.00 -400", "-5 -3 -500 -300");
    row("above the old range", 2, 3, 5, 4, "4.00 400", "3 5 300 500");
    row("past int", 2, -1e9, 1e9, 1e300, "21474836.47 2147483647",
        "-21474836.48 21474836.47 -2147483648 2147483647");
}

// However the bounds are set, spin box and slider describe one interval.
void TestSliderEditFrameDouble::scale()
{
    QFETCH(int, decimals);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    SliderEditFrameDouble &frame = *m_row->frame;
    const auto range = [&] {
        return QStringLiteral("%1 %2 %3 %4")
            .arg(QString::number(frame.minimum(), 'g', 10),
                 QString::number(frame.maximum(), 'g', 10))
            .arg(m_row->slider->minimum())
            .arg(m_row->slider->maximum());
    };
    frame.setDecimals(decimals);
    frame.setRange(minimum, maximum);
    QTEST(range(), "range");
    frame.setValue(value);
    QTEST(m_row->shown(), "shown");
    frame.setRange(0, 0);
    frame.setMinimum(minimum);
    frame.setMaximum(maximum);
    QTEST(range(), "range");
    frame.setRange(0, 0);
    frame.setMaximum(maximum);
    frame.setMinimum(minimum);
    QTEST(range(), "range");
    QCOMPARE(m_row->log.take(), QStringList());
}

// 10 to the power of 12 is no int; positions stop at its end.
void TestSliderEditFrameDouble::fineScale()
{
    m_row->frame->setDecimals(12);
    m_row->frame->setRange(0, 1);
    m_row->frame->setValue(1);
    QCOMPARE(m_row->shown(), QString("1.000000000000 2147483647"));
}

// The scale is 1 until decimals or a range are set; then the handle stays where
// it is until the next value.
void TestSliderEditFrameDouble::freshFrame()
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
}

// The calculator writes a decimal point in every country; so must be read.
void TestSliderEditFrameDouble::locale()
{
    for (const char *name : {"de_DE", "ar_EG"}) {
        QLocale::setDefault(QLocale(name));
        m_row.reset();
        init();
        QLocale::setDefault(QLocale::c());
        QCOMPARE(m_row->shown(), QString("0.10 10"));
        m_row->type("1/4\n");
        QCOMPARE(m_row->log.take(), QStringList(m_row->report(25)));
    }
}

// The calculator's text is clamped in float and has two decimals: it may lie
// beyond the range, or stand beside a suffix. No entry may be lost in it or jump.
void TestSliderEditFrameDouble::entryBeyondText_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    const auto row = [](const char *name, int decimals, double max, const char *suffix,
                        const char *typed, double value) {
        QTest::newRow(name) << decimals << max << suffix << typed << value;
    };
    row("above in float", 2, 999999.99, "", "2000000\n", 999999.99);
    row("above by decimals", 3, 0.996, "", "5\n", 0.996);
    row("not a number", 2, 1.0, "", "0/0\n", 0.1);
    row("suffix, Enter", 2, 100.0, "mm", "10/4\n", 2.5);
    row("suffix, Tab", 2, 100.0, "mm", "7\t", 7.0);
    row("suffix, equals", 2, 100.0, "mm", "1/4=\n", 0.25);
    row("suffix, failing", 2, 100.0, "mm", "1/0\n", 0.1);
}

void TestSliderEditFrameDouble::entryBeyondText()
{
    QFETCH(int, decimals);
    QFETCH(double, max);
    QFETCH(QString, suffix);
    QFETCH(QString, typed);
    QFETCH(double, value);
    m_row->frame->setDecimals(decimals);
    m_row->frame->setRange(0, max);
    qobject_cast<QDoubleSpinBox *>(m_row->spinBox)->setSuffix(suffix);
    m_row->frame->setValue(0.1);
    m_row->type(typed);
    QVERIFY(qAbs(m_row->frame->value() - value) < 1e-7);
    QVERIFY(m_row->spinBox->text().endsWith(suffix));
    const int reports = value == 0.1 ? 0 : 1;
    QCOMPARE(m_row->log.take().filter("valueChanged").size(), reports);
}

// The calculator learns a value and new bounds from setValue() alone, as floats.
void TestSliderEditFrameDouble::calculator()
{
    const auto textAfter = [this](double value, const QString &typed) {
        m_row->frame->setFocus();
        m_row->frame->setValue(value);
        m_row->type(typed);
        return m_row->field->text();
    };
    m_row->frame->setRange(0, 5);
    m_row->type("4=");
    QCOMPARE(m_row->field->text(), QString("1.00"));
    QCOMPARE(textAfter(1, "4="), QString("4.00"));
    QCOMPARE(textAfter(1.5, "1/0="), QString("1.5"));
    QCOMPARE(textAfter(1e300, "1/0="), QString("3.40282e+38"));
}

void TestSliderEditFrameDouble::precision()
{
    const auto [precision, magnification] = privateOperations();
    struct
    {
        float number;
        int precision;
        int magnification;
    } const cases[] = {
        {0.25F, 2, 100}, {-7.125F, 3, 1000}, {3.0F, 1, 10}, {0.1F, 1, 10}, {1e-11F, 0, 1000000000}};
    for (const auto &expected : cases) {
        QCOMPARE((m_row->frame->*precision)(expected.number), expected.precision);
        QCOMPARE((m_row->frame->*magnification)(expected.number), expected.magnification);
    }
}

int main(int argc, char *argv[])
{
    return runTest<TestSliderEditFrameDouble>(argc, argv);
}

#include "tst_slidereditframedouble.moc"
