#include "editoruser.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QVBoxLayout>

using Vantor::Widgets::SliderEditDoubleSpinBox;
using Vantor::Widgets::SliderEditSpinBox;

// The two number fields as a host finds them outside of any editor.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void suffix();
    void suffixSetLater();
};

namespace {

// Both spin boxes on one page, without keyboard tracking as the editors have them.
struct SpinBoxes
{
    SpinBoxes()
    {
        add(whole);
        add(fraction);
        User::show(page);
        page.setFocus();
        log.take();
    }

    template <typename SpinBox> void add(SpinBox &box)
    {
        box.setKeyboardTracking(false);
        page.layout()->addWidget(&box);
        log.watch(&box, &SpinBox::editingFinished, "editing");
        log.watch(&box, &SpinBox::enterFinished, "enter");
        log.watch(&box, QOverload<decltype(box.value())>::of(&SpinBox::valueChanged), "value");
    }

    EventLog log;
    Page page {log};
    SliderEditSpinBox whole {&page};
    SliderEditDoubleSpinBox fraction {&page};
};

} // namespace

void tst_SpinBoxes::keys_data()
{
    QTest::addColumn<bool>("isWhole");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("heard");
    const auto row = [](bool isWhole, const char *typed, const char *text, const char *heard) {
        QTest::addRow("%s, %s: %s", isWhole ? "int" : "double",
                      QByteArray(typed).toPercentEncoding("*/+=").constData(), heard)
            << isWhole << typed << text << heard;
    };
    // Neither does the base interpret the text on these keys nor the page see them.
    for (const bool isWhole : {true, false}) {
        row(isWhole, "5\n", "5", "editing() enter()");
        row(isWhole, "5\r", "5", "editing() enter()");
    }
    // The integer box says so before the base interprets the text.
    row(true, "5\t", "5", "editing() value(5) editing()");
    row(false, "5\t", "5.00", "value(5) editing()");
    row(true, "2*3=", "6", "enter()");
    row(true, "1000=", "100", "enter()");
    row(true, "-1=", "0", "enter()");
    row(true, "2+=", "7", "enter()");
    row(false, "1.259=", "1.25", "editing()");
    row(false, "1000=", "9.50", "editing()");
    row(false, "-1=", "0.50", "editing()");
    row(false, "2+=", "7.5", "editing()");
}

void tst_SpinBoxes::keys()
{
    QFETCH(bool, isWhole);
    QFETCH(QString, typed);
    SpinBoxes boxes;
    boxes.whole.setSpinBoxCal(7, 100, 0, 0, 2);
    boxes.fraction.setSpinBoxCal(7.5F, 9.5F, 0.5F, 2, 2, false);
    auto *const box = isWhole ? static_cast<QAbstractSpinBox *>(&boxes.whole) : &boxes.fraction;
    QVERIFY(box->testAttribute(Qt::WA_AcceptTouchEvents));
    box->setFocus();
    box->selectAll();
    User::type(typed);
    QTEST(box->text(), "text");
    QTEST(boxes.log.take().join(' '), "heard");
    QString text = "any text";
    int pos = 3;
    QCOMPARE(box->validate(text, pos), QValidator::Acceptable);
    QCOMPARE(text + QString::number(pos), QString("any text3"));
}

void tst_SpinBoxes::suffix()
{
    SpinBoxes boxes;
    SliderEditDoubleSpinBox &box = boxes.fraction;
    box.setSuffix("mm");
    box.setValue(2.5);
    QCOMPARE(box.text(), QString("2.50mm"));
    box.setSpinBoxCal(2.5F, 100, 0, 2, 2, false);
    for (int round = 0; round < 2; ++round) {
        box.setFocus();
        QCOMPARE(box.text(), QString("2.50"));
        QCOMPARE(box.suffix(), QString());
        boxes.page.setFocus();
        QCOMPARE(box.text(), QString("2.50mm"));
    }
    box.setFocus();
    box.setSlotEditingFinished();
    QCOMPARE(box.text(), QString("2.50mm"));
}

void tst_SpinBoxes::suffixSetLater()
{
    SpinBoxes boxes;
    SliderEditDoubleSpinBox &box = boxes.fraction;
    box.setFocus();
    box.setSuffix("mm");
    User::type("7");
    boxes.page.setFocus();
    QCOMPARE(box.text(), QString("70.00mm"));
    box.setFocus();
    QCOMPARE(box.text(), QString("70.00"));
    // While it is removed, another focus-in leaves the field alone.
    box.setSuffix("s");
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(&box, &again);
    QCOMPARE(box.suffix(), QString("s"));
    boxes.page.setFocus();
    QCOMPARE(box.suffix(), QString("mm"));
}

int main(int argc, char *argv[])
{
    return runTest<tst_SpinBoxes>(argc, argv);
}

#include "tst_spinboxes.moc"
