#include "testuser.h"

#include <QtCore/QAbstractEventDispatcher>
#include <QtCore/QDir>
#include <QtCore/QMetaEnum>
#include <QtCore/QRegularExpression>
#include <QtGui/QClipboard>

namespace {

// Needs no display, and sets the same look and locale everywhere. Chooses the platform before
// the application is constructed. Linked into the programs that use anything of this file.
void prepareTest()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_STYLE_OVERRIDE", "Fusion");
    QLocale::setDefault(QLocale::c());
}
Q_CONSTRUCTOR_FUNCTION(prepareTest)

// Where the fingers are, in the window.
QPointer<QWidget> s_touched;
QMap<int, QPoint> s_fingers;

auto *touchScreen()
{
    static auto *const screen = QTest::createTouchDevice();
    return screen;
}

// Sends the change of one finger while the others rest.
template <typename Change> void sendTouch(int finger, Change change)
{
    auto touch = QTest::touchEvent(s_touched.data(), touchScreen());
    for (auto it = s_fingers.cbegin(); it != s_fingers.cend(); ++it) {
        if (it.key() != finger)
            touch.move(it.key(), it.value(), s_touched);
    }
    change(touch);
}

QList<QAbstractEventDispatcher::TimerInfo> timersOf(QObject *object)
{
    return QAbstractEventDispatcher::instance()->registeredTimers(object);
}

} // namespace

bool User::show(QWidget &window)
{
    window.show();
    return QTest::qWaitForWindowActive(&window);
}

User::UpperCase::UpperCase()
{
    QCoreApplication::installTranslator(this);
    QCoreApplication::processEvents();
}

User::UpperCase::~UpperCase()
{
    QCoreApplication::removeTranslator(this);
    QCoreApplication::processEvents();
}

void User::paste(const QString &text)
{
    QApplication::clipboard()->setText(text);
    press(Qt::Key_V, Qt::ControlModifier);
}

void User::repeatEnter()
{
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(QApplication::focusWidget(), &repeated);
}

void User::typeOrPress(const QString &word)
{
    const auto name = QRegularExpression("^(Shift\\+)?(Ctrl\\+)?([A-Z][a-z]*)$").match(word);
    if (!name.hasMatch())
        return type(word);
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, name.capturedLength(1) > 0);
    modifiers.setFlag(Qt::ControlModifier, name.capturedLength(2) > 0);
    const QByteArray key = "Key_" + name.captured(3).toUtf8();
    press(Qt::Key(QMetaEnum::fromType<Qt::Key>().keyToValue(key)), modifiers);
}

void User::useInputMethod(const QString &shown, const QString &inserted, int replaced)
{
    QInputMethodEvent event(shown, {});
    event.setCommitString(inserted, -replaced, replaced);
    QApplication::sendEvent(QApplication::focusWidget(), &event);
}

void User::touch(QWidget *widget, const QPoint &pos, int finger)
{
    s_touched = widget->window();
    s_fingers[finger] = widget->mapTo(s_touched, pos);
    sendTouch(finger, [=](auto &touch) { touch.press(finger, s_fingers[finger], s_touched); });
}

void User::moveFinger(const QPoint &by)
{
    s_fingers[0] += by;
    sendTouch(0, [](auto &touch) { touch.move(0, s_fingers[0], s_touched); });
}

void User::moveFingerTo(const QWidget *widget, int x)
{
    moveFinger({widget->mapTo(s_touched.data(), QPoint(x, 0)).x() - s_fingers[0].x(), 0});
}

void User::lift(int finger)
{
    sendTouch(finger, [=](auto &touch) { touch.release(finger, s_fingers[finger], s_touched); });
    s_fingers.remove(finger);
}

bool comesTrue(const std::function<bool()> &condition)
{
    bool isTrue = condition();
    for (int i = 0; i < 500 && !isTrue; ++i) {
        QTest::qWait(10);
        isTrue = condition();
    }
    return isTrue;
}

int samplingInterval(QObject *editor)
{
    const auto timers = timersOf(editor);
    return timers.isEmpty() ? -1 : timers.constFirst().interval;
}

void tick(QObject *editor)
{
    const auto timers = timersOf(editor);
    for (const auto &timer : timers) {
        QTimerEvent event(timer.timerId);
        QApplication::sendEvent(editor, &event);
    }
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

QImage pictureOf(QWidget *widget)
{
    settle();
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QString contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("There is no file %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

QString themeSheet(const QString &theme)
{
    QDir::setSearchPaths("vantorslider", {STYLES_DIR});
    return contentOf(STYLES_DIR "/" + theme + ".qss");
}

QStringList linesOf(const QString &path)
{
    return contentOf(path).split('\n').filter(QRegularExpression("^[^#]"));
}
