#include "qlineeditcal.h"

#include "calculatorpatterns_p.h"
#include "expressionevaluation_p.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>

#include <algorithm>

namespace Vantor {
namespace Widgets {

using Internal::CalculatorPatterns;

/*!
    \class LineEditCal
    \brief The text field of the spin boxes: an arithmetic expression where a
    number is expected.

    Every edit is filtered: characters that no expression has are refused,
    leading zeros dropped, a second decimal point or too many decimals of a
    number undone. A finished expression is evaluated, clamped, formatted and
    written back as the field's text. It is finished by "=" as the last
    character or by setSlotEditingFinished().
*/

// A copy of a std::regex shares its compiled automaton.
LineEditCal::LineEditCal(QWidget *parent)
    : QLineEdit(parent), m_regex(CalculatorPatterns::instance().character),
      m_regexMark(CalculatorPatterns::instance().mark),
      m_regexFourOperation(CalculatorPatterns::instance().fourOperation),
      m_regexstr(CalculatorPatterns::instance().letters)
{
    connect(this, &QLineEdit::textChanged, this, &LineEditCal::onSlotTextChanged);
    setProperty("noSpaceingLineEdit", true);
}

/*!
    Takes \a result as the last accepted result: it is shown again when an
    evaluation fails. The text does not change.
*/
void LineEditCal::setInitialResult(const float &result)
{
    m_initialResult = result;
    m_isInitialResultPending = true;
}

// A drag hands over a result at every move; its text is needed only when
// somebody types.
const QString &LineEditCal::beforeResult()
{
    if (m_isInitialResultPending) {
        m_beforeResult = QString::number(static_cast<double>(m_initialResult), 'g', 6);
        m_isInitialResultPending = false;
    }
    return m_beforeResult;
}

/*! Sets the number of decimals of a shown result to \a remainSeveral. */
void LineEditCal::setResultsRadixPointSeveral(const int &remainSeveral)
{
    m_remainSeveral = remainSeveral;
}

/*! Sets the most characters after the decimal point of a typed number to \a inputSeveral. */
void LineEditCal::setInputRadixPointSeveral(const int &inputSeveral)
{
    m_inputSeveral = inputSeveral;
}

/*! Clamps results to \a min and \a max; where they are inverted, \a min wins. */
void LineEditCal::setLineEditMinOrMax(const float &min, const float &max)
{
    m_minNum = min;
    m_maxNum = max;
}

/*! Records that the host shows a suffix; the field itself does not need to know. */
void LineEditCal::setSuffix(bool bSuffix)
{
    m_bSuffix = bSuffix;
}

/*!
    Evaluates the text unless it is the last accepted result. Emits nothing
    but the text's own change.
*/
void LineEditCal::setSlotEditingFinished()
{
    if (text() != beforeResult()) {
        setShowResult(text());
    }
}

/*!
    True while the field shows the last accepted result in place of an entry that
    failed. That text is for reading: it may have fewer digits than the value.
*/
bool LineEditCal::isFallbackShown() const
{
    return m_isFallbackShown;
}

/*!
    Filters \a text, or evaluates it where it ends in "=" and emits
    signalsResult() then, whether that succeeded or not.
*/
void LineEditCal::onSlotTextChanged(QString text)
{
    if (text == beforeResult() || m_isEvaluating) {
        return;
    }
    m_isFallbackShown = false;
    if (text.isEmpty()) {
        m_beforeText.clear();
        return;
    }
    m_cursorPosition = cursorPosition();
    if (text.endsWith(QLatin1Char('='))) {
        text.chop(1);
        const QPointer<LineEditCal> self(this);
        setShowResult(text);
        if (self && m_pSurvivor == nullptr) {
            Q_EMIT signalsResult();
        }
        return;
    }
    const QSignalBlocker blocker(this);
    setTextFormat(text);
}

// Only the character before the cursor is tested, so a paste that ends in an
// accepted character stays whole; its evaluation fails later.
void LineEditCal::setTextFormat(QString strText)
{
    if (m_cursorPosition > strText.length()) {
        return;
    }
    const QChar typed = strText.at(qMax(m_cursorPosition - 1, 0));
    if (CalculatorPatterns::instance().isAccepted(typed)) {
        setExpressionFormat(strText);
        return;
    }
    strText.remove(typed);
    setResultText(strText);
    setCursorPosition(m_cursorPosition - 1);
    m_beforeText = strText;
}

void LineEditCal::setExpressionFormat(QString strText)
{
    bool bCursor = false;
    setIntereptString(strText, bCursor);
    setResultText(strText);
    setCursorPosition(bCursor ? m_cursorPosition - 1 : m_cursorPosition);
    m_beforeText = strText;
}

// Splits the text at its marks; between two marks, before the first and after
// the last stands a number token, which may be empty. The decimal rule finds
// a token's earlier state by its index, so all of them count. Most tokens are
// what they were: the list is brought up to date in place.
void LineEditCal::setIntereptString(QString &strText, bool &bCursor)
{
    const CalculatorPatterns &patterns = CalculatorPatterns::instance();
    std::vector<QString> &tokens = m_vecStringResults;
    std::size_t count = 0;
    const auto isUnchanged = [&](const QStringRef &text) {
        return count < tokens.size() && tokens[count].length() == text.length()
            && std::equal(text.cbegin(), text.cend(), tokens[count].cbegin());
    };
    const auto takeToken = [&](const QStringRef &text, bool isMark) {
        if (isUnchanged(text)) {
            // It was corrected before, but its limit of decimals may be new.
            if (!isMark && setRadixPointSeveral(tokens[count], static_cast<int>(count))) {
                bCursor = true;
            }
            ++count;
            return;
        }
        QString token = text.toString();
        if (!isMark && !token.isEmpty()) {
            setStringFormat(token, bCursor);
            if (setRadixPointSeveral(token, static_cast<int>(count))) {
                bCursor = true;
            }
        }
        if (count == tokens.size()) {
            tokens.push_back(token);
        } else {
            tokens[count] = token;
        }
        ++count;
    };
    int start = 0;
    for (int end = 0; end < strText.length(); ++end) {
        if (patterns.isMark(strText.at(end))) {
            takeToken(QStringRef(&strText, start, end - start), false);
            takeToken(QStringRef(&strText, end, 1), true);
            start = end + 1;
        }
    }
    takeToken(QStringRef(&strText, start, strText.length() - start), false);
    tokens.resize(count);

    if (bCursor) {
        strText.clear();
        for (const QString &token : tokens) {
            strText.append(token);
        }
    }
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

// Every character after the first point counts as a decimal, digit or not. A
// token that the previous pass did not have is never reverted.
bool LineEditCal::setRadixPointSeveral(QString &strText, const int &index)
{
    if (static_cast<std::size_t>(index) >= m_vecStringResults.size()) {
        return false;
    }
    const int point = strText.indexOf(QLatin1Char('.'));
    const int decimals = point < 0 ? 0 : strText.length() - point - 1;
    const bool isSecondPoint = strText.count(QLatin1Char('.')) > 1;
    if (!isSecondPoint && decimals <= m_inputSeveral) {
        return false;
    }
    strText = m_vecStringResults[static_cast<std::size_t>(index)];
    return true;
}

void LineEditCal::setShowResult(const QString &strText)
{
    if (m_isEvaluating) {
        return;
    }
    const QPointer<LineEditCal> self(this);
    m_isEvaluating = true;
    if (!Internal::isTypedExpression(strText)) {
        // Events come in while it is evaluated: what interprets the field
        // meanwhile must find a number, not the script.
        showFallback();
    }
    const std::optional<QString> result = Internal::evaluateExpression(strText);
    if (!self) {
        return;
    }
    m_isEvaluating = false;
    if (m_pSurvivor != nullptr) {
        m_pSurvivor->deleteLater();
        return;
    }
    if (!result) {
        showFallback();
        return;
    }
    m_isFallbackShown = false;
    // A text that is no number counts as 0; NaN passes both comparisons.
    float value = result->toFloat();
    if (value > m_maxNum) {
        value = m_maxNum;
    }
    if (value < m_minNum) {
        value = m_minNum;
    }
    m_beforeText = QString::number(static_cast<double>(value), 'f', m_remainSeveral);
    m_beforeResult = m_beforeText;
    m_isInitialResultPending = false;
    setResultText(m_beforeText);
}

void LineEditCal::showFallback()
{
    m_isFallbackShown = true;
    setResultText(beforeResult());
}

void LineEditCal::setResultText(QString text)
{
    QLineEdit::setText(text);
}

/*!
    Called when the editor around the field is deleted. A field in the middle
    of an evaluation has Qt's own functions above it, which work on after it:
    \a survivor, the field or the spin box that holds it, leaves its dying
    parent and is deleted when the evaluation is over.
*/
void LineEditCal::outliveParent(QWidget *survivor)
{
    if (m_isEvaluating && m_pSurvivor == nullptr) {
        m_pSurvivor = survivor;
        survivor->setParent(nullptr);
    }
}

} // namespace Widgets
} // namespace Vantor
