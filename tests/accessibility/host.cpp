#include "recteditframe.h"
#include "rgbopacityeditframe.h"
#include "slidereditframe.h"
#include "slidereditframedouble.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

using namespace Vantor::Widgets;

// A window of named rows for walk.py, which knows them by these names.
int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Editors"));
    auto *layout = new QVBoxLayout(&window);

    auto *gain = new SliderEditFrame;
    gain->setLabelText(QStringLiteral("Gain"));
    gain->setValue(10);
    layout->addWidget(gain);

    auto *gamma = new SliderEditFrameDouble;
    gamma->setLabelText(QStringLiteral("Gamma"));
    gamma->setRange(0, 4);
    gamma->setSingleStep(0.25);
    gamma->setValue(1);
    layout->addWidget(gamma);

    auto *colour = new RGBOpacityEditFrame;
    colour->setLabelText(RGBOpacityEditFrame::R, QStringLiteral("Red"));
    colour->setLabelText(RGBOpacityEditFrame::G, QStringLiteral("Green"));
    colour->setLabelText(RGBOpacityEditFrame::B, QStringLiteral("Blue"));
    colour->setLabelText(RGBOpacityEditFrame::Opacity, QStringLiteral("Opacity"));
    colour->setValue(RGBOpacityEditFrame::Opacity, 50);
    layout->addWidget(colour);

    auto *rect = new RectEditFrame;
    rect->setLabelText(RectEditFrame::X, QStringLiteral("X"));
    rect->setLabelText(RectEditFrame::Y, QStringLiteral("Y"));
    rect->setLabelText(RectEditFrame::Width, QStringLiteral("Width"));
    rect->setLabelText(RectEditFrame::Height, QStringLiteral("Height"));
    rect->setPositionLockEnable(true);
    rect->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    layout->addWidget(rect);

    window.show();
    return QApplication::exec();
}
