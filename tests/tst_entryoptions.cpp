#include "cropeditframe.h"
#include "editoruser.h"

#include <QtCore/QFile>

#include <cmath>
#include <random>

using namespace Vantor::Widgets;

// How an option changes an entry of the user, alone and combined with another one.
class tst_EntryOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows() { runTestCode(); }
    void composite_data();
    void composite() { runTestCode(); }
    void nearestValue_data();
    void nearestValue() { runTestCode(); }
};

// The rows of the table, for both kinds of editor.
void tst_EntryOptions::rows_data()
{
    QTest::addColumn<TestCode>("code");
    const auto whole = rowsAfter<SliderEditFrame>("range 0 100 | value 50 | ", 1);
    const auto fraction = rowsAfter<SliderEditFrameDouble>("range 0 100 | value 50 | ", 1);
    QFile table(ENTRY_OPTIONS);
    QVERIFY(table.open(QIODevice::ReadOnly));
    while (!table.atEnd()) {
        const QString line = QString::fromUtf8(table.readLine()).trimmed();
        const QString kind = line.section(' ', 0, 0), name = line.section(' ', 1);
        const QString steps = QString(name).replace("\\n", "\n").replace("\\t", "\t");
        if (kind == "int")
            whole(name, steps);
        else if (kind == "double")
            fraction(name, steps);
        else
            QCOMPARE(kind, QString("#"));
    }
    // The program sets the number at the first key: a text without a comma is not written again.
    QTest::newRow("options comma, set at the start") << TestCode([] {
        UserOf<SliderEditFrameDouble> user(1);
        QObject::connect(user.frame, &SliderEditFrameDouble::editStarted, &user.page,
                         [&user] { user.perform("value 7"); });
        user.play("options comma | range 0 100 | type 7 | shown: 7.00");
    });
}

// A crop still limits an entry.
void tst_EntryOptions::composite_data()
{
    QTest::addColumn<TestCode>("code");
    const auto row = rowsAfter<CropEditFrame>("area 640 360 | crop 0 0 100 100 | ");
    row("crop",
        "options comma escape stays | w type 64,5*2\n: finished crop(0,0,129,100) w(129) "
        "(0,0,129,100) | w keys 9 | w escape | w selected: all | "
        "w keys 999\n: finished crop(0,0,640,100) w(640) (0,0,640,100) | w keys \n: key | "
        "w keys \t: finished finished");
    row("crop, finished by the program",
        "w type 999 | pending: yes | finish: finished crop(0,0,640,100) w(640) (0,0,640,100) | "
        "pending: no | keys \t: finished finished");
}

namespace {

// A decimal number with up to three decimals as typed.
struct Decimal
{
    qint64 digits;
    int places;
    qint64 scale = places == 0 ? 1 : places == 1 ? 10 : places == 2 ? 100 : 1000;
    QString text = QString::number(double(digits) / double(scale), 'f', places);
};

// The user enters random expressions; the value is the nearest to the exact result. Skips
// results halfway between two values, where QString::number() depends on the double.
template <typename Frame> void compareWithExact(int decimals)
{
    std::mt19937 random(7);
    const auto any = [&random](int least, int most) {
        return std::uniform_int_distribution<>(least, most)(random);
    };
    UserOf<Frame> user(1);
    if (decimals > 0)
        user.perform(QString("decimals %1").arg(decimals));
    constexpr bool isWide = UserOf<Frame>::isWhole;
    user.perform(isWide ? "range -2147483648 2147483647" : "range -2000 2000");
    user.performAll("options exact stays | click");
    const int set = qEnvironmentVariableIntValue("VANTORSLIDER_EXPRESSIONS");
    const qint64 steps = qRound64(std::pow(10, decimals));
    for (int left = set > 0 ? set : 100; left > 0; --left) {
        const int places = isWide ? 0 : qMin(decimals, 3);
        const Decimal a {isWide ? any(-2147483647, 2147483647) : any(0, 9999), any(0, places)},
            b {any(1, 9999), any(0, places)}, c {any(1, 99), any(0, qMin(places, 1))};
        // ((a + b) * c, or / c) as numerator and denominator.
        const qint64 sum = a.digits * b.scale + b.digits * a.scale, scale = a.scale * b.scale;
        const bool isProduct = any(0, 1) == 1;
        const qint64 numerator = sum * (isProduct ? c.digits : c.scale);
        const qint64 denominator = scale * (isProduct ? c.scale : c.digits);
        const qint64 doubled = qAbs(numerator) * steps * 2;
        const qint64 magnitude = (doubled + denominator) / (2 * denominator);
        if ((doubled + denominator) % (2 * denominator) == 0)
            continue;
        const double exact = double(numerator < 0 ? -magnitude : magnitude) / double(steps);
        const QString text =
            '(' + a.text + '+' + b.text + ')' + (isProduct ? '*' : '/') + c.text + '\n';
        user.row.field->selectAll();
        user.perform("keys " + text);
        const double held =
            qBound(double(user.frame->minimum()), exact, double(user.frame->maximum()));
        QVERIFY2(QString::number(double(user.frame->value()), 'f', decimals)
                     == QString::number(held, 'f', decimals),
                 qPrintable(text));
    }
}

} // namespace

void tst_EntryOptions::nearestValue_data()
{
    QTest::addColumn<TestCode>("code");
    QTest::newRow("int") << TestCode([] { compareWithExact<SliderEditFrame>(0); });
    for (const int decimals : {0, 1, 2, 3, 4, 5, 6})
        QTest::addRow("%d decimals", decimals)
            << TestCode([decimals] { compareWithExact<SliderEditFrameDouble>(decimals); });
}

QTEST_MAIN(tst_EntryOptions)

#include "tst_entryoptions.moc"
