#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class EditSpan;
class SliderEditPrivate;
} // namespace Internal

/*!
    \class SliderEditFrame slidereditframe.h vantorslider/slidereditframe.h
    \brief A labelled editor for an integer parameter: name, slider, spin box, minus and
    plus button in one row.

    The spin box takes a typed arithmetic expression. valueChanged() reports what the user did
    through the row's children, never what the setters did: no setter emits anything, even where
    it clamps the value. Hiding or disabling the slider ends a drag, whose last value is
    reported then.

    Style sheets select on the dynamic properties "isSliderFrame" of the frame,
    "isSliderEditSubtract" and "isSliderEditPlus" of the buttons, and on the children's object
    names "labelName", "slider", "spinBox", "sliderEditSubtract" and "sliderEditPlus".
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
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(int defaultValue READ defaultValue WRITE setDefaultValue)
    Q_PROPERTY(QString prefix READ prefix WRITE setPrefix)
    Q_PROPERTY(QString suffix READ suffix WRITE setSuffix)
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)
    Q_PROPERTY(SliderScale sliderScale READ sliderScale WRITE setSliderScale)

public:
    /*! On which side of a reference value reported values are held. */
    enum ValueChangeDirection : int {
        AllowedToBigger = 2, //!< Values may not fall below the reference.
        AllowedToSmaller = 4, //!< Values may not rise above the reference.
        AllowedToAny = AllowedToBigger | AllowedToSmaller, //!< No restriction; the default.
    };

    /*! How the slider's positions follow the values. \since 1.1 */
    enum SliderScale : int {
        LinearScale, //!< Each position is the same distance; the default.
        LogarithmicScale, //!< Each position is the same factor, for ranges of several decades.
    };
    Q_ENUM(SliderScale)

    /*! Builds a row with Qt's default range of a spin box, 0 to 99. Emits nothing. */
    explicit SliderEditFrame(QWidget *parent = nullptr);
    ~SliderEditFrame() override;

    /*!
        Sets the distance between label and slider to \a nLabelSlider and the
        distances from the slider to the spin box and on to the buttons to
        \a nSliderButton, in pixels.
    */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*!
        Shows \a text as the row's name. It also becomes the accessible name of the row, its
        slider and its spin box, and with a minus or plus sign that of the buttons.
    */
    void setLabelText(const QString &text);

    /*! The text shown as the row's name. */
    QString labelText() const;

    /*! Limits the label's width to \a maxw at most and \a minw at least, in pixels. */
    void setLabelWidthRange(int maxw, int minw);

    /*! Makes the label \a w pixels wide. */
    void setLabelFixedWidth(int w);

    /*! Limits each button's width to \a maxw at most and \a minw at least, in pixels. */
    void setButtonWidthRange(int maxw, int minw);

    /*! Makes each button \a w pixels wide. */
    void setButtonFixedWidth(int w);

    /*! Limits the spin box's width to \a maxw at most and \a minw at least, in pixels. */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! Makes the spin box \a w pixels wide. */
    void setSpinBoxFixedWidth(int w);

    /*! Lets the wheel step the spin box while it has the focus, if \a b is true; off at first. */
    void setSpinBoxWheelEnable(bool b);

    /*! What the field does otherwise with what the user enters, all off at first. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on. \since 1.1 */
    EntryOptions entryOptions() const;

    /*!
        Shows or hides the slider; without it the other children stay packed beside the label.
        Hiding it ends a drag, whose last value is reported then.
    */
    void setSliderVisible(bool b);

    /*! Shows or hides both buttons. */
    void setButtonVisible(bool b);

    /*! Sets the slider's property \a name to \a value, for style sheets that select on it. */
    void setSliderProperty(const char *name, const QVariant &value);

    /*!
        Gives the keyboard focus to the spin box and selects its text, as if the user had
        clicked into it. \since 1.1
    */
    void setFieldFocus();

    /*!
        Shows \a val on slider and spin box, clamped to their range, and hands the range to the
        spin box's calculator. Emits nothing.
    */
    void setValue(int val);

    /*! The value that the spin box holds. */
    int value();

    /*!
        Shows \a text in front of the number in the spin box; empty at first. An entry that is
        pending stays. Emits nothing. \since 1.1
    */
    void setPrefix(const QString &text);

    /*! The text in front of the number. \since 1.1 */
    QString prefix() const;

    /*!
        Shows \a text behind the number in the spin box; empty at first. An entry that is
        pending stays. Emits nothing. \since 1.1
    */
    void setSuffix(const QString &text);

    /*! The text behind the number. \since 1.1 */
    QString suffix() const;

    /*!
        Sets the range of slider and spin box to \a min up to \a max; an inverted range becomes
        \a min alone. A value outside is clamped. Emits nothing. The calculator learns the new
        range from the next setValue(). The handle of a range of exactly 2 to the 31st steps
        begins one above \a min.
    */
    void setRange(int min, int max);

    /*! Sets the lower end of the range to \a min, raising the upper one to it; as setRange(). */
    void setMinimum(int min);

    /*! Sets the upper end of the range to \a max, lowering the lower one to it; as setRange(). */
    void setMaximum(int max);

    /*! The lower end of the range. */
    int minimum() const;

    /*! The upper end of the range. */
    int maximum() const;

    /*!
        Makes \a val the value that a double click or double tap on the label goes back to, as
        an edit of the user: it is reported once, held in the range and on the allowed side. The
        label carries the property "isResettable" from then on, a cursor and, unless the host
        has set another, a tool tip; a screen reader finds the action "Reset" of the row.
        There is none at first. Emits nothing. \since 1.1
    */
    void setDefaultValue(int val);

    /*! The value to go back to; 0 where there is none. \since 1.1 */
    int defaultValue() const;

    /*! Whether there is a value to go back to. \since 1.1 */
    bool hasDefaultValue() const;

    /*!
        Makes the slider's scale \a scale, LinearScale at first. A logarithmic one has the
        positions 0 to 1,000: handle, groove and arrow keys of the slider move by them, an arrow
        key by one. Buttons and entries reach every value as before. Emits nothing.

        Set the range first. One that is not above 0 has no logarithm: it is reported by a
        warning in Qt's log, and the scale stays or becomes linear. Later ranges and decimals
        keep the scale. \since 1.1
    */
    void setSliderScale(SliderScale scale);

    /*! The slider's scale. \since 1.1 */
    SliderScale sliderScale() const;

    /*!
        Sets the step of buttons, arrow keys and wheel to \a val. A negative one is ignored by
        the spin box; the slider's own step becomes its absolute value.
    */
    void setSingleStep(int val);

    /*! The step of the buttons. */
    int singleStep();

    /*! Sets the step of a click on the slider's groove to \a val. */
    void setPageStep(int val);

    /*! The step of a click on the slider's groove. */
    int pageStep() const;

    /*! Lets a held button repeat its step, if \a b is true. Each repetition is reported. */
    void setAutoRepeat(bool b);

    /*!
        Whether a held button repeats its step; setReleaseMode() and setTimeSamplingRate() switch
        it, too. \since 1.1
    */
    bool autoRepeat() const;

    /*! Sets the time before a held button repeats to \a val milliseconds. */
    void setAutoRepeatDelay(int val);

    /*! Sets the time between a held button's repetitions to \a val milliseconds. */
    void setAutoRepeatInterval(int val);

    /*!
        Reports a drag once, when the handle is let go, if \a b is true. Release mode switches
        the buttons' auto-repeat off, leaving it switches it on.
    */
    void setReleaseMode(bool b);

    /*! True in release mode; false at first. \since 1.1 */
    bool isReleaseMode() const;

    /*!
        Reports a drag at most once every \a val milliseconds and at its end. Leaves release
        mode, which switches the buttons' auto-repeat on. Nothing switches sampling off again.
    */
    void setTimeSamplingRate(int val);

    /*! The milliseconds of time sampling; 0 while it is off, as at first. \since 1.1 */
    int timeSamplingRate() const;

    /*!
        Holds every reported value on one side of \a val. \a directions is a combination of
        ValueChangeDirection; anything without AllowedToBigger means AllowedToSmaller. The value
        shown now does not change.
    */
    void setValueChangeDirection(int directions, int val);

    /*! True while the pointer holds the slider; false as soon as it leaves it. */
    bool isMousePressed() const;

public Q_SLOTS:
    /*!
        Shows the default value, held in the range; does nothing where there is none. Emits
        nothing. \since 1.1
    */
    void resetValue();

Q_SIGNALS:
    /*!
        The user changed the value to \a val.

        When it is emitted during a drag is decided by setReleaseMode() and
        setTimeSamplingRate(). A value held at the reference of setValueChangeDirection() is
        emitted on every attempt to pass it.

        A receiver that does away with the editor calls deleteLater(): above the signal may
        stand functions of QSlider or QSpinBox that go on with it.
    */
    void valueChanged(int val);

    /*!
        The user begins an edit: what is done in one go, such as a drag from press to release, a
        held button with all its repetitions, an entry from its first key to its end, or one
        click, key or wheel step. value() is still the one of before.

        The two signals come strictly in pairs, never nested, and valueChanged() between them
        only; an edit may end without one. Nothing that the program does begins an edit.

        \since 1.1
    */
    void editStarted();

    /*!
        The edit is over; its last valueChanged() has come. Hiding or disabling the row, or a
        dialog that blocks it, ends an edit, too.

        \since 1.1
    */
    void editFinished();

protected:
    /*! Selects the spin box's text when the user enters it. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! The sampling tick. */
    void timerEvent(QTimerEvent *event) override;

private:
    friend class Internal::EditSpan;

    Internal::SliderEditPrivate *d;
};

} // namespace Widgets
} // namespace Vantor
