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
    // A form applies properties in this order: decimals and range come before
    // the value.
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

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
    int decimals() const;
    void setSingleStep(double val);
    double singleStep() const;
    void setPageStep(int val);
    int pageStep() const;

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
