// Linked into a program of the guide: saves a picture of its first window to
// $SAMPLE_PICTURE when it is shown, and quits the program. With $SAMPLE_SHEET it sets that
// sheet and a common width before.
#include <QtWidgets/QtWidgets>

static void wear(QWidget *window, const QString &sheet)
{
    QDir::addSearchPath("vantorslider", QFileInfo(QUrl(sheet).path()).path());
    qApp->setStyleSheet(sheet);
    QCoreApplication::processEvents();
    window->resize(460, 1); // no lower than its layout allows
    QCoreApplication::processEvents();
}

static void onStart()
{
    QTimer::singleShot(0, qApp, [] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && qEnvironmentVariableIsSet("SAMPLE_SHEET"))
                wear(window, QString::fromLocal8Bit(qgetenv("SAMPLE_SHEET")));
            if (window->isVisible() && window->grab().save(qgetenv("SAMPLE_PICTURE")))
                return QCoreApplication::quit();
        }
        qFatal("The program shows no window.");
    });
}
Q_COREAPP_STARTUP_FUNCTION(onStart)
