#include <QApplication>
#include <QDebug>
#include <QDir>
#include <slidereditframe.h>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QDir::addSearchPath("vantorslider", "/usr/share/vantorslider/styles");
    app.setStyleSheet("file:///vantorslider:touch-light.qss");

    Vantor::Widgets::SliderEditFrame brightness;
    brightness.setLabelText("Brightness");
    brightness.setRange(0, 255);
    brightness.setValue(128);
    QObject::connect(&brightness, &Vantor::Widgets::SliderEditFrame::valueChanged,
                     [](int value) { qDebug() << value; });
    brightness.show();
    return app.exec();
}
