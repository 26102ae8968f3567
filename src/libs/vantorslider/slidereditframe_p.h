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
class GrooveColors;
class HostWindow;
class SliderGroove;
class SliderDrag;
struct ValueText;
} // namespace Internal

// The slider of a row: tracks whether a mouse button is down on it and ignores the wheel, so
// that the page around it scrolls.
class SliderEditSlider : public QSlider
{
    Q_OBJECT

public:
    explicit SliderEditSlider(QWidget *parent = nullptr);
    ~SliderEditSlider() override;

    bool isMousePressed() const;
    void setScale(int min, int max);
    void setGrooveBrush(const QBrush &brush);
    QBrush grooveBrush() const;
    void setGrooveColors(Internal::GrooveColors *colors);
    Internal::GrooveColors *grooveColors() const;
    void updateGroove();
    // Only GrooveMovesHandle and FineDrag have an effect here: the row handles FlickScrolls.
    void setOptions(SliderOptions options);
    SliderOptions options() const { return m_options; }

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    friend class Internal::SliderDrag; // calls protected functions of QSlider

    void releasePointer();
    void letGo(QMouseEvent *event);
    void setGroove(const QBrush &brush, Internal::GrooveColors *colors);

    SliderOptions m_options;
    bool m_isMousePressed = false;
    // No release event follows the last press.
    bool m_isPointerTaken = false;
    std::unique_ptr<Internal::HostWindow> m_hostWindow;
    // Null without a brush.
    std::unique_ptr<Internal::SliderGroove> m_groove;
    // Whether a sheet drops the tick marks; not known before they are drawn.
    enum { TicksUnknown, TicksDrawn, TicksDropped } m_ticks = TicksUnknown;
    // Null without options for the drag.
    std::unique_ptr<Internal::SliderDrag> m_drag;
};

// The minus or plus button of a row: stops its auto-repeat when it is hidden, disabled or
// blocked by a dialog or a menu. It has no Q_OBJECT: style sheets and tools see a QToolButton.
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
    \brief A spin box for \c int values that accepts a typed arithmetic expression.

    It is the spin box of SliderEditFrame; use it alone where no slider is needed. Range, step
    and value are those of QSpinBox. Outside a SliderEditFrame the host calls
    setSlotEditingFinished() when editing ends and setSpinBoxCal() when range or value change.

    The text field filters what the user types; every text is valid. Return and Enter emit
    editingFinished(), then enterFinished(), and are accepted. An expression that ends in "=" is
    evaluated at once and emits enterFinished().

    Numbers are typed in decimal: leave displayIntegerBase at 10.

    Style sheets select on the dynamic property "isEntryRefused", true after an expression that
    failed. "Quelmo_VK" is "Vk_Number" and tells a host which on-screen keyboard to show.
*/
class VANTORSLIDER_EXPORT SliderEditSpinBox : public QSpinBox
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    /*! Creates a spin box with Qt's defaults: 0 to 99, value 0, single step 1; the wheel off. */
    explicit SliderEditSpinBox(QWidget *parent = nullptr);
    ~SliderEditSpinBox() override;

    /*! Returns QValidator::Acceptable and changes neither \a text nor \a pos. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*!
        Returns the number in \a text, rounded to an \c int and clamped to the range, or the
        current value if \a text is not a number.
    */
    int valueFromText(const QString &text) const override;

    /*!
        Steps the value by \a steps single steps. An expression that the user is typing is
        evaluated first and the step starts from its result; one that fails is discarded.
    */
    void stepBy(int steps) override;

    /*!
        Lets the wheel step the value while the spin box has the focus, if \a b is true; false
        by default. A wheel event that is not used goes to the parent widget.
    */
    void setWheelEnable(bool b);

    /*! Sets how the spin box handles what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options that are set. \since 1.1 */
    EntryOptions entryOptions() const;

    /*!
        Shows \a prefix before and \a suffix after the number. Text that the user is typing
        stays; setPrefix() and setSuffix() discard it. \since 1.1
    */
    void setUnit(const QString &prefix, const QString &suffix);

    /*!
        Returns whether the user has typed since the spin box got the focus or the last entry
        ended, or the text is not the value. \since 1.1
    */
    bool hasPendingEntry() const;

    /*!
        Ends a pending entry as Enter does, and leaves the focus where it is: emits
        editingFinished(), evaluates the text and, if the value changes, emits valueChanged().
        Does nothing if no entry is pending. \since 1.1
    */
    void finishEntry();

    /*!
        Configures the evaluation of expressions: \a result is shown if one fails, results are
        clamped to \a min to \a max and shown with \a retainResult decimals, and a typed number
        can have \a retainDecimal decimals. By default results are clamped to -10000 to 10000 and
        shown with 0 decimals, and 2 can be typed. If \a max is below \a min, \a min is the only
        result. Text and value do not change; nothing is emitted.
    */
    void setSpinBoxCal(const int &result, const int &max, const int &min, const int &retainResult,
                       const int &retainDecimal);

    /*!
        Evaluates the expression that the user is typing, if there is one, and shows its result.
        The value changes when the text is interpreted, as on focus loss or by interpretText().
    */
    void setSlotEditingFinished();

Q_SIGNALS:
    /*!
        The user pressed Return or Enter, after editingFinished(), or ended an expression with
        "=".
    */
    void enterFinished();

protected Q_SLOTS:
    /*! Called after the evaluation of an expression that ended in "=". */
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
    friend struct Internal::ValueText;

    bool m_isWheelEnabled = false;
    // Null if a subclass has set another line edit.
    LineEditCal *m_pLineEditCal;
};

/*!
    \class SliderEditDoubleSpinBox slidereditframe_p.h vantorslider/slidereditframe_p.h
    \brief A spin box for \c double values that accepts a typed arithmetic expression.

    It is the spin box of SliderEditFrameDouble; use it alone where no slider is needed. Range,
    decimals, step and value are those of QDoubleSpinBox. Outside a SliderEditFrameDouble the
    host calls setSlotEditingFinished() on Enter, and setSpinBoxCal() when range or value change.

    The text field filters what the user types; every text is valid. Return and Enter emit
    editingFinished(), then enterFinished(), and are accepted. An expression that ends in "=" is
    evaluated at once and emits editingFinished(). The suffix is hidden from when the spin box
    gets the focus until editing ends.

    Style sheets select on the dynamic property "isEntryRefused", true after an expression that
    failed. "Quelmo_VK" is "Vk_NumberFloat" and tells a host which on-screen keyboard to show.
*/
class VANTORSLIDER_EXPORT SliderEditDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    /*!
        Creates a spin box with Qt's defaults: 0 to 99.99, 2 decimals, value 0, single step 1;
        the wheel off.
    */
    explicit SliderEditDoubleSpinBox(QWidget *parent = nullptr);
    ~SliderEditDoubleSpinBox() override;

    /*! Returns QValidator::Acceptable and changes neither \a text nor \a pos. */
    QValidator::State validate(QString &text, int &pos) const override;

    /*!
        Returns the number in \a text, clamped to the range, or the current value if \a text is
        not a number.
    */
    double valueFromText(const QString &text) const override;

    /*!
        Steps the value by \a steps single steps. An expression that the user is typing is
        evaluated first and the step starts from its result; one that fails is discarded.
    */
    void stepBy(int steps) override;

    /*!
        Lets the wheel step the value while the spin box has the focus, if \a b is true; false
        by default. A wheel event that is not used goes to the parent widget.
    */
    void setWheelEnable(bool b);

    /*! Sets how the spin box handles what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options that are set. \since 1.1 */
    EntryOptions entryOptions() const;

    /*!
        Shows \a prefix before and \a suffix after the number, the suffix only while the spin box
        is not edited. Text that the user is typing stays; setPrefix() and setSuffix() discard
        it. \since 1.1
    */
    void setUnit(const QString &prefix, const QString &suffix);

    /*! Returns the suffix, also while it is hidden. \since 1.1 */
    QString unitSuffix() const;

    /*!
        Returns whether the user has typed since the spin box got the focus or the last entry
        ended, or the text is not the value. \since 1.1
    */
    bool hasPendingEntry() const;

    /*!
        Ends a pending entry as Enter does, and leaves the focus where it is: emits
        editingFinished(), evaluates the text and, if the value changes, emits valueChanged().
        Does nothing if no entry is pending. \since 1.1
    */
    void finishEntry();

    /*!
        Configures the evaluation of expressions: \a result is shown if one fails, results are
        clamped to \a min to \a max and shown with \a retainResult decimals, and a typed number
        can have \a retainDecimal decimals. By default results are clamped to -10000 to 10000 and
        shown with 0 decimals, and 2 can be typed. If \a max is below \a min, \a min is the only
        result. \a bSuffix has no effect. Text and value do not change; nothing is emitted.
    */
    void setSpinBoxCal(const float &result, const float &max, const float &min,
                       const int &retainResult, const int &retainDecimal, const bool &bSuffix);

    /*!
        Evaluates the expression that the user is typing, if there is one, and shows its result
        and a hidden suffix. The value changes when the text is interpreted, as on focus loss or
        by interpretText().
    */
    void setSlotEditingFinished();

    /*!
        Shows the suffix that is hidden while the spin box has the focus. Text that the user is
        typing stays.
    */
    void setSuffixShow();

Q_SIGNALS:
    /*! The user pressed Return or Enter; emitted after editingFinished(). */
    void enterFinished();

protected Q_SLOTS:
    /*! Called after the evaluation of an expression that ended in "=". */
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
    // Null if a subclass has set another line edit.
    LineEditCal *m_pLineEditCal;
    QString m_strSuffix;
    bool m_btnFirstPress = true;
};

} // namespace Widgets
} // namespace Vantor
