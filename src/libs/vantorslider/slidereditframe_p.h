#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>

namespace Vantor {
namespace Widgets {

class LineEditCal;

namespace Internal {

// Qt's own code above a signal goes on with the widget that emitted it. Where the
// editor around the widget is deleted in the signal, the widget leaves it and
// deletes itself once all that it is in the middle of is over.
class Survival
{
public:
    // Something that the widget is in the middle of.
    class Scope
    {
    public:
        explicit Scope(Survival &survival);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        friend class Survival;
        Survival *m_survival;
        Scope *m_outer;
    };

    explicit Survival(QWidget *widget) : m_widget(widget) { }
    ~Survival();
    Survival(const Survival &) = delete;
    Survival &operator=(const Survival &) = delete;

    // To be called before the parent deletes its children.
    void outliveParent();
    bool isOrphaned() const { return m_isOrphaned; }

private:
    QWidget *m_widget;
    Scope *m_innermost = nullptr;
    bool m_isOrphaned = false;
};

} // namespace Internal

class SliderEditSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SliderEditSlider(QWidget *parent = nullptr);

    bool isMousePressed() const;
    void outliveParent() { m_survival.outliveParent(); }

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
    Internal::Survival m_survival {this};
};

class VANTORSLIDER_EXPORT SliderEditSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit SliderEditSpinBox(QWidget *parent = nullptr);
    ~SliderEditSpinBox() override;

    QValidator::State validate(QString &text, int &pos) const override;
    void setWheelEnable(bool b);
    void setSpinBoxCal(const int &result, const int &max, const int &min, const int &retainResult,
                       const int &retainDecimal);
    void setSlotEditingFinished();
    void outliveParent() { m_survival.outliveParent(); }

Q_SIGNALS:
    void enterFinished();

protected Q_SLOTS:
    void onSlotResultFinished();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool m_isWheelEnabled = false;
    LineEditCal *m_pLineEditCal;
    Internal::Survival m_survival {this};
};

class VANTORSLIDER_EXPORT SliderEditDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SliderEditDoubleSpinBox(QWidget *parent = nullptr);
    ~SliderEditDoubleSpinBox() override;

    QValidator::State validate(QString &text, int &pos) const override;
    void setWheelEnable(bool b);
    void setSpinBoxCal(const float &result, const float &max, const float &min,
                       const int &retainResult, const int &retainDecimal, const bool &bSuffix);
    void setSlotEditingFinished();
    void setSuffixShow();
    void outliveParent() { m_survival.outliveParent(); }

Q_SIGNALS:
    void enterFinished();

protected Q_SLOTS:
    void onSlotResultFinished();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    bool m_isWheelEnabled = false;
    LineEditCal *m_pLineEditCal;
    Internal::Survival m_survival {this};
    QString m_strSuffix;
    bool m_btnFirstPress = true;
};

} // namespace Widgets
} // namespace Vantor
