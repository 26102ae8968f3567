#include "editoruser.h"
#include "slidereditframe_p.h"

using namespace Vantor::Widgets;

// The two number fields as a host uses them outside any editor.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys();
    void suffix();
};

namespace {

// The text and the signals of a box on a page after the user replaces its text and presses
// the key. Like in the editors, keyboard tracking is off.
template <typename SpinBox, typename... Settings>
QString answer(const QString &typed, Qt::Key key, Settings... settings)
{
    EventLog log;
    Page page(log);
    SpinBox box;
    box.setSpinBoxCal(settings...);
    box.setKeyboardTracking(false);
    page.layout()->addWidget(&box);
    log.watch(&box, &SpinBox::editingFinished, "editing");
    log.watch(&box, &SpinBox::enterFinished, "enter");
    log.watch(&box, QOverload<decltype(box.value())>::of(&SpinBox::valueChanged), "value");
    if (!User::show(page))
        return "not shown";
    box.setFocus();
    box.selectAll();
    User::type(typed);
    User::press(key);
    return box.text() + ": " + log.take().join(' ');
}

} // namespace

// The base class does not interpret Enter, and the page does not receive it.
void tst_SpinBoxes::keys()
{
    const auto answerOfInt = [](const QString &typed, Qt::Key key) {
        return answer<SliderEditSpinBox>(typed, key, 7, 100, 0, 0, 2);
    };
    QCOMPARE(answerOfInt("5", Qt::Key_Return), QString("5: editing() enter()"));
    QCOMPARE(answerOfInt("5", Qt::Key_Enter), QString("5: editing() enter()"));
    // Before the base class interprets it.
    QCOMPARE(answerOfInt("5", Qt::Key_Tab), QString("5: editing() value(5) editing()"));
    QCOMPARE(answerOfInt("2*3", Qt::Key_Equal), QString("6: enter()"));
    QCOMPARE(answerOfInt("-1", Qt::Key_Equal), QString("0: enter()"));
    QCOMPARE(answerOfInt("2+", Qt::Key_Equal), QString("7: enter()"));
    const auto answerOfDouble = [](const QString &typed, Qt::Key key) {
        return answer<SliderEditDoubleSpinBox>(typed, key, 7.5F, 9.5F, 0.5F, 2, 2, false);
    };
    QCOMPARE(answerOfDouble("5", Qt::Key_Return), QString("5: editing() enter()"));
    QCOMPARE(answerOfDouble("5", Qt::Key_Tab), QString("5.00: value(5) editing()"));
    QCOMPARE(answerOfDouble("1.259", Qt::Key_Equal), QString("1.25: editing()"));
    QCOMPARE(answerOfDouble("1000", Qt::Key_Equal), QString("9.50: editing()"));
    QCOMPARE(answerOfDouble("2+", Qt::Key_Equal), QString("7.5: editing()"));
}

// The suffix is hidden while the field is edited, whenever it was set.
void tst_SpinBoxes::suffix()
{
    SliderEditDoubleSpinBox box;
    box.setKeyboardTracking(false);
    QVERIFY(User::show(box));
    box.setSuffix("mm");
    User::type("7");
    for (int round = 0; round < 2; ++round) {
        box.clearFocus();
        QCOMPARE(box.text(), QString("70.00mm"));
        box.setFocus();
        QCOMPARE(box.text() + box.suffix(), QString("70.00"));
    }
    box.setSlotEditingFinished();
    QCOMPARE(box.text(), QString("70.00mm"));
    box.clearFocus();
    // A text that the host has set in the meantime counts.
    box.findChild<QLineEdit *>()->setText("3.5mm");
    box.setFocus();
    QCOMPARE(box.value(), 3.5);
    // While it is hidden, another focus-in event does not change the field.
    box.setSuffix("s");
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(&box, &again);
    QCOMPARE(box.suffix(), QString("s"));
    box.clearFocus();
    QCOMPARE(box.suffix(), QString("mm"));
}

QTEST_MAIN(tst_SpinBoxes)

#include "tst_spinboxes.moc"
