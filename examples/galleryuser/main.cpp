#include "editortour.h"
#include "logpane.h"
#include "mainwindow.h"
#include "picturetour.h"
#include "scripteduser.h"
#include "shots.h"
#include "theme.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    Theme::setUpApplication();
    QApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Works the gallery's window and prints the signals. Fails where something "
                       "comes out otherwise than a person expects."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("picture"),
                                 QStringLiteral("What is open in the pictures of the pages."),
                                 QStringLiteral("[picture]"));
    const QCommandLineOption shotsOption(
        QStringLiteral("shots"), QStringLiteral("Then write pictures of every page to <folder>."),
        QStringLiteral("folder"));
    parser.addOption(shotsOption);
    parser.process(app);
    if (!Theme::hasGlyphs()) {
        return 1;
    }

    {
        MainWindow window;
        window.log()->setEcho(true);
        window.show();
        ScriptedUser user(window);
        tourEditors(user);
        tourPictures(user);
    }
    if (!parser.isSet(shotsOption)) {
        return 0;
    }

    MainWindow window;
    QString problem;
    const QStringList pictures = parser.positionalArguments();
    if (!pictures.isEmpty() && !window.openPicture(pictures.first(), &problem)) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    window.show();
    return takeShots(window, parser.value(shotsOption)) ? 0 : 1;
}
