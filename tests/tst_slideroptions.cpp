#include "editoruser.h"

#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QScroller>

using namespace Vantor::Widgets;

// How a row with slider options handles mouse and touch.
class tst_SliderOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rows_data();
    void rows() { runTestCode(); }
    void fineDrag_data();
    void fineDrag() { runTestCode(); }
    void scrolledPage_data();
    void scrolledPage();
};

void tst_SliderOptions::rows_data()
{
    QTest::addColumn<TestCode>("code");
    const auto flick = rowsOfBothAfter("edits | default 10 | sliderOptions flick | ");
    for (const QString place : {"handle", "70", "minus", "plus", "field", "label"}) {
        flick("flick on " + place, "touch " + place + " | swipe 4 -40 | lift | selected: nothing");
        flick("flick on " + place + " with a pending entry",
              "type 7: start | touch " + place + " | swipe -4 40 | lift");
    }
    addTable(DATA "/slideroptions.txt",
             {{"groove", rowsOfBothAfter("edits | sliderOptions groove | ")},
              {"flick", flick},
              {"all", rowsOfBothAfter("edits | sliderOptions groove fine flick | ")}});
    addForBoth("held button repeats", [](auto &user) {
        user.performAll("sliderOptions flick | autoRepeat | touch plus | rest");
        QVERIFY(comesTrue([&] { return user.row.slider->value() > 12; }));
        user.performAll("lift");
    });
    addForBoth("press on the groove from right to left", [](auto &user) {
        user.page.setLayoutDirection(Qt::RightToLeft);
        user.play("sliderOptions groove fine | pressAt 70: 70 | move 80: 80 | drop");
    });
    addForBoth("property", [](auto &user) {
        QVERIFY(!user.frame->sliderOptions());
        user.frame->setProperty("sliderOptions", "FineDrag|FlickScrolls");
        QCOMPARE(int(user.frame->sliderOptions()), int(FineDrag | FlickScrolls));
    });
}

namespace {

// Drags the handle of a slider of 150 pixels with 4,096 values by single pixels.
template <typename Frame> struct FineUser : UserOf<Frame>
{
    FineUser()
    {
        this->row.slider->setFixedWidth(150);
        this->play("sliderOptions fine | range 0 4095 | value 2000 | hold");
        pos = User::handleRect(this->row.slider, 2000).center();
    }
    // The greatest difference of two values in a row.
    int pull(const QPoint &by, Qt::KeyboardModifiers modifiers = {})
    {
        int greatest = 0;
        const int steps = qMax(qAbs(by.x()), qAbs(by.y()));
        const QPoint start = pos;
        for (int i = 1; i <= steps; ++i) {
            const int before = value();
            pos = start + by * i / steps;
            User::moveTo(this->row.slider, pos, modifiers);
            greatest = qMax(greatest, qAbs(value() - before));
        }
        return greatest;
    }
    int value() const { return this->row.slider->sliderPosition(); }

    QPoint pos;
};

template <typename Frame, typename Code> void addFine(const QString &name, const Code &code)
{
    QTest::addRow("%s, %s", Frame::staticMetaObject.className(), qPrintable(name)) << TestCode([=] {
        FineUser<Frame> user;
        code(user);
    });
}

} // namespace

void tst_SliderOptions::fineDrag_data()
{
    QTest::addColumn<TestCode>("code");
    const auto add = [](const QString &name, const auto &code) {
        addFine<SliderEditFrame>(name, code);
        addFine<SliderEditFrameDouble>(name, code);
    };
    for (const int side : {-1, 1}) {
        add(side < 0 ? "far above" : "far below", [side](auto &user) {
            QCOMPARE(user.pull({0, side * 200}), 0);
            QCOMPARE(user.pull({40, 0}), 1); // no value is left out
            QVERIFY(user.value() > 2030);
            QCOMPARE(user.pull({-80, 0}), 1);
        });
        add(side < 0 ? "half way above" : "half way below", [side](auto &user) {
            QCOMPARE(user.pull({0, side * 100}), 0);
            const int most = user.pull({20, 0});
            QVERIFY2(most > 2 && most < 15, qPrintable(QString::number(most)));
        });
    }
    add("Shift", [](auto &user) {
        QCOMPARE(user.pull({40, 0}, Qt::ShiftModifier), 1);
        QCOMPARE(user.pull({0, 5}), 0); // without Shift no jump to the pointer
        QVERIFY(user.value() < 2045);
    });
    add("back at the slider", [](auto &user) {
        user.pull({0, 200});
        user.pull({-50, 0});
        QCOMPARE(user.pull({0, -200}), 0);
        // At most twice as fast as the pointer, until it is there.
        const int atSlider = user.pull({1, 0});
        QVERIFY2(atSlider > 2 && atSlider < 70, qPrintable(QString::number(atSlider)));
        QVERIFY(user.pull({-200, 0}) < 70);
        QCOMPARE(user.value(), 0);
        QVERIFY(user.pull({400, 0}) < 70);
        QCOMPARE(user.value(), 4095);
    });
    add("at the slider as without the option", [](auto &user) {
        QStringList expected;
        for (const bool isFine : {false, true}) {
            user.perform("drop");
            user.heard();
            user.performAll(isFine ? "sliderOptions fine | value 500 | hold"
                                   : "sliderOptions | value 500 | hold");
            user.pos = User::handleRect(user.row.slider, 500).center();
            user.pull({60, 20});
            user.pull({-90, -30});
            expected.append(user.heard());
        }
        QCOMPARE(expected[0], expected[1]);
        QVERIFY(expected[0].count(' ') > 100);
    });
}

void tst_SliderOptions::scrolledPage_data()
{
    QTest::addColumn<int>("gesture");
    QTest::newRow("touch") << int(QScroller::TouchGesture);
    QTest::newRow("mouse") << int(QScroller::LeftMouseButtonGesture);
}

// A flick scrolls the page from each child of a row as far as from the page itself; a drag does
// not.
void tst_SliderOptions::scrolledPage()
{
    QFETCH(int, gesture);
    QScrollArea area;
    UserOf<SliderEditFrame> user;
    user.page.setMinimumHeight(2000);
    area.setWidget(&user.page);
    area.setWidgetResizable(true);
    area.resize(800, 400);
    QVERIFY(User::show(area));
    QScroller::grabGesture(area.viewport(), QScroller::ScrollerGestureType(gesture));
    QScroller *const page = QScroller::scroller(area.viewport());
    user.play("edits | sliderOptions flick groove");
    for (const QString place : {"handle", "70", "minus", "plus", "field", "label"}) {
        area.verticalScrollBar()->setValue(900);
        user.play("touch " + place + " | swipe 0 -120 | lift");
        QVERIFY2(comesTrue([&] { return area.verticalScrollBar()->value() > 980; }),
                 qPrintable(place));
        page->stop();
    }
    area.verticalScrollBar()->setValue(900);
    user.play("touch handle | fingerTo 20: start 20 | swipe 0 -120 | lift: end");
    QCOMPARE(area.verticalScrollBar()->value(), 900);
    // A tap stops a page that is scrolling, and does nothing else; by touch, if Qt finds it fast.
    if (gesture == QScroller::LeftMouseButtonGesture) {
        page->scrollTo({0, 1600}, 1000);
        QCoreApplication::processEvents();
        QCOMPARE(page->state(), QScroller::Scrolling);
        user.play("touch minus | lift");
    }
    area.takeWidget();
}

QTEST_MAIN(tst_SliderOptions)

#include "tst_slideroptions.moc"
