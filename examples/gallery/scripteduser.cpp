#include "scripteduser.h"

#include "logpane.h"
#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "pictureview.h"

#include <QtGui/QWheelEvent>
#include <QtGui/QWindow>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionSlider>

namespace {

QPoint handleCentre(const QSlider &slider, int position)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.state |= QStyle::State_Horizontal;
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.sliderPosition = position;
    option.sliderValue = position;
    option.upsideDown = slider.layoutDirection() == Qt::RightToLeft;
    option.subControls = QStyle::SC_All;
    return slider.style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider)
        .center();
}

// Where the pointer is for the window system: events enter there, so that Qt
// itself finds the widget, the grab and the focus.
QPoint inWindow(const QWidget &widget, const QPoint &point)
{
    return widget.mapTo(widget.window(), point);
}

} // namespace

ScriptedUser::ScriptedUser(MainWindow &window) : m_window(window) { }

void ScriptedUser::play()
{
    playAdjust();
    playCrop();
    playMaskAndLayout();
    playColour();
    playNumberPad();
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
    drag(view, view->rect().center(), view->rect().center() + QPoint(-60, -40));
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
    say(pad->isVisible() ? QStringLiteral("sees the pad still open")
                         : QStringLiteral("sees the pad closed"));
    pad->setEnabledByFocus(false);
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
    say(QStringLiteral("drags %1 to the place of %2").arg(row).arg(sliderPosition));
    QSlider *handleOwner = slider(row);
    drag(handleOwner, handleCentre(*handleOwner, handleOwner->value()),
         handleCentre(*handleOwner, sliderPosition));
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
    for (const QChar character : text) {
        QWidget *field = QApplication::focusWidget();
        if (character == QLatin1Char('\n')) {
            QTest::keyClick(field, Qt::Key_Enter);
        } else {
            QTest::keyClick(field, character.toLatin1());
        }
    }
    QApplication::processEvents();
}

void ScriptedUser::click(QWidget *widget)
{
    m_window.currentScrollArea()->ensureWidgetVisible(widget);
    QTest::mouseClick(widget->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      inWindow(*widget, widget->rect().center()));
    QApplication::processEvents(); // the field selects its text once it is idle
}

void ScriptedUser::moveAway()
{
    const PictureView *view = m_window.view();
    QTest::mouseMove(m_window.windowHandle(), inWindow(*view, view->rect().center()));
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

void ScriptedUser::say(const QString &what) const
{
    m_window.log()->record(QStringLiteral("— user"), what);
}

void ScriptedUser::drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    m_window.currentScrollArea()->ensureWidgetVisible(widget);
    QWindow *window = widget->window()->windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, inWindow(*widget, from));
    const int moves = 6;
    for (int i = 1; i <= moves; ++i) {
        QTest::mouseMove(window, inWindow(*widget, from + (to - from) * i / moves));
        QTest::qWait(40); // a person's hand, so that the sampling row has its ticks
    }
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, inWindow(*widget, to));
    QApplication::processEvents();
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
    const QPoint centre = inWindow(*target, target->rect().center());
    const QPoint global = m_window.mapToGlobal(centre);
    const QPoint notch(0, -QWheelEvent::DefaultDeltasPerStep);
#if QT_VERSION >= QT_VERSION_CHECK(5, 12, 0)
    QWheelEvent wheel(centre, global, QPoint(), notch, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
#else
    QWheelEvent wheel(centre, global, QPoint(), notch, notch.y(), Qt::Vertical, Qt::NoButton,
                      Qt::NoModifier);
#endif
    // Only a turn that comes from outside goes on to the parents when a widget
    // ignores it, and sendEvent() would mark it as the program's own.
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(m_window.windowHandle(), &wheel);
    say(QStringLiteral("turns the wheel over %1: its value goes from %2 to %3, the page from %4 "
                       "to %5")
            .arg(row)
            .arg(value)
            .arg(target->value())
            .arg(top)
            .arg(bar->value()));
    m_window.resize(size);
}

void ScriptedUser::click(const char *lockButton)
{
    say(QStringLiteral("clicks %1").arg(QLatin1String(lockButton)));
    click(m_window.currentScrollArea()->findChild<QWidget *>(QLatin1String(lockButton)));
}
