#include "limitedfields_p.h"

#include "rowreset_p.h"
#include "saturation_p.h"
#include "slidereditframe.h"

#include <QtCore/QEvent>

#include <tuple>

namespace Vantor::Widgets::Internal {

void LimitedFields::watchRows()
{
    for (SliderEditFrame *row : m_pEditer->rows()) {
        row->installEventFilter(this);
    }
}

// A reset by the program sets the values, also if it reaches a row past this editor.
bool LimitedFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == rowResetEvent()) {
        setLast(values());
        allowWithinLimits(m_last);
    }
    return QObject::eventFilter(watched, event);
}

FieldValues LimitedFields::values() const
{
    FieldValues values;
    m_pEditer->value(values.x, values.y, values.width, values.height);
    return values;
}

void LimitedFields::allowWithinLimits(const FieldValues &values)
{
    allowWithinLimit(horizontal(), values);
    allowWithinLimit(vertical(), values);
}

void LimitedFields::allowWithinLimit(const LimitedPair &pair, const FieldValues &values)
{
    const bool isBelow = qint64(values.*pair.first.value) + values.*pair.second.value < pair.limit;
    for (const LimitedField &field : {pair.first, pair.second}) {
        m_pEditer->setValueChangeDirection(
            field.type, isBelow ? SliderEditFrame::AllowedToAny : SliderEditFrame::AllowedToSmaller,
            values.*field.value);
    }
}

bool LimitedFields::limitAndShow(const LimitedPair &pair, int val)
{
    const auto asTuple = [](const FieldValues &of) {
        return std::make_tuple(of.x, of.y, of.width, of.height);
    };
    FieldValues changed = values();
    changed.*pair.first.value =
        qMin(val, saturatedDifference(pair.limit, changed.*pair.second.value));
    allowWithinLimit(pair, changed);
    m_pEditer->setValue(changed.x, changed.y, changed.width, changed.height);
    const bool isChange = asTuple(changed) != asTuple(m_last);
    m_last = changed;
    return isChange;
}

} // namespace Vantor::Widgets::Internal
