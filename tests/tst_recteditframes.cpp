#include "cropeditframe.h"
#include "editoruser.h"
#include "maskeditframe.h"

using namespace Vantor::Widgets;

// The rectangle editor and the classes derived from it.
class tst_RectEditFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lockButtons();
    void readsAllFields();
    void sequences_data();
    void sequences() { runTestCode(); }
    void setsThroughTheVirtuals();
};

// The lock buttons replace their placeholders.
void tst_RectEditFrames::lockButtons()
{
    RectEditFrame frame;
    const auto places = [&frame] {
        QStringList texts;
        for (const char *name : {"toolButtonLockPosition", "toolButtonLockSize",
                                 "frameSpacerLockPosition", "frameSpacerLockSize"}) {
            const auto *place = frame.findChild<QWidget *>(name);
            texts.append(place->isHidden() ? "hidden" : limits(place->width(), place->height()));
            texts.append(place->accessibleName());
            for (const QByteArray &property : place->dynamicPropertyNames())
                texts.append(property + '=' + place->property(property).toString());
        }
        return texts.join(' ');
    };
    const QString texts("%1 Lock position lockoutstate=true isLockPositionFrame=true "
                        "%1 Lock size lockoutstate=true %2  isLockPositionFrame=true%3 %2 %3");
    QVERIFY(User::show(frame));
    QCOMPARE(places(), texts.arg("hidden", "38..60", ""));
    frame.setPositionLockEnable(true);
    frame.setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    QCoreApplication::processEvents();
    QCOMPARE(places(), texts.arg("38..60", "hidden", " isBesideLock=true").trimmed());
}

// Each getter has its own order of the four values.
void tst_RectEditFrames::readsAllFields()
{
    MaskEditFrame mask;
    mask.setMaskRange(1920, 1080);
    mask.setMaskValue(10, 20, 30, 40);
    int x = 0, y = 0, w = 0, h = 0;
    QRect rect, margins;
    mask.value(x, y, w, h);
    mask.value(rect);
    mask.getMaskValue(margins);
    QCOMPARE(QRect(x, y, w, h), QRect(10, 20, 30, 40));
    QCOMPARE(rect, QRect(10, 20, 30, 40));
    QCOMPARE(margins, QRect(QPoint(30, 10), QPoint(40, 20)));
}

// Halves, the area's edges and the ends of int, each where the rule changes.
void tst_RectEditFrames::sequences_data()
{
    QTest::addColumn<TestCode>("code");
    const auto rect = rowsAfter<RectEditFrame>(
        "x range 0 1000 | y range 0 1000 | w range 0 1000 | h range 0 1000 | set 0 0 0 0 | ");
    // The far edges of the area are at 10 + 1920 and 20 + 1080.
    const auto crop = rowsAfter<CropEditFrame>("areaFrom 10 20 1 1 1920 1080 | ");
    // x, y, w and h are the top, bottom, left and right margins.
    const auto mask = rowsAfter<MaskEditFrame>("area 1920 1080 | ");
    rect("halves round away from zero",
         "w range -9 9 | h range -9 9 | set 0 0 4 2 | sizeLock on: sizeLock(true) | "
         "w enter 3: h(2) w(3) (0,0,3,2) | w enter -3: h(-2) w(-3) (0,0,-3,-2)");
    rect("ratio",
         "ratio 7 | set 0 0 100 100 | sizeLock on: sizeLock(true) | "
         "w enter 50: h(50) w(50) (0,0,50,50) | ratio 0.6667 | "
         "h enter 500: w(334) h(500) (0,0,334,500) | ratio 0.0004 | "
         "w enter 50: w(50) (0,0,50,500) | ratio -2 | w enter 60: w(60) (0,0,60,500)");
    rect("proportion stops at the area's edge",
         "x range 50 1000 | w range 0 450 | set 150 0 200 100 | sizeLock on: sizeLock(true) | "
         "w enter 400: h(175) w(350) (150,0,350,175) | x range 150 1000 | sizeLock on | "
         "w enter 450: h(225) w(450) (150,0,450,225) | w range 0 700 | "
         "w plus: h(225) w(450) (150,0,450,225)");
    // Exactly at the edge the height may not grow either, although the area does.
    rect("proportion reaches the area's edge",
         "w range 0 400 | set 200 0 100 50 | sizeLock on: sizeLock(true) | "
         "h enter 100: w(200) h(100) (200,0,200,100) | w range 0 600 | "
         "h plus: w(200) h(100) (200,0,200,100)");
    rect("height beyond both edges",
         "w range 0 300 | h range 0 100 | y range 0 100 | set 0 50 200 50 | "
         "sizeLock on: sizeLock(true) | h enter 90: w(300) h(75) (0,50,300,75)");
    rect("proportion at the least height",
         "h range 30 1000 | set 0 0 33 99 | sizeLock on: sizeLock(true) | "
         "w enter 10: h(30) w(10) (0,0,10,30) | w enter 5: h(30) w(10) (0,0,10,30)");
    rect("basis without width",
         "set 0 0 0 100 | sizeLock on: sizeLock(true) | w enter 50: w(50) (0,0,50,100) | "
         "w range 10 500 | h enter 70: w(0) h(70) (0,0,10,70)");
    rect("position lock lets go",
         "x range 0 50 | y range 0 30 | set 10 20 0 0 | lock position: positionLock(true) | "
         "x enter 25: x(25) (25,30,0,0) | x plus: x(25) (25,30,0,0) | "
         "lock position: positionLock(false) | x plus: x(26) (26,30,0,0) | set 40 10 0 0 | "
         "lock position: positionLock(true) | y enter 20: y(20) (50,20,0,0) | "
         "lock position: positionLock(false) | y plus: y(21) (50,21,0,0)");
    rect("size lock lets go",
         "w range 0 100 | set 0 0 20 40 | sizeLock on: sizeLock(true) | "
         "h enter 300: w(100) h(200) (0,0,100,200) | sizeLock off: sizeLock(false) | "
         "h plus: h(201) (0,0,100,201)");
    rect("the program locks as the user does",
         "set 10 20 40 20 | locks: no no 0 | positionLock on: positionLock(true) | "
         "locks: yes no 0 | x plus: x(11) (11,21,40,20) | set 11 50 40 20 | positionLock on | "
         "x plus: x(12) (12,51,40,20) | positionLock off: positionLock(false) | "
         "x plus: x(13) (13,51,40,20) | sizeLock on: sizeLock(true) | locks: no yes 2 | "
         "ratio 0.6667 | locks: no yes 0.667 | sizeLock off: sizeLock(false) | locks: no no 0 | "
         "h value 0 | lock size: sizeLock(true) | locks: no yes 0");
    // A float represents these numbers exactly, so the test can type them.
    rect("position saturates",
         "x range -2147483648 2147483647 | y range -2147483648 2147483647 | "
         "set -2000000000 2000000000 1 1 | lock position: positionLock(true) | "
         "x enter 1500000000: x(1500000000) (1500000000,2147483647,1,1)");
    rect("products leave 32 bits",
         "w range 0 2147483647 | h range 0 2147483647 | set 0 0 2000000000 1000000000 | "
         "sizeLock on: sizeLock(true) | "
         "w enter 1000000000: h(500000000) w(1000000000) (0,0,1000000000,500000000)");
    rect("the distance from the minimum leaves 32 bits",
         "x range -2147483648 2147483647 | set 2147483647 0 100 50 | sizeLock on: sizeLock(true) | "
         "w enter 50: h(50) w(100) (2147483647,0,100,50)");

    crop("ranges",
         "ranges: 10..1919 20..1079 1..1920 1..1080 | leastPosition 30 40 | leastSize 16 32 | "
         "areaFrom 1 2 3 4 640 480 | ranges: 1..637 2..476 3..640 4..480 | area 1920 1080 | "
         "ranges: 30..1904 40..1048 16..1920 32..1080 | areaFrom 0 0 -2147483648 1 2147483647 10 | "
         "ranges: 0..2147483647 0..9 -2147483648..2147483647 1..10");
    // Also one unit before the edge.
    crop("x and width stop at the far edge",
         "crop 1000 20 800 9 | x enter 1200: crop(1130,20,800,9) x(1200) (1200,20,800,9) | "
         "x plus: x(1130) (1130,20,800,9) | w plus: w(800) (1130,20,800,9) | "
         "x minus: crop(1129,20,800,9) x(1129) (1129,20,800,9) | "
         "w plus: crop(1129,20,801,9) w(801) (1129,20,801,9) | "
         "w plus: w(801) (1129,20,801,9) | x plus: x(1129) (1129,20,801,9)");
    crop("y and height stop at the far edge",
         "crop 10 100 9 300 | y enter 900: crop(10,800,9,300) y(900) (10,900,9,300) | "
         "y plus: y(800) (10,800,9,300) | h plus: h(300) (10,800,9,300) | "
         "y minus: crop(10,799,9,300) y(799) (10,799,9,300) | "
         "h enter 309: crop(10,799,9,301) h(309) (10,799,9,309) | "
         "h plus: h(301) (10,799,9,301) | y plus: y(799) (10,799,9,301)");
    crop("a rectangle that is set is no change",
         "rect 15 20 110 99 | x value 14 | x plus: x(15) (15,20,110,99)");
    crop("nothing is the crop of the start",
         "areaFrom 0 0 0 0 100 100 | set 0 0 1 0 | w minus: w(0) (0,0,0,0)");
    // The old crop is still the last one reported, although no field shows it.
    crop("a smaller area clamps in silence",
         "crop 1000 100 800 300 | area 500 500 | shown: 499 100 500 300 | area 1920 1080 | "
         "set 1000 100 799 300 | w plus: w(800) (1000,100,800,300)");
    crop("sums leave 32 bits",
         "area 2147483647 2147483647 | crop 0 0 1000000000 1000000000 | "
         "x enter 2000000000: crop(1147483647,0,1000000000,1000000000) x(2000000000) "
         "(2000000000,0,1000000000,1000000000)");
    // Far edges beyond the range of int: a change must still be reported.
    crop("edges leave 32 bits",
         "x range -2147483648 0 | w range -9 9 | crop -2147483648 20 -5 9 | "
         "w minus: crop(-2147483648,20,-6,9) w(-6) (-2147483648,20,-6,9) | "
         "w minus: crop(-2147483648,20,-7,9) w(-7) (-2147483648,20,-7,9)");
    crop("the rest of the area leaves 32 bits",
         "x range -2147483648 2147483647 | w range -9 0 | crop 2147483647 20 0 9 | "
         "w minus: crop(2147483647,20,-2147483648,9) w(-1) (2147483647,20,-1,9)");

    mask("ranges", "ranges: 0..1080 0..1080 0..1920 0..1920");
    mask("no margins are the mask of the start", "set 1 0 0 0 | x minus: x(0) (0,0,0,0)");
    mask("top and bottom share the height",
         "mask 0 1000 0 0 | x enter 100: mask(80,1000,0,0) x(100) (100,1000,0,0) | "
         "x plus: x(80) (80,1000,0,0) | y plus: y(1000) (80,1000,0,0) | mask 1000 0 0 0 | "
         "y enter 200: mask(1000,80,0,0) y(200) (1000,200,0,0) | y plus: y(80) (1000,80,0,0) | "
         "x plus: x(1000) (1000,80,0,0)");
    mask("left and right share the width",
         "mask 0 0 100 1800 | w enter 200: mask(0,0,120,1800) w(200) (0,0,200,1800) | "
         "w plus: w(120) (0,0,120,1800) | h plus: h(1800) (0,0,120,1800) | mask 0 0 1000 0 | "
         "h enter 921: mask(0,0,1000,920) h(921) (0,0,1000,921) | h plus: h(920) (0,0,1000,920) | "
         "w plus: w(1000) (0,0,1000,920)");
    mask("a least size is left of the area",
         "leastSize 16 32 | ranges: 0..1080 0..1080 0..1920 0..1920 | area 100 100 | "
         "ranges: 0..68 0..68 0..84 0..84 | mask 60 0 0 80 | "
         "y enter 20: mask(60,8,0,80) y(20) (60,20,0,80) | y plus: y(8) (60,8,0,80) | "
         "w enter 20: mask(60,8,4,80) w(20) (60,8,20,80) | leastSize 101 -9 | area 100 100 | "
         "ranges: 0..100 0..100 0..0 0..0 | mask 0 0 5 0 | w click | "
         "elsewhere: finished mask(0,0,0,0) w(0) (0,0,0,0) finished");
    mask("set beyond the limits",
         "mask 1000 900 0 2000 | w plus: mask(1000,900,0,1920) w(0) (1000,900,0,1920) | "
         "x plus: mask(180,900,0,1920) x(1000) (1000,900,0,1920) | "
         "x plus: x(180) (180,900,0,1920)");
    mask("a sum that is set leaves 32 bits",
         "mask 1 2147483647 0 0 | x plus: mask(0,1080,0,0) x(1) (1,1080,0,0)");
    mask("a smaller area clamps in silence",
         "mask 700 0 0 0 | area 500 500 | shown: 500 0 0 0 | area 1000 1000 | set 699 0 0 0 | "
         "x plus: x(700) (700,0,0,0)");

    // The type of the lock does not change whether it is on, either.
    addFor<RectEditFrame>("hidden locks stay", [](auto &user) {
        user.frame->setSizeLockEnable(true, RectEditFrame::OffsetLock);
        user.play("set 10 20 40 20 | w plus: w(41) (10,20,41,20) | "
                  "lock size: sizeLock(true) | lock position: positionLock(true)");
        user.frame->setPositionLockEnable(false);
        user.frame->setSizeLockEnable(false, RectEditFrame::OffsetLock);
        user.play("x plus: x(11) (11,21,41,20) | h enter 40: h(40) (11,21,61,40)");
        user.frame->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
        user.play("h enter 10: w(21) h(10) (11,21,21,10)");
    });
    // A host may set its own proportion at the moment when the user locks the size.
    addFor<RectEditFrame>("a lock is reported when it is on", [](auto &user) {
        connect(user.frame, &RectEditFrame::sizeLockChanged, [&] { user.perform("ratio 4"); });
        user.play("set 0 0 40 20 | lock size: sizeLock(true) | w enter 20: h(5) w(20) (0,0,20,5)");
    });
    // The editor reads the whole rectangle at the time of the report.
    addFor<RectEditFrame>("receiver sets another field", [](auto &user) {
        connect(user.frame, &RectEditFrame::xValueChanged, [&] { user.perform("w value 77"); });
        user.play("set 0 0 40 20 | x plus: x(1) (1,0,77,20)");
    });
    // The partner's signal comes first, and nothing after it if the editor is deleted.
    addFor<RectEditFrame>("receiver deletes the editor", [](auto &user) {
        connect(user.frame, &RectEditFrame::heightValueChanged, [&] { delete user.frame; });
        user.play("set 0 0 40 20 | sizeLock on: sizeLock(true) | w space: h(21)");
    });
}

// A host's subclass receives the rectangle of a change by the user, but not that of the
// program, which is set in the fields.
void tst_RectEditFrames::setsThroughTheVirtuals()
{
    struct Host : CropEditFrame
    {
        void setValue(int x, int y, int w, int h) override
        {
            rects.append(QRect(x, y, w, h));
            RectEditFrame::setValue(x, y, w, h);
        }
        QList<QRect> rects;
    };
    UserOf<Host> user;
    user.frame->setCropRange(100, 100);
    static_cast<RectEditFrame *>(user.frame)->setValue(QRect(1, 2, 3, 4));
    QCOMPARE(user.frame->rects, QList<QRect>());
    user.play("x plus: crop(2,2,3,4) x(2) (2,2,3,4)");
    QCOMPARE(user.frame->rects, QList<QRect>({QRect(2, 2, 3, 4)}));
}

QTEST_MAIN(tst_RectEditFrames)

#include "tst_recteditframes.moc"
