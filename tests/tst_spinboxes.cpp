#include "editoruser.h"
#include "slidereditframe_p.h"

using namespace Vantor::Widgets;

// The two number fields as a host uses them outside any editor.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys() { runTestCode(); }
    void suffix();
    void inputMethodHints();
};

namespace {

// The text and the signals of a box on a page after the user replaces its text. "\r" is the
// Enter key of the number pad, "\x1b" Escape, "[]" is pasted. Like in the editors, keyboard
// tracking is off unless the host turns it on.
template <typename SpinBox>
void compare(const std::function<void(SpinBox &)> &setUp, const QString &typed,
             const QString &expected)
{
    EventLog log;
    Page page(log);
    auto *const box = new SpinBox;
    box->setKeyboardTracking(false);
    setUp(*box);
    page.layout()->addWidget(box);
    log.watch(box, &SpinBox::editingFinished, "editing");
    log.watch(box, &SpinBox::enterFinished, "enter");
    log.watch(box, QOverload<decltype(box->value())>::of(&SpinBox::valueChanged), "value");
    QVERIFY(User::show(page));
    box->setFocus();
    box->selectAll();
    log.take();
    const bool isPasted = typed.startsWith('[');
    if (isPasted)
        User::paste(typed.mid(1, typed.size() - 2));
    for (const QChar &key : isPasted ? QString() : typed) {
        if (key == '\r' || key == '\x1b')
            User::press(key == '\r' ? Qt::Key_Enter : Qt::Key_Escape);
        else
            User::type(key);
    }
    QVERIFY(box->hasFocus() != typed.endsWith('\t'));
    QCOMPARE((box->text() + ": " + log.take().join(' ')).trimmed(), expected);
}

} // namespace

// The base class does not interpret Enter, and the page receives only an Enter or Escape that
// ends no entry.
void tst_SpinBoxes::keys_data()
{
    QTest::addColumn<TestCode>("code");
    const auto add = [](const QString &name, const QString &typed, const TestCode &code) {
        QString row = name + typed;
        row.replace('\n', "Return").replace('\r', "Enter").replace('\t', "Tab");
        QTest::newRow(qPrintable(row.replace('\x1b', "Escape"))) << code;
    };
    const auto whole = [&add](const QString &typed, const QString &expected) {
        const auto setUp = [](auto &box) { box.setSpinBoxCal(7, 100, 0, 0, 2); };
        add("int, ", typed, [=] { compare<SliderEditSpinBox>(setUp, typed, expected); });
    };
    whole("5\n", "5: editing() enter()");
    whole("5\r", "5: editing() enter()");
    // Before the base class interprets it.
    whole("5\t", "5: editing() value(5) editing()");
    whole("2*3=", "6: enter()");
    whole("-1=", "0: enter()");
    whole("2+=", "7: enter()");
    const auto fraction = [&add](const QString &typed, const QString &expected) {
        const auto setUp = [](auto &box) { box.setSpinBoxCal(7.5F, 9.5F, 0.5F, 2, 2, false); };
        add("double, ", typed, [=] { compare<SliderEditDoubleSpinBox>(setUp, typed, expected); });
    };
    fraction("5\n", "5: editing() enter()");
    fraction("5\t", "5.00: value(5) editing()");
    fraction("1.259=", "1.25: editing()");
    fraction("1000=", "9.50: editing()");
    fraction("2+=", "7.5: editing()");
    const auto withOptions = [&add](int options, bool isTracking, const QString &typed,
                                    const QString &expected) {
        const auto setUp = [=](auto &box) {
            box.setEntryOptions(EntryOptions(options));
            QCOMPARE(int(box.entryOptions()), options);
            box.setKeyboardTracking(isTracking);
            box.setDecimals(3);
            box.setValue(1);
            box.setSpinBoxCal(1, 9, 0, 3, 3, false);
        };
        add(QString("options %1, %2").arg(options).arg(isTracking ? "tracking, " : ""), typed,
            [=] { compare<SliderEditDoubleSpinBox>(setUp, typed, expected); });
    };
    withOptions(ExactEntry, false, "0.1256=", "0.125: editing()");
    withOptions(DecimalComma, false, "2,5", "2.5:");
    withOptions(DecimalComma, true, "[2,5]", "2.5: value(2.5)");
    withOptions(EscapeRestores, false, "7\x1b", "1.000:");
    withOptions(EscapeRestores, false, "7\x1b\x1b", "1.000: key");
    withOptions(EnterStays, false, "5/2\n", "2.500: editing() value(2.5) enter()");
    withOptions(EnterStays, false, "5/2\n\n", "2.500: editing() value(2.5) enter() key");
    withOptions(EnterStays, false, "5/2=", "2.500: editing() value(2.5)");
    withOptions(EnterStays | DecimalComma, true, "2,5\n",
                "2.500: value(2) value(2.5) editing() enter()");
    // What can be restored is no value yet.
    withOptions(EscapeRestores, true, "2*3\x1b", "1.000:");
    withOptions(EscapeRestores, true, "2*3\t", "6.000: value(6) editing()");
    withOptions(EscapeRestores, true, "2*3=", "6.000: value(6) editing()");
    for (const QString typed : {"12*3\x1b", "12*3=\t"})
        add("int, options 4, tracking, ", typed, [=] {
            const auto setUp = [](auto &box) {
                box.setEntryOptions(EscapeRestores);
                box.setKeyboardTracking(true);
                box.setValue(50);
                box.setSpinBoxCal(50, 100, 0, 0, 2);
            };
            compare<SliderEditSpinBox>(
                setUp, typed,
                typed.endsWith('\t') ? "36: value(36) enter() editing() editing()" : "50:");
        });
}

// A keyboard with every sign of an expression, also "="; or the one that the host asks for.
void tst_SpinBoxes::inputMethodHints()
{
    const auto compare = [](QAbstractSpinBox &&box) {
        const auto hints = [&box] { return box.inputMethodQuery(Qt::ImHints).toInt(); };
        QCOMPARE(hints(),
                 int(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase));
        box.setInputMethodHints(Qt::ImhDialableCharactersOnly);
        QVERIFY(User::show(box));
        User::type("1\n");
        QCOMPARE(hints(), int(Qt::ImhDialableCharactersOnly));
    };
    compare(SliderEditSpinBox());
    compare(SliderEditDoubleSpinBox());
}

// The suffix that is hidden while the field is edited.
void tst_SpinBoxes::suffix()
{
    SliderEditDoubleSpinBox box;
    box.setKeyboardTracking(false);
    QVERIFY(User::show(box));
    box.setSuffix("mm");
    User::type("7");
    box.clearFocus();
    QCOMPARE(box.text(), QString("70.00mm"));
    box.setFocus();
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
    // It is read without each occurrence of the suffix, as float.
    box.setMaximum(99999999);
    box.setSuffix("5");
    box.setValue(16775217.25);
    box.setFocus();
    QCOMPARE(box.value(), 1677217.25);
}

QTEST_MAIN(tst_SpinBoxes)

#include "tst_spinboxes.moc"
