#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QToolButton>

#include <memory>

namespace Vantor {
namespace Widgets {

class LineEditCal;

namespace Internal {
class HostWindow;
} // namespace Internal

class SliderEditSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SliderEditSlider(QWidget *parent = nullptr);
    ~SliderEditSlider() override;

    bool isMousePressed() const;
    void setScale(int min, int max);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void releasePointer();

    bool m_isMousePressed = false;
    std::unique_ptr<Internal::HostWindow> m_hostWindow;
};

// Without Q_OBJECT: to style sheets and tools it is a QToolButton like any other.
class SliderEditButton : public QToolButton
{
public:
    explicit SliderEditButton(QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    void letGo();
};

class VANTORSLIDER_EXPORT SliderEditSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit SliderEditSpinBox(QWidget *parent = nullptr);
    ~SliderEditSpinBox() override;

    QValidator::State validate(QString &text, int &pos) const override;
    int valueFromText(const QString &text) const override;
    void stepBy(int steps) override;
    void setWheelEnable(bool b);
    void setSpinBoxCal(const int &result, const int &max, const int &min, const int &retainResult,
                       const int &retainDecimal);
    void setSlotEditingFinished();

Q_SIGNALS:
    void enterFinished();

protected Q_SLOTS:
    void onSlotResultFinished();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    bool m_isWheelEnabled = false;
    // Null where a subclass has given the box another line edit.
    LineEditCal *m_pLineEditCal;
};

class VANTORSLIDER_EXPORT SliderEditDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SliderEditDoubleSpinBox(QWidget *parent = nullptr);
    ~SliderEditDoubleSpinBox() override;

    QValidator::State validate(QString &text, int &pos) const override;
    double valueFromText(const QString &text) const override;
    void stepBy(int steps) override;
    void setWheelEnable(bool b);
    void setSpinBoxCal(const float &result, const float &max, const float &min,
                       const int &retainResult, const int &retainDecimal, const bool &bSuffix);
    void setSlotEditingFinished();
    void setSuffixShow();

Q_SIGNALS:
    void enterFinished();

protected Q_SLOTS:
    void onSlotResultFinished();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void childEvent(QChildEvent *event) override;

private:
    bool m_isWheelEnabled = false;
    // Null where a subclass has given the box another line edit.
    LineEditCal *m_pLineEditCal;
    QString m_strSuffix;
    bool m_btnFirstPress = true;
};

} // namespace Widgets
} // namespace Vantor
