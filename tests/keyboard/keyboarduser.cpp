// Types into rows with a finger on Qt's on-screen keyboard: keyboarduser PICTURE. Fails if a row
// gets another value. The picture of the screen shows the first entry before Enter.
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtCore/QDir>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>
#include <cstdlib>

using namespace Vantor::Widgets;

namespace {

// The keyboard is a window of Qt Quick in this process.
QWindow *keyboard()
{
    for (QWindow *window : QGuiApplication::allWindows()) {
        if (qstrcmp(window->metaObject()->className(), "QtVirtualKeyboard::InputView") == 0)
            return window;
    }
    return nullptr;
}

QPoint centerOf(const QObject *item)
{
    QPointF pos(item->property("width").toReal() / 2, item->property("height").toReal() / 2);
    for (; item != nullptr; item = item->property("parent").value<QObject *>())
        pos += {item->property("x").toReal(), item->property("y").toReal()};
    return pos.toPoint();
}

// The key of this sign; "2/2" on the first page of signs is the key of the second one.
QObject *findKey(const QString &sign)
{
    const auto items = keyboard() != nullptr && keyboard()->isVisible()
        ? keyboard()->findChildren<QObject *>()
        : QList<QObject *>();
    for (QObject *item : items) {
        const QVariant text = item->property("text"), shown = item->property("displayText");
        const int code = item->property("key").toInt();
        const bool isIt = text.toString() == sign || shown.toString() == sign
            || (sign == "\b" && code == Qt::Key_Backspace);
        if (isIt && text.isValid() && shown.isValid() && item->property("visible").toBool()
            && item->property("height").toReal() > 10)
            return item;
    }
    return nullptr;
}

QObject *waitForKey(const QString &sign, int milliseconds)
{
    QObject *key = findKey(sign);
    for (int waited = 0; key == nullptr && waited < milliseconds; waited += 20) {
        QTest::qWait(20);
        key = findKey(sign);
    }
    return key;
}

void touch(QWindow *window, const QPoint &pos)
{
    static auto *const screen = QTest::createTouchDevice();
    QTest::touchEvent(window, screen).press(0, pos, window);
    QTest::qWait(40);
    QTest::touchEvent(window, screen).release(0, pos, window);
    QTest::qWait(100);
}

bool tap(const QString &sign)
{
    QObject *key = waitForKey(sign, 300);
    for (const char *page : {"1/2", "2/2"}) { // each leads to the other one
        if (key == nullptr && findKey(page) != nullptr) {
            touch(keyboard(), centerOf(findKey(page)));
            key = waitForKey(sign, 1000);
        }
    }
    if (key == nullptr) {
        qWarning("The keyboard has no key %s.", qPrintable(sign));
        return false;
    }
    touch(keyboard(), centerOf(key));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QDir::addSearchPath("vantorslider", STYLES_DIR);
    application.setStyleSheet("file:///vantorslider:touch-light.qss");

    QWidget window;
    QVBoxLayout layout(&window);
    SliderEditFrame gain;
    gain.setLabelText("Gain");
    gain.setRange(-100, 100);
    SliderEditFrameDouble gamma;
    gamma.setLabelText("Gamma");
    gamma.setDecimals(2);
    gamma.setRange(0.1, 4);
    gamma.setValue(1);
    const auto add = [&layout](auto &row) {
        row.setLabelFixedWidth(90);
        row.setEntryOptions(AnyKeyboard);
        row.setSliderOptions(FlickScrolls);
        layout.addWidget(&row);
    };
    add(gain);
    add(gamma);
    layout.addStretch();
    window.setGeometry(QGuiApplication::primaryScreen()->geometry());
    window.show();
    window.activateWindow(); // there is no window manager
    if (!QTest::qWaitForWindowActive(&window))
        return 1;

    const struct
    {
        QWidget &row;
        const char *signs;
        double value;
    } entries[] = {{gain, "7×2\n", 14},
                   {gain, "-5\n", -5},
                   {gain, "(2+3)*4=", 20},
                   {gamma, "(1+2)÷4\n", 0.75},
                   {gamma, "0.5-\b/2\n", 0.25}};
    bool isRight = true;
    for (const auto &entry : entries) {
        const auto *field = entry.row.findChild<QAbstractSpinBox *>();
        touch(window.windowHandle(), field->mapTo(&window, field->rect().center()));
        waitForKey(" ", 10000);
        QTest::qWait(500); // until it has moved in
        for (const QChar sign : QString::fromUtf8(entry.signs)) {
            if (&entry == entries && sign == '\n')
                QGuiApplication::primaryScreen()->grabWindow(0).save(argv[1]);
            isRight = tap(sign) && isRight;
        }
        const double value = &entry.row == &gain ? gain.value() : gamma.value();
        isRight = isRight && qFuzzyCompare(value, entry.value);
        std::printf("%s: %g\n", QByteArray(entry.signs).replace('\n', "").constData(), value);
    }
    std::fflush(stdout);
    std::_Exit(isRight ? 0 : 1); // the keyboard crashes when the application is destroyed
}
