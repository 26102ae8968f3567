#include "slidereditframe_p.h"

#include "calculatorspinbox_p.h"
#include "editspan_p.h"

#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>

namespace Vantor::Widgets {

using Internal::EditSpan;

namespace {

// For a suffix that the host has set on the spin box itself: since 1.0 the number is then read
// again, as float.
void readWithoutSuffix(SliderEditDoubleSpinBox *box)
{
    const bool isNumber =
        box->specialValueText().isEmpty() || box->text() != box->specialValueText();
    QString number = Internal::FieldText(box, box->text()).entry;
    number.remove(box->suffix()); // each occurrence
    box->setSuffix(QString());
    if (isNumber) {
        const double exact = Internal::numberIn(number).value_or(0);
        box->setValue(box->entryOptions().testFlag(ExactEntry)
                          ? exact
                          : static_cast<double>(Internal::saturatedFloat(exact)));
    }
}

} // namespace

SliderEditDoubleSpinBox::SliderEditDoubleSpinBox(QWidget *parent)
    : QDoubleSpinBox(parent), m_pLineEditCal(new LineEditCal)
{
    Internal::setUpCalculatorSpinBox(this, QStringLiteral("Vk_NumberFloat"));
    setLineEdit(m_pLineEditCal);
    connect(m_pLineEditCal, &LineEditCal::signalsResult, this,
            &SliderEditDoubleSpinBox::onSlotResultFinished);
}

SliderEditDoubleSpinBox::~SliderEditDoubleSpinBox() = default;

QValidator::State SliderEditDoubleSpinBox::validate(QString &text, int &pos) const
{
    Q_UNUSED(text)
    Q_UNUSED(pos)
    return QValidator::Acceptable;
}

double SliderEditDoubleSpinBox::valueFromText(const QString &text) const
{
    // A result may have more decimals than the spin box; QDoubleSpinBox would not round it.
    return QString::number(Internal::numberFromText(this, m_pLineEditCal, text), 'f', decimals())
        .toDouble();
}

void SliderEditDoubleSpinBox::stepBy(int steps)
{
    Internal::handleStep(this, m_pLineEditCal, [=] { QDoubleSpinBox::stepBy(steps); });
}

void SliderEditDoubleSpinBox::setEntryOptions(EntryOptions options)
{
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->setEntryOptions(options);
    }
}

EntryOptions SliderEditDoubleSpinBox::entryOptions() const
{
    return m_pLineEditCal != nullptr ? m_pLineEditCal->entryOptions() : EntryOptions();
}

bool SliderEditDoubleSpinBox::hasPendingEntry() const
{
    return Internal::hasPendingEntry(this, m_pLineEditCal);
}

void SliderEditDoubleSpinBox::finishEntry()
{
    Internal::finishEntry(this, m_pLineEditCal);
}

void SliderEditDoubleSpinBox::setWheelEnable(bool b)
{
    m_isWheelEnabled = b;
}

void SliderEditDoubleSpinBox::setUnit(const QString &prefix, const QString &suffix)
{
    const bool isEdited = hasFocus() || !m_btnFirstPress;
    Internal::keepEntry(this, lineEdit(), [&] {
        setPrefix(prefix);
        setSuffix(isEdited ? QString() : suffix);
    });
    m_strSuffix = suffix;
    m_btnFirstPress = !isEdited || suffix.isEmpty();
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->setUnit(!prefix.isEmpty() || !suffix.isEmpty());
    }
}

QString SliderEditDoubleSpinBox::unitSuffix() const
{
    return m_btnFirstPress ? suffix() : m_strSuffix;
}

void SliderEditDoubleSpinBox::setSpinBoxCal(const float &result, const float &max, const float &min,
                                            const int &retainResult, const int &retainDecimal,
                                            const bool &bSuffix)
{
    if (m_pLineEditCal == nullptr) {
        return;
    }
    m_pLineEditCal->setResultsRadixPointSeveral(retainResult);
    m_pLineEditCal->setLineEditMinOrMax(min, max);
    m_pLineEditCal->setInputRadixPointSeveral(retainDecimal);
    m_pLineEditCal->setInitialResult(result);
    m_pLineEditCal->setSuffix(bSuffix);
}

void SliderEditDoubleSpinBox::setSlotEditingFinished()
{
    if (m_pLineEditCal == nullptr) {
        return;
    }
    const QPointer<SliderEditDoubleSpinBox> self(this);
    if (Internal::pendingEntry(this) != Internal::Entry::None) {
        m_pLineEditCal->setSlotEditingFinished();
    }
    if (self) {
        setSuffixShow();
    }
}

void SliderEditDoubleSpinBox::setSuffixShow()
{
    if (m_strSuffix.isEmpty()) {
        return;
    }
    Internal::keepEntry(this, lineEdit(), [this] { setSuffix(m_strSuffix); });
    m_btnFirstPress = true;
}

void SliderEditDoubleSpinBox::onSlotResultFinished()
{
    EditSpan::Scope edit(EditSpan::around(this));
    const QPointer<SliderEditDoubleSpinBox> self(this);
    Q_EMIT editingFinished();
    // If the user types over the result, its value would never be reported.
    if (self && entryOptions().testFlag(EnterStays)) {
        interpretText();
        if (self) {
            selectAll();
        }
    }
    // If the value differs, the entry stays pending until the spin box loses the focus.
    if (self && Internal::pendingEntry(this) == Internal::Entry::None) {
        edit.release(EditSpan::Entry);
    }
}

// Reserved: a later version can handle the event without changing the virtual table.
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

bool SliderEditDoubleSpinBox::event(QEvent *event)
{
    return Internal::handleEvent(this, m_pLineEditCal, event) || QDoubleSpinBox::event(event);
}

void SliderEditDoubleSpinBox::keyPressEvent(QKeyEvent *event)
{
    if (!Internal::handleKey(this, m_pLineEditCal, event)) {
        QDoubleSpinBox::keyPressEvent(event);
    }
}

void SliderEditDoubleSpinBox::focusInEvent(QFocusEvent *event)
{
    const QPointer<SliderEditDoubleSpinBox> self(this);
    if (m_btnFirstPress && !suffix().isEmpty()) {
        m_strSuffix = suffix();
        m_btnFirstPress = false;
        if (m_pLineEditCal != nullptr && m_pLineEditCal->hasUnit()) {
            Internal::keepEntry(this, lineEdit(), [this] { setSuffix(QString()); });
        } else {
            readWithoutSuffix(this);
        }
    }
    if (!self) {
        return;
    }
    if (m_pLineEditCal != nullptr) {
        m_pLineEditCal->hostWindow().rememberNowAndSoon();
    }
    QDoubleSpinBox::focusInEvent(event);
}

void SliderEditDoubleSpinBox::focusOutEvent(QFocusEvent *event)
{
    Internal::handleFocusOut(
        this, m_pLineEditCal, event, [this] { setSlotEditingFinished(); },
        [=] { QDoubleSpinBox::focusOutEvent(event); });
}

void SliderEditDoubleSpinBox::hideEvent(QHideEvent *event)
{
    Internal::handleHide(this, m_pLineEditCal, [=] { QDoubleSpinBox::hideEvent(event); });
}

void SliderEditDoubleSpinBox::changeEvent(QEvent *event)
{
    Internal::handleChange(this, m_pLineEditCal, event,
                           [=] { QDoubleSpinBox::changeEvent(event); });
}

void SliderEditDoubleSpinBox::childEvent(QChildEvent *event)
{
    QDoubleSpinBox::childEvent(event);
    Internal::forgetIfRemoved(m_pLineEditCal, event);
}

} // namespace Vantor::Widgets
