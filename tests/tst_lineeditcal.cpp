#include "eventlog.h"
#include "qlineeditcal.h"
#include "userevents.h"

#include <memory>

using Vantor::Widgets::LineEditCal;

class TestLineEditCal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void typing_data();
    void typing();
    void pasting_data();
    void pasting();
    void resultFormat_data();
    void resultFormat();
    void editedResult();
    void evaluationOrder();
    void editingFinished();
    void clearing();

private:
    std::unique_ptr<EventLog> m_log;
    std::unique_ptr<LineEditCal> m_field;
};

// A failing evaluation shows 8.
void TestLineEditCal::init()
{
    m_field.reset();
    m_log = std::make_unique<EventLog>();
    m_field = std::make_unique<LineEditCal>();
    m_field->setInitialResult(8);
    m_log->watch(m_field.get(), &LineEditCal::signalsResult, QStringLiteral("result"));
    QVERIFY(User::show(*m_field));
    QCOMPARE(m_field->property("noSpaceingLineEdit"), QVariant(true));
}

void TestLineEditCal::typing_data()
{
    QTest::addColumn<QString>("typed"); // "<" steps back
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cursor");
    QTest::addColumn<int>("results");

    const auto row = [](const char *typed, const char *text, int cursor, int results = 0) {
        QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(text) << cursor
                             << results;
    };
    row("12*3=", "36", 2, 1);
    row("(1+25)*2-4/2=", "50", 2, 1);
    row("12a", "12", 2);
    row("12<a", "12", 1);
    row("5\u2212\u0663\u00e93", "53", 2);
    row("07", "7", 1);
    row("0.", "0.", 2);
    row("0.25", "0.25", 4);
    row("100", "100", 3);
    row("1+05", "1+5", 3);
    row("1.259", "1.25", 4);
    row("1.5.", "1.5", 3);
    row("0.1+1.259", "0.1+1.25", 8);
    row("(1.25)*2.5.", "(1.25)*2.5", 10);
    row("12<=", "1=2", 2);
    row("1/0=", "8", 1, 1);
    row("-1/0=", "0", 1, 1);
    row("2+=", "8", 1, 1);
    row("99999=", "10000", 5, 1);
    row("-99999=", "-10000", 6, 1);
    row("3,4=", "4", 1, 1);
    row("=", "0", 1, 1);
    row("2*3=*4=", "24", 2, 2);
    row("2*3=+=", "6", 1, 2);
}

void TestLineEditCal::typing()
{
    QFETCH(QString, typed);
    QFETCH(QString, text);
    const QStringList parts = typed.split(QLatin1Char('<'));
    User::type(parts.constFirst());
    for (const QString &part : parts.mid(1)) {
        User::press(Qt::Key_Left);
        User::type(part);
    }
    QCOMPARE(m_field->text(), text);
    QTEST(m_field->cursorPosition(), "cursor");
    QTEST(int(m_log->take().count(QStringLiteral("result()"))), "results");
}

void TestLineEditCal::pasting_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result"); // of "=" behind it

    const auto row = [](const char *typed, const char *pasted, const char *text,
                        const char *result) {
        QTest::newRow(pasted) << typed << pasted << text << result;
    };
    row("12", "x5x", "125", "125");
    row("", "ab1", "ab1", "8");
    row("3", "+1..2", "3+1..2", "8");
    row("3", "+1.234", "3+1.234", "4");
    row("", "007.5+00.5", "7.5+0.5", "8");
    row("", "Math.max(2,11)=", "11", "11");
    row("", "while(true){}=", "8", "8");
    row("", "x=5;x", "=5;", "8");
}

void TestLineEditCal::pasting()
{
    QFETCH(QString, typed);
    QFETCH(QString, pasted);
    User::type(typed);
    User::paste(pasted);
    QTEST(m_field->text(), "text");
    User::type(QStringLiteral("="));
    QTEST(m_field->text(), "result");
}

void TestLineEditCal::resultFormat_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<float>("minimum");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<float>("before");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *typed, int decimals, float minimum, float maximum, float before,
                        const char *text) {
        QTest::addRow("%s to %d", typed, decimals)
            << typed << decimals << minimum << maximum << before << text;
    };
    row("12*3=", 2, -100, 100, 8, "36.00");
    row("2/3=", 2, -100, 100, 8, "0.67");
    row("0.1+0.2=", 2, -100, 100, 8, "0.30");
    row("16777217=", 0, -1e9F, 1e9F, 8, "16777216");
    row("=", 0, 3, 9, 8, "3");
    row("=", 1, -9, -3, 8, "-3.0");
    row("7=", 0, 5, 1, 8, "5"); // inverted: the minimum wins
    row("1/0=", 2, -100, 100, 5, "5");
    row("1/0=", 2, -100, 100, 2.5F, "2.5");
    row("1/0=", 2, -100, 100, 1234567, "1.23457e+06");
}

void TestLineEditCal::resultFormat()
{
    QFETCH(QString, typed);
    QFETCH(int, decimals);
    QFETCH(float, minimum);
    QFETCH(float, maximum);
    QFETCH(float, before);
    m_field->setResultsRadixPointSeveral(decimals);
    m_field->setLineEditMinOrMax(minimum, maximum);
    m_field->setInitialResult(before);
    User::type(typed);
    QTEST(m_field->text(), "text");
}

// The decimal rule looks back at the tokens of the last filtering pass, which a
// result does not replace.
void TestLineEditCal::editedResult()
{
    m_field->setResultsRadixPointSeveral(2);
    User::type(QStringLiteral("1.25+2="));
    QCOMPARE(m_field->text(), QStringLiteral("3.25"));
    User::type(QStringLiteral("9"));
    QCOMPARE(m_field->text(), QStringLiteral("1.25"));

    m_field->clear();
    m_field->setInputRadixPointSeveral(1);
    User::type(QStringLiteral("4.56"));
    QCOMPARE(m_field->text(), QStringLiteral("4.5"));
}

// Writes of the filtering pass are silent, the write of a result is not.
void TestLineEditCal::evaluationOrder()
{
    m_log->watch(m_field.get(), &QLineEdit::textChanged, QStringLiteral("text"));
    User::type(QStringLiteral("07*2="));
    const QStringList expected {QStringLiteral("text(0)"),   QStringLiteral("text(07)"),
                                QStringLiteral("text(7*)"),  QStringLiteral("text(7*2)"),
                                QStringLiteral("text(14)"),  QStringLiteral("result()"),
                                QStringLiteral("text(7*2=)")};
    QCOMPARE(m_log->take(), expected);
}

void TestLineEditCal::editingFinished()
{
    m_field->setResultsRadixPointSeveral(2);
    m_field->setInitialResult(2.5F);
    User::type(QStringLiteral("2.5"));
    m_field->setSlotEditingFinished(); // the last result as it is: left alone
    QCOMPARE(m_field->text(), QStringLiteral("2.5"));
    User::type(QStringLiteral("*3"));
    m_field->setSlotEditingFinished();
    QCOMPARE(m_field->text(), QStringLiteral("7.50"));
    QCOMPARE(m_log->take(), QStringList());
}

void TestLineEditCal::clearing()
{
    User::type(QStringLiteral("12"));
    User::press(Qt::Key_A, Qt::ControlModifier);
    User::press(Qt::Key_Delete);
    QCOMPARE(m_field->text(), QString());
    User::type(QStringLiteral("5"));
    QCOMPARE(m_field->text(), QStringLiteral("5"));
    QCOMPARE(m_log->take(), QStringList());
}

int main(int argc, char *argv[])
{
    return runTest<TestLineEditCal>(argc, argv);
}

#include "tst_lineeditcal.moc"
