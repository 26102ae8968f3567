#include "logpane.h"
#include "mainwindow.h"
#include "scripteduser.h"
#include "shots.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>

#include <cstdio>
#include <cstring>

int main(int argc, char *argv[])
{
    // The platform is chosen before the application exists, hence before the
    // options can be parsed properly.
    for (int i = 1; i < argc; ++i) {
        const bool needsNoDisplay =
            std::strncmp(argv[i], "--shots", 7) == 0 || std::strcmp(argv[i], "--play") == 0;
        if (needsNoDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // glyphs as sharp as the screen
#endif
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gallery"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    // The sheets name their glyphs by this prefix; see the top of a sheet.
    QDir::addSearchPath(QStringLiteral("vantorslider"), QStringLiteral(":/styles"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A picture workbench that shows the slider editors at work."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("picture"), QStringLiteral("The picture to open."),
                                 QStringLiteral("[picture]"));
    const QCommandLineOption shotsOption(
        QStringLiteral("shots"),
        QStringLiteral("Write pictures of every page to <folder>, play a scripted user and print "
                       "the signals."),
        QStringLiteral("folder"));
    parser.addOption(shotsOption);
    const QCommandLineOption playOption(
        QStringLiteral("play"),
        QStringLiteral("Play a scripted user and print the signals; fail where something comes "
                       "out otherwise than the user expects."));
    parser.addOption(playOption);
    parser.process(app);

    if (parser.isSet(shotsOption) || parser.isSet(playOption)) {
        MainWindow window;
        window.log()->setEcho(true);
        window.show();
        ScriptedUser(window).play();
    }
    if (parser.isSet(playOption) && !parser.isSet(shotsOption)) {
        return 0;
    }

    MainWindow window;
    const QStringList pictures = parser.positionalArguments();
    QString problem;
    const bool isOpen = pictures.isEmpty() || window.openPicture(pictures.first(), &problem);
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
    }
    if (!isOpen) {
        return 1;
    }
    window.show();
    if (parser.isSet(shotsOption)) {
        return takeShots(window, parser.value(shotsOption)) ? 0 : 1;
    }
    return QApplication::exec();
}
