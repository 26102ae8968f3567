#include "editorrow.h"
#include "slidereditframedouble.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QDoubleSpinBox>

#include <limits>
#include <memory>

using Vantor::Widgets::SliderEditFrameDouble;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

// An explicit instantiation may name private members: it lends them to this
// test without a friend in the class.
using FloatOperation = int (SliderEditFrameDouble::*)(float);
struct Precision
{
    friend FloatOperation operation(Precision);
};
struct Magnification
{
    friend FloatOperation operation(Magnification);
};
template <typename Name, FloatOperation member> struct Lend
{
    friend FloatOperation operation(Name) { return member; }
};
template struct Lend<Precision, &SliderEditFrameDouble::getPrecision>;
template struct Lend<Magnification, &SliderEditFrameDouble::getMagnification>;

} // namespace

class TestSliderEditFrameDouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void form();
    void setters();
    void freshFrame();
    void scale_data();
    void scale();
    void bounds_data();
    void bounds();
    void silence();
    void blockedByHost();
    void typing_data();
    void typing();
    void locale_data();
    void locale();
    void calculator();
    void echo();
    void buttons_data();
    void buttons();
    void drag_data();
    void drag();
    void droppedWherePressed();
    void direction_data();
    void direction();
    void sampling();
    void steps();
    void interruptedDrag_data();
    void interruptedDrag();
    void precision_data();
    void precision();
    void selectAllAndWheel();

private:
    std::unique_ptr<EditorRow<SliderEditFrameDouble>> m_row;
    SliderEditFrameDouble *m_frame = nullptr;
};

// From 0 to 2 with two decimals, standing at 0.1.
void TestSliderEditFrameDouble::init()
{
    m_row = std::make_unique<EditorRow<SliderEditFrameDouble>>();
    m_frame = m_row->frame;
    m_frame->setDecimals(2);
    m_frame->setRange(0, 2);
    m_frame->setValue(0.1);
    QVERIFY(User::show(m_row->page));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::cleanup()
{
    m_row.reset();
    QLocale::setDefault(QLocale::c());
}

void TestSliderEditFrameDouble::form()
{
    compareForm(*m_row, "Vk_NumberFloat");
    QCOMPARE(m_frame->objectName(), QString("SliderEditFrameDouble"));
    QCOMPARE(m_row->spinBox->objectName(), QString("doubleSpinBox"));
    QVERIFY(!m_row->slider->hasTracking());
    QCOMPARE(layoutText(m_frame->layout()),
             QString("horizontalLayout_2 0 [0 0 0 0] {"
                     "nameLayout 0 [0 0 0 0] {labelName 80..80x0..16777215}, "
                     "sliderLayout 0 [0 0 0 0] {slider 0..16777215x0..16777215}, "
                     "spinBoxLayout 0 [0 0 0 0] {doubleSpinBox 65..65x30..30}, "
                     "buttonLayout 0 [0 0 0 0] {sliderEditSubtract 51..51x32..32, "
                     "sliderEditPlus 51..51x32..32, spacer 0 policy 0}}"));
}

void TestSliderEditFrameDouble::setters()
{
    compareSetters(*m_row);
}

// The scale is 1 until decimals or a range are set; then the handle stays where
// it is until the next value.
void TestSliderEditFrameDouble::freshFrame()
{
    m_row.reset();
    m_row = std::make_unique<EditorRow<SliderEditFrameDouble>>();
    m_frame = m_row->frame;
    m_frame->setValue(5.0);
    QCOMPARE(m_row->shown(), QString("5.00 5"));
    m_frame->setRange(0.0, 10.0);
    QCOMPARE(m_row->shown(), QString("5.00 5"));
    QCOMPARE(m_row->slider->maximum(), 1000);
    QCOMPARE(m_row->slider->singleStep(), 1);
    m_frame->setValue(5.0);
    QCOMPARE(m_row->shown(), QString("5.00 500"));
    m_frame->setSingleStep(0.05);
    QCOMPARE(m_row->slider->singleStep(), 1);
    m_frame->setDecimals(2);
    QCOMPARE(m_row->slider->singleStep(), 5);
}

void TestSliderEditFrameDouble::scale_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");

    const auto row = [](const char *name, int decimals, double minimum, double maximum,
                        double value, const QString &shown, int lowest, int highest) {
        QTest::newRow(name) << decimals << minimum << maximum << value << shown << lowest
                            << highest;
    };
    row("two decimals", 2, 0, 1, 0.25, "0.25 25", 0, 100);
    row("three decimals", 3, -0.5, 0.5, -0.125, "-0.125 -125", -500, 500);
    row("half away from zero", 1, -10, 10, -2.25, "-2.3 -23", -100, 100);
    row("no decimals", 0, -3, 12, 5, "5 5", -3, 12);
    row("no decimals, broken bounds", 0, 0.6, 9.4, 5.5, "6 6", 1, 9);
    row("past int", 2, -1e9, 1e9, 1e300, "21474836.47 2147483647", least, most);
    // So fine a scale shows the 1e-8 that bounds are nudged by.
    row("scale past int", 12, 0, 1, 1, "1.000000000000 2147483647", 21, most);
}

// Spin box and slider describe one interval.
void TestSliderEditFrameDouble::scale()
{
    QFETCH(int, decimals);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    m_frame->setDecimals(decimals);
    m_frame->setRange(minimum, maximum);
    m_frame->setValue(value);
    QTEST(m_row->shown(), "shown");
    QTEST(m_row->slider->minimum(), "lowest");
    QTEST(m_row->slider->maximum(), "highest");
    const double magnification = qMin(std::pow(10, decimals), double(most));
    QCOMPARE(qRound64(m_frame->minimum() * magnification), qint64(m_row->slider->minimum()));
    QCOMPARE(qRound64(m_frame->maximum() * magnification), qint64(m_row->slider->maximum()));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::bounds_data()
{
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("two decimals") << 2 << 0.25 << 1.75 << 25 << 175;
    QTest::newRow("no decimals") << 0 << -4.0 << 7.0 << -4 << 7;
}

void TestSliderEditFrameDouble::bounds()
{
    QFETCH(int, decimals);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    m_frame->setDecimals(decimals);
    m_frame->setMinimum(minimum);
    m_frame->setMaximum(maximum);
    QCOMPARE(m_frame->minimum(), minimum);
    QCOMPARE(m_frame->maximum(), maximum);
    QTEST(m_row->slider->minimum(), "lowest");
    QTEST(m_row->slider->maximum(), "highest");
}

void TestSliderEditFrameDouble::silence()
{
    auto *spinBox = qobject_cast<QDoubleSpinBox *>(m_row->spinBox);
    m_row->log.watch(spinBox, QOverload<double>::of(&QDoubleSpinBox::valueChanged), "spinBox");
    m_row->log.watch(m_row->slider, &QSlider::valueChanged, "slider");
    m_frame->setValue(1.96);
    m_frame->setMaximum(1.88);
    QCOMPARE(m_row->shown(), QString("1.88 188"));
    m_frame->setRange(0, 1.77);
    QCOMPARE(m_row->shown(), QString("1.77 177"));
    m_frame->setDecimals(1);
    QCOMPARE(m_frame->value(), 1.8);
    m_frame->setMinimum(1.9);
    m_frame->setSingleStep(0.5);
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::blockedByHost()
{
    const QSignalBlocker spinBoxBlocker(m_row->spinBox);
    const QSignalBlocker sliderBlocker(m_row->slider);
    m_frame->setRange(0, 1);
    m_frame->setMinimum(0.1);
    m_frame->setMaximum(0.9);
    m_frame->setDecimals(1);
    m_frame->setValue(0.5);
    QVERIFY(m_row->spinBox->signalsBlocked());
    QVERIFY(m_row->slider->signalsBlocked());
}

void TestSliderEditFrameDouble::typing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("log");

    const auto row = [](const char *name, const char *typed, const char *shown,
                        const QStringList &log) { QTest::newRow(name) << typed << shown << log; };
    row("Enter", "1/4\n", "0.25 25", reports({0.25}));
    row("Tab", "1/4\t", "0.25 25", reports({0.25}));
    row("equals sign", "1/4=", "0.25 10", {}); // the focus stays, so does the value
    row("equals sign and Tab", "1/4=\t", "0.25 25", reports({0.25}));
    row("third decimal", "1.259\n", "1.25 125", reports({1.25}));
    row("same value", "0.1\n", "0.10 10", {});
    row("too great", "9\n", "2.00 200", reports({2.0}));
    row("failing", "1/0\n", "0.10 10", {});
}

// No message goes to the log.
void TestSliderEditFrameDouble::typing()
{
    QFETCH(QString, typed);
    m_row->type(typed);
    QTEST(m_row->log.take(), "log");
    QTEST(m_row->shown(), "shown");
    QCOMPARE(m_frame->hasFocus(), typed.endsWith('\n'));
}

void TestSliderEditFrameDouble::locale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
}

void TestSliderEditFrameDouble::locale()
{
    QFETCH(QLocale, locale);
    cleanup();
    QLocale::setDefault(locale);
    init();
    QCOMPARE(m_row->shown(), QString("0.10 10"));
    m_row->type("1/4\n");
    QCOMPARE(m_row->log.take(), reports({0.25}));
    QCOMPARE(m_row->shown(), QString("0.25 25"));
}

// The calculator learns a value and new bounds from setValue() alone, as floats.
void TestSliderEditFrameDouble::calculator()
{
    const auto textAfter = [this](double value, const QString &typed) {
        m_frame->setFocus();
        m_frame->setValue(value);
        m_row->type(typed);
        return m_row->field->text();
    };
    m_frame->setRange(0, 5);
    m_row->type("4=");
    QCOMPARE(m_row->field->text(), QString("2.00"));
    QCOMPARE(textAfter(1, "4="), QString("4.00"));
    QCOMPARE(textAfter(1.5, "1/0="), QString("1.5"));
    QCOMPARE(textAfter(1e300, "1/0="), QString("3.40282e+38"));
}

void TestSliderEditFrameDouble::echo()
{
    m_frame->setValue(3);
    m_frame->setRange(0, 4);
    m_frame->setSingleStep(1);
    m_row->spinBox->setFocus();
    User::press(Qt::Key_Up);
    QCOMPARE(m_row->shown(), QString("3.00 200"));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::buttons_data()
{
    QTest::addColumn<bool>("isPlus");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("bound");
    QTest::addColumn<QStringList>("log");
    QTest::newRow("plus") << true << 0.5 << 1.0 << reports({0.6});
    QTest::newRow("plus onto the maximum") << true << 0.9 << 1.0 << reports({1.0});
    // 0.2 + 0.1 comes out just above 0.3, 0.3 - 0.1 just below 0.2.
    QTest::newRow("plus within the tolerance") << true << 0.2 << 0.3 << reports({0.3});
    QTest::newRow("plus past the maximum") << true << 0.95 << 1.0 << QStringList();
    QTest::newRow("minus") << false << 0.5 << 0.2 << reports({0.4});
    QTest::newRow("minus onto the minimum") << false << 0.1 << 0.0 << reports({0.0});
    QTest::newRow("minus without tolerance") << false << 0.3 << 0.2 << QStringList();
}

void TestSliderEditFrameDouble::buttons()
{
    QFETCH(bool, isPlus);
    QFETCH(double, value);
    QFETCH(double, bound);
    m_frame->setSingleStep(0.1);
    if (isPlus)
        m_frame->setMaximum(bound);
    else
        m_frame->setMinimum(bound);
    m_frame->setValue(value);
    User::click(isPlus ? m_row->plus : m_row->minus);
    QTEST(m_row->log.take(), "log");
}

void TestSliderEditFrameDouble::drag_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QStringList>("heldLog"); // the handle is held at 37
    QTest::addColumn<QStringList>("droppedLog");
    QTest::newRow("continuous") << Continuous << reports({0.2, 0.6, 0.37}) << QStringList();
    QTest::newRow("released") << Released << QStringList() << reports({0.37});
    QTest::newRow("sampled") << Sampled << QStringList() << reports({0.37});
}

// The spin box follows the handle in every mode.
void TestSliderEditFrameDouble::drag()
{
    QFETCH(Mode, mode);
    m_row->setMode(mode);
    User::grabHandle(m_row->slider);
    for (const int position : {20, 60, 37})
        User::moveHandle(m_row->slider, position);
    QTEST(m_row->log.take(), "heldLog");
    QCOMPARE(m_row->shown(), QString("0.37 37"));
    User::dropHandle(m_row->slider);
    QTEST(m_row->log.take(), "droppedLog");
    QCOMPARE(m_row->shown(), QString("0.37 37"));
}

void TestSliderEditFrameDouble::droppedWherePressed()
{
    m_frame->setReleaseMode(true);
    User::drag(m_row->slider, {40, 10});
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrameDouble::direction_data()
{
    QTest::addColumn<int>("directions");
    QTest::addColumn<QStringList>("log"); // of a drag from 1 over 0.9, 1.2
    QTest::addColumn<QString>("shown");
    QTest::newRow("bigger") << int(SliderEditFrameDouble::AllowedToBigger) << reports({1.0, 1.2})
                            << "1.20 120";
    QTest::newRow("smaller") << int(SliderEditFrameDouble::AllowedToSmaller) << reports({0.9, 1.0})
                             << "1.00 100";
    QTest::newRow("none") << 0 << reports({0.9, 1.0}) << "1.00 100";
    QTest::newRow("any") << int(SliderEditFrameDouble::AllowedToAny) << reports({0.9, 1.2})
                         << "1.20 120";
}

void TestSliderEditFrameDouble::direction()
{
    QFETCH(int, directions);
    m_frame->setValue(1);
    m_frame->setValueChangeDirection(directions, 1);
    User::drag(m_row->slider, {90, 120});
    QTEST(m_row->log.take(), "log");
    QTEST(m_row->shown(), "shown");
}

void TestSliderEditFrameDouble::sampling()
{
    m_row->setMode(Sampled);
    User::grabHandle(m_row->slider);
    QCOMPARE(samplingInterval(m_frame), 60000);
    QCOMPARE(m_row->logAfterTick(), QStringList());
    User::moveHandle(m_row->slider, 20);
    User::moveHandle(m_row->slider, 30);
    QCOMPARE(m_row->logAfterTick(), reports({0.3}));
    QCOMPARE(m_row->logAfterTick(), QStringList());
    User::dropHandle(m_row->slider); // on the value of the last tick
    QCOMPARE(m_row->log.take(), QStringList());
    QCOMPARE(samplingInterval(m_frame), -1);
}

// Clicks on the groove and keys report at once in every mode.
void TestSliderEditFrameDouble::steps()
{
    m_frame->setPageStep(20);
    m_frame->setReleaseMode(true);
    User::clickGroove(m_row->slider, true);
    QCOMPARE(m_row->log.take(), reports({0.3}));
    User::press(Qt::Key_Right);
    QCOMPARE(m_row->log.take(), reports({0.31}));
    m_row->setMode(Sampled);
    User::clickGroove(m_row->slider, false);
    QCOMPARE(m_row->log.take(), reports({0.11}));
}

void TestSliderEditFrameDouble::interruptedDrag_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<bool>("isHidden");
    for (const bool isHidden : {false, true}) {
        QTest::addRow("released, %d", isHidden) << Released << isHidden;
        QTest::addRow("sampled, %d", isHidden) << Sampled << isHidden;
    }
}

void TestSliderEditFrameDouble::interruptedDrag()
{
    QFETCH(Mode, mode);
    QFETCH(bool, isHidden);
    m_row->setMode(mode);
    User::grabHandle(m_row->slider);
    User::moveHandle(m_row->slider, 40);
    if (isHidden)
        m_frame->hide();
    else
        m_row->slider->setEnabled(false);
    QCOMPARE(m_row->log.take(), reports({0.4}));
    QCOMPARE(samplingInterval(m_frame), -1);
}

void TestSliderEditFrameDouble::precision_data()
{
    QTest::addColumn<float>("number");
    QTest::addColumn<int>("precision");
    QTest::addColumn<int>("magnification");
    QTest::newRow("0.25") << 0.25F << 2 << 100;
    QTest::newRow("-7.125") << -7.125F << 3 << 1000;
    QTest::newRow("3") << 3.0F << 1 << 10;
    QTest::newRow("0.1") << 0.1F << 1 << 10;
    QTest::newRow("no end") << 1e-11F << 0 << 1000000000;
}

void TestSliderEditFrameDouble::precision()
{
    QFETCH(float, number);
    QTEST((m_frame->*operation(Precision()))(number), "precision");
    QTEST((m_frame->*operation(Magnification()))(number), "magnification");
}

void TestSliderEditFrameDouble::selectAllAndWheel()
{
    m_row->slider->setFocus();
    User::press(Qt::Key_Tab);
    QTRY_COMPARE(m_row->field->selectedText(), QString("0.10"));
    User::turnWheel(m_row->slider);
    User::turnWheel(m_row->spinBox);
    QCOMPARE(m_row->log.take(), QStringList({"page: wheel", "page: wheel"}));
    m_frame->setSpinBoxWheelEnable(true);
    m_frame->setSingleStep(0.1);
    User::turnWheel(m_row->spinBox);
    QCOMPARE(m_row->log.take(), reports({0.2}));
}

int main(int argc, char *argv[])
{
    return runTest<TestSliderEditFrameDouble>(argc, argv);
}

#include "tst_slidereditframedouble.moc"
