#include "editoruser.h"

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
    void nearestValue_data();
    void nearestValue() { runTestCode(); }
};

void tst_EntryOptions::rows_data()
{
    QTest::addColumn<TestCode>("code");
    const QString start = "range 0 100 | value 50 | ";
    addTable(ENTRY_OPTIONS,
             {{"int", rowsAfter<SliderEditFrame>(start, 1)},
              {"double", rowsAfter<SliderEditFrameDouble>(start, 1)},
              {"crop", rowsAfter<CropEditFrame>("area 640 360 | crop 0 0 100 100 | ")}});
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
