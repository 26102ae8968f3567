#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class EditSpan;
class SliderEditDoublePrivate;
} // namespace Internal

/*!
    \class SliderEditFrameDouble slidereditframedouble.h vantorslider/slidereditframedouble.h
    \brief A labelled editor for a floating-point parameter: the twin of SliderEditFrame
    for \c double values with a given number of decimals.

    The slider works in whole positions: the value times 10 to the power of the decimals. Values
    that would leave \c int there stop at its ends, so the range times that power should stay
    within \c int. Values that are not a number are ignored by every setter.

    valueChanged() reports what the user did, never what the setters did. The dynamic properties
    and object names are those of SliderEditFrame, except that the spin box is named
    "doubleSpinBox".
*/
class VANTORSLIDER_EXPORT SliderEditFrameDouble : public QFrame
{
    Q_OBJECT
    // A form applies properties in this order: decimals and range come before
    // the value.
    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(int pageStep READ pageStep WRITE setPageStep)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue)
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

    /*!
        Builds a row with two decimals and Qt's default range of a spin box, 0 to 99.99. Until
        the first call that sets decimals or a range, a slider position is the value rounded to
        a whole number.
    */
    explicit SliderEditFrameDouble(QWidget *parent = nullptr);
    ~SliderEditFrameDouble() override;

    /*! As SliderEditFrame::setHorizontalSpacing(). */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*! As SliderEditFrame::setLabelText(). */
    void setLabelText(const QString &text);

    /*! The text shown as the row's name. */
    QString labelText() const;

    /*! Limits the label's width to \a maxw at most and \a minw at least, in pixels. */
    void setLabelWidthRange(int maxw, int minw);

    /*! Makes the label \a w pixels wide; 80 at first. */
    void setLabelFixedWidth(int w);

    /*! Limits each button's width to \a maxw at most and \a minw at least, in pixels. */
    void setButtonWidthRange(int maxw, int minw);

    /*! Makes each button \a w pixels wide. */
    void setButtonFixedWidth(int w);

    /*! Limits the spin box's width to \a maxw at most and \a minw at least, in pixels. */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! Makes the spin box \a w pixels wide. */
    void setSpinBoxFixedWidth(int w);

    /*! As SliderEditFrame::setSpinBoxWheelEnable(). */
    void setSpinBoxWheelEnable(bool b);

    /*! What the field does otherwise with what the user enters, all off at first. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! As SliderEditFrame::setSliderVisible(). */
    void setSliderVisible(bool b);

    /*! Shows or hides both buttons. \since 1.1 */
    void setButtonVisible(bool b);

    /*! Sets the slider's property \a name to \a value, for style sheets that select on it. */
    void setSliderProperty(const char *name, const QVariant &value);

    /*!
        Gives the keyboard focus to the spin box and selects its text, as if the user had
        clicked into it. \since 1.1
    */
    void setFieldFocus();

    /*!
        Shows \a val, rounded to the decimals and clamped to the range, and hands the range to
        the spin box's calculator. Emits nothing; not a number is ignored.
    */
    void setValue(double val);

    /*! The value that the spin box holds. */
    double value();

    /*!
        Shows \a text in front of the number in the spin box; empty at first. An entry that is
        pending stays. Emits nothing. \since 1.1
    */
    void setPrefix(const QString &text);

    /*! The text in front of the number. \since 1.1 */
    QString prefix() const;

    /*!
        Shows \a text behind the number in the spin box; empty at first. It is away while the field
       has the focus, so that a bare number is edited. An entry that is pending stays. Emits
       nothing. \since 1.1
    */
    void setSuffix(const QString &text);

    /*! The text behind the number, also while it is away. \since 1.1 */
    QString suffix() const;

    /*!
        Sets the range to \a min up to \a max, each rounded to the decimals. A value outside is
        clamped. Emits nothing. The calculator learns the new range from the next setValue(),
        the handle its new place.
    */
    void setRange(double min, double max);

    /*! Sets the lower end of the range to \a min; otherwise as setRange(). */
    void setMinimum(double min);

    /*! Sets the upper end of the range to \a max; otherwise as setRange(). */
    void setMaximum(double max);

    /*! The lower end of the range. */
    double minimum() const;

    /*! The upper end of the range. */
    double maximum() const;

    /*!
        Shows \a prec decimals, none where it is negative, and scales slider range and step by
        10 to the power of \a prec. Range and value are rounded to the new decimals. The handle
        keeps its position until the next setValue(). Emits nothing.
    */
    void setDecimals(int prec);

    /*! The number of decimals shown. */
    int decimals() const;

    /*! As SliderEditFrame::setDefaultValue(); not a number is ignored. \since 1.1 */
    void setDefaultValue(double val);

    /*! The value to go back to; 0 where there is none. \since 1.1 */
    double defaultValue() const;

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
        Sets the step of buttons, arrow keys and wheel to \a val. The slider's own step, for its
        arrow keys, follows with the next call that sets decimals or a range: set the step
        before them.
    */
    void setSingleStep(double val);

    /*! The step of the buttons. */
    double singleStep() const;

    /*! Sets the step of a click on the slider's groove to \a val slider positions. */
    void setPageStep(int val);

    /*! The step of a click on the slider's groove, in slider positions. */
    int pageStep() const;

    /*! As SliderEditFrame::setAutoRepeat(). */
    void setAutoRepeat(bool b);

    /*!
        Whether a held button repeats its step; setReleaseMode() and setTimeSamplingRate() switch
        it, too. \since 1.1
    */
    bool autoRepeat() const;

    /*! As SliderEditFrame::setAutoRepeatDelay(). */
    void setAutoRepeatDelay(int val);

    /*! As SliderEditFrame::setAutoRepeatInterval(). */
    void setAutoRepeatInterval(int val);

    /*! As SliderEditFrame::setReleaseMode(); the spin box follows the handle meanwhile. */
    void setReleaseMode(bool b);

    /*! True in release mode; false at first. \since 1.1 */
    bool isReleaseMode() const;

    /*! As SliderEditFrame::setTimeSamplingRate(). */
    void setTimeSamplingRate(int val);

    /*! The milliseconds of time sampling; 0 while it is off, as at first. \since 1.1 */
    int timeSamplingRate() const;

    /*! As SliderEditFrame::setValueChangeDirection(); the reference \a val is a whole number. */
    void setValueChangeDirection(int directions, int val);

    /*! True while the pointer holds the slider; false as soon as it leaves it. \since 1.1 */
    bool isMousePressed() const;

public Q_SLOTS:
    /*!
        Shows the default value, held in the range; does nothing where there is none. Emits
        nothing. \since 1.1
    */
    void resetValue();

Q_SIGNALS:
    /*! The user changed the value to \a val. */
    void valueChanged(double val);

    /*! As SliderEditFrame::editStarted(). \since 1.1 */
    void editStarted();

    /*! As SliderEditFrame::editFinished(). \since 1.1 */
    void editFinished();

protected:
    /*! Selects the spin box's text when the user enters it. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! The sampling tick. */
    void timerEvent(QTimerEvent *event) override;

private:
    /*! The number of decimals of \a num: 1 for a whole number, 0 where it has more than 10. */
    int getPrecision(float num);

    /*! The power of ten that makes \a num whole, 10 at least and 1 000 000 000 at most. */
    int getMagnification(float num);

    friend class Internal::EditSpan;

    Internal::SliderEditDoublePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
