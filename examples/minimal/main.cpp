#include <QApplication>
#include <QDebug>
#include <applytheme.h>
#include <slidereditframe.h>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Vantor::Widgets::applyTheme(&app, Vantor::Widgets::EditorTheme::TouchLight);

    Vantor::Widgets::SliderEditFrame brightness;
    brightness.setLabelText("Brightness");
    brightness.setRange(0, 255);
    brightness.setValue(128);
    QObject::connect(&brightness, &Vantor::Widgets::SliderEditFrame::valueChanged,
                     [](int value) { qDebug() << value; });
    brightness.show();
    return app.exec();
}
