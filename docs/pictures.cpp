// The guide's pictures of single rows and of a dialog: guide_pictures FOLDER. They show
// real editors after real events.
#include "alignlabels.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"
#include "userevents.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

using Vantor::Widgets::RGBOpacityEditFrame;
using Vantor::Widgets::SliderEditFrame;
using Vantor::Widgets::SliderEditFrameDouble;

namespace {

// Four rows, of editors or of plain widgets of Qt, below a label and above a check box,
// with OK beside them.
QImage dialog(bool isOfEditors, int pointSize)
{
    QFont font = QApplication::font();
    font.setPointSize(pointSize);
    QApplication::setFont(font);
    qApp->setStyleSheet(isOfEditors ? "file:///vantorslider:desktop.qss" : QString());
    QDialog window;
    auto *const layout = new QGridLayout(&window);
    int row = 0;
    layout->addWidget(new QLabel("Changes apply to the picture."), row++, 0, 1, 3);
    for (const char *text : {"Exposure", "Brightness", "Contrast", "Saturation"}) {
        if (isOfEditors) {
            auto *const editor = new SliderEditFrame;
            editor->setLabelText(text);
            editor->setValue(50);
            layout->addWidget(editor, row++, 0, 1, 3);
            continue;
        }
        auto *const slider = new QSlider(Qt::Horizontal);
        auto *const field = new QSpinBox;
        slider->setValue(50);
        field->setValue(50);
        layout->addWidget(new QLabel(text), row, 0);
        layout->addWidget(slider, row, 1);
        layout->addWidget(field, row++, 2);
    }
    layout->addWidget(new QCheckBox("Show the result at once"), row++, 0, 1, 3);
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok, Qt::Vertical), 0, 3, row, 1);
    if (isOfEditors)
        Vantor::Widgets::alignLabels(&window);
    window.show();
    QCoreApplication::processEvents();
    window.adjustSize();
    QCoreApplication::processEvents();
    return window.grab().toImage();
}

// The two side by side at 12 points, and the sizes at 12 and 9 for the guide's text.
bool saveDialogs(const QString &path)
{
    const QFont usual = QApplication::font();
    for (const int points : {9, 12}) {
        const QSize ours = dialog(true, points).size(), plain = dialog(false, points).size();
        qInfo("dialog at %d points: %d x %d, of Qt %d x %d", points, ours.width(), ours.height(),
              plain.width(), plain.height());
    }
    const QImage ours = dialog(true, 12), plain = dialog(false, 12);
    QApplication::setFont(usual);
    QImage pair(ours.width() + 16 + plain.width(), qMax(ours.height(), plain.height()),
                QImage::Format_RGB32);
    pair.fill(Qt::white);
    QPainter painter(&pair);
    painter.drawImage(0, 0, ours);
    painter.drawImage(ours.width() + 16, 0, plain);
    painter.end();
    return pair.save(path);
}

// A row with a brush, and a colour with its swatch.
bool saveGrooves(const QString &folder, const QString &theme)
{
    qApp->setStyleSheet("file:///vantorslider:" + theme + ".qss");
    QWidget window;
    QVBoxLayout layout(&window);
    SliderEditFrame balance;
    balance.setLabelText("White");
    balance.setRange(2000, 9000);
    balance.setValue(5600);
    QLinearGradient warmth(0, 0, 1, 0);
    warmth.setStops({{0, "#ffb46b"}, {0.5, "#ffffff"}, {1, "#a8c5ff"}});
    balance.setGrooveBrush(warmth);
    layout.addWidget(&balance);
    RGBOpacityEditFrame colour;
    colour.setLabelText(RGBOpacityEditFrame::R, "Red");
    colour.setLabelText(RGBOpacityEditFrame::G, "Green");
    colour.setLabelText(RGBOpacityEditFrame::B, "Blue");
    colour.setLabelText(RGBOpacityEditFrame::Opacity, "Opacity");
    colour.setValues(200, 120, 40, 80);
    colour.setColoredGrooves(true);
    colour.setLastVerticalSpacerExpanding(false);
    layout.addWidget(&colour);
    QLabel swatch;
    QPixmap pixmap(56, 32);
    pixmap.fill(colour.color());
    swatch.setPixmap(pixmap);
    layout.addWidget(&swatch);
    Vantor::Widgets::alignLabels(&window);
    window.resize(600, 10);
    window.show();
    for (int i = 0; i < 4; ++i) // from the labels up to the window
        QCoreApplication::processEvents();
    window.setFocus();
    window.resize(600, 10);
    QCoreApplication::processEvents();
    return window.grab().save(folder + "/grooves-" + theme + ".png");
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2)
        return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QDir::addSearchPath("vantorslider", STYLES_DIR);

    if (!saveDialogs(QString::fromLocal8Bit(argv[1]) + "/dialog-desktop.png"))
        return 1;

    for (const char *theme : {"desktop", "touch-dark"}) {
        if (!saveGrooves(QString::fromLocal8Bit(argv[1]), theme))
            return 1;
    }
    application.setStyleSheet(QString());

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
