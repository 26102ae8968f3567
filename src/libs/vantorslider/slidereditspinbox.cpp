#include "slidereditframe_p.h"

#include "calculatorspinbox_p.h"
#include "qlineeditcal.h"
#include "saturation_p.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

namespace Vantor {
namespace Widgets {

/*!
    \class SliderEditSpinBox
    \brief The integer field of a slider editor: a spin box that takes a typed
    arithmetic expression.

    Every text is valid to it; the calculator line edit filters while the user
    types. Return and Enter emit editingFinished() and then enterFinished() and
    go no further. An expression that ends in "=" is evaluated at once and
    emits enterFinished(). The dynamic property "Quelmo_VK" = "Vk_Number"
    tells a host which on-screen keyboard to show.
*/

SliderEditSpinBox::SliderEditSpinBox(QWidget *parent)
    : QSpinBox(parent), m_pLineEditCal(new LineEditCal)
{
    Internal::setUpCalculatorSpinBox(this, QStringLiteral("Vk_Number"));
    setLineEdit(m_pLineEditCal);
    connect(m_pLineEditCal, &LineEditCal::signalsResult, this,
            &SliderEditSpinBox::onSlotResultFinished);
}

/*!
    In a script that a key in the field finished, Qt's key handler of the box is
    still to return: a host that deletes the box then calls deleteLater().
*/
SliderEditSpinBox::~SliderEditSpinBox()
{
    m_pLineEditCal->outliveParent(m_pLineEditCal);
}

/*! Accepts every text and changes neither \a text nor \a pos. */
QValidator::State SliderEditSpinBox::validate(QString &text, int &pos) const
{
    Q_UNUSED(text)
    Q_UNUSED(pos)
    return QValidator::Acceptable;
}

/*!
    The number that \a text stands for, rounded to a whole one: out of range the
    nearer end, and the value as it is where \a text is no number.
*/
int SliderEditSpinBox::valueFromText(const QString &text) const
{
    if (m_pLineEditCal->isFallbackShown()) {
        return value();
    }
    return Internal::saturatedInt(std::round(Internal::numberFromText(this, text)));
}

/*!
    Lets the wheel step the value while the field has the focus, if \a b is
    true. Off at first: the wheel goes to the page around the field.
*/
void SliderEditSpinBox::setWheelEnable(bool b)
{
    m_isWheelEnabled = b;
}

/*!
    Hands the calculator its settings: \a result, shown when an evaluation
    fails, the range \a min to \a max that results are clamped to,
    \a retainResult decimals of a shown result, and \a retainDecimal decimals of a
    typed number. Neither text nor value changes.
*/
void SliderEditSpinBox::setSpinBoxCal(const int &result, const int &max, const int &min,
                                      const int &retainResult, const int &retainDecimal)
{
    m_pLineEditCal->setResultsRadixPointSeveral(retainResult);
    m_pLineEditCal->setLineEditMinOrMax(static_cast<float>(min), static_cast<float>(max));
    m_pLineEditCal->setInputRadixPointSeveral(retainDecimal);
    m_pLineEditCal->setInitialResult(static_cast<float>(result));
}

/*!
    Evaluates a pending expression; its result is the field's text, its value
    follows when the text is interpreted.
*/
void SliderEditSpinBox::setSlotEditingFinished()
{
    m_pLineEditCal->setSlotEditingFinished();
}

/*! Called when an expression that ended in "=" has been evaluated. */
void SliderEditSpinBox::onSlotResultFinished()
{
    Q_EMIT enterFinished();
}

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

void SliderEditSpinBox::keyPressEvent(QKeyEvent *event)
{
    if (!Internal::isFinishingKey(event)) {
        QSpinBox::keyPressEvent(event);
        return;
    }
    const QPointer<SliderEditSpinBox> self(this);
    Q_EMIT editingFinished();
    if (self) {
        Q_EMIT enterFinished();
    }
}

void SliderEditSpinBox::focusInEvent(QFocusEvent *event)
{
    QSpinBox::focusInEvent(event);
}

void SliderEditSpinBox::focusOutEvent(QFocusEvent *event)
{
    const QPointer<SliderEditSpinBox> self(this);
    Q_EMIT editingFinished();
    if (self) {
        QSpinBox::focusOutEvent(event);
    }
}

} // namespace Widgets
} // namespace Vantor
