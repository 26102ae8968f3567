#include "editoruser.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QToolTip>

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
    frame.findChild<QWidget *>("toolButtonLockSize")->setAccessibleName("Ratio");
    const User::UpperCase language;
    QVERIFY(places().contains("LOCK POSITION") && places().contains("Ratio"));
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

// The rows of the table, and some with a receiver.
void tst_RectEditFrames::sequences_data()
{
    QTest::addColumn<TestCode>("code");
    const auto rect = rowsAfter<RectEditFrame>(
        "x range 0 1000 | y range 0 1000 | w range 0 1000 | h range 0 1000 | set 0 0 0 0 | ");
    // The far edges of the area are at 10 + 1920 and 20 + 1080.
    const auto crop = rowsAfter<CropEditFrame>("areaFrom 10 20 1 1 1920 1080 | ");
    // x, y, w and h are the top, bottom, left and right margins.
    const auto mask = rowsAfter<MaskEditFrame>("area 1920 1080 | ");
    addTable(DATA "/rectangles.txt", {{"rect", rect}, {"crop", crop}, {"mask", mask}});

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
    addFor<RectEditFrame>("tool tips of the locks", [](auto &user) {
        QToolButton *const lock = user.frame->lockButton(RectEditFrame::Position);
        const auto shown = [lock] {
            const QPoint pos = lock->rect().center();
            QHelpEvent event(QEvent::ToolTip, pos, lock->mapToGlobal(pos));
            QApplication::sendEvent(lock, &event);
            return QToolTip::text();
        };
        QCOMPARE(shown(), QString());
        user.frame->setLockToolTips(true);
        QCOMPARE(shown(), QString("Lock position"));
        {
            const User::UpperCase language;
            QCOMPARE(shown(), QString("LOCK POSITION"));
        }
        user.frame->setToolTip("Area");
        QCOMPARE(shown(), QString("Area"));
        lock->setToolTip("Diagonal");
        QCOMPARE(shown(), QString("Diagonal"));
        lock->setToolTip(QString());
        user.frame->setToolTip(QString());
        user.frame->setLockToolTips(false);
        QToolTip::showText(QPoint(), "other");
        QCOMPARE(shown(), QString("other"));
        QVERIFY(user.frame->lockButton(RectEditFrame::Size) != lock);
        QCOMPARE(user.frame->lockButton(RectEditFrame::X), nullptr);
        QCOMPARE(user.heard(),
                 QString("warning: Get Rect lock button has failed. The type  2  is invalid."));
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
