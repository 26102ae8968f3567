#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class SliderEditPrivate;
} // namespace Internal

/*!
    \class SliderEditFrame slidereditframe.h vantorslider/slidereditframe.h
    \brief A labelled editor for an \c int parameter: label, slider, spin box, minus and plus
    button in one row.

    Use it where an operator both drags a value and types it, by mouse, touch or keyboard. For
    \c double values there is SliderEditFrameDouble. Set the range before the value:

    \code
    auto *gain = new SliderEditFrame(this);
    gain->setLabelText(tr("Gain"));
    gain->setRange(0, 255);
    gain->setValue(40);
    connect(gain, &SliderEditFrame::valueChanged, mixer, &Mixer::setGain);
    \endcode

    The spin box accepts a typed arithmetic expression. valueChanged() reports changes by the
    user only: no setter emits a signal, even where it clamps the value. Hiding or disabling the
    slider ends a drag and reports its last value.

    Style sheets select on the dynamic properties "isSliderFrame" of the frame,
    "isSliderEditSubtract" and "isSliderEditPlus" of the buttons, and on the children's object
    names "labelName", "slider", "spinBox", "sliderEditSubtract" and "sliderEditPlus". A width
    that a style sheet gives a child takes precedence over one that the host sets. A width range
    takes the maximum first.

    The notify signal of a property is emitted for the user's changes only, never by its setter.
    Some getters of 1.0 are not const: read a const row by the properties of the same name.
*/
class VANTORSLIDER_EXPORT SliderEditFrame : public QFrame
{
    Q_OBJECT
    // A form applies properties in this order: the range comes before the value.
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    Q_PROPERTY(int minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(int maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(int value READ committedValue WRITE setValue NOTIFY valueChanged USER true)
    // The moc of Qt 6 refuses a function here.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    Q_PROPERTY(int defaultValue READ defaultValue WRITE setDefaultValue RESET clearDefaultValue
                   STORED hasDefaultValue)
#else
    Q_PROPERTY(int defaultValue READ defaultValue WRITE setDefaultValue RESET clearDefaultValue)
#endif
    Q_PROPERTY(bool hasDefaultValue READ hasDefaultValue WRITE writeHasDefaultValue)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)
    Q_PROPERTY(
        Vantor::Widgets::SliderOptions sliderOptions READ sliderOptions WRITE setSliderOptions)
    Q_PROPERTY(SliderScale sliderScale READ sliderScale WRITE setSliderScale)
    Q_PROPERTY(bool sliderVisible READ isSliderVisible WRITE setSliderVisible)
    Q_PROPERTY(bool buttonVisible READ isButtonVisible WRITE setButtonVisible)
    // Sampling turns release mode off, and both set the auto-repeat.
    Q_PROPERTY(int timeSamplingRate READ timeSamplingRate WRITE writeTimeSamplingRate)
    Q_PROPERTY(bool releaseMode READ isReleaseMode WRITE setReleaseMode)
    Q_PROPERTY(bool autoRepeat READ autoRepeat WRITE setAutoRepeat)
    Q_PROPERTY(QBrush grooveBrush READ grooveBrush WRITE setGrooveBrush)

public:
    /*! The side of a reference value on which reported values stay; can be combined. */
    enum ValueChangeDirection : int {
        AllowedToBigger = 2, //!< Values may not fall below the reference.
        AllowedToSmaller = 4, //!< Values may not rise above the reference.
        AllowedToAny = AllowedToBigger | AllowedToSmaller, //!< No restriction; the default.
    };

    /*! How the slider maps values to positions. \since 1.1 */
    enum SliderScale : int {
        LinearScale, //!< Each position adds the same amount; the default.
        LogarithmicScale, //!< Each position multiplies by the same factor, for several decades.
    };
    Q_ENUM(SliderScale)

    /*!
        Creates a row with the range 0 to 99, value 0, single step 1, page step 10, an empty
        label, the wheel and auto-repeat off, a linear scale and continuous reporting.
    */
    explicit SliderEditFrame(QWidget *parent = nullptr);
    ~SliderEditFrame() override;

    /*!
        Sets the gap between label and slider to \a nLabelSlider, and the gaps between slider,
        spin box and buttons to \a nSliderButton, in pixels; 0 by default.
    */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*!
        Shows \a text in the label; empty by default. It also becomes the accessible name of the
        row, the slider and the spin box, and, followed by a minus or plus sign, of the buttons.
    */
    void setLabelText(const QString &text);

    /*! Returns the label's text. */
    QString labelText() const;

    /*!
        Sets the label's maximum width to \a maxw and its minimum width to \a minw pixels. If they
        conflict, the minimum takes precedence.
    */
    void setLabelWidthRange(int maxw, int minw);

    /*! Makes the label \a w pixels wide; by default it is as wide as its text. */
    void setLabelFixedWidth(int w);

    /*!
        Sets each button's maximum width to \a maxw and its minimum width to \a minw pixels. If they
        conflict, the minimum takes precedence.
    */
    void setButtonWidthRange(int maxw, int minw);

    /*! Makes each button \a w pixels wide; 49 by default. */
    void setButtonFixedWidth(int w);

    /*!
        Sets the spin box's maximum width to \a maxw and its minimum width to \a minw pixels. If
        they conflict, the minimum takes precedence.
    */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! Makes the spin box \a w pixels wide; 65 by default. */
    void setSpinBoxFixedWidth(int w);

    /*!
        Lets the wheel step the spin box while it has the focus, if \a b is true; false by
        default. A wheel event that is not used goes to the parent widget. The slider never
        uses it.
    */
    void setSpinBoxWheelEnable(bool b);

    /*! Sets how the spin box handles what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options that are set. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! Sets how the row handles the pointer; none by default. \since 1.1 */
    void setSliderOptions(SliderOptions options);

    /*! Returns the options that are set. \since 1.1 */
    SliderOptions sliderOptions() const;

    /*!
        Returns whether the user has typed since the spin box got the focus or the last entry
        ended, or a typed result is not reported yet. \since 1.1
    */
    bool hasPendingEntry() const;

    /*!
        Ends a pending entry: evaluates and reports it as Enter does, and leaves the focus where
        it is. Does nothing if no entry is pending. \since 1.1
    */
    void finishEntry();

    /*!
        Shows or hides the slider; without it the other children stay beside the label. Hiding
        it ends a drag and reports its last value.
    */
    void setSliderVisible(bool b);

    /*! Returns whether the slider is not hidden. \since 1.1 */
    bool isSliderVisible() const;

    /*! Shows or hides both buttons; they are visible by default. */
    void setButtonVisible(bool b);

    /*! Returns whether the buttons are not hidden. \since 1.1 */
    bool isButtonVisible() const;

    /*! Sets the slider's property \a name to \a value: one of Qt's, or one for style sheets. */
    void setSliderProperty(const char *name, const QVariant &value);

    /*!
        Fills the slider's groove with \a brush, also before the handle; Qt::NoBrush, the
        default, leaves it to the style. The style still draws the groove's border and the handle.

        The x coordinates of a gradient count from 0, the middle of the handle at the minimum, to
        1, that at the maximum, and y from the upper edge of the groove to the lower one: in
        QLinearGradient(0, 0, 1, 0) the colour under the handle is that of its position. From
        right to left the gradient is mirrored. Other brushes start at the groove's upper left
        corner. A checkerboard shows through where the brush is transparent. \since 1.1
    */
    void setGrooveBrush(const QBrush &brush);

    /*! Returns the brush in the groove, Qt::NoBrush if none is set. \since 1.1 */
    QBrush grooveBrush() const;

    /*!
        Gives the keyboard focus to the spin box and selects its text. \since 1.1
    */
    void setFieldFocus();

    /*!
        Shows \a val on slider and spin box, clamped to their range. From now on the results of
        typed expressions are clamped to that range. Emits nothing.
    */
    void setValue(int val);

    /*! Returns the current value, which the spin box holds. */
    int value();

    /*!
        Shows \a text before the number in the spin box; empty by default. Text that the user is
        typing stays. Emits nothing. \since 1.1
    */
    void setPrefix(const QString &text);

    /*! Returns the text before the number. \since 1.1 */
    QString prefix() const;

    /*!
        Shows \a text, such as a unit, after the number in the spin box; empty by default. Text
        that the user is typing stays. Emits nothing. \since 1.1
    */
    void setSuffix(const QString &text);

    /*! Returns the text after the number. \since 1.1 */
    QString suffix() const;

    /*!
        Sets the range of slider and spin box to \a min to \a max, 0 to 99 by default. If
        \a max is below \a min, \a min is the only value. A value outside the range is clamped.
        Emits nothing.

        Call setValue() afterwards: until then results of typed expressions are clamped to the
        previous range, too. In a range of exactly 2^31 steps the slider starts at \a min + 1.
    */
    void setRange(int min, int max);

    /*! Sets the minimum to \a min and raises the maximum to it if it is below; see setRange(). */
    void setMinimum(int min);

    /*! Sets the maximum to \a max and lowers the minimum to it if it is above; see setRange(). */
    void setMaximum(int max);

    /*! Returns the minimum of the range. */
    int minimum() const;

    /*! Returns the maximum of the range. */
    int maximum() const;

    /*!
        Sets the default value to \a val; there is none by default. Emits nothing.

        A double click or double tap on the label then resets the value. That is an edit by the
        user: valueChanged() reports it once, clamped to the range and the allowed direction,
        unless the value is shown already. An entry that is pending in a field ends first. The
        label gets the dynamic property "isResettable", a cursor and a tool tip, which is shown
        unless the row or a widget around it has one. Assistive technology finds the action
        "Reset" on the row. \since 1.1
    */
    void setDefaultValue(int val);

    /*! Returns the default value, or 0 if there is none. \since 1.1 */
    int defaultValue() const;

    /*! Returns whether there is a default value. \since 1.1 */
    bool hasDefaultValue() const;

    /*! Removes the default value: the label no longer resets the row. \since 1.1 */
    void clearDefaultValue();

    /*!
        Sets the slider's scale to \a scale, LinearScale by default. A logarithmic scale has the
        positions 0 to 1,000, of which the first and the last are only those of minimum and
        maximum; the page step counts them, and an arrow key on the slider moves by one. Buttons
        and typed values still reach every value. Emits nothing.

        Set the range first; later ranges keep the scale. If the minimum is 0 or less, now or
        later, a warning is logged and the scale stays or becomes linear. \since 1.1
    */
    void setSliderScale(SliderScale scale);

    /*! Returns the slider's scale. \since 1.1 */
    SliderScale sliderScale() const;

    /*!
        Sets the step of buttons, arrow keys and wheel to \a val, 1 by default. The buttons and
        the spin box ignore a negative step; the slider takes its absolute value.
    */
    void setSingleStep(int val);

    /*! Returns the step of the buttons and the spin box. */
    int singleStep();

    /*!
        Sets the step of a click on the slider's groove to the absolute value of \a val, 10 by
        default.
    */
    void setPageStep(int val);

    /*! Returns the step of a click on the slider's groove. */
    int pageStep() const;

    /*!
        Lets a button that is held down repeat its step, if \a b is true; false by default. Each
        repetition emits valueChanged().
    */
    void setAutoRepeat(bool b);

    /*!
        Returns whether a button that is held down repeats its step. setReleaseMode() and
        setTimeSamplingRate() change it, too. \since 1.1
    */
    bool autoRepeat() const;

    /*! Sets the time until a held button first repeats to \a val ms; Qt's 300 by default. */
    void setAutoRepeatDelay(int val);

    /*! Sets the time between a held button's repetitions to \a val ms; Qt's 100 by default. */
    void setAutoRepeatInterval(int val);

    /*!
        Reports a drag once, when the handle is released, if \a b is true; false by default.
        Until then the spin box keeps the old value. Also turns the buttons' auto-repeat off if
        \a b is true, and on if it is false.
    */
    void setReleaseMode(bool b);

    /*! Returns whether release mode is on. \since 1.1 */
    bool isReleaseMode() const;

    /*!
        Reports a drag at most once every \a val milliseconds and at its end; off by default.
        Turns release mode off and the buttons' auto-repeat on. Sampling can't be turned off
        again. With 0 each pass of the event loop may report. A negative rate is invalid: Qt logs
        a warning at each press of the handle, and only the end of the drag is sure to be
        reported.
    */
    void setTimeSamplingRate(int val);

    /*! Returns the sampling rate in milliseconds, or 0 while sampling is off. \since 1.1 */
    int timeSamplingRate() const;

    /*!
        Keeps every value that the user sets on one side of \a val. \a directions combines flags
        of ValueChangeDirection, AllowedToAny by default; any value without AllowedToBigger acts
        as AllowedToSmaller. The current value does not change. Emits nothing.

        A reference beyond the range is reported as it is, while the row shows the end of the
        range.
    */
    void setValueChangeDirection(int directions, int val);

    /*!
        Returns whether a mouse button is down on the slider; false after a leave event, which Qt
        does not send while a drag stays in the window.
    */
    bool isMousePressed() const;

public Q_SLOTS:
    /*!
        Shows the default value, clamped to the range; does nothing if there is none. Emits
        nothing. \since 1.1
    */
    void resetValue();

Q_SIGNALS:
    /*!
        The user changed the value to \a val.

        setReleaseMode() and setTimeSamplingRate() decide when it is emitted during a drag. Each
        attempt to pass the reference of setValueChangeDirection() emits the reference.

        To delete the editor from a receiver, call deleteLater(): functions of QSlider or
        QSpinBox on the call stack still use their object after the signal.
    */
    void valueChanged(int val);

    /*!
        The user starts an edit: a drag from press to release, a held button with all its
        repetitions, typing from the first key to its end, or one click, key or wheel step.
        value() still returns the old value. Use it to open one undo command for each edit.

        The two signals are always paired and never nested. valueChanged() comes only between
        them; an edit may end without it. Calls by the program never start an edit.

        \since 1.1
    */
    void editStarted();

    /*!
        The edit has ended, after its last valueChanged(). Hiding or disabling the row, or a
        modal dialog or a popup that takes the release, also ends an edit.

        \since 1.1
    */
    void editFinished();

protected:
    /*! Selects the text of an entered spin box. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! Reports a drag at each tick of time sampling. */
    void timerEvent(QTimerEvent *event) override;

private:
    // The property: as the editor of an item view, ends a pending entry first.
    int committedValue();

    // The property: without a default value that of the one before it means nothing.
    void writeHasDefaultValue(bool b);

    // 0 leaves sampling off, so that all properties of a row can be copied to another one.
    void writeTimeSamplingRate(int val);

    Internal::SliderEditPrivate *d;
};

} // namespace Widgets
} // namespace Vantor
