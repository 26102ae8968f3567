#include "edituser.h"
#include "maskeditframe.h"

using Vantor::Widgets::MaskEditFrame;

class tst_MaskEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsMargins();
    void masks_data();
    void masks();
};

void tst_MaskEditFrame::readsMargins()
{
    MaskEditFrame frame;
    frame.setMaskRange(1920, 1080);
    frame.setMaskValue(10, 20, 30, 40);
    QRect mask;
    frame.getMaskValue(mask);
    QCOMPARE(QList<int>({mask.top(), mask.bottom(), mask.left(), mask.right()}),
             QList<int>({10, 20, 30, 40}));
    for (const char *lock : {"toolButtonLockPosition", "toolButtonLockSize"})
        QVERIFY(frame.findChild<QWidget *>(QLatin1String(lock))->isHidden());
}

// x, y, w and h are the top, bottom, left and right margin.
void tst_MaskEditFrame::masks_data()
{
    QTest::addColumn<QString>("steps");

    // The limits are 0 at first, and no margins are what the mask starts with.
    QTest::newRow("no area") << "x=5: x(5) (5,0,0,0) | fields: 0 0 0 0";
    const QString area = "area 1920 1080 | ";
    QTest::newRow("ranges") << area + "ranges: 0..1080 0..1080 0..1920 0..1920";
    QTest::newRow("top is held") << area
            + "mask 0 1000 0 0 | x=100: mask(80,1000,0,0) x(100) (100,1000,0,0) | "
              "fields: 80 1000 0 0 | x+: x(80) (80,1000,0,0) | y+: y(1000) (80,1000,0,0) | "
              "x=79: mask(79,1000,0,0) x(79) (79,1000,0,0) | "
              "y+: mask(79,1001,0,0) y(1001) (79,1001,0,0) | set 78 1001 0 0 | x+: x(79) "
              "(79,1001,0,0)";
    QTest::newRow("set at the limits") << area
            + "mask 600 480 1000 920 | x+: x(600) (600,480,1000,920) | "
              "y+: y(480) (600,480,1000,920) | w+: w(1000) (600,480,1000,920) | "
              "h+: h(920) (600,480,1000,920) | mask 600 479 1000 919 | "
              "x+: mask(601,479,1000,919) x(601) (601,479,1000,919) | "
              "w+: mask(601,479,1001,919) w(1001) (601,479,1001,919)";
    QTest::newRow("set beyond the limits") << area
            + "mask 1000 900 0 2000 | fields: 1000 900 0 1920 | "
              "x-: mask(180,900,0,1920) x(999) (999,900,0,1920) | x+: x(180) (180,900,0,1920)";
    QTest::newRow("a smaller area clamps in silence") << area
            + "mask 700 0 0 0 | area 500 500 | fields: 500 0 0 0 | area 1000 1000 | "
              "set 699 0 0 0 | x+: x(700) (700,0,0,0)";
    QTest::newRow("sums leave 32 bits")
        << "area 2147483647 2147483647 | mask 0 2000000000 0 2000000000 | "
           "x=1000000000: mask(147483647,2000000000,0,2000000000) x(1000000000) "
           "(1000000000,2000000000,0,2000000000) | "
           "mask 2000000000 2000000000 0 0 | "
           "x+: mask(147483647,2000000000,0,0) x(2000000000) (2000000000,2000000000,0,0)";
}

void tst_MaskEditFrame::masks()
{
    QFETCH(QString, steps);
    MaskEditFrame frame;
    RectUser user(frame);
    user.log.watch(&frame, &MaskEditFrame::maskValueChanged, "mask");
    user.check(steps, [&frame](const RectUser::Words &words) {
        if (words[0] == "area")
            frame.setMaskRange(words[1].toInt(), words[2].toInt());
        else
            frame.setMaskValue(words[1].toInt(), words[2].toInt(), words[3].toInt(),
                               words[4].toInt());
    });
}

int main(int argc, char *argv[])
{
    return runTest<tst_MaskEditFrame>(argc, argv);
}

#include "tst_maskeditframe.moc"
