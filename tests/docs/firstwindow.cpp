// Linked into a program of the guide: saves a picture of its first window to
// $SAMPLE_PICTURE when it is shown, and quits the program.
#include <QtWidgets/QtWidgets>

static void onStart()
{
    QTimer::singleShot(0, qApp, [] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->grab().save(qgetenv("SAMPLE_PICTURE")))
                return QCoreApplication::quit();
        }
        qFatal("The program shows no window.");
    });
}
Q_COREAPP_STARTUP_FUNCTION(onStart)
