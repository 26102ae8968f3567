#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class RGBOpacityEditFramePrivate;
}

class VANTORSLIDER_EXPORT RGBOpacityEditFrame : public QFrame
{
    Q_OBJECT

public:
    enum Type : int { R = 2, G = 4, B = 8, Opacity = 16 };

    explicit RGBOpacityEditFrame(QWidget *parent = nullptr);
    ~RGBOpacityEditFrame() override;

    void setLabelText(Type type, const QString &text);
    void setEditerVisible(int types);
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);
    void setVerticalSpacing(const int &nVal);
    void setLabelWidthRange(Type type, int maxw, int minw);
    void setLabelFixedWidth(Type type, int w);
    void setButtonWidthRange(Type type, int maxw, int minw);
    void setButtonFixedWidth(Type type, int w);
    void setSpinBoxWidthRange(Type type, int maxw, int minw);
    void setSpinBoxFixedWidth(Type type, int w);
    void setSpinBoxWheelEnable(bool b);
    void setValue(Type type, int val);
    void value(int &r, int &g, int &b, int &opacity);
    void setRange(Type type, int min, int max);
    void setSingleStep(Type type, int val);
    void setPageStep(Type type, int val);
    void setAutoRepeat(bool b);
    void setAutoRepeatDelay(int val);
    void setAutoRepeatInterval(int val);
    void setReleaseMode(bool b);
    void setTimeSamplingRate(int val);
    void setLastVerticalSpacerExpanding(bool b);

Q_SIGNALS:
    void valueChanged(int r, int g, int b, int opacity);

private:
    Internal::RGBOpacityEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
