#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class SliderEditPrivate;
}

class VANTORSLIDER_EXPORT SliderEditFrame : public QFrame
{
    Q_OBJECT
    // A form applies properties in this order: the range comes before the value.
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    enum ValueChangeDirection : int {
        AllowedToBigger = 2,
        AllowedToSmaller = 4,
        AllowedToAny = AllowedToBigger | AllowedToSmaller
    };

    explicit SliderEditFrame(QWidget *parent = nullptr);
    ~SliderEditFrame() override;

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
    void setButtonVisible(bool b);
    void setSliderProperty(const char *name, const QVariant &value);

    void setValue(int val);
    int value();
    void setRange(int min, int max);
    void setMinimum(int min);
    void setMaximum(int max);
    int minimum() const;
    int maximum() const;
    void setSingleStep(int val);
    int singleStep();
    void setPageStep(int val);
    int pageStep() const;

    void setAutoRepeat(bool b);
    void setAutoRepeatDelay(int val);
    void setAutoRepeatInterval(int val);
    void setReleaseMode(bool b);
    void setTimeSamplingRate(int val);
    void setValueChangeDirection(int directions, int val);

    bool isMousePressed() const;

Q_SIGNALS:
    void valueChanged(int val);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    Internal::SliderEditPrivate *d;
};

} // namespace Widgets
} // namespace Vantor
