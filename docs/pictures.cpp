// The guide's pictures of single rows, which no page of the gallery shows:
// guide_pictures FOLDER. They show real editors after real events.
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "userevents.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QDir::addSearchPath("vantorslider", STYLES_DIR);

    // A row of each kind.
    QWidget window;
    QVBoxLayout layout(&window);
    SliderEditFrame gain;
    gain.setLabelText("Gain");
    gain.setRange(0, 255);
    gain.setValue(96);
    layout.addWidget(&gain);
    SliderEditFrameDouble gamma;
    gamma.setLabelText("Gamma");
    gamma.setSingleStep(0.05);
    gamma.setDecimals(2);
    gamma.setRange(0.1, 4.0);
    gamma.setValue(2.2);
    layout.addWidget(&gamma);

    const auto save = [argv](QWidget &widget, const QString &name) {
        QCoreApplication::processEvents();
        const QString path = QString::fromLocal8Bit(argv[1]) + '/' + name + ".png";
        if (!widget.grab().save(path))
            qFatal("%s cannot be written.", qPrintable(path));
    };
    window.resize(600, 10);
    window.show();
    if (!QTest::qWaitForWindowActive(&window))
        return 1;
    window.setFocus();

    // In one column as the guide says how.
    const auto align = [](auto &row) {
        row.setLabelFixedWidth(90);
        row.setButtonFixedWidth(50);
        row.setHorizontalSpacing(12, 8);
    };
    align(gain);
    align(gamma);
    QFile file("vantorslider:touch-light.qss");
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QString sheet = file.readAll();
    application.setStyleSheet(sheet);
    window.resize(600, 10);
    const auto enter = [&gain](const QString &expression) {
        gain.findChild<QSpinBox *>()->setFocus();
        QCoreApplication::processEvents(); // the field selects its text
        User::type(expression + '\n');
    };
    enter("12*8");
    save(gain, "row-focus-touch-light");
    enter("1/0");
    save(gain, "row-refused-touch-light");

    enter("96");
    window.setFocus();
    QApplication::setLayoutDirection(Qt::RightToLeft);
    sheet.replace("::sub-page", "::other-page");
    sheet.replace("::add-page", "::sub-page");
    sheet.replace("::other-page", "::add-page");
    application.setStyleSheet(sheet);
    save(window, "rows-right-to-left-touch-light");
    return 0;
}
