#include "editoruser.h"
#include "slidereditframe_p.h"

#include <QtWidgets/QStyleOption>

using namespace Vantor::Widgets;

// The two number fields as a host uses them outside any editor.
class tst_SpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys() { runTestCode(); }
    void arrows();
    void suffix();
    void inputMethodHints();
};

namespace {

void setUp(SliderEditSpinBox &box)
{
    box.setValue(50);
    box.setSpinBoxCal(7, 100, 0, 0, 2);
}

void setUp(SliderEditDoubleSpinBox &box)
{
    box.setDecimals(3);
    box.setValue(1);
    box.setSpinBoxCal(7.5F, 9.5F, 0.5F, 3, 3, false);
}

// Like in the editors, keyboard tracking is off unless the host turns it on.
template <typename SpinBox> void addRow(const QString &row, const QString &)
{
    QTest::addRow("%s, %s", SpinBox::staticMetaObject.className(), qPrintable(row)) << TestCode(
        [=] {
            const QString typed = row.section(" -> ", 0, 0), expected = row.section(" -> ", 1);
            const QString options = expected.section(" with ", 1);
            EventLog log;
            Page page(log);
            auto *const box = new SpinBox;
            box->setEntryOptions(entryOptions(options));
            box->setKeyboardTracking(options.contains("tracking"));
            setUp(*box);
            page.layout()->addWidget(box);
            log.watch(box, &SpinBox::editingFinished, "editing");
            log.watch(box, &SpinBox::enterFinished, "enter");
            log.watch(box, QOverload<decltype(box->value())>::of(&SpinBox::valueChanged), "value");
            QVERIFY(User::show(page));
            box->setFocus();
            box->selectAll();
            log.take();
            for (const QString &word : typed.split(' ')) {
                if (word.startsWith('['))
                    User::paste(word.mid(1, word.size() - 2));
                else if (word == "held")
                    User::repeatEnter();
                else
                    User::typeOrPress(word);
            }
            QVERIFY(box->hasFocus() != typed.endsWith("Tab"));
            QCOMPARE((box->text() + ": " + log.take().join(' ')).trimmed(),
                     expected.section(" with ", 0, 0));
        });
}

} // namespace

// The base class does not interpret Enter, and the page receives only an Enter or Escape that
// ends no entry.
void tst_SpinBoxes::keys_data()
{
    QTest::addColumn<TestCode>("code");
    addTable(DATA "/spinboxes.txt",
             {{"int", addRow<SliderEditSpinBox>}, {"double", addRow<SliderEditDoubleSpinBox>}});
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

// A host may show them, also in a row.
void tst_SpinBoxes::arrows()
{
    const auto compare = [](auto &&box) {
        box.setValue(50);
        QVERIFY(User::show(box));
        QStyleOptionSpinBox option;
        option.initFrom(&box);
        const QRect up =
            box.style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, &box);
        QTest::mouseClick(&box, Qt::LeftButton, {}, up.center());
        QCOMPARE(double(box.value()), 51.0);
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
