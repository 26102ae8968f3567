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

// The pointer that has pressed the handle of a slider of 150 pixels with 4,096 values.
struct Pointer
{
    // By single pixels. The greatest difference of two values in a row.
    int pull(const QPoint &by, Qt::KeyboardModifiers modifiers = {})
    {
        int greatest = 0;
        const int steps = qMax(qAbs(by.x()), qAbs(by.y()));
        const QPoint start = pos;
        for (int i = 1; i <= steps; ++i) {
            const int before = value();
            pos = start + by * i / steps;
            User::moveTo(slider, pos, modifiers);
            greatest = qMax(greatest, qAbs(value() - before));
        }
        return greatest;
    }
    int value() const { return slider->sliderPosition(); }

    EditorUser &user;
    QSlider *slider = user.rows.first().slider;
    QPoint pos = User::handleRect(slider, 2000).center();
};

} // namespace

void tst_SliderOptions::fineDrag_data()
{
    QTest::addColumn<TestCode>("code");
    const auto add = [](const QString &name, const std::function<void(Pointer &)> &code) {
        addForBoth(name, [=](auto &user) {
            user.row.slider->setFixedWidth(150);
            user.play("sliderOptions fine | range 0 4095 | value 2000 | hold");
            Pointer pointer {user};
            code(pointer);
        });
    };
    for (const int side : {-1, 1}) {
        add(side < 0 ? "far above" : "far below", [side](Pointer &pointer) {
            QCOMPARE(pointer.pull({0, side * 200}), 0);
            QCOMPARE(pointer.pull({40, 0}), 1); // no value is left out
            QVERIFY(pointer.value() > 2030);
            QCOMPARE(pointer.pull({-80, 0}), 1);
        });
        add(side < 0 ? "half way above" : "half way below", [side](Pointer &pointer) {
            QCOMPARE(pointer.pull({0, side * 100}), 0);
            const int most = pointer.pull({20, 0});
            QVERIFY2(most > 2 && most < 15, qPrintable(QString::number(most)));
        });
    }
    add("Shift", [](Pointer &pointer) {
        QCOMPARE(pointer.pull({40, 0}, Qt::ShiftModifier), 1);
        QCOMPARE(pointer.pull({0, 5}), 0); // without Shift no jump to the pointer
        QVERIFY(pointer.value() < 2045);
    });
    add("back at the slider", [](Pointer &pointer) {
        pointer.pull({0, 200});
        pointer.pull({-50, 0});
        QCOMPARE(pointer.pull({0, -200}), 0);
        // Slower than the pointer, whose way is longer; then twice as fast, until it is there.
        const int atSlider = pointer.pull({1, 0});
        QVERIFY2(atSlider > 2 && atSlider < 26, qPrintable(QString::number(atSlider)));
        QVERIFY(pointer.pull({-200, 0}) < 70);
        QCOMPARE(pointer.value(), 0);
        QVERIFY(pointer.pull({400, 0}) < 70);
        QCOMPARE(pointer.value(), 4095);
    });
    add("at the slider as without the option", [](Pointer &pointer) {
        QStringList expected;
        for (const bool isFine : {false, true}) {
            pointer.user.perform("drop");
            pointer.user.heard();
            const QString options = isFine ? "sliderOptions fine" : "sliderOptions";
            pointer.user.performAll(options + " | value 500 | hold");
            pointer.pos = User::handleRect(pointer.slider, 500).center();
            pointer.pull({60, 20});
            pointer.pull({-90, -30});
            expected.append(pointer.user.heard());
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
