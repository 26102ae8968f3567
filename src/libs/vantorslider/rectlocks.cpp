#include "rectlocks_p.h"

#include "saturation_p.h"
#include "slidereditframe.h"

#include <cmath>

namespace Vantor::Widgets::Internal {

namespace {

// numerator * value / denominator, rounded half away from zero.
int scaled(int numerator, int value, int denominator)
{
    return saturatedInt(std::round(double(qint64(numerator) * value) / double(denominator)));
}

qint64 offsetInArea(const LockedField &side)
{
    return qint64(side.position->value()) - side.position->minimum();
}

} // namespace

void moveAlong(const LockedField &changed, int val, const LockedField &partner)
{
    partner.frame->setValue(saturatedInt(qint64(partner.basis) + (qint64(val) - changed.basis)));
    const bool isAtLimit = partner.frame->value() == partner.frame->maximum();
    changed.frame->setValueChangeDirection(
        isAtLimit ? SliderEditFrame::AllowedToSmaller : SliderEditFrame::AllowedToAny, val);
}

ScaledSides scaleAlong(const LockedField &changed, int val, const LockedField &partner)
{
    const auto limitTo = [&](int limit) {
        changed.frame->setValueChangeDirection(SliderEditFrame::AllowedToSmaller, limit);
        val = limit;
    };

    const int asked = val;
    const qint64 room = changed.frame->maximum() - offsetInArea(changed);
    if (val >= room) {
        limitTo(saturatedInt(room));
    }
    // If the partner's basis is 0, no value of the changed side corresponds to the partner's limit.
    if (partner.basis != 0) {
        const int tested =
            scaled(partner.basis, changed.isLimitedFirst ? val : asked, changed.basis);
        const qint64 partnerRoom = partner.frame->maximum() - offsetInArea(partner);
        if (tested >= partnerRoom) {
            limitTo(scaled(changed.basis, saturatedInt(partnerRoom), partner.basis));
        } else if (tested > partner.frame->maximum() || tested < partner.frame->minimum()) {
            val = scaled(changed.basis, partner.frame->value(), partner.basis);
        }
    }

    const ScaledSides sides {val, scaled(partner.basis, val, changed.basis)};
    changed.frame->setValue(sides.changed);
    partner.frame->setValue(sides.partner);
    return sides;
}

} // namespace Vantor::Widgets::Internal
