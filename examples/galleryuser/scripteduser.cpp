#include "scripteduser.h"

#include "logpane.h"
#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "pictureview.h"
#include "userevents.h"

#include <QtTest/QTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

ScriptedUser::ScriptedUser(MainWindow &window) : m_window(window) { }

void ScriptedUser::play()
{
    playAdjust();
    playCrop();
    playMaskAndLayout();
    playColour();
    playNumberPad();
    playUndo();
}

void ScriptedUser::playAdjust()
{
    showPage(QStringLiteral("Adjust"));
    drag(QStringLiteral("Continuous"), 40);
    drag(QStringLiteral("On release"), -20);
    drag(QStringLiteral("Every 100 ms"), 30);
    click(QStringLiteral("Contrast"), "sliderEditPlus");
    click(QStringLiteral("Contrast"), "sliderEditPlus");
    click(QStringLiteral("Contrast"), "sliderEditSubtract");
    type(QStringLiteral("Contrast"), QStringLiteral("12*3\n"));
    type(QStringLiteral("Contrast"), QStringLiteral("1/0\n"));
    type(QStringLiteral("Gamma"), QStringLiteral("(1+4)/4\n"));
    type(QStringLiteral("Saturation"), QStringLiteral("7/5="));
    drag(QStringLiteral("Black level"), 0);
}

void ScriptedUser::playCrop()
{
    const QString width = QStringLiteral("Width");
    showPage(QStringLiteral("Crop"));
    type(width, QStringLiteral("12*3\n"));
    type(width, QStringLiteral("900\n"));
    click("toolButtonLockSize");
    say(QStringLiteral("drags the width against the edge of the picture, proportion locked"));
    drag(width, slider(width)->maximum());
    click("toolButtonLockSize");
    click("toolButtonLockPosition");
    drag(QStringLiteral("X"), 300);
    click("toolButtonLockPosition");

    say(QStringLiteral("drags the rectangle in the picture, which sets the editor silently"));
    PictureView *view = m_window.view();
    const QString x = fieldText(QStringLiteral("X"));
    drag(view, view->rect().center(), view->rect().center() + QPoint(-60, -40));
    expect(fieldText(QStringLiteral("X")) != x, "the editor shows where the crop was dragged to");
}

void ScriptedUser::playMaskAndLayout()
{
    showPage(QStringLiteral("Mask"));
    type(QStringLiteral("Bottom"), QStringLiteral("1000\n"));
    type(QStringLiteral("Top"), QStringLiteral("100\n"));
    type(QStringLiteral("Bottom"), QStringLiteral("120\n"));
    click(QStringLiteral("Left"), "sliderEditPlus");

    showPage(QStringLiteral("Layout"));
    click("toolButtonLockSize");
    drag(QStringLiteral("Width"), 700);
    click("toolButtonLockSize");
    click(QStringLiteral("X"), "sliderEditSubtract");
}

void ScriptedUser::playColour()
{
    showPage(QStringLiteral("Colour"));
    drag(QStringLiteral("Red"), 120);
    click(QStringLiteral("Master"), "sliderEditSubtract");
    type(QStringLiteral("Opacity"), QStringLiteral("60/4\n"));
    turnWheelOver(QStringLiteral("Green"));
}

void ScriptedUser::playNumberPad()
{
    NumberPad *pad = m_window.numberPad();
    showPage(QStringLiteral("Adjust"));
    pad->setEnabledByFocus(true);
    clickInto(QStringLiteral("Contrast"));
    say(QStringLiteral("taps 7 * 6 and Enter on the number pad"));
    for (const char *key : {"7", "*", "6", "⏎"}) {
        click(pad->button(QString::fromUtf8(key)));
    }
    expect(!pad->isVisible(), "Enter closes the pad");
    expect(fieldText(QStringLiteral("Contrast")) == QLatin1String("42"), "the pad's taps count");
    pad->setEnabledByFocus(false);
}

// Each way to change something is one step back and one forth, on every page.
void ScriptedUser::playUndo()
{
    const QString contrast = QStringLiteral("Contrast");
    const QString gamma = QStringLiteral("Gamma");
    showPage(QStringLiteral("Adjust"));
    undoAndRedo(contrast, [&] { drag(contrast, -80); });
    undoAndRedo(contrast, [&] { type(contrast, QStringLiteral("10+5\n")); });
    undoAndRedo(gamma, [&] { hold(gamma, "sliderEditPlus"); });
    undoAndRedo(gamma, [&] { drag(gamma, 300); });

    const QString x = QStringLiteral("X");
    showPage(QStringLiteral("Crop"));
    undoAndRedo(x, [&] { drag(x, 100); });
    undoAndRedo(QStringLiteral("Width"), [&] {
        say(QStringLiteral("drags the crop's right edge in the picture"));
        const QRect crop = m_window.view()->cropInView();
        const QPoint edge(crop.right(), crop.center().y());
        drag(m_window.view(), edge, edge - QPoint(40, 0));
    });
    for (const QString &page : {QStringLiteral("Layout"), QStringLiteral("Mask")}) {
        const QString row = page == QLatin1String("Mask") ? QStringLiteral("Left") : x;
        showPage(page);
        undoAndRedo(row, [&] { drag(row, 300); });
    }
    showPage(QStringLiteral("Colour"));
    undoAndRedo(QStringLiteral("Opacity"), [&] { drag(QStringLiteral("Opacity"), 40); });
}

void ScriptedUser::showPage(const QString &title)
{
    for (int i = 0; i < m_window.pages().size(); ++i) {
        if (m_window.pages().at(i)->title() == title) {
            say(QStringLiteral("opens the page %1").arg(title));
            m_window.showPage(i);
            QApplication::processEvents();
        }
    }
}

void ScriptedUser::drag(const QString &row, int sliderPosition)
{
    say(QStringLiteral("drags %1 to %2").arg(row).arg(sliderPosition));
    QSlider *handleOwner = slider(row);
    const int start = handleOwner->value();
    m_window.currentScrollArea()->ensureWidgetVisible(handleOwner);
    User::grabHandle(handleOwner);
    move([&](int step) {
        User::moveHandle(handleOwner, start + (sliderPosition - start) * step / dragMoves);
    });
    User::dropHandle(handleOwner);
    QApplication::processEvents();
}

void ScriptedUser::undoAndRedo(const QString &row, const std::function<void()> &change)
{
    const QString before = fieldText(row);
    change();
    const QString after = fieldText(row);
    User::press(Qt::Key_Z, Qt::ControlModifier);
    const QString undone = fieldText(row);
    User::press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    const QString redone = fieldText(row);
    say(QStringLiteral("presses Ctrl+Z, Ctrl+Shift+Z: %1 goes from %2 to %3, to %4")
            .arg(row, after, undone, redone));
    expect(after != before && undone == before && redone == after, "that was one step");
}

// Until the button has repeated its step.
void ScriptedUser::hold(const QString &row, const char *button)
{
    say(QStringLiteral("holds %1 of %2").arg(QLatin1String(button), row));
    auto *widget = this->row(row)->findChild<QWidget *>(QLatin1String(button));
    m_window.currentScrollArea()->ensureWidgetVisible(widget);
    User::pressAt(widget, widget->rect().center());
    QTest::qWait(700);
    User::releaseAt(widget, widget->rect().center());
    QApplication::processEvents();
}

void ScriptedUser::click(const QString &row, const char *button)
{
    say(QStringLiteral("clicks %1 of %2").arg(QLatin1String(button), row));
    click(this->row(row)->findChild<QWidget *>(QLatin1String(button)));
}

void ScriptedUser::clickInto(const QString &row)
{
    click(this->row(row)->findChild<QAbstractSpinBox *>());
}

// A line feed stands for Enter.
void ScriptedUser::type(const QString &row, const QString &text)
{
    QString shown = text;
    say(QStringLiteral("types «%1» into %2")
            .arg(shown.replace(QLatin1Char('\n'), QStringLiteral("⏎")), row));
    clickInto(row);
    User::type(text);
    QApplication::processEvents();
}

void ScriptedUser::click(QWidget *widget)
{
    m_window.currentScrollArea()->ensureWidgetVisible(widget);
    User::click(widget);
    QApplication::processEvents(); // the field selects its text once it is idle
}

void ScriptedUser::moveAway()
{
    User::moveTo(m_window.view(), m_window.view()->rect().center());
}

QWidget *ScriptedUser::row(const QString &label) const
{
    const auto labels =
        m_window.currentScrollArea()->findChildren<QLabel *>(QStringLiteral("labelName"));
    for (const QLabel *candidate : labels) {
        if (candidate->text() == label) {
            return candidate->parentWidget();
        }
    }
    qFatal("The page has no row %s.", qPrintable(label));
}

QSlider *ScriptedUser::slider(const QString &row) const
{
    return this->row(row)->findChild<QSlider *>();
}

QString ScriptedUser::fieldText(const QString &row) const
{
    return this->row(row)->findChild<QAbstractSpinBox *>()->text();
}

void ScriptedUser::expect(bool isSo, const char *what)
{
    if (!isSo) {
        qFatal("The scripted user expected that %s.", what);
    }
}

void ScriptedUser::say(const QString &what) const
{
    m_window.log()->record(QStringLiteral("— user"), what);
}

void ScriptedUser::drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    User::pressAt(widget, from);
    move([&](int step) { User::moveTo(widget, from + (to - from) * step / dragMoves); });
    User::releaseAt(widget, to);
    QApplication::processEvents();
}

// A person's hand, so that the sampling row has its ticks.
void ScriptedUser::move(const std::function<void(int)> &moveTo)
{
    for (int step = 1; step <= dragMoves; ++step) {
        moveTo(step);
        QTest::qWait(40);
    }
}

void ScriptedUser::turnWheelOver(const QString &row)
{
    const QSize size = m_window.size();
    m_window.resize(size.width(), 560); // the page no longer fits
    QApplication::processEvents();

    QSlider *target = slider(row);
    QScrollBar *bar = m_window.currentScrollArea()->verticalScrollBar();
    bar->setValue(bar->minimum());
    const int value = target->value();
    const int top = bar->value();
    User::turnWheel(target, false);
    say(QStringLiteral("turns the wheel over %1: its value goes from %2 to %3, the page from %4 "
                       "to %5")
            .arg(row)
            .arg(value)
            .arg(target->value())
            .arg(top)
            .arg(bar->value()));
    expect(target->value() == value && bar->value() > top, "the wheel scrolls the page alone");
    m_window.resize(size);
}

void ScriptedUser::click(const char *lockButton)
{
    say(QStringLiteral("clicks %1").arg(QLatin1String(lockButton)));
    click(m_window.currentScrollArea()->findChild<QWidget *>(QLatin1String(lockButton)));
}
