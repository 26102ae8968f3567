#include "cropeditframe.h"
#include "editoruser.h"

#include <cmath>
#include <random>

using namespace Vantor::Widgets;

// How an option changes an entry of the user, alone and combined with another one.
class tst_EntryOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whole_data();
    void whole() { runTestCode(); }
    void fraction_data();
    void fraction() { runTestCode(); }
    void composite_data();
    void composite() { runTestCode(); }
    void nearestValue_data();
    void nearestValue() { runTestCode(); }
};

// An editor from 0 to 100 that shows 50.
template <typename Frame> auto rowsOfSteps()
{
    return [row = rowsAfter<Frame>("range 0 100 | value 50 | ", 1)](const QString &steps) {
        row(QString(steps).replace('\n', "Enter").replace('\t', "Tab"), steps);
    };
}

void tst_EntryOptions::whole_data()
{
    QTest::addColumn<TestCode>("code");
    const auto row = rowsOfSteps<SliderEditFrame>();
    row("options exact | range 0 2147483647 | enter 16777217: 16777217 | shown: 16777217");
    row("options exact | range -2147483648 99 | type 1-2147483648\t: finished -2147483647 "
        "finished");
    // Clamped to the current range, not to that of the last value.
    row("options exact | range 0 300 | enter 250: 250 | range 0 400 | enter 999: 400");
    row("options exact | type 1.5*3 | shown: 1.*3/50 | elsewhere: finished 3 finished");
    row("options exact | enter 127/2: 64");
    row("options exact | range 0 16777217 | value 16777217 | enter 1/0 | refused: yes | "
        "shown: 16777217 | elsewhere");
    row("options exact | enter 0/0 | refused: yes | click | elsewhere: finished finished | "
        "shown: 50");
    row("options comma | enter 2,5*4: 10 | type 7,25,5 | shown: 7.25/10");
    row("options comma | click | paste 1,2,3 | hide: finished finished | refused: yes");
    row("value 9 | options exact stays | type 9.\n: key | shown: 9");
    row("options comma | click | paste 2Math.max(3,7) | shown: 2Math.max(3,7)/50");
    row("options escape | type 12* | escape | shown: 50 | selected: all | escape: key | "
        "elsewhere: finished finished");
    row("options escape | type 7 | escape | keys 8\t: finished 8 finished");
    row("options escape | enter 1/0 | refused: yes | focus | escape | refused: no | escape: key");
    row("options escape | click | escape: key | keys 7\t: finished 7 finished");
    row("options stays | type 12*3\n: finished 36 | selected: all | keys 7\n: finished 7 | "
        "focused: other | keys \n: key | keys \t: finished finished");
    row("options stays | type 12*3=: 36 | selected: all | keys 7=: 7 | keys 7\n: key");
    row("options stays | type 2+\n: finished | refused: yes | selected: all | keys \n: key");
    row("options stays | suffix  px | type 8\n: finished 8 | selected: 8 | shown: 8 px");
    // Out of range, the value does not change; the text does.
    row("options stays | value 100 | type 320\n: finished | shown: 100 | keys \n: key");
    row("options escape | value 100 | type 320 | escape | shown: 100 | escape: key");
    row("options stays | type 7 | hide: 7 finished finished");
    row("options exact comma | enter 2,6*2: 4");
    row("options exact escape | range 0 16777217 | value 16777217 | type 5 | escape | "
        "shown: 16777217 | keys 1/0\t: finished finished | shown: 16777217");
    row("options exact stays | range 0 16777217 | type 16777216+1\n: finished 16777217 | "
        "keys \n: key");
    row("options comma escape | type 2,5 | escape | shown: 50 | escape: key");
    row("options comma stays | type 2,5*2\n: finished 5 | keys 1,5*2=: 3");
    row("options escape stays | type 1/0\n: finished | refused: yes | escape | refused: no | "
        "selected: all | escape: key | keys 8\n: finished 8 | escape: key");
    row("type 12* | escape: key | elsewhere: finished finished");
}

void tst_EntryOptions::fraction_data()
{
    QTest::addColumn<TestCode>("code");
    const auto row = rowsOfSteps<SliderEditFrameDouble>();
    row("decimals 3 | options exact | enter 0.125: 0.125 | type 0.1269 | shown: 0.126/125");
    row("options exact | range 0 300 | enter 250: 250 | range 0 400 | enter 999: 400");
    row("decimals 3 | range 0 9999999 | value 1234567.891 | options exact | suffix mm | click | "
        "elsewhere | shown: 1234567.891mm | enter 1/0 | shown: 1234567.891mm");
    row("decimals 3 | range 0 9999999 | value 1234567.891 | options exact | type 1/0= | "
        "refused: yes | shown: 1234567.891");
    row("options comma | enter 2,5: 2.5 | type 3,5, | shown: 3.5/250 | elsewhere: 3.5");
    row("options comma | click | paste 2,5 | keys \n: 2.5 | click | paste 0,5= | elsewhere: 0.5");
    row("options comma | click | paste Math.max(3,7)+Math.min((1,5),2) | keys \n: 8.5");
    row("options comma | prefix $ | suffix ,- | enter 2,5: 2.5 | shown: $2.50,-");
    row("options escape | type 1/4 | escape | shown: 50.00 | selected: all | escape: key");
    // An evaluated result is an entry until the field loses the focus.
    row("options escape | type 1/4= | escape | shown: 50.00 | keys 1/0\t | shown: 50.00");
    row("options stays | type 1/4\n: 0.25 | selected: all | keys 1/2\n: 0.5 | keys \n: key");
    row("options stays | type 1/4=: 0.25 | selected: all | keys 1/2=: 0.5 | keys \t");
    row("options stays | suffix mm | type 3/2\n: 1.5 | shown: 1.50mm | keys 3\n: 3 | elsewhere | "
        "shown: 3.00mm");
    row("decimals 3 | options exact comma | enter 0,125: 0.125");
    row("decimals 3 | options exact escape | value 0.125 | type 9 | escape | shown: 0.125");
    row("decimals 3 | options exact stays | type 1/8\n: 0.125 | keys 0.126=: 0.126");
    row("options comma escape | type 2,5 | escape | shown: 50.00 | escape: key");
    row("options comma stays | type 2,5\n: 2.5 | keys 1,5\n: 1.5");
    row("options escape stays | type 2+\n | refused: yes | escape | refused: no | escape: key");
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
