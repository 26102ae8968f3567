#include "eventlog.h"
#include "qlineeditcal.h"
#include "testuser.h"

#include <QtCore/QRegularExpression>

#include <ctime>
#include <limits>

using Vantor::Widgets::LineEditCal;

class tst_LineEditCal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editing_data();
    void editing();
    void pasted_data();
    void pasted();
    void longTexts_data();
    void longTexts();
    void order();
};

void tst_LineEditCal::editing_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("shown");
    const auto row = [](const QString &script, const QString &shown) {
        QTest::newRow(QString(script).replace('\n', "\\n").toUtf8()) << script << shown;
    };
    for (const QString &line : linesOf(FIELD_SCRIPTS)) {
        const auto at = line.indexOf(" -> ");
        row(line.left(at).replace("\\n", "\n").replace("\\b", "\b"), line.mid(at + 4));
    }
    // With both script engines each text gives the same number.
    for (const QString &line : linesOf(EXPRESSIONS)) {
        const QStringList words = line.split(' ');
        const bool fails = words[1] == "fails" || (words.size() > 2 && QT_VERSION_MAJOR > 5);
        row("{3 2 -1e5 1e5 8.5}[" + words[0] + "=]", (fails ? "8.5" : words[1]) + "|=");
    }
}

void tst_LineEditCal::editing()
{
    QFETCH(QString, script);
    EventLog log;
    LineEditCal field;
    log.watch(&field, &LineEditCal::signalsResult, "result");
    field.setInitialResult(8.5F);
    QVERIFY(User::show(field));
    const QRegularExpression step("(?s)\\[.*?\\]|\\{.*?\\}|.");
    for (auto steps = step.globalMatch(script); steps.hasNext();) {
        const QString text = steps.next().captured();
        const QString inside = text.mid(1, text.size() - 2);
        if (text == "<") {
            User::press(Qt::Key_Left);
        } else if (text == "\n") {
            field.setSlotEditingFinished();
        } else if (text.startsWith('[')) {
            User::paste(inside);
        } else if (text.startsWith('{')) {
            const QStringList numbers = inside.split(' ');
            field.setResultsRadixPointSeveral(numbers[0].toInt());
            field.setInputRadixPointSeveral(numbers[1].toInt());
            field.setLineEditMinOrMax(numbers[2].toFloat(), numbers[3].toFloat());
            field.setInitialResult(numbers[4].toFloat());
        } else if (text.size() == 1) {
            User::type(text);
        } else { // outside the BMP
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, text, {});
        }
    }
    QTEST(field.text().insert(field.cursorPosition(), '|') + QString(log.take().size(), '='),
          "shown");
    QVERIFY(field.property("noSpaceingLineEdit").toBool());
}

void tst_LineEditCal::pasted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    for (const QString &line : linesOf(PASTED_TEXTS)) {
        const QString text = line.section(' ', 1);
        QTest::newRow(text.toUtf8()) << text << line.section(' ', 0, 0);
    }
    QTest::newRow("new line") << "4\n/2"
                              << "2.000";
    // Part of what follows, where a "/" begins a regular expression literal.
    QTest::newRow("new line, ++") << "a\n++\n/(1*1*2)/(1)"
                                  << "fails";
    QTest::newRow("half a surrogate pair")
        << QString("eval('7'),'%1'").arg(QChar(0xD83D)) << "fails";
    for (const QString each : {"(", "1;", "x+1;", "x."})
        QTest::addRow("%s, a million characters", qPrintable(each))
            << each.repeated(1000000 / int(each.size())) + " 1"
            << "fails";
}

// The result of a text that was only pasted. No such text is evaluated as a program,
// and the field still works afterwards.
void tst_LineEditCal::pasted()
{
    QFETCH(QString, text);
    QFETCH(QString, result);
    LineEditCal field;
    field.setMaxLength(2000000);
    field.setResultsRadixPointSeveral(3);
    field.setInitialResult(8.5F);
    QVERIFY(User::show(field));
    field.setText(text + '=');
    QCOMPARE(field.text(), result == "fails" ? "8.5" : result);
    QCOMPARE(field.isEntryRefused(), result == "fails");
    field.selectAll();
    User::paste("1/1=");
    QCOMPARE(field.text(), QString("1.000"));
}

void tst_LineEditCal::longTexts_data()
{
    QTest::addColumn<QString>("part");
    for (const char *part : {"(", "- ", "!", "a=", "a:", "1?1:", "Math.abs(", "1,(", "a++,", ";",
                             "1 ", "1+", "'a'+", "1||", "x.", "'", "/ ", "0x", "\\"})
        QTest::newRow(part) << part;
}

// No text overflows the stack, and one that is ten times as long takes no more than twice ten times
// as long.
void tst_LineEditCal::longTexts()
{
    QFETCH(QString, part);
    LineEditCal field;
    QVERIFY(User::show(field));
    // The least processor time of several pastes: the other ones include work of the system.
    const auto timeOf = [&](int size) {
        std::clock_t least = std::numeric_limits<std::clock_t>::max();
        for (int i = 0; i < 5; ++i) {
            const std::clock_t start = std::clock();
            field.setText(part.repeated(size / int(part.size())) + " 1=");
            least = qMin(least, std::clock() - start);
        }
        return 1000.0 * double(least) / CLOCKS_PER_SEC;
    };
    const double ms = timeOf(3000), longer = timeOf(30000);
    QVERIFY2(longer < 20 * ms, qPrintable(QString("%1 %2").arg(ms).arg(longer)));
    field.setText("1/1=");
    QCOMPARE(field.text(), QString("1"));
}

// Writes of the filtering pass emit nothing; the write of a result does.
void tst_LineEditCal::order()
{
    EventLog log;
    LineEditCal field;
    log.watch(&field, &LineEditCal::signalsResult, "result");
    log.watch(&field, &QLineEdit::textChanged, "text");
    QVERIFY(User::show(field));
    User::type("07*2=");
    QCOMPARE(log.take().join(' '),
             QString("text(0) text(07) text(7*) text(7*2) text(14) result() text(7*2=)"));
}

QTEST_MAIN(tst_LineEditCal)

#include "tst_lineeditcal.moc"
