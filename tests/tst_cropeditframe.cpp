#include "cropeditframe.h"
#include "edituser.h"

using Vantor::Widgets::CropEditFrame;
using Vantor::Widgets::RectEditFrame;

class tst_CropEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typedExpression();
    void crops_data();
    void crops();
};

void tst_CropEditFrame::typedExpression()
{
    CropEditFrame frame;
    RectUser user(frame);
    const Row &width = user.rows[2];
    user.log.watch(&frame, &CropEditFrame::cropValueChanged, "cropValueChanged");
    user.log.watch(qobject_cast<QSpinBox *>(width.spinBox), qOverload<int>(&QSpinBox::valueChanged),
                   "spinBox");
    user.log.watch(width.frame, &Vantor::Widgets::SliderEditFrame::valueChanged, "row");
    user.log.watch(width.slider, &QSlider::valueChanged, "slider");
    frame.setCropRange(1920, 1080);
    frame.setCropValue(10, 20, 30, 40);
    QVERIFY(User::show(frame));
    user.log.take();
    // While it is typed the entry changes nothing.
    width.type("12*3");
    QCOMPARE(width.spinBox->text(), QString("12*3"));
    QCOMPARE(user.log.take(), QStringList());
    User::press(Qt::Key_Return);
    // Receivers stand in the order of their connections: the crop editor's own
    // come before a host's, so the innermost signal's report is the last.
    QCOMPARE(user.log.take(),
             entered({"cropValueChanged(10, 20, 36, 40)", "w(36)", "(10, 20, 36, 40)", "row(36)",
                      "spinBox(36)"}));
    QCOMPARE(QApplication::focusWidget(), width.frame);
    QCOMPARE(width.slider->value(), 36);
}

void tst_CropEditFrame::crops_data()
{
    QTest::addColumn<QString>("steps");

    QTest::newRow("ranges")
        << "area 1920 1080 | ranges: 0..1919 0..1079 1..1920 1..1080 | "
           "area 10 20 30 40 640 480 | ranges: 10..610 20..440 30..640 40..480 | "
           "area 1920 1080 | ranges: 0..1919 0..1079 1..1920 1..1080 | least position 10 20 | "
           "least size 16 32 | ranges: 0..1919 0..1079 1..1920 1..1080 | area 1920 1080 | "
           "ranges: 10..1904 20..1048 16..1920 32..1080 | "
           "area 0 0 -2147483648 1 2147483647 10 | "
           "ranges: 0..2147483647 0..9 -2147483648..2147483647 1..10 | range x 3 7 | "
           "ranges: 3..7 0..9 -2147483648..2147483647 1..10";
    QTest::newRow("width is held at the right edge")
        << "crop 1000 0 800 100 | w=1000: crop(1000,0,920,100) w(1000) (1000,0,1000,100) | "
           "fields: 1000 0 920 100 | w+: w(920) (1000,0,920,100) | "
           "x+: x(1000) (1000,0,920,100) | w-: crop(1000,0,919,100) w(919) (1000,0,919,100) | "
           "x+: crop(1001,0,919,100) x(1001) (1001,0,919,100) | w+: w(919) (1001,0,919,100)";
    QTest::newRow("only changes are reported")
        << "crop 5 0 100 100 | set 5 0 90 100 | w=100: w(100) (5,0,100,100) | "
           "w+: crop(5,0,101,100) w(101) (5,0,101,100) | rect 5 0 110 100 | "
           "fields: 5 0 110 100 | set 4 0 110 100 | x+: x(5) (5,0,110,100)";
    QTest::newRow("nothing is the crop of the start")
        << "range w 0 100 | range h 0 100 | set 0 0 1 0 | w-: w(0) (0,0,0,0) | "
           "h+: crop(0,0,0,1) h(1) (0,0,0,1)";
    // The old crop stays the last one, though no field shows it any more.
    QTest::newRow("a smaller area clamps in silence")
        << "crop 0 0 1000 1000 | area 500 500 | fields: 0 0 500 500 | area 2000 2000 | "
           "set 0 0 999 1000 | w+: w(1000) (0,0,1000,1000)";
    QTest::newRow("sums leave 32 bits")
        << "area 2147483647 2147483647 | crop 0 0 1000000000 1000000000 | "
           "x=2000000000: crop(1147483647,0,1000000000,1000000000) x(2000000000) "
           "(2000000000,0,1000000000,1000000000) | "
           "y=2000000000: crop(1147483647,1147483647,1000000000,1000000000) y(2000000000) "
           "(1147483647,2000000000,1000000000,1000000000)";
}

void tst_CropEditFrame::crops()
{
    QFETCH(QString, steps);
    CropEditFrame frame;
    RectUser user(frame);
    user.log.watch(&frame, &CropEditFrame::cropValueChanged, "crop");
    frame.setCropRange(1920, 1080);
    user.check(steps, [&](const RectUser::Words &words) {
        const auto number = [&words](int fromEnd) { return words[words.size() - fromEnd].toInt(); };
        if (words[0] == "area" && words.size() == 3)
            frame.setCropRange(number(2), number(1));
        else if (words[0] == "area")
            frame.setCropRange(number(6), number(5), number(4), number(3), number(2), number(1));
        else if (words[0] == "crop")
            frame.setCropValue(number(4), number(3), number(2), number(1));
        else if (words[0] == "rect")
            frame.setCropValue(QRect(number(4), number(3), number(2), number(1)));
        else if (words[1] == "position")
            frame.setCropMinPos(number(2), number(1));
        else if (words[1] == "size")
            frame.setCropMinSize(number(2), number(1));
    });
}

int main(int argc, char *argv[])
{
    return runTest<tst_CropEditFrame>(argc, argv);
}

#include "tst_cropeditframe.moc"
