#include "editorrow.h"
#include "row.h"
#include "slidereditframe.h"

#include <QtCore/QSignalBlocker>

#include <memory>

using Vantor::Widgets::SliderEditFrame;

class TestSliderEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void form();
    void setters();
    void silence();
    void blockedByHost();
    void typing_data();
    void typing();
    void calculatorBounds();
    void clampedValue();
    void echo();
    void buttons_data();
    void buttons();
    void autoRepeat();
    void drag_data();
    void drag();
    void direction_data();
    void direction();
    void directionOfTyping();
    void sampling();
    void samplingInRealTime();
    void steps_data();
    void steps();
    void press();
    void interruptedDrag_data();
    void interruptedDrag();
    void wheel();
    void selectAll();
    void selectAllOfDestroyed();

private:
    std::unique_ptr<EditorRow<SliderEditFrame>> m_row;
    SliderEditFrame *m_frame = nullptr;
};

// From 0 to 100, standing at 10.
void TestSliderEditFrame::init()
{
    m_row = std::make_unique<EditorRow<SliderEditFrame>>();
    m_frame = m_row->frame;
    m_frame->setRange(0, 100);
    m_frame->setValue(10);
    QVERIFY(User::show(m_row->page));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::cleanup()
{
    m_row.reset();
}

void TestSliderEditFrame::form()
{
    compareForm(*m_row, "Vk_Number");
    QCOMPARE(m_frame->objectName(), QString("SliderEditFrame"));
    QCOMPARE(m_row->spinBox->objectName(), QString("spinBox"));
    QVERIFY(!m_row->slider->hasTracking());
    QCOMPARE(layoutText(m_frame->layout()),
             QString("horizontalLayout_2 0 [0 0 0 0] {"
                     "nameLayout 0 [0 0 0 0] {labelName 0..16777215x0..16777215}, "
                     "sliderLayout 0 [0 0 0 0] {slider 0..16777215x0..16777215}, "
                     "spinBoxLayout 0 [0 0 0 0] {spinBox 65..65x30..30}, "
                     "buttonLayout 0 [0 0 0 0] {sliderEditSubtract 49..49x30..30, "
                     "sliderEditPlus 49..49x30..30, spacer 0 policy 0}}"));
}

void TestSliderEditFrame::setters()
{
    compareSetters(*m_row);
    m_frame->setButtonVisible(false);
    QVERIFY(m_row->minus->isHidden() && m_row->plus->isHidden());
    m_frame->setSingleStep(5);
    QCOMPARE(m_frame->singleStep(), 5);
    QCOMPARE(m_row->slider->singleStep(), 5);
}

// Not even the children report what a setter does.
void TestSliderEditFrame::silence()
{
    m_row->log.watch(qobject_cast<QSpinBox *>(m_row->spinBox),
                     QOverload<int>::of(&QSpinBox::valueChanged), "spinBox");
    m_row->log.watch(m_row->slider, &QSlider::valueChanged, "slider");
    m_frame->setValue(90);
    m_frame->setRange(0, 50);
    QCOMPARE(m_row->shown(), QString("50 50"));
    m_frame->setSingleStep(3);
    QCOMPARE(m_frame->value(), 50);
    QCOMPARE(m_frame->minimum(), 0);
    QCOMPARE(m_frame->maximum(), 50);
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::blockedByHost()
{
    const QSignalBlocker spinBoxBlocker(m_row->spinBox);
    const QSignalBlocker sliderBlocker(m_row->slider);
    m_frame->setRange(0, 50);
    m_frame->setValue(20);
    QVERIFY(m_row->spinBox->signalsBlocked());
    QVERIFY(m_row->slider->signalsBlocked());
}

void TestSliderEditFrame::typing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("log");

    const QString finished = "debug: SpinBox editing finished";
    const auto row = [](const char *name, const char *typed, const char *shown,
                        const QStringList &log) { QTest::newRow(name) << typed << shown << log; };
    row("Enter", "12*3\n", "36 36", entered(reports({36})));
    row("equals sign", "12*3=", "36 36", entered(reports({36})).mid(1));
    row("Tab", "12*3\t", "36 36", QStringList(finished) + reports({36}) + QStringList(finished));
    row("same value", "10\n", "10 10", entered({}));
    row("same result", "5*2\n", "10 10", entered({}));
    row("too great", "999\n", "100 100", entered(reports({100})));
    row("too small", "-5\n", "0 0", entered(reports({0})));
    row("nothing", "\b\n", "0 0", entered(reports({0})));
    row("failing", "1/0\n", "10 10", entered({}));
    row("refused letters", "abc\n", "0 0", entered(reports({0})));
}

void TestSliderEditFrame::typing()
{
    QFETCH(QString, typed);
    m_row->type(typed);
    QTEST(m_row->log.take(), "log");
    QTEST(m_row->shown(), "shown");
    QCOMPARE(m_frame->hasFocus(), !typed.endsWith('\t'));
}

// The calculator learns new bounds from the next setValue().
void TestSliderEditFrame::calculatorBounds()
{
    m_frame->setRange(0, 300);
    m_row->type("250\n");
    QCOMPARE(m_row->log.take(), entered(reports({100})));
    m_row->type("250\n");
    QCOMPARE(m_row->log.take(), entered(reports({250})));
}

// The recorded last value is the one that was asked for, not the clamped one.
void TestSliderEditFrame::clampedValue()
{
    m_frame->setValue(500);
    QCOMPARE(m_row->shown(), QString("100 100"));
    m_row->type("\t");
    const QString finished = "debug: SpinBox editing finished";
    QCOMPARE(m_row->log.take(), QStringList(finished) + reports({100}) + QStringList(finished));
}

// A child's report of the value recorded last is dropped.
void TestSliderEditFrame::echo()
{
    m_frame->setValue(300);
    m_frame->setRange(0, 400);
    m_frame->setSingleStep(200);
    m_row->spinBox->setFocus();
    User::press(Qt::Key_Up);
    QCOMPARE(m_row->shown(), QString("300 100"));
    QCOMPARE(m_row->log.take(), QStringList());
    User::press(Qt::Key_Down);
    QCOMPARE(m_row->shown(), QString("100 100"));
    QCOMPARE(m_row->log.take(), reports({100}));
}

void TestSliderEditFrame::buttons_data()
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    QTest::addColumn<bool>("isPlus");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<QStringList>("log");

    QTest::newRow("minus") << false << 0 << 255 << 10 << reports({5});
    QTest::newRow("minus onto the minimum") << false << 0 << 255 << 5 << reports({0});
    QTest::newRow("minus past the minimum") << false << 0 << 255 << 3 << QStringList();
    QTest::newRow("minus past int") << false << least << most << least + 3 << QStringList();
    QTest::newRow("plus") << true << 0 << 255 << 10 << reports({15});
    QTest::newRow("plus onto the maximum") << true << 0 << 255 << 250 << reports({255});
    QTest::newRow("plus past the maximum") << true << 0 << 255 << 252 << QStringList();
    QTest::newRow("plus past int") << true << least << most << most - 3 << QStringList();
}

void TestSliderEditFrame::buttons()
{
    QFETCH(bool, isPlus);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    m_frame->setRange(minimum, maximum);
    m_frame->setSingleStep(5);
    m_frame->setValue(value);
    User::click(isPlus ? m_row->plus : m_row->minus);
    const QStringList log = m_row->log.take();
    QTEST(log, "log");
    const int moved = log.isEmpty() ? 0 : isPlus ? 5 : -5;
    QCOMPARE(m_row->shown(), QStringLiteral("%1 %1").arg(value + moved));
}

// Each repetition is a step with its own signal.
void TestSliderEditFrame::autoRepeat()
{
    m_frame->setAutoRepeat(true);
    m_frame->setAutoRepeatDelay(10);
    m_frame->setAutoRepeatInterval(5);
    QTest::mousePress(m_row->plus, Qt::LeftButton);
    QTRY_VERIFY(m_frame->value() >= 13);
    QTest::mouseRelease(m_row->plus, Qt::LeftButton);
    QCOMPARE(m_row->log.take().mid(0, 3), reports({11, 12, 13}));
}

void TestSliderEditFrame::drag_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("held"); // shown while the handle is held at 40
    QTest::addColumn<QStringList>("heldLog");
    QTest::addColumn<QStringList>("droppedLog");

    QTest::newRow("continuous") << Continuous << "40 40" << reports({20, 60, 40}) << QStringList();
    QTest::newRow("released") << Released << "10 10" << QStringList() << reports({40});
    QTest::newRow("sampled") << Sampled << "40 40" << QStringList() << reports({40});
    QTest::newRow("both") << SampledReleased << "10 10" << QStringList() << reports({40});
}

void TestSliderEditFrame::drag()
{
    QFETCH(Mode, mode);
    m_row->setMode(mode);
    User::grabHandle(m_row->slider);
    for (const int position : {20, 60, 40})
        User::moveHandle(m_row->slider, position);
    QTEST(m_row->log.take(), "heldLog");
    QTEST(m_row->shown(), "held");
    User::dropHandle(m_row->slider);
    QTEST(m_row->log.take(), "droppedLog");
    QCOMPARE(m_row->shown(), QString("40 40"));

    User::drag(m_row->slider, {});
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::direction_data()
{
    QTest::addColumn<int>("directions");
    QTest::addColumn<QStringList>("log"); // of a drag from 50 over 40, 45, 60, 70
    QTest::addColumn<QString>("shown");

    const QStringList bigger = reports({50, 50, 60, 70});
    const QStringList smaller = reports({40, 45, 50, 50});
    QTest::newRow("bigger") << int(SliderEditFrame::AllowedToBigger) << bigger << "70 70";
    QTest::newRow("smaller") << int(SliderEditFrame::AllowedToSmaller) << smaller << "50 50";
    QTest::newRow("none") << 0 << smaller << "50 50";
    QTest::newRow("unknown bit") << 8 << smaller << "50 50";
    QTest::newRow("any") << int(SliderEditFrame::AllowedToAny) << reports({40, 45, 60, 70})
                         << "70 70";
}

void TestSliderEditFrame::direction()
{
    QFETCH(int, directions);
    m_frame->setValue(50);
    m_frame->setValueChangeDirection(directions, 50);
    // A receiver finds the children updated.
    connect(m_frame, &SliderEditFrame::valueChanged, this,
            [this](int value) { QCOMPARE(m_row->shown(), QStringLiteral("%1 %1").arg(value)); });
    User::drag(m_row->slider, {40, 45, 60, 70});
    QTEST(m_row->log.take(), "log");
    QTEST(m_row->shown(), "shown");
}

// Typing and the buttons pass the same filter, on every attempt.
void TestSliderEditFrame::directionOfTyping()
{
    m_frame->setValueChangeDirection(SliderEditFrame::AllowedToSmaller, 10);
    m_row->type("40\n");
    QCOMPARE(m_row->log.take(), entered(reports({10})));
    User::click(m_row->plus);
    User::click(m_row->plus);
    QCOMPARE(m_row->log.take(), reports({10, 10}));
    QCOMPARE(m_row->shown(), QString("10 10"));
}

void TestSliderEditFrame::sampling()
{
    m_row->setMode(Sampled);
    QSlider *slider = m_row->slider;
    User::grabHandle(slider);
    QCOMPARE(samplingInterval(m_frame), 60000);
    QCOMPARE(m_row->logAfterTick(), QStringList());
    User::moveHandle(slider, 20);
    User::moveHandle(slider, 30);
    QCOMPARE(m_row->logAfterTick(), reports({30}));
    QCOMPARE(m_row->logAfterTick(), QStringList());
    User::moveHandle(slider, 50);
    User::moveHandle(slider, 30);
    QCOMPARE(m_row->logAfterTick(), QStringList());
    User::moveHandle(slider, 40);
    QCOMPARE(m_row->logAfterTick(), reports({40}));
    User::dropHandle(slider); // on the value of the last tick
    QCOMPARE(m_row->log.take(), QStringList());
    QCOMPARE(samplingInterval(m_frame), -1);

    m_frame->setValueChangeDirection(SliderEditFrame::AllowedToSmaller, 45);
    User::grabHandle(slider);
    User::moveHandle(slider, 60);
    QCOMPARE(m_row->logAfterTick(), reports({45}));
    QCOMPARE(m_row->logAfterTick(), QStringList());
    QCOMPARE(m_row->shown(), QString("45 45"));
    User::dropHandle(slider);
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::samplingInRealTime()
{
    m_frame->setTimeSamplingRate(5);
    User::grabHandle(m_row->slider);
    User::moveHandle(m_row->slider, 40);
    QStringList log;
    QTRY_COMPARE(log += m_row->log.take(), reports({40}));
    User::dropHandle(m_row->slider);
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::steps_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::newRow("continuous") << Continuous;
    QTest::newRow("released") << Released;
    QTest::newRow("sampled") << Sampled;
}

// Clicks on the groove and keys report at once in every mode.
void TestSliderEditFrame::steps()
{
    QFETCH(Mode, mode);
    m_row->setMode(mode);
    m_frame->setPageStep(20);
    User::clickGroove(m_row->slider, true);
    QCOMPARE(m_row->log.take(), reports({30}));
    User::press(Qt::Key_Right);
    QCOMPARE(m_row->log.take(), reports({31}));
    User::clickGroove(m_row->slider, false);
    QCOMPARE(m_row->log.take(), reports({11}));
    m_row->spinBox->setFocus();
    User::press(Qt::Key_Up);
    QCOMPARE(m_row->log.take().mid(0, 1), reports({12}));
    QCOMPARE(m_row->shown(), QString("12 12"));
}

void TestSliderEditFrame::press()
{
    QSlider *slider = m_row->slider;
    QVERIFY(!m_frame->isMousePressed());
    User::grabHandle(slider);
    QVERIFY(m_frame->isMousePressed());
    User::dropHandle(slider);
    QVERIFY(!m_frame->isMousePressed());
    User::grabHandle(slider);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(slider, &leave);
    QVERIFY(!m_frame->isMousePressed());
    User::dropHandle(slider);
    User::grabHandle(slider);
    m_row->plus->setFocus();
    QVERIFY(!m_frame->isMousePressed());
    User::dropHandle(slider);
}

void TestSliderEditFrame::interruptedDrag_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<bool>("isHidden");
    QTest::addColumn<QStringList>("log");
    for (const bool isHidden : {false, true}) {
        const char *const how = isHidden ? "hidden" : "disabled";
        QTest::addRow("continuous, %s", how) << Continuous << isHidden << QStringList();
        QTest::addRow("released, %s", how) << Released << isHidden << reports({40});
        QTest::addRow("sampled, %s", how) << Sampled << isHidden << reports({40});
    }
}

// A slider that is hidden or disabled under the pointer gets no release: the
// drag ends there and its last value is reported.
void TestSliderEditFrame::interruptedDrag()
{
    QFETCH(Mode, mode);
    QFETCH(bool, isHidden);
    m_row->setMode(mode);
    User::grabHandle(m_row->slider);
    User::moveHandle(m_row->slider, 40);
    m_row->log.take();
    if (isHidden)
        m_frame->setSliderVisible(false);
    else
        m_frame->setEnabled(false);
    QVERIFY(!m_frame->isMousePressed());
    QTEST(m_row->log.take(), "log");
    QCOMPARE(m_row->shown(), QString("40 40"));
    QCOMPARE(samplingInterval(m_frame), -1);
    User::dropHandle(m_row->slider);
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::wheel()
{
    User::turnWheel(m_row->slider);
    User::turnWheel(m_row->spinBox);
    QCOMPARE(m_row->log.take(), QStringList({"page: wheel", "page: wheel"}));
    m_frame->setSpinBoxWheelEnable(true);
    m_row->spinBox->setFocus();
    User::turnWheel(m_row->spinBox);
    QCOMPARE(m_row->log.take(), reports({11}));
}

void TestSliderEditFrame::selectAll()
{
    m_frame->setFocus();
    m_row->slider->setFocus();
    User::press(Qt::Key_Tab);
    QVERIFY(m_row->spinBox->hasFocus());
    QTRY_COMPARE(m_row->field->selectedText(), QString("10"));
    m_frame->setFocus();
    m_row->field->deselect();
    User::click(m_row->spinBox);
    QTRY_COMPARE(m_row->field->selectedText(), QString("10"));

    m_frame->setFocus();
    m_row->field->deselect();
    m_row->spinBox->setFocus();
    m_row->spinBox->setEnabled(false);
    m_row->field->deselect();
    QCoreApplication::processEvents();
    QCOMPARE(m_row->field->selectedText(), QString());
}

void TestSliderEditFrame::selectAllOfDestroyed()
{
    m_row->spinBox->setFocus();
    delete m_frame;
    QCoreApplication::processEvents();
    QCOMPARE(m_row->log.take().filter("valueChanged"), QStringList());
}

int main(int argc, char *argv[])
{
    return runTest<TestSliderEditFrame>(argc, argv);
}

#include "tst_slidereditframe.moc"
