// Linked into a program of the guide: writes a picture of its first window to
// $SAMPLE_PICTURE once it is shown, and ends the program.
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
