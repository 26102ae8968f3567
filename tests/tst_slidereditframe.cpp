#include "slidereditcases.h"
#include "slidereditframe.h"

#include <limits>
#include <memory>

using Vantor::Widgets::SliderEditFrame;

using IntRow = EditorRow<SliderEditFrame>;
Q_DECLARE_METATYPE(Action<SliderEditFrame>)

class TestSliderEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_row.reset(); }
    void form();
    void setters();
    void silence();
    void sequence_data();
    void sequence();
    void autoRepeat();
    void samplingInRealTime();
    void press();
    void selectAll() { SliderEditCases::compareSelectAll(*m_row); }

private:
    std::unique_ptr<IntRow> m_row;
};

void TestSliderEditFrame::init()
{
    m_row = std::make_unique<IntRow>();
    QVERIFY(User::show(m_row->page));
    QCOMPARE(m_row->log.take(), QStringList());
}

void TestSliderEditFrame::form()
{
    QCOMPARE(m_row->frame->objectName(), QString("SliderEditFrame"));
    SliderEditCases::compareForm(*m_row, "Vk_Number",
                                 "horizontalLayout_2 0 [0 0 0 0] {"
                                 "nameLayout 0 [0 0 0 0] {labelName 0..16777215x0..16777215}, "
                                 "sliderLayout 0 [0 0 0 0] {slider 0..16777215x0..16777215}, "
                                 "spinBoxLayout 0 [0 0 0 0] {spinBox 65..65x30..30}, "
                                 "buttonLayout 0 [0 0 0 0] {sliderEditSubtract 49..49x30..30, "
                                 "sliderEditPlus 49..49x30..30, spacer 0 policy 0}}");
}

void TestSliderEditFrame::setters()
{
    SliderEditCases::compareSetters(*m_row);
    m_row->frame->setButtonVisible(false);
    QVERIFY(m_row->minus->isHidden() && m_row->plus->isHidden());
    m_row->frame->setSingleStep(5);
    QCOMPARE(m_row->frame->singleStep(), 5);
    QCOMPARE(m_row->slider->singleStep(), 5);
}

void TestSliderEditFrame::silence()
{
    SliderEditFrame &frame = *m_row->frame;
    SliderEditCases::compareSilence<SliderEditFrame, QSpinBox>(*m_row, [&frame] {
        frame.setRange(0, 50);
        frame.setValue(70);
        frame.setRange(5, 40);
    });
    QCOMPARE(m_row->shown(), QString("40 40"));
    QCOMPARE(frame.minimum(), 5);
    QCOMPARE(frame.maximum(), 40);
}

void TestSliderEditFrame::sequence_data()
{
    SliderEditCases::addSequences<SliderEditFrame>();
    const auto add = SliderEditCases::addSequence<SliderEditFrame>;
    const auto typed = [add](const QString &text, const QStringList &log, const QString &shown) {
        add(
            "type " + text, [text](IntRow &row) { row.type(text); }, log, shown);
    };
    const QStringList finished {"debug: SpinBox editing finished"};
    typed("12*3\n", entered(reports({36})), "36 36");
    typed("12*3=", entered(reports({36})).mid(1), "36 36");
    typed("12*3\t", finished + reports({36}) + finished, "36 36");
    typed("10\n", entered({}), "10 10");
    typed("5*2\n", entered({}), "10 10");
    typed("999\n", entered(reports({100})), "100 100");
    typed("-5\n", entered(reports({0})), "0 0");
    typed("\b\n", entered(reports({0})), "0 0");
    typed("1/0\n", entered({}), "10 10");
    typed("abc\n", entered(reports({0})), "0 0");

    add(
        "the calculator learns bounds with a value",
        [](IntRow &row) {
            row.frame->setRange(0, 300);
            row.type("250\n");
            row.type("250\n");
        },
        entered(reports({100})) + entered(reports({250})), "250 250");
    add(
        "a clamped value is reported when editing ends",
        [](IntRow &row) {
            row.frame->setValue(500);
            row.type("\t");
        },
        finished + reports({100}) + finished, "100 100");
    add(
        "typing past the direction",
        [](IntRow &row) {
            row.frame->setValueChangeDirection(SliderEditFrame::AllowedToSmaller, 10);
            row.type("40\n");
        },
        entered(reports({10})), "10 10");
    add(
        "Enter gives the focus to the editor",
        [](IntRow &row) {
            row.type("10\n");
            QVERIFY(row.frame->hasFocus());
        },
        entered({}), "10 10");

    for (const Mode mode : {Released, SampledReleased}) {
        add(
            QStringLiteral("release reports once, mode %1").arg(mode),
            [mode](IntRow &row) {
                row.setMode(mode);
                row.hold({20, 40});
                row.tick();
                row.log.add(row.shown());
                row.drop();
            },
            QStringList({"tick", "10 10", "drop"}) + reports({40}), "40 40");
    }

    const auto button = [add](const char *name, bool isPlus, int value, const QStringList &log,
                              int end) {
        constexpr int least = std::numeric_limits<int>::min();
        constexpr int most = std::numeric_limits<int>::max();
        add(
            name,
            [=](IntRow &row) {
                const bool isWide = qAbs(qint64(value)) > 1000;
                row.frame->setRange(isWide ? least : 0, isWide ? most : 255);
                row.frame->setSingleStep(5);
                row.frame->setValue(value);
                row.click(isPlus ? row.plus : row.minus);
            },
            log, QStringLiteral("%1 %1").arg(end));
    };
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    button("minus onto the minimum", false, 5, reports({0}), 0);
    button("minus past the minimum", false, 3, {}, 3);
    button("minus past int", false, least + 3, {}, least + 3);
    button("plus onto the maximum", true, 250, reports({255}), 255);
    button("plus past the maximum", true, 252, {}, 252);
    button("plus past int", true, most - 3, {}, most - 3);
}

void TestSliderEditFrame::sequence()
{
    QFETCH(Action<SliderEditFrame>, action);
    action(*m_row);
    QTEST(m_row->log.take(), "log");
    QTEST(m_row->shown(), "shown");
}

// Each repetition is a step with its own signal.
void TestSliderEditFrame::autoRepeat()
{
    m_row->frame->setAutoRepeat(true);
    m_row->frame->setAutoRepeatDelay(10);
    m_row->frame->setAutoRepeatInterval(5);
    QTest::mousePress(m_row->plus, Qt::LeftButton);
    QTRY_VERIFY(m_row->frame->value() >= 13);
    QTest::mouseRelease(m_row->plus, Qt::LeftButton);
    QCOMPARE(m_row->log.take().mid(0, 3), reports({11, 12, 13}));
}

void TestSliderEditFrame::samplingInRealTime()
{
    m_row->frame->setTimeSamplingRate(5);
    m_row->hold({40});
    QStringList log;
    QTRY_COMPARE(log += m_row->log.take(), reports({40}));
    m_row->drop();
    QCOMPARE(m_row->log.take(), QStringList("drop"));
}

void TestSliderEditFrame::press()
{
    const SliderEditFrame &frame = *m_row->frame;
    const std::function<void()> ends[] = {
        [this] { m_row->drop(); },
        [this] { m_row->plus->setFocus(); },
        [this] { m_row->slider->hide(); },
        [this] { m_row->frame->setEnabled(false); },
        [this] {
            QEvent leave(QEvent::Leave);
            QApplication::sendEvent(m_row->slider, &leave);
        },
    };
    for (const auto &end : ends) {
        m_row->slider->show();
        m_row->frame->setEnabled(true);
        QVERIFY(!frame.isMousePressed());
        m_row->hold({});
        QVERIFY(frame.isMousePressed());
        end();
        QVERIFY(!frame.isMousePressed());
        m_row->drop();
    }
}

int main(int argc, char *argv[])
{
    return runTest<TestSliderEditFrame>(argc, argv);
}

#include "tst_slidereditframe.moc"
