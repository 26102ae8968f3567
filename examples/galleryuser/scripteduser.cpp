#include "scripteduser.h"

#include "logpane.h"
#include "mainwindow.h"
#include "numberpad.h"
#include "page.h"
#include "pictureview.h"
#include "userevents.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

#include <QAction> // of QtWidgets or, with Qt 6, of QtGui

ScriptedUser::ScriptedUser(MainWindow &window) : m_window(window) { }

PictureView *ScriptedUser::view() const
{
    return m_window.view();
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

void ScriptedUser::choose(const QString &menuEntry)
{
    say(QStringLiteral("chooses %1").arg(menuEntry));
    const auto actions = m_window.menuBar()->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text().remove(QLatin1Char('&')) == menuEntry) {
            action->trigger();
            QApplication::processEvents();
            return;
        }
    }
    qFatal("The menus have no entry %s.", qPrintable(menuEntry));
}

void ScriptedUser::inDialog(const std::function<bool(QWidget *)> &work,
                            const std::function<void()> &open)
{
    bool isWorked = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        isWorked = dialog && work(dialog);
        if (isWorked) {
            timer.stop();
        }
    });
    timer.start(10);
    open();
    expect(isWorked, "the dialog opens");
    m_window.activateWindow(); // as a window system does after a dialog closes
    QApplication::processEvents();
}

void ScriptedUser::answer(int button, const std::function<void()> &open)
{
    const auto work = [this, button](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        if (box) {
            say(QStringLiteral("is asked: %1").arg(box->text()));
            User::click(box->button(static_cast<QMessageBox::StandardButton>(button)));
        }
        return box != nullptr;
    };
    inDialog(work, open);
}

void ScriptedUser::takeFile(const QString &path, const std::function<void()> &open)
{
    const auto work = [path](QWidget *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (name) {
            name->setText(path);
            QTest::keyClick(name, Qt::Key_Return);
        }
        return name != nullptr;
    };
    inDialog(work, open);
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

void ScriptedUser::doubleClickLabel(const QString &row)
{
    say(QStringLiteral("clicks the label of %1 twice").arg(row));
    QTest::mouseDClick(this->row(row)->findChild<QWidget *>(QStringLiteral("labelName")),
                       Qt::LeftButton);
    QApplication::processEvents();
}

void ScriptedUser::clickInto(const QString &row)
{
    click(this->row(row)->findChild<QAbstractSpinBox *>());
}

// A line feed means Enter.
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

int ScriptedUser::fieldNumber(const QString &row) const
{
    return this->row(row)->findChild<QSpinBox *>()->value();
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

// As slow as a hand, so that the sampling row has its ticks.
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
