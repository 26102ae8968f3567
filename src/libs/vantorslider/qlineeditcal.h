#pragma once

#include "entryoptions.h"
#include "hostwindow_p.h"

#include <QtCore/QEvent>
#include <QtWidgets/QLineEdit>

#include <memory>
#include <regex>
#include <vector>

namespace Vantor::Widgets {

namespace Internal {
class EntryValidator;
class UnitGuard;
} // namespace Internal

// The line edit of the two spin boxes: accepts an arithmetic expression instead of a number.
//
// Each edit is filtered: characters that no expression contains and leading zeros are removed, a
// second decimal point or too many decimals of a number are undone. "=" as the last character or
// setSlotEditingFinished() evaluates the expression; the result is clamped, formatted and written
// back as text. The prefix and suffix of the spin box are not part of the expression.
//
// isModified() tells whether the user has typed since the last entry ended. A correction by the
// filter is part of the user's edit.
class LineEditCal : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEditCal(QWidget *parent = nullptr);
    ~LineEditCal() override;

    // Sets the last accepted result, shown if an evaluation fails. The text does not change.
    void setInitialResult(const float &result);
    // Decimals of a shown result.
    void setResultsRadixPointSeveral(const int &remainSeveral);
    // Maximum number of characters after the decimal point of a typed number.
    void setInputRadixPointSeveral(const int &inputSeveral);
    // Results are clamped to this range; if it is inverted, min takes precedence.
    void setLineEditMinOrMax(const float &min, const float &max);
    // Has no effect: the field reads the suffix that the spin box has.
    void setSuffix(bool bSuffix);
    // Evaluates the text unless it is the last accepted result. Emits only textChanged().
    void setSlotEditingFinished();
    // True after a failed evaluation until the text is edited, another entry is accepted or
    // setInitialResult() is called. The result that is shown meanwhile can have fewer digits than
    // the value.
    bool isEntryRefused() const;
    // Called when the spin box loses the focus. Whether it goes to a context menu of this line
    // edit, from which the user returns and continues typing. isInOwnPopup() returns true until
    // the focus goes elsewhere.
    bool isLeftForOwnPopup(const QFocusEvent *event);
    bool isInOwnPopup() const { return m_isInOwnPopup; }
    bool event(QEvent *event) override;
    void setEntryOptions(EntryOptions options);
    EntryOptions entryOptions() const { return m_entryOptions; }
    bool has(EntryOption option) const { return m_entryOptions.testFlag(option); }
    // Whether the user has just changed the text and it is not to become the value at once, as
    // QAbstractSpinBox::keyboardTracking() would have it.
    bool isUntracked() const { return m_isUntracked; }
    // Whether the host has set the unit of a row. Prefix and suffix that the host has set on the
    // spin box itself can be edited.
    void setUnit(bool isSet);
    bool hasUnit() const { return m_unitGuard != nullptr; }
    // The entry with decimal points instead of decimal commas, and the signs of other keyboards in
    // ASCII.
    QString pointed(const QString &entry) const;
    // Whether the filter would remove the character that the user has inserted before the cursor.
    bool refuses(const QString &text, int cursor) const;
    Internal::HostWindow &hostWindow() { return m_hostWindow; }
    // Sent to the parent when isEntryRefused() has changed. A signal for it would cost each row
    // 400 bytes, and most entries are accepted.
    static QEvent::Type entryRefusedChange();

Q_SIGNALS:
    // An expression that ended in "=" was evaluated, also if that failed.
    void signalsResult();

protected Q_SLOTS:
    void onSlotTextChanged(QString text);
    void onSlotTextTracked();

private:
    void setShownEntry(const QString &entry);
    void setTextFormat(QString strText);
    void setExpressionFormat(QString strText);
    void setIntereptString(QString &strText, bool &bCursor);
    bool takeToken(std::size_t index, const QString &text, int start, int length);
    void setStringFormat(QString &strText, bool &bFormat);
    bool setRadixPointSeveral(QString &strText, const int &index);
    bool isOneTooMany(const QString &strText, int position) const;
    void setShowResult(const QString &strText);
    void setEntryRefused(bool isRefused);
    void setEntryText(const QString &entry, int cursorPosition);
    void setResultText(const QString &text) { QLineEdit::setText(text); }
    const QString &beforeResult();
    // Range and result are pushed by setSpinBoxCal(): without options they are the ones at that
    // call, as float. An exact entry needs those of the moment, as double. They are pulled, because
    // Qt's spin box changes them in functions that are not virtual.
    double ofSpinBox(const char *property, double otherwise) const;
    int shownDecimals() const;
    int typedDecimals() const { return has(ExactEntry) ? shownDecimals() : m_inputSeveral; }
    QString initialResultText() const;

    int m_cursorPosition = 0;
    std::vector<QString> m_vecStringResults;
    // Not read, like the regular expressions, m_bSuffix and m_btnFirstPress: instead of those the
    // filter calls CalculatorPatterns::isAccepted() and isMark(), which accept the same characters.
    QString m_beforeText;
    QString m_beforeResult;
    std::regex m_regex;
    std::regex m_regexMark;
    std::regex m_regexFourOperation;
    std::regex m_regexstr;
    int m_remainSeveral = 0;
    int m_inputSeveral = 2;
    float m_minNum = -10000.0F;
    float m_maxNum = 10000.0F;
    bool m_bSuffix = false;
    bool m_btnFirstPress = true;
    float m_initialResult = 0.0F;
    bool m_isInitialResultPending = false;
    bool m_isEntryRefused = false;
    bool m_isInOwnPopup = false;
    bool m_isUntracked = false;
    // The last event typed one character.
    bool m_isKey = false;
    EntryOptions m_entryOptions;
    Internal::HostWindow m_hostWindow {this};
    std::unique_ptr<Internal::UnitGuard> m_unitGuard;
    std::unique_ptr<Internal::EntryValidator> m_entryValidator;
};

} // namespace Vantor::Widgets
