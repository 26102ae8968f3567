#pragma once

#include "entryoptions.h"
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
    void letGo(QMouseEvent *event);

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

/*!
    \class SliderEditSpinBox slidereditframe_p.h vantorslider/slidereditframe_p.h
    \brief The integer field of a slider editor: a spin box that takes a typed
    arithmetic expression.

    Every text is valid to it; the calculator line edit filters while the user types. Return and
    Enter emit editingFinished() and then enterFinished() and go no further. An expression that
    ends in "=" is evaluated at once and emits enterFinished(). The dynamic property "Quelmo_VK"
    = "Vk_Number" tells a host which on-screen keyboard to show.
*/
class VANTORSLIDER_EXPORT SliderEditSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    explicit SliderEditSpinBox(QWidget *parent = nullptr);
    ~SliderEditSpinBox() override;

    /*! Accepts every text and changes neither \a text nor \a pos. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*!
        The number that \a text stands for, rounded to a whole one: out of range the nearer end,
        and the value as it is where \a text is no number.
    */
    int valueFromText(const QString &text) const override;

    /*!
        Steps the value by \a steps single steps. An expression that is pending is evaluated
        first and stepped from; one that fails is dropped.
    */
    void stepBy(int steps) override;

    /*!
        Lets the wheel step the value while the field has the focus, if \a b is true. Off at
        first: the wheel goes to the page around the field.
    */
    void setWheelEnable(bool b);

    /*! What the field does otherwise with what the user enters, all off at first. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on. \since 1.1 */
    EntryOptions entryOptions() const;

    /*!
        Shows \a prefix and \a suffix around the number. An entry that is pending stays, where
        setPrefix() and setSuffix() drop it. \since 1.1
    */
    void setUnit(const QString &prefix, const QString &suffix);

    /*!
        Hands the calculator its settings: \a result, shown when an evaluation
        fails, the range \a min to \a max that results are clamped to,
        \a retainResult decimals of a shown result, and \a retainDecimal decimals of a
        typed number. Neither text nor value changes.
    */
    void setSpinBoxCal(const int &result, const int &max, const int &min, const int &retainResult,
                       const int &retainDecimal);

    /*!
        Evaluates the entry that is pending, if one is; its result is the field's text, its
        value follows when the text is interpreted.
    */
    void setSlotEditingFinished();

Q_SIGNALS:
    /*!
        Return or Enter was pressed, or an expression ended in "=". After a key it follows
        editingFinished().
    */
    void enterFinished();

protected Q_SLOTS:
    /*! Called when an expression that ended in "=" has been evaluated. */
    void onSlotResultFinished();

protected:
    bool event(QEvent *event) override;
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

/*!
    \class SliderEditDoubleSpinBox slidereditframe_p.h vantorslider/slidereditframe_p.h
    \brief The floating-point field of a slider editor: a spin box that takes a typed
    arithmetic expression.

    Every text is valid to it; the calculator line edit filters while the user types. Return and
    Enter emit editingFinished() and then enterFinished() and go no further. An expression that
    ends in "=" is evaluated at once and emits editingFinished(). The dynamic property
    "Quelmo_VK" = "Vk_NumberFloat" tells a host which on-screen keyboard to show.

    While the field has the focus its suffix is taken away, so that a bare number is edited; it
    returns when editing ends.
*/
class VANTORSLIDER_EXPORT SliderEditDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    explicit SliderEditDoubleSpinBox(QWidget *parent = nullptr);
    ~SliderEditDoubleSpinBox() override;

    /*! Accepts every text and changes neither \a text nor \a pos. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*!
        The number that \a text stands for: out of range the nearer end, and the value as it is
        where \a text is no number.
    */
    double valueFromText(const QString &text) const override;

    /*!
        Steps the value by \a steps single steps. An expression that is pending is evaluated
        first and stepped from; one that fails is dropped.
    */
    void stepBy(int steps) override;

    /*!
        Lets the wheel step the value while the field has the focus, if \a b is true. Off at
        first: the wheel goes to the page around the field.
    */
    void setWheelEnable(bool b);

    /*! What the field does otherwise with what the user enters, all off at first. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on. \since 1.1 */
    EntryOptions entryOptions() const;

    /*!
        Shows \a prefix and \a suffix around the number, the suffix while the field is not
        edited. An entry that is pending stays, where setPrefix() and setSuffix() drop it.
        \since 1.1
    */
    void setUnit(const QString &prefix, const QString &suffix);

    /*! The suffix that is shown while the field is not edited. \since 1.1 */
    QString unitSuffix() const;

    /*!
        Hands the calculator its settings: \a result, shown when an evaluation
        fails, the range \a min to \a max that results are clamped to,
        \a retainResult decimals of a shown result, \a retainDecimal decimals of a
        typed number, and whether a suffix is shown (\a bSuffix). Neither text nor value changes.
    */
    void setSpinBoxCal(const float &result, const float &max, const float &min,
                       const int &retainResult, const int &retainDecimal, const bool &bSuffix);

    /*!
        Evaluates the entry that is pending, if one is; its result is the field's text, its
        value follows when the text is interpreted. A removed suffix returns.
    */
    void setSlotEditingFinished();

    /*!
        Shows again the suffix that was removed when the field got the focus. An entry that is
        pending stays in the text.
    */
    void setSuffixShow();

Q_SIGNALS:
    /*! Return or Enter was pressed; emitted after editingFinished(). */
    void enterFinished();

protected Q_SLOTS:
    /*! Called when an expression that ended in "=" has been evaluated. */
    void onSlotResultFinished();

protected:
    bool event(QEvent *event) override;
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
