#include "mainwindow.h"
#include "theme.h"

#include <QtCore/QCommandLineParser>
#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    Theme::setUpApplication();
    QApplication app(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("A picture workbench that shows the slider editors at work."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("picture"), QStringLiteral("The picture to open."),
                                 QStringLiteral("[picture]"));
    parser.process(app);
    if (!Theme::hasGlyphs()) {
        return 1;
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
    window.showOnScreen();
    return QApplication::exec();
}
