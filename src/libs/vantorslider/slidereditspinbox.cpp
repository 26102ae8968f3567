#include "slidereditframe_p.h"

#include "calculatorspinbox_p.h"
#include "editspan_p.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

namespace Vantor::Widgets {

using Internal::EditSpan;

SliderEditSpinBox::SliderEditSpinBox(QWidget *parent)
    : QSpinBox(parent), m_pLineEditCal(new LineEditCal)
{
    Internal::setUpCalculatorSpinBox(this, QStringLiteral("Vk_Number"));
    setLineEdit(m_pLineEditCal);
    connect(m_pLineEditCal, &LineEditCal::signalsResult, this,
            &SliderEditSpinBox::onSlotResultFinished);
}

SliderEditSpinBox::~SliderEditSpinBox() = default;

QValidator::State SliderEditSpinBox::validate(QString &text, int &pos) const
{
    Q_UNUSED(text)
    Q_UNUSED(pos)
    return QValidator::Acceptable;
}

int SliderEditSpinBox::valueFromText(const QString &text) const
{
    return Internal::saturatedInt(std::round(Internal::numberFromText(this, m_pLineEditCal, text)));
}

void SliderEditSpinBox::stepBy(int steps)
{
    Internal::handleStep(this, m_pLineEditCal, [=] { QSpinBox::stepBy(steps); });
}

void SliderEditSpinBox::setEntryOptions(EntryOptions options)
{
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->setEntryOptions(options);
    }
}

EntryOptions SliderEditSpinBox::entryOptions() const
{
    return m_pLineEditCal != nullptr ? m_pLineEditCal->entryOptions() : EntryOptions();
}

bool SliderEditSpinBox::hasPendingEntry() const
{
    return Internal::hasPendingEntry(this, m_pLineEditCal);
}

void SliderEditSpinBox::finishEntry()
{
    Internal::finishEntry(this, m_pLineEditCal);
}

void SliderEditSpinBox::setWheelEnable(bool b)
{
    m_isWheelEnabled = b;
}

void SliderEditSpinBox::setUnit(const QString &prefix, const QString &suffix)
{
    Internal::keepEntry(this, lineEdit(), [&] {
        setPrefix(prefix);
        setSuffix(suffix);
    });
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->setUnit(!prefix.isEmpty() || !suffix.isEmpty());
    }
}

void SliderEditSpinBox::setSpinBoxCal(const int &result, const int &max, const int &min,
                                      const int &retainResult, const int &retainDecimal)
{
    if (m_pLineEditCal == nullptr) {
        return;
    }
    m_pLineEditCal->setResultsRadixPointSeveral(retainResult);
    m_pLineEditCal->setLineEditMinOrMax(static_cast<float>(min), static_cast<float>(max));
    m_pLineEditCal->setInputRadixPointSeveral(retainDecimal);
    m_pLineEditCal->setInitialResult(static_cast<float>(result));
}

void SliderEditSpinBox::setSlotEditingFinished()
{
    if (m_pLineEditCal != nullptr && Internal::pendingEntry(this) != Internal::Entry::None) {
        m_pLineEditCal->setSlotEditingFinished();
    }
}

void SliderEditSpinBox::onSlotResultFinished()
{
    if (!entryOptions().testFlag(EnterStays)) {
        Q_EMIT enterFinished();
        return;
    }
    const EditSpan::Scope edit(EditSpan::around(this));
    const QPointer<SliderEditSpinBox> self(this);
    interpretText();
    if (self) {
        Q_EMIT enterFinished();
    }
    if (self) {
        selectAll();
    }
}

// Reserved: a later version can handle the event without changing the virtual table.
void SliderEditSpinBox::mousePressEvent(QMouseEvent *event)
{
    QSpinBox::mousePressEvent(event);
}

void SliderEditSpinBox::wheelEvent(QWheelEvent *event)
{
    if (!m_isWheelEnabled || !hasFocus()) {
        event->ignore();
        return;
    }
    QSpinBox::wheelEvent(event);
}

bool SliderEditSpinBox::event(QEvent *event)
{
    return Internal::handleEvent(this, m_pLineEditCal, event) || QSpinBox::event(event);
}

void SliderEditSpinBox::keyPressEvent(QKeyEvent *event)
{
    if (!Internal::handleKey(this, m_pLineEditCal, event)) {
        QSpinBox::keyPressEvent(event);
    }
}

void SliderEditSpinBox::focusInEvent(QFocusEvent *event)
{
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->hostWindow().rememberNowAndSoon();
    }
    QSpinBox::focusInEvent(event);
}

void SliderEditSpinBox::focusOutEvent(QFocusEvent *event)
{
    Internal::handleFocusOut(
        this, m_pLineEditCal, event, [this] { Q_EMIT editingFinished(); },
        [=] { QSpinBox::focusOutEvent(event); });
}

void SliderEditSpinBox::hideEvent(QHideEvent *event)
{
    Internal::handleHide(this, m_pLineEditCal, [=] { QSpinBox::hideEvent(event); });
}

void SliderEditSpinBox::changeEvent(QEvent *event)
{
    Internal::handleChange(this, m_pLineEditCal, event, [=] { QSpinBox::changeEvent(event); });
}

void SliderEditSpinBox::childEvent(QChildEvent *event)
{
    QSpinBox::childEvent(event);
    Internal::forgetIfRemoved(m_pLineEditCal, event);
}

} // namespace Vantor::Widgets
