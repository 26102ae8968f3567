// Linked into a program of the guide: writes a picture of its first window to
// $SAMPLE_PICTURE once it is shown, and ends the program.
#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

static void takePicture()
{
    const QString sheet = qApp->styleSheet();
    if (sheet.startsWith("file:///") && !QFile::exists(sheet.mid(8)))
        qFatal("The style sheet %s is missing.", qPrintable(sheet));
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible()
            && window->grab().save(QString::fromLocal8Bit(qgetenv("SAMPLE_PICTURE"))))
            return QCoreApplication::quit();
    }
    qFatal("The program shows no window.");
}

static void onStart()
{
    QTimer::singleShot(0, qApp, takePicture);
}
Q_COREAPP_STARTUP_FUNCTION(onStart)
