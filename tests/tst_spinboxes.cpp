#include "editorrow.h"
#include "slidereditframe_p.h"

#include <memory>

using Vantor::Widgets::SliderEditDoubleSpinBox;
using Vantor::Widgets::SliderEditSpinBox;

// Each test runs for both spin boxes: columns and members say where they differ.
class TestSpinBoxes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setUp();
    void wheel_data();
    void wheel();
    void keys_data();
    void keys();
    void expression_data();
    void expression();
    void locale_data();
    void locale();
    void suffix();
    void suffixSetLater();

private:
    template <typename SpinBox> void watch(SpinBox *spinBox);
    QAbstractSpinBox *named(const QString &name) const;

    std::unique_ptr<EventLog> m_log;
    std::unique_ptr<Page> m_page;
    SliderEditSpinBox *m_int = nullptr;
    SliderEditDoubleSpinBox *m_double = nullptr;
};

template <typename SpinBox> void TestSpinBoxes::watch(SpinBox *spinBox)
{
    spinBox->setKeyboardTracking(false);
    m_page->layout()->addWidget(spinBox);
    m_log->watch(spinBox, &SpinBox::editingFinished, QStringLiteral("editingFinished"));
    m_log->watch(spinBox, &SpinBox::enterFinished, QStringLiteral("enterFinished"));
    using Value = decltype(spinBox->value());
    m_log->watch(spinBox, QOverload<Value>::of(&SpinBox::valueChanged),
                 QStringLiteral("valueChanged"));
}

QAbstractSpinBox *TestSpinBoxes::named(const QString &name) const
{
    return name == QLatin1String("int") ? static_cast<QAbstractSpinBox *>(m_int) : m_double;
}

void TestSpinBoxes::init()
{
    m_log = std::make_unique<EventLog>();
    m_page = std::make_unique<Page>(*m_log);
    m_page->setFocusPolicy(Qt::StrongFocus);
    m_int = new SliderEditSpinBox(m_page.get());
    m_double = new SliderEditDoubleSpinBox(m_page.get());
    watch(m_int);
    watch(m_double);
    QVERIFY(User::show(*m_page));
    m_page->setFocus();
    m_log->take();
}

void TestSpinBoxes::cleanup()
{
    m_page.reset();
    m_log.reset();
    QLocale::setDefault(QLocale::c());
}

void TestSpinBoxes::setUp()
{
    QCOMPARE(m_int->property("Quelmo_VK"), QVariant(QStringLiteral("Vk_Number")));
    QCOMPARE(m_double->property("Quelmo_VK"), QVariant(QStringLiteral("Vk_NumberFloat")));
    for (QAbstractSpinBox *spinBox :
         {named(QStringLiteral("int")), named(QStringLiteral("double"))}) {
        QCOMPARE(spinBox->focusPolicy(), Qt::StrongFocus);
        QVERIFY(spinBox->testAttribute(Qt::WA_AcceptTouchEvents));
        QVERIFY(spinBox->findChild<QLineEdit *>()->inherits("Vantor::Widgets::LineEditCal"));
        QString text = QStringLiteral("any text");
        int pos = 3;
        QCOMPARE(spinBox->validate(text, pos), QValidator::Acceptable);
        QCOMPARE(text, QStringLiteral("any text"));
        QCOMPARE(pos, 3);
    }
}

void TestSpinBoxes::wheel_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<bool>("hasFocus");
    QTest::addColumn<QStringList>("log");

    for (const char *name : {"int", "double"}) {
        const QStringList toPage {QStringLiteral("page: wheel")};
        QTest::addRow("%s, disabled", name) << name << false << true << toPage;
        QTest::addRow("%s, without focus", name) << name << true << false << toPage;
        QTest::addRow("%s, enabled", name)
            << name << true << true << QStringList(QStringLiteral("valueChanged(1)"));
    }
}

void TestSpinBoxes::wheel()
{
    QFETCH(QString, name);
    QFETCH(bool, isEnabled);
    QFETCH(bool, hasFocus);
    m_int->setWheelEnable(isEnabled);
    m_double->setWheelEnable(isEnabled);
    if (hasFocus)
        named(name)->setFocus();
    User::turnWheel(named(name));
    QTEST(m_log->take(), "log");
}

void TestSpinBoxes::keys_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("log");

    // The base does not interpret the text on these keys, nor does the page see them.
    const QStringList finished {QStringLiteral("editingFinished()"),
                                QStringLiteral("enterFinished()")};
    // Leaving interprets it, between the integer box's own signal and the base's.
    const QStringList leftDouble {QStringLiteral("valueChanged(5)"),
                                  QStringLiteral("editingFinished()")};
    const QStringList leftInt = QStringList(QStringLiteral("editingFinished()")) + leftDouble;
    QTest::newRow("int, Return") << "int" << Qt::Key_Return << "5" << finished;
    QTest::newRow("int, Enter") << "int" << Qt::Key_Enter << "5" << finished;
    QTest::newRow("int, Tab") << "int" << Qt::Key_Tab << "5" << leftInt;
    QTest::newRow("double, Return") << "double" << Qt::Key_Return << "5" << finished;
    QTest::newRow("double, Enter") << "double" << Qt::Key_Enter << "5" << finished;
    QTest::newRow("double, Backtab") << "double" << Qt::Key_Backtab << "5.00" << leftDouble;
}

void TestSpinBoxes::keys()
{
    QFETCH(QString, name);
    QFETCH(Qt::Key, key);
    named(name)->setFocus();
    named(name)->selectAll();
    User::type(QStringLiteral("5"));
    QCOMPARE(m_log->take(), QStringList());
    User::press(key);
    QTEST(m_log->take(), "log");
    QTEST(named(name)->text(), "text");
}

void TestSpinBoxes::expression_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *typed, const char *text) {
        QTest::addRow("%s, %s", name, typed) << name << typed << text;
    };
    row("int", "2*3=", "6");
    row("int", "1000=", "100");
    row("int", "-1=", "0");
    row("int", "2+=", "7");
    row("int", "7/3=", "2");
    row("double", "3/4=", "0.75");
    row("double", "1.259=", "1.25");
    row("double", "1000=", "9.50");
    row("double", "-1=", "0.50");
    row("double", "2+=", "7.5");
}

void TestSpinBoxes::expression()
{
    QFETCH(QString, name);
    QFETCH(QString, typed);
    m_int->setSpinBoxCal(7, 100, 0, 0, 2);
    m_double->setSpinBoxCal(7.5F, 9.5F, 0.5F, 2, 2, false);
    named(name)->setFocus();
    named(name)->selectAll();
    User::type(typed);
    QTEST(named(name)->text(), "text");
    const bool isInt = name == QLatin1String("int");
    QCOMPARE(m_log->take(),
             QStringList(isInt ? QStringLiteral("enterFinished()")
                               : QStringLiteral("editingFinished()")));
}

void TestSpinBoxes::locale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany);
    QTest::newRow("Arabic") << QLocale(QLocale::Arabic, QLocale::Egypt);
}

// The calculator writes a decimal point wherever the host runs.
void TestSpinBoxes::locale()
{
    QFETCH(QLocale, locale);
    cleanup();
    QLocale::setDefault(locale);
    init();
    m_int->setRange(0, 9999999);
    m_int->setValue(1234567);
    QCOMPARE(m_int->text(), QStringLiteral("1234567"));
    m_double->setSpinBoxCal(0, 100, 0, 2, 2, false);
    m_double->setFocus();
    m_double->selectAll();
    User::type(QStringLiteral("1/4\b4\t"));
    QCOMPARE(m_double->value(), 0.25);
    QCOMPARE(m_double->text(), QStringLiteral("0.25"));
}

void TestSpinBoxes::suffix()
{
    m_double->setSuffix(QStringLiteral("mm"));
    m_double->setValue(2.5);
    QCOMPARE(m_double->text(), QStringLiteral("2.50mm"));
    m_double->setSpinBoxCal(2.5F, 100, 0, 2, 2, false);
    for (int round = 0; round < 2; ++round) {
        m_double->setFocus();
        QCOMPARE(m_double->text(), QStringLiteral("2.50"));
        QCOMPARE(m_double->suffix(), QString());
        m_page->setFocus();
        QCOMPARE(m_double->text(), QStringLiteral("2.50mm"));
    }
    m_double->setFocus();
    m_double->setSlotEditingFinished();
    QCOMPARE(m_double->text(), QStringLiteral("2.50mm"));
}

void TestSpinBoxes::suffixSetLater()
{
    m_double->setFocus();
    m_page->setFocus();
    m_double->setSuffix(QStringLiteral("mm"));
    m_double->setFocus();
    QCOMPARE(m_double->text(), QStringLiteral("0.00"));
    // While it is removed, another focus-in leaves the field alone.
    m_double->setSuffix(QStringLiteral("s"));
    QFocusEvent again(QEvent::FocusIn);
    QApplication::sendEvent(m_double, &again);
    QCOMPARE(m_double->suffix(), QStringLiteral("s"));
    m_page->setFocus();
    QCOMPARE(m_double->suffix(), QStringLiteral("mm"));
}

int main(int argc, char *argv[])
{
    return runTest<TestSpinBoxes>(argc, argv);
}

#include "tst_spinboxes.moc"
