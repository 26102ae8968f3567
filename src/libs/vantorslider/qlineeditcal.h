#pragma once

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
    bool isFallbackShown() const;
    void outliveParent(QWidget *survivor);

Q_SIGNALS:
    void signalsResult();

protected Q_SLOTS:
    void onSlotTextChanged(QString text);

private:
    void setTextFormat(QString strText);
    void setExpressionFormat(QString strText);
    void setIntereptString(QString &strText, bool &bCursor);
    void setStringFormat(QString &strText, bool &bFormat);
    bool setRadixPointSeveral(QString &strText, const int &index);
    void setShowResult(const QString &strText);
    void showFallback();
    void setResultText(QString text);
    const QString &beforeResult();

    int m_cursorPosition = 0;
    std::vector<QString> m_vecStringResults;
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
    bool m_isEvaluating = false;
    bool m_isFallbackShown = false;
    // What is deleted in place of its parent when an evaluation is over.
    QWidget *m_pSurvivor = nullptr;
};

} // namespace Widgets
} // namespace Vantor
