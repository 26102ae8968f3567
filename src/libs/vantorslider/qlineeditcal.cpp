#include "qlineeditcal.h"

#include "arithmetic_p.h"
#include "calculatorpatterns_p.h"
#include "editspan_p.h"
#include "entryvalidator_p.h"
#include "expressionevaluation_p.h"
#include "fieldtext_p.h"
#include "keyboardsigns_p.h"
#include "saturation_p.h"
#include "unitguard_p.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <utility>

namespace Vantor::Widgets {

using Internal::CalculatorPatterns;
using Internal::FieldText;

// Copies of a std::regex share the compiled automaton.
LineEditCal::LineEditCal(QWidget *parent)
    : QLineEdit(parent), m_regex(CalculatorPatterns::instance().character),
      m_regexMark(CalculatorPatterns::instance().mark),
      m_regexFourOperation(CalculatorPatterns::instance().fourOperation),
      m_regexstr(CalculatorPatterns::instance().letters)
{
    connect(this, &QLineEdit::textChanged, this, &LineEditCal::onSlotTextChanged);
    setProperty("noSpaceingLineEdit", true);
}

LineEditCal::~LineEditCal() = default;

void LineEditCal::setEntryOptions(EntryOptions options)
{
    m_entryOptions = options;
    if (has(SafeEntry) != (m_entryValidator != nullptr)) {
        m_entryValidator.reset(has(SafeEntry) ? new Internal::EntryValidator(this) : nullptr);
    }
    if (has(EscapeRestores)) {
        // After the slot of the spin box, which tracks the keyboard.
        connect(this, &QLineEdit::textChanged, this, &LineEditCal::onSlotTextTracked,
                Qt::UniqueConnection);
    }
}

void LineEditCal::setUnit(bool isSet)
{
    if (isSet != hasUnit()) {
        m_unitGuard.reset(isSet ? new Internal::UnitGuard(this) : nullptr);
    }
}

void LineEditCal::setInitialResult(const float &result)
{
    m_initialResult = result;
    m_isInitialResultPending = true;
    setEntryRefused(false);
}

// A drag sets a result at every move; its text is created only when the user types. Otherwise it
// would take 4 % of a mouse move in a row, and 18 % in a crop editor.
const QString &LineEditCal::beforeResult()
{
    if (m_isInitialResultPending) {
        m_beforeResult = initialResultText();
        m_isInitialResultPending = false;
    }
    return m_beforeResult;
}

QString LineEditCal::initialResultText() const
{
    const auto given = static_cast<double>(m_initialResult);
    if (!has(ExactEntry)) {
        return QString::number(given, 'g', 6);
    }
    // The result was converted to float, so it may have fewer digits than the value.
    const double value = ofSpinBox("value", given);
    const bool isOfValue = Internal::saturatedFloat(value) == m_initialResult;
    return QString::number(isOfValue ? value : given, 'f', shownDecimals());
}

// The value of a numeric property of the spin box, or otherwise if it has none.
double LineEditCal::ofSpinBox(const char *property, double otherwise) const
{
    const QVariant number = parent() != nullptr ? parent()->property(property) : QVariant();
    return number.isValid() ? number.toDouble() : otherwise;
}

// QSpinBox has no property "decimals".
int LineEditCal::shownDecimals() const
{
    return has(ExactEntry) ? static_cast<int>(ofSpinBox("decimals", 0)) : m_remainSeveral;
}

QString LineEditCal::pointed(const QString &entry) const
{
    const QString typed = has(AnyKeyboard) ? Internal::withAsciiSigns(entry) : entry;
    const bool hasComma = has(DecimalComma) && typed.contains(QLatin1Char(','));
    return hasComma ? Internal::withDecimalPoints(typed) : typed;
}

void LineEditCal::setResultsRadixPointSeveral(const int &remainSeveral)
{
    m_remainSeveral = remainSeveral;
}

void LineEditCal::setInputRadixPointSeveral(const int &inputSeveral)
{
    m_inputSeveral = inputSeveral;
}

void LineEditCal::setLineEditMinOrMax(const float &min, const float &max)
{
    m_minNum = min;
    m_maxNum = max;
}

void LineEditCal::setSuffix(bool bSuffix)
{
    m_bSuffix = bSuffix;
}

void LineEditCal::setSlotEditingFinished()
{
    const QString entry = pointed(FieldText(parent(), text()).entry);
    if (entry != beforeResult()) {
        setShowResult(entry);
    }
}

bool LineEditCal::isEntryRefused() const
{
    return m_isEntryRefused;
}

bool LineEditCal::isLeftForOwnPopup(const QFocusEvent *event)
{
    const QObject *owner =
        event->reason() == Qt::PopupFocusReason ? QApplication::activePopupWidget() : nullptr;
    while (owner != nullptr && owner != this && owner != parent()) {
        owner = owner->parent();
    }
    m_isInOwnPopup = owner != nullptr;
    return m_isInOwnPopup;
}

// QLineEdit overrides the host's shortcuts for undo and redo. If there is nothing to undo or redo
// here, they reach the host.
bool LineEditCal::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        // matches() is slow, and most keys type a character.
        const bool isTyping = !key->text().isEmpty()
            && (key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
        if (!isTyping
            && ((!isUndoAvailable() && key->matches(QKeySequence::Undo))
                || (!isRedoAvailable() && key->matches(QKeySequence::Redo)))) {
            event->ignore();
            return false;
        }
    } else if (event->type() == QEvent::KeyPress && hasUnit()
               && m_unitGuard->isOutside(static_cast<QKeyEvent *>(event))) {
        return true;
    } else if (event->type() == QEvent::InputMethod && has(AnyKeyboard)) {
        Internal::commitInAscii(static_cast<QInputMethodEvent *>(event));
    }
    m_isKey = m_entryOptions != EntryOptions() && Internal::isTypedKey(event);
    return QLineEdit::event(event);
}

// Filters the text or, if it ends in "=", evaluates it and emits signalsResult().
void LineEditCal::onSlotTextChanged(QString text)
{
    if (has(AnyKeyboard)) {
        Internal::retypeInAscii(this);
    }
    // The text may have been repaired or retyped.
    FieldText shown(parent(), hasUnit() || has(AnyKeyboard) ? this->text() : std::move(text));
    Internal::EditSpan::Scope edit(Internal::EditSpan::around(this));
    const bool isTyped = isModified();
    if (isTyped) {
        setEntryRefused(false); // the user may have typed the shown result
        edit.begin(Internal::EditSpan::Entry);
    }
    m_isUntracked = isTyped && has(EscapeRestores);
    QString entry = pointed(shown.entry);
    if (entry != shown.entry) {
        shown.entry = std::move(entry);
        const QSignalBlocker blocker(this);
        setEntryText(shown.entry, cursorPosition() - static_cast<int>(shown.prefix.length()));
    }
    if (shown.entry == beforeResult()) {
        return;
    }
    setEntryRefused(false);
    if (shown.entry.isEmpty()) {
        return;
    }
    m_cursorPosition = cursorPosition() - static_cast<int>(shown.prefix.length());
    if (shown.entry.endsWith(QLatin1Char('='))) {
        const QPointer<LineEditCal> self(this);
        setShowResult(shown.entry.left(shown.entry.length() - 1));
        if (self) {
            Q_EMIT signalsResult();
        }
        return;
    }
    const QSignalBlocker blocker(this);
    setTextFormat(std::move(shown.entry));
}

void LineEditCal::onSlotTextTracked()
{
    m_isUntracked = false;
}

// Only the character before the cursor is tested, so pasted text that ends in an accepted
// character stays complete; its evaluation fails later.
void LineEditCal::setTextFormat(QString strText)
{
    if (m_cursorPosition > strText.length()) {
        return;
    }
    const int last = qMax(m_cursorPosition - 1, 0);
    if (CalculatorPatterns::isAccepted(strText.at(last))) {
        if (isOneTooMany(strText, last)) {
            setEntryText(strText.remove(last, 1), last);
        } else {
            setExpressionFormat(std::move(strText));
        }
        return;
    }
    // A character beyond U+FFFF is a surrogate pair; both halves are removed.
    const int first =
        last > 0 && strText.at(last).isLowSurrogate() && strText.at(last - 1).isHighSurrogate()
        ? last - 1
        : last;
    strText.remove(strText.mid(first, last - first + 1));
    setEntryText(strText, m_cursorPosition - 1 - (last - first));
}

void LineEditCal::setExpressionFormat(QString strText)
{
    bool bCursor = false;
    setIntereptString(strText, bCursor);
    setEntryText(strText, bCursor ? m_cursorPosition - 1 : m_cursorPosition);
}

// Splits the text at its marks. Before, between and after the marks are number tokens, which may be
// empty. The decimal rule finds the previous state of a token by its index, so each token counts.
// Most tokens do not change, so the list is updated in place.
void LineEditCal::setIntereptString(QString &strText, bool &bCursor)
{
    std::size_t count = 0;
    int start = 0;
    for (int end = 0; end <= strText.length(); ++end) {
        const bool isMark = end < strText.length() && CalculatorPatterns::isMark(strText.at(end));
        if (isMark || end == strText.length()) {
            bCursor |= takeToken(count++, strText, start, end - start);
            start = end + 1;
        }
        if (isMark) {
            bCursor |= takeToken(count++, strText, end, 1);
        }
    }
    m_vecStringResults.resize(count);

    if (bCursor) {
        strText.clear();
        for (const QString &token : m_vecStringResults) {
            strText.append(token);
        }
    }
}

// Updates the list with a token of the text. Returns true if a rule corrected it. An unchanged
// token is checked again, because the maximum number of decimals may have changed.
bool LineEditCal::takeToken(std::size_t index, const QString &text, int start, int length)
{
    const QChar *const begin = text.constData() + start;
    const bool isNumber = length > 0 && !CalculatorPatterns::isMark(*begin);
    const bool isKnown = index < m_vecStringResults.size();
    if (isKnown
        && std::equal(begin, begin + length, m_vecStringResults[index].cbegin(),
                      m_vecStringResults[index].cend())) {
        return isNumber && setRadixPointSeveral(m_vecStringResults[index], static_cast<int>(index));
    }
    QString token(begin, length);
    bool isCorrected = false;
    if (isNumber) {
        setStringFormat(token, isCorrected);
        isCorrected |= setRadixPointSeveral(token, static_cast<int>(index));
    }
    if (isKnown) {
        m_vecStringResults[index] = std::move(token);
    } else {
        m_vecStringResults.push_back(std::move(token));
    }
    return isCorrected;
}

void LineEditCal::setStringFormat(QString &strText, bool &bFormat)
{
    int zeros = 0;
    while (zeros + 1 < strText.length() && strText.at(zeros) == QLatin1Char('0')
           && strText.at(zeros + 1) != QLatin1Char('.')) {
        ++zeros;
    }
    if (zeros > 0) {
        strText.remove(0, zeros);
        bFormat = true;
    }
}

// With an option, a typed character that gives its number a second point or too many decimals is
// refused alone. A pasted number stays, and is rounded when it is evaluated.
bool LineEditCal::isOneTooMany(const QString &strText, int position) const
{
    return m_isKey && CalculatorPatterns::isOneTooMany(strText, position, typedDecimals());
}

bool LineEditCal::refuses(const QString &text, int cursor) const
{
    const FieldText shown(parent(), text);
    const int length = cursor - static_cast<int>(shown.prefix.length());
    if (length <= 0 || length > shown.entry.length()) {
        return false;
    }
    const QString typed = pointed(shown.entry.left(length));
    const int last = static_cast<int>(typed.length()) - 1;
    return !CalculatorPatterns::isAccepted(typed.at(last))
        || isOneTooMany(pointed(typed + shown.entry.mid(length)), last);
}

// Without an option, the number of the last pass at the same index is restored, which can be an
// older one. Each character after the first point counts as a decimal, also if it is not a digit. A
// token that the previous pass did not have is never reverted.
inline bool LineEditCal::setRadixPointSeveral(QString &strText, const int &index)
{
    if (m_entryOptions != EntryOptions()
        || static_cast<std::size_t>(index) >= m_vecStringResults.size()) {
        return false;
    }
    const QChar *const end = strText.cend();
    const QChar *const point = std::find(strText.cbegin(), end, QLatin1Char('.'));
    const auto decimals = point == end ? 0 : end - point - 1;
    const bool isSecondPoint = decimals > 0 && std::find(point + 1, end, QLatin1Char('.')) != end;
    if (!isSecondPoint && decimals <= typedDecimals()) {
        return false;
    }
    strText = m_vecStringResults[static_cast<std::size_t>(index)];
    return true;
}

void LineEditCal::setShowResult(const QString &strText)
{
    if (has(SafeEntry) && strText.trimmed().isEmpty() && parent() != nullptr) {
        setInitialResult(Internal::saturatedFloat(ofSpinBox("value", 0)));
        parent()->setProperty("value", parent()->property("value")); // writes its text
        return;
    }
    const std::optional<QString> result = Internal::evaluateExpression(strText);
    if (!result) {
        setEntryRefused(true);
        setShownEntry(beforeResult());
        return;
    }
    // Text that is not a number counts as 0, also text that Qt reads as infinity. NaN passes both
    // comparisons below.
    const double exact = result->toDouble();
    const bool isNumber = std::isfinite(exact) || *result == QLatin1String("NaN");
    const bool isExact = has(ExactEntry);
    double value = isExact ? exact : static_cast<double>(result->toFloat());
    value = isNumber ? value : 0;
    const double max = isExact ? ofSpinBox("maximum", DBL_MAX) : static_cast<double>(m_maxNum);
    const double min = isExact ? ofSpinBox("minimum", -DBL_MAX) : static_cast<double>(m_minNum);
    if (value > max) {
        value = max;
    }
    if (value < min) {
        value = min;
    }
    // A receiver of the mark may set another result.
    const QString shown = QString::number(value, 'f', shownDecimals());
    m_beforeResult = shown;
    m_isInitialResultPending = false;
    setEntryRefused(std::isnan(value));
    setShownEntry(shown);
}

QEvent::Type LineEditCal::entryRefusedChange()
{
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

void LineEditCal::setEntryRefused(bool isRefused)
{
    if (m_isEntryRefused != isRefused) {
        m_isEntryRefused = isRefused;
        if (parent() != nullptr) {
            QEvent change(entryRefusedChange());
            QCoreApplication::sendEvent(parent(), &change);
        }
    }
}

// Shows the filtered entry and sets the cursor. setText() clears the undo history, so it is called
// only if the entry was corrected.
void LineEditCal::setEntryText(const QString &entry, int cursorPosition)
{
    // Most keys need no correction, and most fields have neither prefix nor suffix.
    if (entry != text()) {
        const FieldText shown(parent(), text());
        if (entry != shown.entry) {
            const bool isTyped = isModified();
            setResultText(shown.with(entry));
            setModified(isTyped);
        }
        cursorPosition += static_cast<int>(shown.prefix.length());
    }
    if (cursorPosition != this->cursorPosition()) {
        setCursorPosition(cursorPosition);
    }
}

void LineEditCal::setShownEntry(const QString &entry)
{
    setResultText(FieldText(parent(), text()).with(entry));
}

} // namespace Vantor::Widgets
