#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class SliderEditDoublePrivate;
}

class VANTORSLIDER_EXPORT SliderEditFrameDouble : public QFrame
{
    Q_OBJECT

public:
    enum ValueChangeDirection : int {
        AllowedToBigger = 2,
        AllowedToSmaller = 4,
        AllowedToAny = AllowedToBigger | AllowedToSmaller
    };

    explicit SliderEditFrameDouble(QWidget *parent = nullptr);
    ~SliderEditFrameDouble() override;

    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);
    void setLabelText(const QString &text);
    QString labelText() const;
    void setLabelWidthRange(int maxw, int minw);
    void setLabelFixedWidth(int w);
    void setButtonWidthRange(int maxw, int minw);
    void setButtonFixedWidth(int w);
    void setSpinBoxWidthRange(int maxw, int minw);
    void setSpinBoxFixedWidth(int w);
    void setSpinBoxWheelEnable(bool b);
    void setSliderVisible(bool b);
    void setSliderProperty(const char *name, const QVariant &value);

    void setValue(double val);
    double value();
    void setRange(double min, double max);
    void setMinimum(double min);
    void setMaximum(double max);
    double minimum() const;
    double maximum() const;
    void setDecimals(int prec);
    void setSingleStep(double val);
    void setPageStep(int val);

    void setAutoRepeat(bool b);
    void setAutoRepeatDelay(int val);
    void setAutoRepeatInterval(int val);
    void setReleaseMode(bool b);
    void setTimeSamplingRate(int val);
    void setValueChangeDirection(int directions, int val);

Q_SIGNALS:
    void valueChanged(double val);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    int getPrecision(float num);
    int getMagnification(float num);

    Internal::SliderEditDoublePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
