#include "slidereditcases.h"
#include "slidereditframe.h"

#include <memory>

using Vantor::Widgets::SliderEditFrame;

using IntRow = EditorRow<SliderEditFrame>;

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
    void autoRepeat() { SliderEditCases::compareAutoRepeat(*m_row); }
    void samplingInRealTime();
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
    SliderEditCases::compareForm(
        *m_row,
        "horizontalLayout_2 0 [0 0 0 0] {"
        "nameLayout 0 [0 0 0 0] {labelName 0..maxx0..max}, "
        "sliderLayout 0 [0 0 0 0] {slider 0..maxx0..max}, "
        "spinBoxLayout 0 [0 0 0 0] {spinBox 65..65x30..30 Quelmo_VK=Vk_Number}, "
        "buttonLayout 0 [0 0 0 0] {sliderEditSubtract 49..49x30..30 "
        "isSliderEditSubtract=true, sliderEditPlus 49..49x30..30 "
        "isSliderEditPlus=true, spacer 0 policy 0}}");
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
    SliderEditCases::addSequences();
    using SliderEditCases::addRow;
    const auto typed = [](const QString &text, const QString &report, const QString &shown) {
        addRow("type " + text.simplified(),
               "type " + text + "\n: finished finished" + report
                   + " finished left | focused: editor | shown: =" + shown);
    };
    typed("12*3", " 36", "36");
    typed("10", "", "10");
    typed("5*2", "", "10");
    typed("999", " 100", "100");
    typed("-5", " 0", "0");
    typed("\b", " 0", "0");
    typed("1/0", "", "10");
    typed("abc", " 0", "0");
    addRow("equals", "type 12*3=: finished 36 finished left | shown: =36");
    addRow("Tab", "type 12*3\t: finished 36 finished | shown: =36");
    addRow("the calculator learns bounds with a value",
           "range 0 300 | type 250\n: finished finished 100 finished left | "
           "type 250\n: finished finished 250 finished left | shown: =250");
    addRow("a clamped value is reported when editing ends",
           "value 500 | type \t: finished 100 finished | shown: =100");
    addRow("a failed entry after the range shrank",
           "range 0 243 | value 243 | range 0 191 | "
           "type 1/0\n: finished 191 finished finished left | shown: =191");
    addRow("typing past the direction",
           "direction 4 10 | type 40\n: finished finished 10 finished left | shown: =10");
    for (const char *mode : {"released", "sampled | released"}) {
        addRow(QString(mode) + " reports once",
               QString(mode) + " | hold 20 40 | tick | shown: 10/10 | drop: 40 | shown: =40");
    }
    for (const QString end : {"drop", "focus", "hide", "disable", "leave"})
        addRow("pressed until " + end,
               "pressed: no | hold | pressed: yes | " + end + " | pressed: no");
    const QString small = "range 0 255 | step 5 | value ";
    const QString wide = "range -2147483648 2147483647 | step 5 | value ";
    addRow("minus at the minimum", small + "5 | minus: 0 | value 3 | minus | shown: =3");
    addRow("plus at the maximum", small + "250 | plus: 255 | value 252 | plus | shown: =252");
    addRow("minus past int", wide + "-2147483645 | minus | shown: =-2147483645");
    addRow("plus past int", wide + "2147483644 | plus | shown: =2147483644");
}

void TestSliderEditFrame::sequence()
{
    QFETCH(QString, steps);
    SliderEditCases::play(*m_row, steps);
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

int main(int argc, char *argv[])
{
    return runTest<TestSliderEditFrame>(argc, argv);
}

#include "tst_slidereditframe.moc"
