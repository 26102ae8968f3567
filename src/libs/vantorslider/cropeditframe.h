#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {
class CropEditFramePrivate;
}

class VANTORSLIDER_EXPORT CropEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    explicit CropEditFrame(QWidget *parent = nullptr);
    ~CropEditFrame() override;

    void setCropMinPos(int nMinX, int nMinY);
    void setCropMinSize(int nMinWidth, int nMinHeight);
    void setCropRange(int width, int height);
    void setCropRange(int nMinX, int nMinY, int nMinWidth, int nMinHeight, int nTotalHor,
                      int nTotalVer);
    void setCropValue(int x, int y, int w, int h);
    void setCropValue(const QRect &rect);
    void setRange(Type type, int min, int max) override;

Q_SIGNALS:
    void cropValueChanged(int x, int y, int w, int h);

private:
    void setValue(Type type, int val) override;
    void setValue(int x, int y, int w, int h) override;
    void setValue(const QRect &rect) override;

    Internal::CropEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
