#include "compositecases.h"
#include "edituser.h"
#include "rgballeditframe.h"
#include "rgbeditframe.h"
#include "rgbopacityeditframe.h"

using CompositeCases::Check;
using Vantor::Widgets::RGBAllEditFrame;
using Vantor::Widgets::RGBEditFrame;
using Vantor::Widgets::RGBOpacityEditFrame;

// The three colour editors.
class tst_RGBEditFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleProperties();
    void orderOfRows();
    void values_data();
    void values();
    void rows_data();
    void rows();
    void blockKeepsItsRows();
    void spacing();
    void labelMaxLength();
    void labelMaxLengthWithMaster();
};

void tst_RGBEditFrames::styleProperties()
{
    const auto properties = [](const QWidget &editor) {
        QStringList names;
        for (const Row &row : CompositeCases::rowsOf(editor))
            for (const QByteArray &name : row.slider->dynamicPropertyNames())
                names.append(row.slider->property(name) == QVariant(true) ? name : "not true");
        for (const QByteArray &name : editor.dynamicPropertyNames())
            names.append(editor.property(name) == QVariant(true) ? name : "not true");
        return names.join(QLatin1Char(' '));
    };
    const QString expected =
        QStringLiteral("isColorControl_Red isColorControl_Green isColorControl_Blue isSliderFrame");
    QCOMPARE(properties(RGBEditFrame()), expected);
    QCOMPARE(properties(RGBAllEditFrame()), expected);
    QCOMPARE(properties(RGBOpacityEditFrame()), expected);
}

// The master row stands above the block, the opacity below it.
void tst_RGBEditFrames::orderOfRows()
{
    const auto order = [](const QWidget &editor) {
        QStringList names {editor.objectName()};
        for (int i = 0; i < editor.layout()->count() - 1; ++i)
            names.append(editor.layout()->itemAt(i)->widget()->objectName());
        return names.join(QLatin1Char(' '));
    };
    QCOMPARE(order(RGBEditFrame()), QStringLiteral("RGBEditFrame frameR frameG frameB"));
    QCOMPARE(order(RGBAllEditFrame()), QStringLiteral("RGBAllEditFrame frameAll frameRGB"));
    QCOMPARE(order(RGBOpacityEditFrame()),
             QStringLiteral("RGBOpacityEditFrame frameRGB frameOpacity"));
}

namespace {

QString valuesOf(RGBEditFrame &frame)
{
    int r = -1, g = -1, b = -1;
    frame.value(r, g, b);
    return QStringLiteral("%1 %2 %3").arg(r).arg(g).arg(b);
}

template <typename Frame> QString valuesOf(Frame &frame)
{
    int r = -1, g = -1, b = -1, fourth = -1;
    frame.value(r, g, b, fourth);
    return QStringLiteral("%1 %2 %3 %4").arg(r).arg(g).arg(b).arg(fourth);
}

// The fourth row is f.
template <typename Frame> Check checkValues(const QString &steps)
{
    return [steps] {
        Frame frame;
        EditUser user(frame, QStringLiteral("rgbf"),
                      CompositeCases::rowsOf(frame).values().toVector());
        user.log.watch(&frame, &Frame::valueChanged, QString());
        user.check(steps, [&](const EditUser::Words &words) {
            const auto number = [&words](int i) { return words[i].toInt(); };
            const auto row = words.size() > 1
                ? typename Frame::Type(2 << QStringLiteral("rgbf").indexOf(words[1]))
                : typename Frame::Type();
            if (words[0] == QLatin1String("set"))
                frame.setValue(row, number(2));
            else if (words[0] == QLatin1String("range"))
                frame.setRange(row, number(2), number(3));
            else if (words[0] == QLatin1String("release"))
                frame.setReleaseMode(true);
            else if (words[0] == QLatin1String("drag"))
                User::drag(user.rows[1].slider, {200, 100, 255});
            else
                user.log.add(valuesOf(frame));
        });
    };
}

} // namespace

void tst_RGBEditFrames::values_data()
{
    QTest::addColumn<Check>("check");
    QTest::newRow("RGBEditFrame") << checkValues<RGBEditFrame>(
        "ranges: 0..255 0..255 0..255 | values: 50 50 50 | set g 120 | b=7: (50,120,7) | "
        "r-: (49,120,7) | g+: (49,121,7) | release | drag: (49,255,7) | range g 0 90 | "
        "values: 49 90 7 | b=2*4: (49,90,8)");
    QTest::newRow("RGBAllEditFrame") << checkValues<RGBAllEditFrame>(
        "ranges: 0..255 0..255 0..255 0..255 | values: 50 50 50 50 | f=200: (50,50,50,200) | "
        "g=10: (50,10,50,200) | set f 80 | range r 0 40 | b-: (40,10,49,80) | "
        "f-: (40,10,49,79) | set b 7 | values: 40 10 7 79");
    QTest::newRow("RGBOpacityEditFrame") << checkValues<RGBOpacityEditFrame>(
        "ranges: 0..255 0..255 0..255 0..100 | values: 50 50 50 100 | f=40: (50,50,50,40) | "
        "r=255: (255,50,50,40) | set f 150 | values: 255 50 50 100 | f-: (255,50,50,99) | "
        "g-: (255,49,50,99)");
}

void tst_RGBEditFrames::values()
{
    QFETCH(Check, check);
    check();
}

void tst_RGBEditFrames::rows_data()
{
    QTest::addColumn<Check>("check");
    CompositeCases::addChecks<RGBEditFrame>("RGBEditFrame");
    CompositeCases::addChecks<RGBAllEditFrame>("RGBEditFrame");
    CompositeCases::addChecks<RGBOpacityEditFrame>("RGBEditFrame");
    QTest::newRow("isMousePressed") << Check(CompositeCases::checkMousePressed<RGBEditFrame>);
}

void tst_RGBEditFrames::rows()
{
    QFETCH(Check, check);
    check();
}

// A block that is hidden as a whole leaves its rows as they are.
void tst_RGBEditFrames::blockKeepsItsRows()
{
    const auto check = [](auto &&frame) {
        frame.setEditerVisible(10);
        frame.setEditerVisible(16);
        const auto rows = CompositeCases::rowsOf(frame);
        QVERIFY(!rows[2].frame->isHidden() && rows[4].frame->isHidden());
    };
    check(RGBAllEditFrame());
    check(RGBOpacityEditFrame());
}

void tst_RGBEditFrames::spacing()
{
    using CompositeCases::lastSpacer;
    const auto block = [](QWidget &frame) { return frame.findChild<RGBEditFrame *>(); };
    RGBEditFrame rgb;
    RGBAllEditFrame all;
    RGBOpacityEditFrame opacity;
    QCOMPARE(lastSpacer(rgb), QStringLiteral("20x20 Minimum Expanding"));
    QCOMPARE(lastSpacer(all), QStringLiteral("20x20 Minimum Preferred"));
    QCOMPARE(lastSpacer(*block(all)), QStringLiteral("20x20 Minimum Expanding"));
    QCOMPARE(lastSpacer(opacity), QStringLiteral("20x277 Minimum Expanding"));
    QCOMPARE(lastSpacer(*block(opacity)), QStringLiteral("20x0 Expanding Ignored"));
    opacity.setLastVerticalSpacerExpanding(true);
    QCOMPARE(lastSpacer(*block(opacity)), QStringLiteral("20x0 Expanding Ignored"));

    rgb.setVerticalSpacing(9);
    QCOMPARE(rgb.layout()->spacing(), 9);
    all.setVerticalSpacing(6);
    QCOMPARE(all.layout()->spacing(), 6);
    QCOMPARE(block(all)->layout()->spacing(), 0);
    opacity.setVerticalSpacing(4);
    QCOMPARE(opacity.layout()->spacing(), 4);
    QCOMPARE(block(opacity)->layout()->spacing(), 4);
}

// Only the red row's font measures.
void tst_RGBEditFrames::labelMaxLength()
{
    RGBEditFrame frame;
    const auto rows = CompositeCases::rowsOf(frame);
    QCOMPARE(frame.labelMaxLength(), 0);
    rows[RGBEditFrame::R].frame->setFont(QFont(frame.font().family(), 20));
    rows[RGBEditFrame::B].frame->setFont(QFont(frame.font().family(), 40));
    QString text = QStringLiteral("W");
    for (const auto type : {RGBEditFrame::R, RGBEditFrame::G, RGBEditFrame::B}) {
        frame.setLabelText(type, text.append(QLatin1String("Wi")));
        QCOMPARE(frame.labelMaxLength(), CompositeCases::textWidth(rows[RGBEditFrame::R], text));
    }
    frame.setLabelText(RGBEditFrame::B, QStringLiteral("i"));
    text.chop(2);
    QCOMPARE(frame.labelMaxLength(), CompositeCases::textWidth(rows[RGBEditFrame::R], text));
}

void tst_RGBEditFrames::labelMaxLengthWithMaster()
{
    RGBAllEditFrame frame;
    const auto rows = CompositeCases::rowsOf(frame);
    QCOMPARE(frame.labelMaxLength(), 0);
    rows[RGBAllEditFrame::R].frame->setFont(QFont(frame.font().family(), 25));
    const QString master = QStringLiteral("All"), blue = QStringLiteral("WWW");
    frame.setLabelText(RGBAllEditFrame::ALL, master);
    frame.setLabelText(RGBAllEditFrame::B, QStringLiteral("i"));
    QCOMPARE(frame.labelMaxLength(), CompositeCases::textWidth(rows[RGBAllEditFrame::ALL], master));
    frame.setLabelText(RGBAllEditFrame::B, blue);
    QCOMPARE(frame.labelMaxLength(), CompositeCases::textWidth(rows[RGBAllEditFrame::R], blue));
}

int main(int argc, char *argv[])
{
    return runTest<tst_RGBEditFrames>(argc, argv);
}

#include "tst_rgbeditframes.moc"
