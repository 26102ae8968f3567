#include "editorrow.h"
#include "slidereditframe_p.h"

#include <memory>

using Vantor::Widgets::SliderEditDoubleSpinBox;
using Vantor::Widgets::SliderEditSpinBox;

// Both spin boxes on one page, without keyboard tracking as the editors have them.
class TestSpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setUp();
    void wheel();
    void keys_data();
    void keys();
    void suffix();
    void suffixSetLater();

private:
    template <typename SpinBox> SpinBox *addToPage();
    QAbstractSpinBox *spinBox(bool isInt) const;

    std::unique_ptr<EventLog> m_log;
    std::unique_ptr<Page> m_page;
    SliderEditSpinBox *m_int = nullptr;
    SliderEditDoubleSpinBox *m_double = nullptr;
};

template <typename SpinBox> SpinBox *TestSpinBoxes::addToPage()
{
    auto *box = new SpinBox(m_page.get());
    box->setKeyboardTracking(false);
    m_page->layout()->addWidget(box);
    m_log->watch(box, &SpinBox::editingFinished, "editing");
    m_log->watch(box, &SpinBox::enterFinished, "enter");
    using Value = decltype(box->value());
    m_log->watch(box, QOverload<Value>::of(&SpinBox::valueChanged), "value");
    return box;
}

QAbstractSpinBox *TestSpinBoxes::spinBox(bool isInt) const
{
    return isInt ? static_cast<QAbstractSpinBox *>(m_int) : m_double;
}

void TestSpinBoxes::init()
{
    m_log = std::make_unique<EventLog>();
    m_page = std::make_unique<Page>(*m_log);
    m_int = addToPage<SliderEditSpinBox>();
    m_double = addToPage<SliderEditDoubleSpinBox>();
    QVERIFY(User::show(*m_page));
    m_page->setFocus();
    m_log->take();
}

void TestSpinBoxes::cleanup()
{
    m_page.reset();
    m_log.reset();
}

// A host finds its keyboard by the property; any text is valid.
void TestSpinBoxes::setUp()
{
    for (const bool isInt : {true, false}) {
        const QAbstractSpinBox *box = spinBox(isInt);
        QCOMPARE(box->property("Quelmo_VK"), QVariant(isInt ? "Vk_Number" : "Vk_NumberFloat"));
        QVERIFY(box->testAttribute(Qt::WA_AcceptTouchEvents));
        QString text = "any text";
        int pos = 3;
        QCOMPARE(box->validate(text, pos), QValidator::Acceptable);
        QCOMPARE(text + QString::number(pos), QString("any text3"));
    }
}

// A turn steps the value only where it is enabled and the box has the focus;
// any other goes to the page.
void TestSpinBoxes::wheel()
{
    for (const bool isInt : {true, false}) {
        QAbstractSpinBox *box = spinBox(isInt);
        for (const bool hasFocus : {false, true}) {
            (hasFocus ? static_cast<QWidget *>(box) : m_page.get())->setFocus();
            for (const bool isEnabled : {true, false}) {
                m_int->setWheelEnable(isEnabled);
                m_double->setWheelEnable(isEnabled);
                m_log->take();
                User::turnWheel(box);
                QCOMPARE(m_log->take(),
                         QStringList(hasFocus && isEnabled ? "value(1)" : "page: wheel"));
            }
        }
    }
}

void TestSpinBoxes::keys_data()
{
    QTest::addColumn<bool>("isInt");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("log");

    const auto row = [](bool isInt, const char *name, const QString &typed, const char *text,
                        const QStringList &log) {
        QTest::addRow("%s, %s", isInt ? "int" : "double", name) << isInt << typed << text << log;
    };
    // Neither does the base interpret the text on these keys nor the page see them.
    const QStringList finished {"editing()", "enter()"};
    for (const bool isInt : {true, false}) {
        row(isInt, "Return", "5\n", "5", finished);
        row(isInt, "Enter", "5\r", "5", finished);
    }
    // The integer box says so before the base interprets the text.
    row(true, "Tab", "5\t", "5", {"editing()", "value(5)", "editing()"});
    row(false, "Tab", "5\t", "5.00", {"value(5)", "editing()"});

    const QStringList enter {"enter()"};
    row(true, "product", "2*3=", "6", enter);
    row(true, "too great", "1000=", "100", enter);
    row(true, "too small", "-1=", "0", enter);
    row(true, "syntax error", "2+=", "7", enter);
    const QStringList editing {"editing()"};
    row(false, "quotient", "3/4=", "0.75", editing);
    row(false, "third decimal", "1.259=", "1.25", editing);
    row(false, "too great", "1000=", "9.50", editing);
    row(false, "too small", "-1=", "0.50", editing);
    row(false, "syntax error", "2+=", "7.5", editing);
}

void TestSpinBoxes::keys()
{
    QFETCH(bool, isInt);
    QFETCH(QString, typed);
    m_int->setSpinBoxCal(7, 100, 0, 0, 2);
    m_double->setSpinBoxCal(7.5F, 9.5F, 0.5F, 2, 2, false);
    spinBox(isInt)->setFocus();
    spinBox(isInt)->selectAll();
    User::type(typed);
    QTEST(m_log->take(), "log");
    QTEST(spinBox(isInt)->text(), "text");
}

void TestSpinBoxes::suffix()
{
    m_double->setSuffix("mm");
    m_double->setValue(2.5);
    QCOMPARE(m_double->text(), QString("2.50mm"));
    m_double->setSpinBoxCal(2.5F, 100, 0, 2, 2, false);
    for (int round = 0; round < 2; ++round) {
        m_double->setFocus();
        QCOMPARE(m_double->text(), QString("2.50"));
        QCOMPARE(m_double->suffix(), QString());
        m_page->setFocus();
        QCOMPARE(m_double->text(), QString("2.50mm"));
    }
    m_double->setFocus();
    m_double->setSlotEditingFinished();
    QCOMPARE(m_double->text(), QString("2.50mm"));
}

void TestSpinBoxes::suffixSetLater()
{
    m_double->setFocus();
    m_page->setFocus();
    m_double->setSuffix("mm");
    m_double->setFocus();
    QCOMPARE(m_double->text(), QString("0.00"));
    // While it is removed, another focus-in leaves the field alone.
    m_double->setSuffix("s");
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(m_double, &again);
    QCOMPARE(m_double->suffix(), QString("s"));
    m_page->setFocus();
    QCOMPARE(m_double->suffix(), QString("mm"));
}

int main(int argc, char *argv[])
{
    return runTest<TestSpinBoxes>(argc, argv);
}

#include "tst_spinboxes.moc"
