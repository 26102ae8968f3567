#include "eventlog.h"
#include "qlineeditcal.h"
#include "testuser.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

using Vantor::Widgets::LineEditCal;

class tst_LineEditCal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editing_data();
    void editing();
    void results();
    void expressions_data();
    void expressions();
    void decimalsOfEntries();
    void order();
};

namespace {

// A failing evaluation shows 8.5.
struct Field : LineEditCal
{
    Field()
    {
        setInitialResult(8.5F);
        log.watch(this, &LineEditCal::signalsResult, "result");
        User::show(*this);
    }

    EventLog log;
};

} // namespace

void tst_LineEditCal::editing_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *script, const char *shown) {
        QTest::newRow(script) << QString::fromUtf8(script) << QString::fromUtf8(shown);
    };
    row("12<a", "1|2");
    row("5\u2212\u0663\u00e93", "53|");
    // Characters beyond the first plane: none of their two halves stays or goes alone.
    row("12\xf0\x9f\x98\x80", "12|");
    row("12[\xf0\x9f\x98\x80*3\xf0\x9f\x98\x80]=", "36|=");
    row("[1\xf0\x9f\x98\x80+2]<\xf0\x9f\x98\x81", "1\xf0\x9f\x98\x80+|2");
    row("[1\xf0\x9f\x98\x80+2]=", "8.5|=");
    row("0.1+1.259", "0.1+1.25|");
    row("(1.25)*2.5.", "(1.25)*2.5|");
    row("*3<<07", "7|*3");
    row("1.25*3<<9", "1.25|*3");
    row("12<=", "1=|2");
    row("12\b\b", "|");
    row("-1/0=", "0|="); // only "Infinity" itself fails
    row("3,4=", "4|=");
    row("99999=", "10000|=");
    row("-99999=", "-10000|=");
    row("2*3=*4=", "24|==");
    row("2*3=+=", "6|==");
    row("8.5\n", "8.5|"); // the last result as it is: left alone
    row("8.5*3\n", "26|");
    row("3[+1.234]", "3+1.234|");
    row("[007.5+00.5]", "7.5+0.5|");
    row("[Math.max(2,11)=]", "11|=");
    row("[while(true){}=]", "8.5|=");
}

// Types the script; "<" steps back, what stands in "[]" is pasted, "\n" finishes. Shown is
// the cursor as "|" and behind the text a "=" for each result.
void tst_LineEditCal::editing()
{
    QFETCH(QString, script);
    Field field;
    const QRegularExpression step("\\[.*?\\]|.", QRegularExpression::DotMatchesEverythingOption);
    for (auto steps = step.globalMatch(script); steps.hasNext();) {
        const QString text = steps.next().captured();
        if (text == "<")
            User::press(Qt::Key_Left);
        else if (text == "\n")
            field.setSlotEditingFinished();
        else if (text.startsWith('['))
            User::paste(text.mid(1, text.size() - 2));
        else if (text.size() == 1)
            User::type(text);
        else // beyond the first plane
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, text, {});
    }
    QString shown = field.text();
    shown.insert(field.cursorPosition(), '|');
    QTEST(shown + QString(field.log.take().size(), '='), "shown");
}

void tst_LineEditCal::results()
{
    const auto check = [](const char *typed, int decimals, float minimum, float maximum,
                          float before, const char *text) {
        Field field;
        QCOMPARE(field.property("noSpaceingLineEdit"), QVariant(true));
        field.setResultsRadixPointSeveral(decimals);
        field.setLineEditMinOrMax(minimum, maximum);
        field.setInitialResult(before);
        User::type(typed);
        QCOMPARE(field.text(), QString(text));
    };
    check("2/3=", 2, -100, 100, 8, "0.67");
    check("100.5=", 2, -100, 100, 8, "100.00");
    check("16777217=", 0, -1e9F, 1e9F, 8, "16777216");
    check("=", 0, 3, 9, 8, "3");
    check("=", 1, -9, -3, 8, "-3.0");
    check("7=", 0, 5, 1, 8, "5"); // inverted: the minimum wins
    // The decimals of an entry are held against the last filtering pass, which a
    // result does not replace.
    check("1.25+2=9", 2, -100, 100, 8, "1.25");
    check("1/0=", 2, -100, 100, 2.5F, "2.5");
    check("1/0=", 2, -100, 100, 1234567, "1.23457e+06");
}

// Whatever engine evaluates: no text gives another number.
void tst_LineEditCal::expressions_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("result");
    QFile table(EXPRESSIONS);
    QVERIFY(table.open(QIODevice::ReadOnly));
    while (!table.atEnd()) {
        const QByteArrayList words = table.readLine().trimmed().split(' ');
        if (words.first() == "#")
            continue;
        const bool fails = words.size() > 2 && QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);
        QTest::newRow(words.at(0))
            << QString(words.at(0)) << QString(fails ? "fails" : words.at(1));
    }
}

void tst_LineEditCal::expressions()
{
    QFETCH(QString, expression);
    Field field;
    field.setResultsRadixPointSeveral(3);
    field.setLineEditMinOrMax(-1e5F, 1e5F);
    field.insert(expression + '=');
    QTEST(field.text() == "8.5" ? QString("fails") : field.text(), "result");
}

// Of what is typed; a sign alone has none to limit.
void tst_LineEditCal::decimalsOfEntries()
{
    Field field;
    field.setInputRadixPointSeveral(1);
    User::type("4.56");
    QCOMPARE(field.text(), QString("4.5"));
    field.clear();
    field.setInputRadixPointSeveral(-1);
    User::type("+-");
    QCOMPARE(field.cursorPosition(), 2); // no number stands there
}

// Writes of the filtering pass are silent, the write of a result is not.
void tst_LineEditCal::order()
{
    Field field;
    field.log.watch(&field, &QLineEdit::textChanged, "text");
    User::type("07*2=");
    QCOMPARE(field.log.take().join(' '),
             QString("text(0) text(07) text(7*) text(7*2) text(14) result() text(7*2=)"));
}

QTEST_MAIN(tst_LineEditCal)

#include "tst_lineeditcal.moc"
