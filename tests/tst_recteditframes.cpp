#include "edituser.h"
#include "layouteditframe.h"

#include <utility>

using namespace Vantor::Widgets;

// The rectangle editor and those that derive from it.
class tst_RectEditFrames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void lockButtons();
    void readsOneField();
    void panelsHideWithTheirFields();
    void wholeRectangle();
    void readsMargins();
    void layoutIsARectangle();
    void typedExpression();
    void rectangles_data();
    void rectangles();
    void crops_data();
    void crops() { play<CropEditFrame>("area 1920 1080 | "); }
    void masks_data();
    void masks() { play<MaskEditFrame>(""); }
    void hiddenLocksStay();
    void lockIsReportedWhenItIsOn();
    void receiverSetsAnotherField();
    void receiverDeletesTheEditor();
    void setsThroughTheVirtuals();

private:
    template <typename Frame> static void play(const QString &start)
    {
        QFETCH(QString, steps);
        Frame frame;
        RectUser(frame).check(start + steps);
    }

    RectEditFrame *m_frame = nullptr;
    Rows m_rows;
};

void tst_RectEditFrames::init()
{
    m_frame = new RectEditFrame;
    m_rows = rowsOf(*m_frame);
}

void tst_RectEditFrames::cleanup()
{
    delete m_frame;
}

// The lock buttons take the places that are kept for them.
void tst_RectEditFrames::lockButtons()
{
    const auto places = [this] {
        QStringList texts;
        for (const char *name : {"toolButtonLockPosition", "toolButtonLockSize",
                                 "frameSpacerLockPosition", "frameSpacerLockSize"}) {
            const auto *place = m_frame->findChild<QWidget *>(name);
            texts.append(place->isHidden() ? "hidden" : limits(place->width(), place->height()));
            texts.append('"' + place->accessibleName() + '"');
            for (const QByteArray &property : place->dynamicPropertyNames())
                texts.append(property + '=' + place->property(property).toString());
        }
        return texts.join(' ');
    };
    const QString texts("%1 \"Lock position\" lockoutstate=true isLockPositionFrame=true "
                        "%1 \"Lock size\" lockoutstate=true "
                        "%2 \"\" isLockPositionFrame=true %2 \"\"");
    QCOMPARE(m_frame->objectName(), QString("RectEditFrame"));
    QCOMPARE(m_frame->property("isSliderFrame"), QVariant(true));
    QVERIFY(User::show(*m_frame));
    const int before = m_rows[RectEditFrame::X].frame->width();
    QCOMPARE(places(), texts.arg("hidden", "38..60"));
    m_frame->setPositionLockEnable(true);
    m_frame->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    QCoreApplication::processEvents();
    QCOMPARE(places(), texts.arg("38..60", "hidden"));
    for (const Row &row : m_rows)
        QCOMPARE(row.frame->width(), before);
}

void tst_RectEditFrames::readsOneField()
{
    EventLog log;
    for (const int flag : {0, 2, 4, 6, 8, 16, 24, 30, 32}) {
        const auto type = static_cast<RectEditFrame::Type>(flag);
        const QString number = QString::number(flag);
        const bool isField = m_rows.contains(flag);
        if (isField) {
            m_rows[flag].frame->setLabelText(number);
            m_rows[flag].frame->setRange(flag, 100 + flag);
        }
        QCOMPARE(m_frame->labelText(type), isField ? number : QString());
        int min = -7, max = -8;
        m_frame->range(type, min, max);
        QCOMPARE(limits(min, max), isField ? limits(flag, 100 + flag) : limits(-7, -8));
        const QString end = " has failed. The type  " + number + "  is invalid.";
        QCOMPARE(log.take(),
                 isField ? QStringList()
                         : QStringList({"warning: Set Rect label text" + end,
                                        "warning: Get Rect value range" + end}));
    }
}

void tst_RectEditFrames::panelsHideWithTheirFields()
{
    const auto *position = m_frame->findChild<QFrame *>("framePosition");
    const auto *size = m_frame->findChild<QFrame *>("frameSize");
    for (const int types : {10, 24, 6, 20, 0, 30}) {
        m_frame->setEditerVisible(types);
        QCOMPARE(position->isHidden(), (types & RectEditFrame::Position) == 0);
        QCOMPARE(size->isHidden(), (types & RectEditFrame::Size) == 0);
    }
}

void tst_RectEditFrames::wholeRectangle()
{
    m_frame->setValue(QRect(10, 20, 30, 40));
    QRect rect;
    m_frame->value(rect);
    QCOMPARE(rect, QRect(10, 20, 30, 40));
    int x = 0, y = 0, w = 0, h = 0;
    m_frame->value(x, y, w, h);
    QCOMPARE(QRect(x, y, w, h), rect);
    RectUser(*m_frame).check("set 1 2 3 400 | fields: 1 2 3 99 | range x 5 50 | "
                             "fields: 5 2 3 99 | y=7: y(7) (5,7,3,99)");
}

void tst_RectEditFrames::readsMargins()
{
    MaskEditFrame frame;
    frame.setMaskRange(1920, 1080);
    frame.setMaskValue(10, 20, 30, 40);
    QRect mask;
    frame.getMaskValue(mask);
    QCOMPARE(QList<int>({mask.top(), mask.bottom(), mask.left(), mask.right()}),
             QList<int>({10, 20, 30, 40}));
    for (const char *lock : {"toolButtonLockPosition", "toolButtonLockSize"})
        QVERIFY(frame.findChild<QWidget *>(lock)->isHidden());
}

// It declares nothing of its own.
void tst_RectEditFrames::layoutIsARectangle()
{
    LayoutEditFrame layout;
    QCOMPARE(layout.metaObject()->className(), "Vantor::Widgets::LayoutEditFrame");
    QCOMPARE(layout.metaObject()->methodCount(), RectEditFrame::staticMetaObject.methodCount());
    QVERIFY(qobject_cast<RectEditFrame *>(&layout));
}

void tst_RectEditFrames::typedExpression()
{
    CropEditFrame frame;
    RectUser user(frame);
    const Row &width = user.rows[2];
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
    QCOMPARE(
        user.log.take(),
        entered({"crop(10, 20, 36, 40)", "w(36)", "(10, 20, 36, 40)", "row(36)", "spinBox(36)"}));
    QCOMPARE(QApplication::focusWidget(), width.frame);
    QCOMPARE(width.slider->value(), 36);
}

static void row(const char *name, const QString &steps)
{
    QTest::newRow(name) << steps;
}

// Two halves, the area's edges and the ends of int, each where the rule turns.
void tst_RectEditFrames::rectangles_data()
{
    QTest::addColumn<QString>("steps");
    row("halves round away from zero",
        "set 0 0 4 2 | size lock on: sizeLock(true) | w=3: h(2) w(3) (0,0,3,2) | "
        "range w -9 9 | range h -9 9 | set 0 0 4 2 | size lock on | "
        "w=-3: h(-2) w(-3) (0,0,-3,-2) | h=-1: w(-2) h(-1) (0,0,-2,-1)");
    row("ratio",
        "ratio 7 | set 0 0 100 100 | size lock on: sizeLock(true) | "
        "w=50: h(50) w(50) (0,0,50,50) | ratio 1.5 | w=300: h(200) w(300) (0,0,300,200) | "
        "ratio 0.3333 | h=500: w(167) h(500) (0,0,167,500) | ratio 0.6667 | "
        "h=300: w(200) h(300) (0,0,200,300) | h=500: w(334) h(500) (0,0,334,500) | ratio 0.0004 "
        "| w=50: w(50) (0,0,50,500) | "
        "ratio -2 | w=60: w(60) (0,0,60,500)");
    row("proportion stops at the area's edge",
        "range x 50 1000 | range w 0 450 | set 150 0 200 100 | "
        "size lock on: sizeLock(true) | w=400: h(175) w(350) (150,0,350,175) | "
        "range w 0 600 | w+: h(175) w(350) (150,0,350,175) | size lock on | "
        "w+: h(176) w(351) (150,0,351,176) | w=500: h(250) w(500) (150,0,500,250) | "
        "set 100 0 500 250 | w+: h(250) w(500) (100,0,500,250)");
    // Exactly at the edge the height may not grow either, though the area does.
    row("proportion reaches the area's edge",
        "range w 0 400 | set 200 0 100 50 | size lock on: sizeLock(true) | "
        "h=100: w(200) h(100) (200,0,200,100) | range w 0 600 | "
        "h+: w(200) h(100) (200,0,200,100)");
    row("proportion from below the least height",
        "range h 30 1000 | set 0 0 33 99 | size lock on: sizeLock(true) | "
        "h=100: w(33) h(100) (0,0,33,100) | w=5: h(99) w(33) (0,0,33,99)");
    row("basis without width",
        "set 0 0 0 100 | size lock on: sizeLock(true) | w=50: w(50) (0,0,50,100) | "
        "range w 10 500 | h=70: w(0) h(70) (0,0,10,70) | range w 0 0 | "
        "h=80: w(0) h(80) (0,0,0,80)");
    row("basis without height",
        "set 0 0 100 0 | size lock on: sizeLock(true) | h=50: h(50) (0,0,100,50) | "
        "range h 10 500 | w=70: h(0) w(70) (0,0,70,10) | range h 0 0 | "
        "w=80: h(0) w(80) (0,0,80,0)");
    row("height beyond both edges",
        "range w 0 300 | range h 0 100 | range y 0 100 | set 0 50 200 50 | "
        "size lock on: sizeLock(true) | h=90: w(300) h(75) (0,50,300,75)");
    row("height at the area's edge",
        "range h 0 100 | set 0 50 200 20 | size lock on: sizeLock(true) | "
        "h=50: w(500) h(50) (0,50,500,50) | range h 0 300 | h+: w(500) h(50) (0,50,500,50)");
    row("height below the least width",
        "range w 30 1000 | set 0 0 99 33 | size lock on: sizeLock(true) | "
        "h=5: w(99) h(33) (0,0,99,33)");
    row("position lock lets go",
        "range y 0 30 | set 10 20 0 0 | lock position: positionLock(true) | "
        "x=25: x(25) (25,30,0,0) | x+: x(25) (25,30,0,0) | lock position: positionLock(false) | "
        "x=40: x(40) (40,30,0,0)");
    row("y is let go",
        "range x 0 30 | set 20 10 0 0 | lock position: positionLock(true) | "
        "y=25: y(25) (30,25,0,0) | lock position: positionLock(false) | y=40: y(40) (30,40,0,0)");
    row("the height is let go",
        "range w 0 100 | set 0 0 20 40 | size lock on: sizeLock(true) | "
        "h=300: w(100) h(200) (0,0,100,200) | size lock off: sizeLock(false) | "
        "h=300: h(300) (0,0,100,300)");
    // Floats hold these numbers exactly, so the fields can be typed into.
    row("position saturates",
        "range x -2147483648 2147483647 | range y -2147483648 2147483647 | "
        "set -2000000000 2000000000 1 1 | lock position: positionLock(true) | "
        "x=1500000000: x(1500000000) (1500000000,2147483647,1,1) | "
        "x+: x(1500000000) (1500000000,2147483647,1,1) | set -2000000000 2000000000 1 1 | "
        "y=-1500000000: y(-1500000000) (-2147483648,-1500000000,1,1)");
    row("products leave 32 bits",
        "range w 0 2147483647 | range h 0 2147483647 | set 0 0 2000000000 1000000000 | "
        "size lock on: sizeLock(true) | "
        "w=1000000000: h(500000000) w(1000000000) (0,0,1000000000,500000000) | "
        "h=1000000000: w(2000000000) h(1000000000) (0,0,2000000000,1000000000) | "
        "set 0 0 1 2000000000 | size lock on | "
        "w=1000: h(2000000000) w(1) (0,0,1,2000000000)");
    row("the distance from the minimum leaves 32 bits",
        "range x -2147483648 2147483647 | set 2147483647 0 100 50 | "
        "size lock on: sizeLock(true) | w=50: h(50) w(100) (2147483647,0,100,50)");
}

void tst_RectEditFrames::rectangles()
{
    play<RectEditFrame>("range x 0 1000 | range y 0 1000 | range w 0 1000 | range h 0 1000 | "
                        "set 0 0 0 0 | ");
}

void tst_RectEditFrames::crops_data()
{
    QTest::addColumn<QString>("steps");
    row("ranges",
        "area 1920 1080 | ranges: 0..1919 0..1079 1..1920 1..1080 | "
        "area 10 20 30 40 640 480 | ranges: 10..610 20..440 30..640 40..480 | "
        "area 1920 1080 | ranges: 0..1919 0..1079 1..1920 1..1080 | leastPosition 10 20 | "
        "leastSize 16 32 | ranges: 0..1919 0..1079 1..1920 1..1080 | area 1920 1080 | "
        "ranges: 10..1904 20..1048 16..1920 32..1080 | "
        "area 0 0 -2147483648 1 2147483647 10 | "
        "ranges: 0..2147483647 0..9 -2147483648..2147483647 1..10 | range x 3 7 | "
        "ranges: 3..7 0..9 -2147483648..2147483647 1..10");
    row("width and x share the area",
        "crop 1000 0 800 100 | w=1000: crop(1000,0,920,100) w(1000) (1000,0,1000,100) | "
        "x+: x(1000) (1000,0,920,100)");
    row("the width stays at the edge",
        "crop 1000 0 800 100 | w=1000: crop(1000,0,920,100) w(1000) (1000,0,1000,100) | "
        "w+: w(920) (1000,0,920,100)");
    row("height and y share the area",
        "crop 0 100 100 300 | y=900: crop(0,780,100,300) y(900) (0,900,100,300) | "
        "h+: h(300) (0,780,100,300)");
    row("one beyond the area",
        "crop 1000 0 900 100 | w=921: crop(1000,0,920,100) w(921) (1000,0,921,100) | "
        "crop 1000 0 900 100 | x-: crop(999,0,900,100) x(999) (999,0,900,100) | "
        "w=921: crop(999,0,921,100) w(921) (999,0,921,100) | x+: x(999) (999,0,921,100)");
    row("a rectangle that is set is no change",
        "rect 5 0 110 100 | fields: 5 0 110 100 | set 4 0 110 100 | x+: x(5) (5,0,110,100)");
    row("nothing is the crop of the start",
        "range w 0 100 | range h 0 100 | set 0 0 1 0 | w-: w(0) (0,0,0,0) | "
        "h+: crop(0,0,0,1) h(1) (0,0,0,1)");
    // The old crop stays the last one, though no field shows it any more.
    row("a smaller area clamps in silence",
        "crop 0 0 1000 1000 | area 500 500 | fields: 0 0 500 500 | area 2000 2000 | "
        "set 0 0 999 1000 | w+: w(1000) (0,0,1000,1000)");
    row("sums leave 32 bits",
        "area 2147483647 2147483647 | crop 0 0 1000000000 1000000000 | "
        "x=2000000000: crop(1147483647,0,1000000000,1000000000) x(2000000000) "
        "(2000000000,0,1000000000,1000000000) | "
        "y=2000000000: crop(1147483647,1147483647,1000000000,1000000000) y(2000000000) "
        "(1147483647,2000000000,1000000000,1000000000)");
    // Far edges beyond the ends of int: a change must be told all the same.
    row("edges leave 32 bits",
        "range x -2147483648 0 | range w -9 9 | crop -2147483648 0 -5 9 | "
        "w-: crop(-2147483648,0,-6,9) w(-6) (-2147483648,0,-6,9)");
    row("the rest of the area leaves 32 bits",
        "range x -2147483648 2147483647 | range w -9 0 | crop 2147483647 0 0 9 | "
        "w-: crop(2147483647,0,-2147483648,9) w(-1) (2147483647,0,-1,9) | "
        "fields: 2147483647 0 -9 9");
}

// x, y, w and h are the top, bottom, left and right margin.
void tst_RectEditFrames::masks_data()
{
    QTest::addColumn<QString>("steps");
    const QString area = "area 1920 1080 | ";
    // The limits are 0 at first, and no margins are what the mask starts with.
    row("no area", "x=5: x(5) (5,0,0,0) | fields: 0 0 0 0");
    row("ranges", area + "ranges: 0..1080 0..1080 0..1920 0..1920");
    row("left and right share the width",
        area
            + "mask 0 0 100 1800 | w=200: mask(0,0,120,1800) w(200) (0,0,200,1800) | "
              "w+: w(120) (0,0,120,1800) | h+: h(1800) (0,0,120,1800)");
    row("bottom stays at the limit",
        area
            + "mask 1000 0 0 0 | y=200: mask(1000,80,0,0) y(200) (1000,200,0,0) | "
              "y+: y(80) (1000,80,0,0)");
    row("left reaches the limit",
        area
            + "mask 0 0 100 1800 | w=120: mask(0,0,120,1800) w(120) (0,0,120,1800) | "
              "w+: w(120) (0,0,120,1800)");
    row("right", area + "mask 0 0 1000 0 | h=900: mask(0,0,1000,900) h(900) (0,0,1000,900)");
    row("set beyond the limits",
        area
            + "mask 1000 900 0 2000 | fields: 1000 900 0 1920 | "
              "x-: mask(180,900,0,1920) x(999) (999,900,0,1920) | x+: x(180) (180,900,0,1920)");
    row("a smaller area clamps in silence",
        area
            + "mask 700 0 0 0 | area 500 500 | fields: 500 0 0 0 | area 1000 1000 | "
              "set 699 0 0 0 | x+: x(700) (700,0,0,0)");
    row("sums leave 32 bits",
        "area 2147483647 2147483647 | mask 0 2000000000 0 2000000000 | "
        "x=1000000000: mask(147483647,2000000000,0,2000000000) x(1000000000) "
        "(1000000000,2000000000,0,2000000000) | "
        "mask 2000000000 2000000000 0 0 | "
        "x+: mask(147483647,2000000000,0,0) x(2000000000) (2000000000,2000000000,0,0) | "
        "mask 1500000000 0 1000000000 0 | "
        "w-: mask(1500000000,0,999999999,0) w(999999999) (1500000000,0,999999999,0)");
}

void tst_RectEditFrames::hiddenLocksStay()
{
    RectUser user(*m_frame);
    user.check("set 10 20 40 20 | lock position: positionLock(true) | lock size: sizeLock(true)");
    m_frame->setPositionLockEnable(false);
    m_frame->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
    user.check("x+: x(11) (11,21,40,20) | w=20: h(10) w(20) (11,21,20,10)");
}

// A host may choose its own proportion the moment that the user locks the size.
void tst_RectEditFrames::lockIsReportedWhenItIsOn()
{
    RectUser user(*m_frame);
    connect(m_frame, &RectEditFrame::sizeLockChanged, [this] { m_frame->setSizeLock(qreal(4)); });
    user.check("set 0 0 40 20 | lock size: sizeLock(true) | w=20: h(5) w(20) (0,0,20,5)");
}

// The whole rectangle is read when it is reported.
void tst_RectEditFrames::receiverSetsAnotherField()
{
    RectUser user(*m_frame);
    connect(m_frame, &RectEditFrame::xValueChanged,
            [this] { m_frame->setValue(RectEditFrame::Width, 77); });
    user.check("set 0 0 40 20 | x+: x(1) (1,0,77,20)");
}

// The partner's signal comes first, and nothing after it where the editor is gone.
void tst_RectEditFrames::receiverDeletesTheEditor()
{
    RectUser user(*m_frame);
    user.check("set 0 0 40 20 | size lock on: sizeLock(true)");
    connect(m_frame, &RectEditFrame::heightValueChanged,
            [this] { delete std::exchange(m_frame, nullptr); });
    QTest::keyClick(user.rows[2].plus, Qt::Key_Space);
    QCOMPARE(user.log.take(), QStringList("h(21)"));
}

// A host's class sees the rectangle that the user's change makes, and not the
// program's, which goes to the fields.
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
    } host;
    host.setCropRange(100, 100);
    static_cast<RectEditFrame &>(host).setValue(QRect(1, 2, 3, 4));
    QCOMPARE(host.rects, QList<QRect>());
    RectUser(host).check("x+: crop(2,2,3,4) x(2) (2,2,3,4)");
    QCOMPARE(host.rects, QList<QRect>({QRect(2, 2, 3, 4)}));
}

int main(int argc, char *argv[])
{
    return runTest<tst_RectEditFrames>(argc, argv);
}

#include "tst_recteditframes.moc"
