#include "editortour.h"

#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "pictureview.h"
#include "scripteduser.h"
#include "userevents.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QScroller>
#include <QtWidgets/QSlider>

#include <cmath>

namespace {

void playAdjust(ScriptedUser &user)
{
    user.showPage(QStringLiteral("Adjust"));
    user.drag(QStringLiteral("Continuous"), 40);
    user.drag(QStringLiteral("On release"), -20);
    user.drag(QStringLiteral("Every 100 ms"), 30);
    user.click(QStringLiteral("Contrast"), "sliderEditPlus");
    user.click(QStringLiteral("Contrast"), "sliderEditPlus");
    user.click(QStringLiteral("Contrast"), "sliderEditSubtract");
    user.type(QStringLiteral("Contrast"), QStringLiteral("12*3\n"));
    user.type(QStringLiteral("Contrast"), QStringLiteral("1/0\n"));
    user.type(QStringLiteral("Gamma"), QStringLiteral("(1+4)/4\n"));
    user.type(QStringLiteral("Saturation"), QStringLiteral("7/5="));
    user.drag(QStringLiteral("Black level"), 0);
}

void playCrop(ScriptedUser &user)
{
    const QString width = QStringLiteral("Width");
    user.showPage(QStringLiteral("Crop"));
    user.type(width, QStringLiteral("12*3\n"));
    user.type(width, QStringLiteral("900\n"));
    user.click("toolButtonLockSize");
    user.say(QStringLiteral("drags the width against the edge of the picture, proportion locked"));
    user.drag(width, user.slider(width)->maximum());
    user.click("toolButtonLockSize");
    user.click("toolButtonLockPosition");
    user.drag(QStringLiteral("X"), 300);
    user.click("toolButtonLockPosition");

    user.say(QStringLiteral("drags the rectangle in the picture, which sets the editor silently"));
    PictureView *view = user.window().view();
    const QString x = user.fieldText(QStringLiteral("X"));
    user.drag(view, view->rect().center(), view->rect().center() + QPoint(-60, -40));
    ScriptedUser::expect(user.fieldText(QStringLiteral("X")) != x,
                         "the editor shows where the crop was dragged to");
}

void playMaskAndLayout(ScriptedUser &user)
{
    user.showPage(QStringLiteral("Mask"));
    user.type(QStringLiteral("Bottom"), QStringLiteral("1000\n"));
    user.type(QStringLiteral("Top"), QStringLiteral("100\n"));
    user.type(QStringLiteral("Bottom"), QStringLiteral("120\n"));
    user.click(QStringLiteral("Left"), "sliderEditPlus");

    user.showPage(QStringLiteral("Layout"));
    user.click("toolButtonLockSize");
    user.drag(QStringLiteral("Width"), 700);
    user.click("toolButtonLockSize");
    user.click(QStringLiteral("X"), "sliderEditSubtract");
}

void playColour(ScriptedUser &user)
{
    user.showPage(QStringLiteral("Colour"));
    user.drag(QStringLiteral("Red"), 120);
    user.click(QStringLiteral("Master"), "sliderEditSubtract");
    user.type(QStringLiteral("Opacity"), QStringLiteral("60/4\n"));
    user.turnWheelOver(QStringLiteral("Green"));
}

void playNumberPad(ScriptedUser &user)
{
    NumberPad *pad = user.window().numberPad();
    user.showPage(QStringLiteral("Adjust"));
    pad->setEnabledByFocus(true);
    user.clickInto(QStringLiteral("Contrast"));
    user.say(QStringLiteral("taps 7 * 6 and Enter on the number pad"));
    for (const char *key : {"7", "*", "6", "⏎"}) {
        user.click(pad->button(QString::fromUtf8(key)));
    }
    ScriptedUser::expect(!pad->isVisible(), "Enter closes the pad");
    ScriptedUser::expect(user.fieldText(QStringLiteral("Contrast")) == QLatin1String("42 %"),
                         "the pad's taps count");
    pad->setEnabledByFocus(false);
}

void playEntryOptions(ScriptedUser &user)
{
    const QString contrast = QStringLiteral("Contrast");
    const QString gamma = QStringLiteral("Gamma");
    const auto expectEntry = [&](const char *entry, const char *shown) {
        user.type(gamma, QLatin1String(entry));
        ScriptedUser::expect(user.fieldText(gamma) == QLatin1String(shown), shown);
    };
    user.showPage(QStringLiteral("Adjust"));
    expectEntry("9/8\n", "1.125");
    expectEntry("2,5\n", "4.000");
    user.choose(QStringLiteral("Decimal comma"));
    expectEntry("2,5\n", "2.500");
    user.choose(QStringLiteral("Exact results"));
    expectEntry("9/8\n", "1.130");

    const QString held = user.fieldText(contrast);
    user.type(contrast, QStringLiteral("55"));
    User::press(Qt::Key_Escape);
    ScriptedUser::expect(user.fieldText(contrast) == held, "Escape takes an entry back");
    user.choose(QStringLiteral("Enter stays in the field"));
    user.type(contrast, QStringLiteral("12*3\n"));
    User::type(QStringLiteral("2+3\n"));
    ScriptedUser::expect(user.fieldText(contrast) == QLatin1String("5 %"),
                         "the next entry follows Enter in the same field");
    NumberPad *pad = user.window().numberPad();
    pad->setEnabledByFocus(true);
    user.click(pad->button(QStringLiteral("⏎")));
    ScriptedUser::expect(pad->isVisible(), "the pad stays with the field");
    pad->setEnabledByFocus(false);
    for (const char *option : {"Decimal comma", "Exact results", "Enter stays in the field"}) {
        user.choose(QLatin1String(option));
    }
}

// A finger that moves up over the handle, with about 100 pixels in 0.1 seconds.
void flickOver(QWidget *slider)
{
    static auto *const screen = QTest::createTouchDevice();
    QWidget *window = slider->window();
    const QPoint start = slider->mapTo(window, slider->rect().center());
    QTest::touchEvent(window, screen).press(0, start, window);
    for (int i = 1; i <= 10; ++i) {
        QTest::touchEvent(window, screen).move(0, start - QPoint(0, 10 * i), window);
        QTest::qWait(10);
    }
    QTest::touchEvent(window, screen).release(0, start - QPoint(0, 100), window);
}

// Each editor is wholly on the smallest screens of panels, the number pad beside its field, and
// the page flicks.
void playPanel(ScriptedUser &user)
{
    MainWindow &window = user.window();
    NumberPad *pad = window.numberPad();
    const QRect usual = window.geometry();
    for (const QSize &screen : {QSize(800, 480), QSize(480, 800)}) {
        window.view()->setFocus();
        pad->setEnabledByFocus(true);
        window.fill(QRect(QPoint(), screen));
        for (const Page *page : window.pages()) {
            user.showPage(page->title());
            ScriptedUser::expect(window.size() == screen, "the window fits the screen");
            const int right = window.currentScrollArea()->viewport()->width();
            for (const QWidget *child : page->findChildren<QWidget *>()) {
                ScriptedUser::expect(
                    !child->isVisible() || child->mapTo(page, child->rect().topRight()).x() < right,
                    "each part of a row is on the screen");
            }
            for (QWidget *field : page->findChildren<QAbstractSpinBox *>()) {
                user.click(field);
                const QRect place(field->mapToGlobal(QPoint()), field->size());
                ScriptedUser::expect(pad->isVisible() && !pad->geometry().intersects(place),
                                     "the pad opens beside the field");
            }
        }
        user.showPage(QStringLiteral("Adjust"));
        pad->setEnabledByFocus(false);
        const QString row = QStringLiteral("Continuous");
        user.clickInto(row);
        const QScrollBar *bar = window.currentScrollArea()->verticalScrollBar();
        const int top = bar->value();
        const QString shown = user.fieldText(row);
        flickOver(user.slider(row));
        const QScroller *scroller = QScroller::scroller(window.currentScrollArea()->viewport());
        while (scroller->state() != QScroller::Inactive) {
            QTest::qWait(10);
        }
        ScriptedUser::expect(bar->value() > top && user.fieldText(row) == shown,
                             "a flick over a handle scrolls the page alone");
    }
    window.fill(usual);
}

// Each kind of change is one step for undo and redo, on every page.
void playUndo(ScriptedUser &user)
{
    const QString contrast = QStringLiteral("Contrast");
    const QString gamma = QStringLiteral("Gamma");
    user.showPage(QStringLiteral("Adjust"));
    user.undoAndRedo(contrast, [&] { user.drag(contrast, -80); });
    user.undoAndRedo(contrast, [&] { user.type(contrast, QStringLiteral("10+5\n")); });
    user.undoAndRedo(gamma, [&] { user.hold(gamma, "sliderEditPlus"); });
    user.undoAndRedo(gamma, [&] { user.drag(gamma, 300); });
    user.undoAndRedo(gamma, [&] { user.doubleClickLabel(gamma); });
    ScriptedUser::expect(user.fieldText(gamma) == QLatin1String("1.000"),
                         "a double click on the label goes back to the default");

    const QString exposure = QStringLiteral("Exposure");
    user.undoAndRedo(exposure, [&] { user.drag(exposure, 800); });
    const double decades = user.slider(exposure)->value() / 200.0;
    ScriptedUser::expect(user.fieldNumber(exposure) == qRound(std::pow(10, decades)),
                         "each fifth of the slider is a decade");
    user.undoAndRedo(exposure, [&] { user.type(exposure, QStringLiteral("50*2\n")); });
    ScriptedUser::expect(user.fieldText(exposure) == QStringLiteral("100 µs"),
                         "an expression is typed in front of the unit");
    user.undoAndRedo(exposure, [&] { user.doubleClickLabel(exposure); });

    const QString x = QStringLiteral("X");
    user.showPage(QStringLiteral("Crop"));
    user.undoAndRedo(x, [&] { user.drag(x, 100); });
    user.undoAndRedo(QStringLiteral("Width"), [&] {
        user.say(QStringLiteral("drags the crop's right edge in the picture"));
        const QRect crop = user.window().view()->rectInView().toRect();
        const QPoint edge(crop.right(), crop.center().y());
        user.drag(user.window().view(), edge, edge - QPoint(40, 0));
    });
    for (const QString &page : {QStringLiteral("Layout"), QStringLiteral("Mask")}) {
        const QString row = page == QLatin1String("Mask") ? QStringLiteral("Left") : x;
        user.showPage(page);
        user.undoAndRedo(row, [&] { user.drag(row, 300); });
    }
    user.showPage(QStringLiteral("Colour"));
    user.undoAndRedo(QStringLiteral("Opacity"), [&] { user.drag(QStringLiteral("Opacity"), 40); });
}

} // namespace

void tourEditors(ScriptedUser &user)
{
    playAdjust(user);
    playCrop(user);
    playMaskAndLayout(user);
    playColour(user);
    playNumberPad(user);
    playPanel(user);
    playUndo(user);
    playEntryOptions(user);
}
