#pragma once

#include "entryoptions.h"
#include "hostwindow_p.h"

#include <QtWidgets/QLineEdit>

#include <regex>
#include <vector>

namespace Vantor {
namespace Widgets {

class LineEditCal : public QLineEdit
{
    Q_OBJECT

public:
    explicit LineEditCal(QWidget *parent = nullptr);

    void setInitialResult(const float &result);
    void setResultsRadixPointSeveral(const int &remainSeveral);
    void setInputRadixPointSeveral(const int &inputSeveral);
    void setLineEditMinOrMax(const float &min, const float &max);
    void setSuffix(bool bSuffix);
    void setSlotEditingFinished();
    bool isEntryRefused() const;
    // To be asked when the spin box loses the focus: to a menu of the field's own, such
    // as the one that pastes, from which the user comes back and goes on typing. True
    // until the focus is lost to something else.
    bool isLeftForOwnPopup(const QFocusEvent *event);
    bool isInOwnPopup() const { return m_isInOwnPopup; }
    bool event(QEvent *event) override;
    void setEntryOptions(EntryOptions options) { m_entryOptions = options; }
    EntryOptions entryOptions() const { return m_entryOptions; }
    bool has(EntryOption option) const { return m_entryOptions.testFlag(option); }
    // The entry with points where commas stand for them.
    QString pointed(const QString &entry) const;
    Internal::HostWindow &hostWindow() { return m_hostWindow; }

Q_SIGNALS:
    void signalsResult();
    void entryRefusedChanged(bool isRefused);

protected Q_SLOTS:
    void onSlotTextChanged(QString text);

private:
    void setShownEntry(const QString &entry);
    void setTextFormat(QString strText);
    void setExpressionFormat(QString strText);
    void setIntereptString(QString &strText, bool &bCursor);
    bool takeToken(std::size_t index, const QString &text, int start, int length);
    void setStringFormat(QString &strText, bool &bFormat);
    bool setRadixPointSeveral(QString &strText, const int &index);
    void setShowResult(const QString &strText);
    void setEntryRefused(bool isRefused);
    void setEntryText(const QString &entry, int cursorPosition);
    void setResultText(QString text);
    const QString &beforeResult();
    double ofSpinBox(const char *property, double otherwise) const;
    int shownDecimals() const;
    int typedDecimals() const { return has(ExactEntry) ? shownDecimals() : m_inputSeveral; }
    QString initialResultText() const;

    int m_cursorPosition = 0;
    std::vector<QString> m_vecStringResults;
    QString m_beforeText;
    QString m_beforeResult;
    // The interface gives these four patterns to each field and two of the flags
    // below; what is compiled and looked up once stands in CalculatorPatterns.
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
    EntryOptions m_entryOptions;
    Internal::HostWindow m_hostWindow {this};
};

} // namespace Widgets
} // namespace Vantor
