#include "compositecases.h"
#include "layouteditframe.h"

using Vantor::Widgets::LayoutEditFrame;
using Vantor::Widgets::RectEditFrame;
using Vantor::Widgets::SliderEditFrame;

class tst_RectEditFrame : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void lockButtons();
    void rows_data();
    void rows();
    void readsOneField();
    void panelsHideWithTheirFields();
    void spacing();
    void wholeRectangle();
    void locks_data();
    void locks();
    void hiddenLocksStay();
    void lockIsReportedWhenItIsOn();
    void layoutIsARectangle();

private:
    RectEditFrame *m_frame = nullptr;
    CompositeCases::Rows m_rows;
};

void tst_RectEditFrame::init()
{
    m_frame = new RectEditFrame;
    m_rows = CompositeCases::rowsOf(*m_frame);
}

void tst_RectEditFrame::cleanup()
{
    delete m_frame;
}

// The lock buttons take the places that are kept for them.
void tst_RectEditFrame::lockButtons()
{
    const auto places = [this](const QStringList &names) {
        QStringList texts;
        for (const QString &name : names) {
            const auto *place = m_frame->findChild<QWidget *>(name);
            texts.append(place->isHidden() ? "hidden" : limits(place->width(), place->height()));
            for (const QByteArray &property : place->dynamicPropertyNames())
                texts.append(property + '=' + place->property(property).toString());
        }
        return texts.join(' ');
    };
    const QStringList buttons {"toolButtonLockPosition", "toolButtonLockSize"};
    const QStringList spacers {"frameSpacerLockPosition", "frameSpacerLockSize"};
    QCOMPARE(m_frame->objectName(), QString("RectEditFrame"));
    QCOMPARE(m_frame->property("isSliderFrame"), QVariant(true));
    QVERIFY(User::show(*m_frame));
    const int before = m_rows[RectEditFrame::X].frame->width();
    const QString buttonTexts =
        "%1 lockoutstate=true isLockPositionFrame=true %1 lockoutstate=true";
    const QString spacerTexts = "%1 isLockPositionFrame=true %1";
    QCOMPARE(places(buttons), buttonTexts.arg("hidden"));
    QCOMPARE(places(spacers), spacerTexts.arg("38..60"));
    m_frame->setPositionLockEnable(true);
    m_frame->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    QCoreApplication::processEvents();
    QCOMPARE(places(buttons), buttonTexts.arg("38..60"));
    QCOMPARE(places(spacers), spacerTexts.arg("hidden"));
    for (const Row &row : m_rows)
        QCOMPARE(row.frame->width(), before);
}

void tst_RectEditFrame::rows_data()
{
    using namespace CompositeCases;
    QTest::addColumn<Check>("check");
    const auto hold = [](RectEditFrame &frame, RectEditFrame::Type type) {
        frame.setValueChangeDirection(type, SliderEditFrame::AllowedToSmaller, 20);
    };
    addChecks<RectEditFrame>(
        "RectEditFrame",
        {{"setValueChangeDirection", "Set Rect value change direction", hold, "plus=20"}});
    QTest::newRow("isMousePressed") << Check(checkMousePressed<RectEditFrame>);
}

void tst_RectEditFrame::rows()
{
    QFETCH(Check, check);
    check();
}

void tst_RectEditFrame::readsOneField()
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

void tst_RectEditFrame::panelsHideWithTheirFields()
{
    const auto *position = m_frame->findChild<QFrame *>(QStringLiteral("framePosition"));
    const auto *size = m_frame->findChild<QFrame *>(QStringLiteral("frameSize"));
    for (const int types : {10, 24, 6, 20, 0, 30}) {
        m_frame->setEditerVisible(types);
        QCOMPARE(position->isHidden(), (types & RectEditFrame::Position) == 0);
        QCOMPARE(size->isHidden(), (types & RectEditFrame::Size) == 0);
    }
}

void tst_RectEditFrame::spacing()
{
    const auto spacings = [this] {
        QList<int> values {m_frame->layout()->spacing()};
        for (const char *panel : {"framePosition", "frameSize"})
            values.append(m_frame->findChild<QFrame *>(QLatin1String(panel))->layout()->spacing());
        for (const char *column : {"verticalLayoutFramePosition", "verticalLayoutFrameSize"})
            values.append(m_frame->findChild<QLayout *>(QLatin1String(column))->spacing());
        return values;
    };
    QCOMPARE(spacings(), QList<int>({0, 0, 0, 0, 0}));
    m_frame->setVerticalSpacing(8);
    QCOMPARE(spacings(), QList<int>({8, 8, 8, 0, 0}));
    m_frame->setHorizontalSpacing(3, 5);
    QCOMPARE(spacings(), QList<int>({8, 5, 5, 0, 0}));
    QCOMPARE(CompositeCases::lastSpacer(*m_frame), QStringLiteral("20x14 Minimum Expanding"));
}

void tst_RectEditFrame::wholeRectangle()
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

void tst_RectEditFrame::locks_data()
{
    QTest::addColumn<QString>("steps");

    // What the random gestures come across too is here by one example.
    QTest::newRow("position")
        << "range y 0 30 | set 10 20 1 1 | lock position: positionLock(true) | "
           "x=15: x(15) (15,25,1,1) | x=25: x(25) (25,30,1,1) | x+: x(25) (25,30,1,1) | "
           "x-: x(24) (24,30,1,1) | lock position: positionLock(false) | x=40: x(40) (40,30,1,1)";
    QTest::newRow("offset")
        << "offset | set 0 0 100 50 | lock size: sizeLock(true) | w=120: w(120) (0,0,120,70) | "
           "h=60: h(60) (0,0,110,60) | scale | w=80: h(40) w(80) (0,0,80,40) | "
           "size lock off: sizeLock(false) | w=1: w(1) (0,0,1,40)";
    QTest::newRow("halves round away from zero")
        << "set 0 0 4 2 | size lock on: sizeLock(true) | w=3: h(2) w(3) (0,0,3,2) | "
           "range w -9 9 | range h -9 9 | set 0 0 4 2 | size lock on | "
           "w=-3: h(-2) w(-3) (0,0,-3,-2) | h=-1: w(-2) h(-1) (0,0,-2,-1)";
    QTest::newRow("ratio")
        << "ratio 7 | set 0 0 100 100 | size lock on: sizeLock(true) | "
           "w=50: h(50) w(50) (0,0,50,50) | ratio 1.5 | w=300: h(200) w(300) (0,0,300,200) | "
           "ratio 0.3333 | h=500: w(167) h(500) (0,0,167,500) | ratio 0.6667 | "
           "h=300: w(200) h(300) (0,0,200,300) | h=500: w(334) h(500) (0,0,334,500) | ratio 0.0004 "
           "| w=50: w(50) (0,0,50,500) | "
           "ratio -2 | w=60: w(60) (0,0,60,500)";
    QTest::newRow("proportion stops at the area's edge")
        << "range x 50 1000 | range w 0 450 | set 150 0 200 100 | "
           "size lock on: sizeLock(true) | w=400: h(175) w(350) (150,0,350,175) | "
           "range w 0 600 | w+: h(175) w(350) (150,0,350,175) | size lock on | "
           "w+: h(176) w(351) (150,0,351,176) | w=500: h(250) w(500) (150,0,500,250) | "
           "set 100 0 500 250 | w+: h(250) w(500) (100,0,500,250)";
    QTest::newRow("basis without width")
        << "set 0 0 0 100 | size lock on: sizeLock(true) | w=50: w(50) (0,0,50,100) | "
           "range w 10 500 | h=70: w(0) h(70) (0,0,10,70) | range w 0 0 | "
           "h=80: w(0) h(80) (0,0,0,80)";
    QTest::newRow("basis without height")
        << "set 0 0 100 0 | size lock on: sizeLock(true) | h=50: h(50) (0,0,100,50) | "
           "range h 10 500 | w=70: h(0) w(70) (0,0,70,10) | range h 0 0 | "
           "w=80: h(0) w(80) (0,0,80,0)";
    // Floats hold these numbers exactly, so the fields can be typed into.
    QTest::newRow("position saturates")
        << "range x -2147483648 2147483647 | range y -2147483648 2147483647 | "
           "set -2000000000 2000000000 1 1 | lock position: positionLock(true) | "
           "x=1500000000: x(1500000000) (1500000000,2147483647,1,1) | "
           "x+: x(1500000000) (1500000000,2147483647,1,1) | set -2000000000 2000000000 1 1 | "
           "y=-1500000000: y(-1500000000) (-2147483648,-1500000000,1,1)";
    QTest::newRow("products leave 32 bits")
        << "range w 0 2147483647 | range h 0 2147483647 | set 0 0 2000000000 1000000000 | "
           "size lock on: sizeLock(true) | "
           "w=1000000000: h(500000000) w(1000000000) (0,0,1000000000,500000000) | "
           "h=1000000000: w(2000000000) h(1000000000) (0,0,2000000000,1000000000) | "
           "set 0 0 1 2000000000 | size lock on | "
           "w=1000: h(2000000000) w(1) (0,0,1,2000000000)";
    QTest::newRow("the distance from the minimum leaves 32 bits")
        << "range x -2147483648 2147483647 | set 2147483647 0 100 50 | "
           "size lock on: sizeLock(true) | w=50: h(50) w(100) (2147483647,0,100,50)";
}

void tst_RectEditFrame::locks()
{
    QFETCH(QString, steps);
    for (const auto type :
         {RectEditFrame::X, RectEditFrame::Y, RectEditFrame::Width, RectEditFrame::Height})
        m_frame->setRange(type, 0, 1000);
    m_frame->setValue(0, 0, 0, 0);
    RectUser(*m_frame).check(steps);
}

void tst_RectEditFrame::hiddenLocksStay()
{
    RectUser user(*m_frame);
    user.check("set 10 20 40 20 | lock position: positionLock(true) | lock size: sizeLock(true)");
    m_frame->setPositionLockEnable(false);
    m_frame->setSizeLockEnable(false, RectEditFrame::SizeScaleLock);
    user.check("x+: x(11) (11,21,40,20) | w=20: h(10) w(20) (11,21,20,10)");
}

// A host may choose its own proportion the moment that the user locks the size.
void tst_RectEditFrame::lockIsReportedWhenItIsOn()
{
    RectUser user(*m_frame);
    connect(m_frame, &RectEditFrame::sizeLockChanged, [this] { m_frame->setSizeLock(qreal(4)); });
    user.check("set 0 0 40 20 | lock size: sizeLock(true) | w=20: h(5) w(20) (0,0,20,5)");
}

void tst_RectEditFrame::layoutIsARectangle()
{
    LayoutEditFrame layout;
    QCOMPARE(layout.metaObject()->className(), "Vantor::Widgets::LayoutEditFrame");
    QCOMPARE(layout.metaObject()->methodCount(), RectEditFrame::staticMetaObject.methodCount());
    QVERIFY(qobject_cast<RectEditFrame *>(&layout));
}

int main(int argc, char *argv[])
{
    return runTest<tst_RectEditFrame>(argc, argv);
}

#include "tst_recteditframe.moc"
