#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {
class MaskEditFramePrivate;
}

class VANTORSLIDER_EXPORT MaskEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    explicit MaskEditFrame(QWidget *parent = nullptr);
    ~MaskEditFrame() override;

    void setMaskRange(int width, int height);
    void setMaskValue(int top, int bottom, int left, int right);
    void getMaskValue(QRect &maskRect);

Q_SIGNALS:
    void maskValueChanged(int top, int bottom, int left, int right);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;
    void setRange(Type type, int min, int max) override;

    Internal::MaskEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
