#include "slidereditframe_p.h"

#include "calculatorspinbox_p.h"
#include "qlineeditcal.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>

namespace Vantor {
namespace Widgets {

/*!
    \class SliderEditDoubleSpinBox
    \brief The floating-point field of a slider editor: a spin box that takes a typed
    arithmetic expression.

    Every text is valid to it; the calculator line edit filters while the user
    types. Return and Enter emit editingFinished() and then enterFinished() and
    go no further. An expression that ends in "=" is evaluated at once and
    emits editingFinished(). The dynamic property "Quelmo_VK" = "Vk_NumberFloat"
    tells a host which on-screen keyboard to show.

    While the field has the focus its suffix is taken away, so that a bare
    number is edited; it returns when editing ends.
*/

SliderEditDoubleSpinBox::SliderEditDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent), m_pLineEditCal(new LineEditCal)
{
    Internal::setUpCalculatorSpinBox(this, QStringLiteral("Vk_NumberFloat"));
    setLineEdit(m_pLineEditCal);
    connect(m_pLineEditCal, &LineEditCal::signalsResult, this,
            &SliderEditDoubleSpinBox::onSlotResultFinished);
}

/*!
    In a script that a key in the field finished, Qt's key handler of the box is
    still to return: a host that deletes the box then calls deleteLater().
*/
SliderEditDoubleSpinBox::~SliderEditDoubleSpinBox()
{
    m_pLineEditCal->outliveParent(m_pLineEditCal);
}

/*! Accepts every text and changes neither \a text nor \a pos. */
QValidator::State SliderEditDoubleSpinBox::validate(QString &text, int &pos) const
{
    Q_UNUSED(text)
    Q_UNUSED(pos)
    return QValidator::Acceptable;
}

/*!
    The number that \a text stands for: out of range the nearer end, and the
    value as it is where \a text is no number.
*/
double SliderEditDoubleSpinBox::valueFromText(const QString &text) const
{
    if (m_pLineEditCal->isFallbackShown()) {
        return value();
    }
    // The calculator writes two decimals; Qt would hold them all.
    return QString::number(Internal::numberFromText(this, text), 'f', decimals()).toDouble();
}

/*!
    Lets the wheel step the value while the field has the focus, if \a b is
    true. Off at first: the wheel goes to the page around the field.
*/
void SliderEditDoubleSpinBox::setWheelEnable(bool b)
{
    m_isWheelEnabled = b;
}

/*!
    Hands the calculator its settings: \a result, shown when an evaluation
    fails, the range \a min to \a max that results are clamped to,
    \a retainResult decimals of a shown result, \a retainDecimal decimals of a
    typed number, and whether a suffix is shown (\a bSuffix). Neither text nor value changes.
*/
void SliderEditDoubleSpinBox::setSpinBoxCal(const float &result, const float &max, const float &min,
                                            const int &retainResult, const int &retainDecimal,
                                            const bool &bSuffix)
{
    m_pLineEditCal->setResultsRadixPointSeveral(retainResult);
    m_pLineEditCal->setLineEditMinOrMax(min, max);
    m_pLineEditCal->setInputRadixPointSeveral(retainDecimal);
    m_pLineEditCal->setInitialResult(result);
    m_pLineEditCal->setSuffix(bSuffix);
}

/*!
    Evaluates a pending expression; its result is the field's text, its value
    follows when the text is interpreted. A removed suffix returns.
*/
void SliderEditDoubleSpinBox::setSlotEditingFinished()
{
    const QPointer<SliderEditDoubleSpinBox> self(this);
    // The suffix may be back since an entry that ended in "=", with more typed
    // before it since. With its suffix a text is no expression.
    if (!suffix().isEmpty()) {
        QString entry = text();
        if (entry.endsWith(suffix())) {
            entry.chop(suffix().length());
        }
        if (m_strSuffix.isEmpty()) {
            m_strSuffix = suffix();
        }
        setSuffix(QString());
        const QSignalBlocker blocker(m_pLineEditCal);
        m_pLineEditCal->setText(entry);
    }
    m_pLineEditCal->setSlotEditingFinished();
    if (self) {
        setSuffixShow();
    }
}

/*!
    Shows again the suffix that was removed when the field got the focus. The
    text stays, for the entry in it may not have been interpreted yet.
*/
void SliderEditDoubleSpinBox::setSuffixShow()
{
    if (m_strSuffix.isEmpty()) {
        return;
    }
    QString entry = text();
    if (!entry.endsWith(m_strSuffix)) {
        entry += m_strSuffix;
    }
    setSuffix(m_strSuffix);
    m_btnFirstPress = true;
    const QSignalBlocker blocker(m_pLineEditCal);
    m_pLineEditCal->setText(entry);
    m_pLineEditCal->setCursorPosition(entry.length() - m_strSuffix.length());
}

/*! Called when an expression that ended in "=" has been evaluated. */
void SliderEditDoubleSpinBox::onSlotResultFinished()
{
    Q_EMIT editingFinished();
}

void SliderEditDoubleSpinBox::mousePressEvent(QMouseEvent *event)
{
    QDoubleSpinBox::mousePressEvent(event);
}

void SliderEditDoubleSpinBox::wheelEvent(QWheelEvent *event)
{
    if (!m_isWheelEnabled || !hasFocus()) {
        event->ignore();
        return;
    }
    QDoubleSpinBox::wheelEvent(event);
}

void SliderEditDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    if (!Internal::isFinishingKey(event)) {
        QDoubleSpinBox::keyPressEvent(event);
        return;
    }
    const QPointer<SliderEditDoubleSpinBox> self(this);
    Q_EMIT editingFinished();
    if (self) {
        Q_EMIT enterFinished();
    }
}

void SliderEditDoubleSpinBox::focusInEvent(QFocusEvent *event)
{
    if (m_btnFirstPress && !suffix().isEmpty()) {
        QString number = text();
        m_strSuffix = suffix();
        number.remove(m_strSuffix);
        setSuffix(QString());
        m_btnFirstPress = false;
        const QPointer<SliderEditDoubleSpinBox> self(this);
        setValue(static_cast<double>(number.toFloat()));
        if (!self) {
            return;
        }
    }
    QDoubleSpinBox::focusInEvent(event);
}

void SliderEditDoubleSpinBox::focusOutEvent(QFocusEvent *event)
{
    const QPointer<SliderEditDoubleSpinBox> self(this);
    setSlotEditingFinished();
    if (self) {
        QDoubleSpinBox::focusOutEvent(event);
    }
}

} // namespace Widgets
} // namespace Vantor
