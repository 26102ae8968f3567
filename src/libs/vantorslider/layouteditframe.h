#pragma once

#include "recteditframe.h"

namespace Vantor {
namespace Widgets {

class VANTORSLIDER_EXPORT LayoutEditFrame : public RectEditFrame
{
    Q_OBJECT

public:
    explicit LayoutEditFrame(QWidget *parent = nullptr);
    ~LayoutEditFrame() override;
};

} // namespace Widgets
} // namespace Vantor
