#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class RectEditFramePrivate;
}

class VANTORSLIDER_EXPORT RectEditFrame : public QFrame
{
    Q_OBJECT

public:
    enum Type : int {
        X = 2,
        Y = 4,
        Position = X | Y,
        Width = 8,
        Height = 16,
        Size = Width | Height,
        All = Position | Size
    };

    enum LockType : int { OffsetLock = 0, SizeScaleLock = 1 };

    explicit RectEditFrame(QWidget *parent = nullptr);
    ~RectEditFrame() override;

    void setLabelText(Type type, const QString &text);
    QString labelText(Type type) const;
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

    virtual void setValue(Type type, int val);
    virtual void setValue(int x, int y, int w, int h);
    virtual void setValue(const QRect &rect);
    void value(int &x, int &y, int &w, int &h);
    void value(QRect &rect);
    virtual void setRange(Type type, int min, int max);
    void range(Type type, int &min, int &max);
    void setSingleStep(Type type, int val);
    void setPageStep(Type type, int val);
    void setValueChangeDirection(Type type, int directions, int val);

    void setAutoRepeat(bool b);
    void setAutoRepeatDelay(int val);
    void setAutoRepeatInterval(int val);
    void setReleaseMode(bool b);
    void setTimeSamplingRate(int val);

    void setLastVerticalSpacerExpanding(bool b);
    bool isMousePressed() const;

    void setPositionLockEnable(bool b);
    void setSizeLockEnable(bool b, LockType type);
    void setSizeLock(bool bLock);
    void setSizeLock(qreal ratio);

Q_SIGNALS:
    void valueChanged(int x, int y, int w, int h);
    void xValueChanged(int val);
    void yValueChanged(int val);
    void widthValueChanged(int val);
    void heightValueChanged(int val);
    void sizeLockChanged(bool bLock);
    void PositionLockChanged(bool bLock);

private:
    Internal::RectEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
