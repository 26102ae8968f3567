#include "editoruser.h"
#include "slidereditframe_p.h"

using Vantor::Widgets::SliderEditDoubleSpinBox;
using Vantor::Widgets::SliderEditSpinBox;

// The two number fields as a host finds them outside of any editor.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys();
    void suffix();
};

namespace {

// A spin box on a page, without keyboard tracking as the editors have it.
template <typename SpinBox> struct BoxOnPage
{
    BoxOnPage()
    {
        box.setKeyboardTracking(false);
        page.layout()->addWidget(&box);
        log.watch(&box, &SpinBox::editingFinished, "editing");
        log.watch(&box, &SpinBox::enterFinished, "enter");
        log.watch(&box, QOverload<decltype(box.value())>::of(&SpinBox::valueChanged), "value");
        User::show(page);
        page.setFocus();
    }

    void compareKeys(const QString &typed, const QString &text, const QString &heard)
    {
        box.setFocus();
        box.selectAll();
        log.take();
        User::type(typed);
        QCOMPARE(box.text(), text);
        QCOMPARE(log.take().join(' '), heard);
        QString any = "any text";
        int pos = 3;
        QCOMPARE(box.validate(any, pos), QValidator::Acceptable);
        QCOMPARE(any + QString::number(pos), QString("any text3"));
    }

    EventLog log;
    Page page {log};
    SpinBox box;
};

} // namespace

// Enter is neither interpreted by the base nor seen by the page.
void tst_SpinBoxes::keys()
{
    const auto compareInt = [](const char *typed, const char *text, const char *heard) {
        BoxOnPage<SliderEditSpinBox> field;
        field.box.setSpinBoxCal(7, 100, 0, 0, 2);
        field.compareKeys(typed, text, heard);
    };
    compareInt("5\n", "5", "editing() enter()");
    compareInt("5\r", "5", "editing() enter()");
    compareInt("5\t", "5", "editing() value(5) editing()"); // before the base interprets it
    compareInt("2*3=", "6", "enter()");
    compareInt("-1=", "0", "enter()");
    compareInt("2+=", "7", "enter()");
    const auto compareDouble = [](const char *typed, const char *text, const char *heard) {
        BoxOnPage<SliderEditDoubleSpinBox> field;
        field.box.setSpinBoxCal(7.5F, 9.5F, 0.5F, 2, 2, false);
        field.compareKeys(typed, text, heard);
    };
    compareDouble("5\n", "5", "editing() enter()");
    compareDouble("5\t", "5.00", "value(5) editing()");
    compareDouble("1.259=", "1.25", "editing()");
    compareDouble("1000=", "9.50", "editing()");
    compareDouble("2+=", "7.5", "editing()");
}

// It is away while the field is edited, whenever it was set.
void tst_SpinBoxes::suffix()
{
    BoxOnPage<SliderEditDoubleSpinBox> field;
    SliderEditDoubleSpinBox &box = field.box;
    box.setFocus();
    box.setSuffix("mm");
    User::type("7");
    for (int round = 0; round < 2; ++round) {
        field.page.setFocus();
        QCOMPARE(box.text(), QString("70.00mm"));
        box.setFocus();
        QCOMPARE(box.text() + box.suffix(), QString("70.00"));
    }
    box.setSlotEditingFinished();
    QCOMPARE(box.text(), QString("70.00mm"));
    field.page.setFocus();
    // What the host has put into the field in between counts.
    box.findChild<QLineEdit *>()->setText("3.5mm");
    box.setFocus();
    QCOMPARE(box.value(), 3.5);
    // While it is away, another focus-in leaves the field alone.
    box.setSuffix("s");
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(&box, &again);
    QCOMPARE(box.suffix(), QString("s"));
    field.page.setFocus();
    QCOMPARE(box.suffix(), QString("mm"));
}

QTEST_MAIN(tst_SpinBoxes)

#include "tst_spinboxes.moc"
