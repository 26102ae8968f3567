#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class SliderEditDoublePrivate;
} // namespace Internal

/*!
    \class SliderEditFrameDouble slidereditframedouble.h vantorslider/slidereditframedouble.h
    \brief A labelled editor for a \c double parameter: label, slider, spin box, minus and plus
    button in one row.

    Use it like SliderEditFrame, for values with a fixed number of decimals. Set decimals and
    step before the range, and the range before the value:

    \code
    auto *gain = new SliderEditFrameDouble(this);
    gain->setLabelText(tr("Gain"));
    gain->setDecimals(1);
    gain->setSingleStep(0.5);
    gain->setRange(-60.0, 12.0);
    gain->setValue(0.0);
    connect(gain, &SliderEditFrameDouble::valueChanged, channel, &Channel::setGain);
    \endcode

    A slider position is the value times 10 to the power of the decimals, clamped to the range
    of \c int. valueChanged() reports changes by the user only: no setter emits a signal. Every
    setter ignores NaN.

    Style sheets select on the dynamic properties and object names of SliderEditFrame; the spin
    box is named "doubleSpinBox".
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
    Q_PROPERTY(double value READ committedValue WRITE setValue NOTIFY valueChanged USER true)
    // The moc of Qt 6 refuses a function here.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue RESET clearDefaultValue
                   STORED hasDefaultValue)
#else
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue RESET clearDefaultValue)
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
        Creates a row with 2 decimals, the range 0 to 99.99, value 0, single step 1, page step
        10, an empty label, the wheel and auto-repeat off, a linear scale and continuous
        reporting. Until the first call that sets decimals or a range, a slider position is the
        value rounded to a whole number, 0 to 99.
    */
    explicit SliderEditFrameDouble(QWidget *parent = nullptr);
    ~SliderEditFrameDouble() override;

    /*! Sets the gaps in the row in pixels, see SliderEditFrame::setHorizontalSpacing(). */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*! Shows \a text in the label, see SliderEditFrame::setLabelText(). */
    void setLabelText(const QString &text);

    /*! Returns the label's text. */
    QString labelText() const;

    /*!
        Sets the label's maximum width to \a maxw and its minimum width to \a minw pixels. If they
        conflict, the minimum takes precedence.
    */
    void setLabelWidthRange(int maxw, int minw);

    /*! Makes the label \a w pixels wide; 80 by default. */
    void setLabelFixedWidth(int w);

    /*!
        Sets each button's maximum width to \a maxw and its minimum width to \a minw pixels. If they
        conflict, the minimum takes precedence.
    */
    void setButtonWidthRange(int maxw, int minw);

    /*! Makes each button \a w pixels wide; 51 by default. */
    void setButtonFixedWidth(int w);

    /*!
        Sets the spin box's maximum width to \a maxw and its minimum width to \a minw pixels. If
        they conflict, the minimum takes precedence.
    */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! Makes the spin box \a w pixels wide; 65 by default. */
    void setSpinBoxFixedWidth(int w);

    /*! Lets the wheel step the spin box, see SliderEditFrame::setSpinBoxWheelEnable(). */
    void setSpinBoxWheelEnable(bool b);

    /*! Sets how the spin box handles what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options that are set. \since 1.1 */
    EntryOptions entryOptions() const;

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

    /*! Sets how the row handles the pointer; none by default. \since 1.1 */
    void setSliderOptions(SliderOptions options);

    /*! Returns the options that are set. \since 1.1 */
    SliderOptions sliderOptions() const;

    /*! Shows or hides the slider, see SliderEditFrame::setSliderVisible(). */
    void setSliderVisible(bool b);

    /*! Returns whether the slider is not hidden. \since 1.1 */
    bool isSliderVisible() const;

    /*! Shows or hides both buttons; they are visible by default. \since 1.1 */
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
        Shows \a val, rounded to the decimals and clamped to the range. From now on the results
        of typed expressions are clamped to that range. NaN is ignored. Emits nothing.
    */
    void setValue(double val);

    /*! Returns the current value, which the spin box holds. */
    double value();

    /*!
        Shows \a text before the number in the spin box; empty by default. Text that the user is
        typing stays. Emits nothing. \since 1.1
    */
    void setPrefix(const QString &text);

    /*! Returns the text before the number. \since 1.1 */
    QString prefix() const;

    /*!
        Shows \a text, such as a unit, after the number in the spin box; empty by default. It is
        hidden while the spin box has the focus. Text that the user is typing stays. Emits
        nothing. \since 1.1
    */
    void setSuffix(const QString &text);

    /*! Returns the text after the number, also while it is hidden. \since 1.1 */
    QString suffix() const;

    /*!
        Sets the range to \a min to \a max, each rounded to the decimals; 0 to 99.99 by default.
        If \a max is below \a min, \a min is the only value. A value outside the range is clamped.
        The call is ignored if either is NaN. Emits nothing.

        Call setValue() afterwards: until then the handle keeps its position, and results of
        typed expressions are clamped to the previous range, too.
    */
    void setRange(double min, double max);

    /*! Sets the minimum to \a min and raises the maximum to it if it is below; see setRange(). */
    void setMinimum(double min);

    /*! Sets the maximum to \a max and lowers the minimum to it if it is above; see setRange(). */
    void setMaximum(double max);

    /*! Returns the minimum of the range. */
    double minimum() const;

    /*! Returns the maximum of the range. */
    double maximum() const;

    /*!
        Sets the number of decimals to \a prec, 2 by default; a negative one acts as 0. Slider
        range and step are scaled by 10 to the power of \a prec. Range and value are rounded to
        the new decimals. The handle keeps its position until the next setValue(). Emits
        nothing.

        Values that differ by less than 0.00000001 are the same: with nine decimals and more such
        a change is shown but not reported, unless ExactEntry is set.
    */
    void setDecimals(int prec);

    /*! Returns the number of decimals. */
    int decimals() const;

    /*! Sets the default value, see SliderEditFrame::setDefaultValue(). Ignores NaN. \since 1.1 */
    void setDefaultValue(double val);

    /*! Returns the default value, or 0 if there is none. \since 1.1 */
    double defaultValue() const;

    /*! Returns whether there is a default value. \since 1.1 */
    bool hasDefaultValue() const;

    /*! Removes the default value: the label no longer resets the row. \since 1.1 */
    void clearDefaultValue();

    /*!
        Sets the slider's scale to \a scale, LinearScale by default. A logarithmic scale has the
        positions 0 to 1,000, of which the first and the last are only those of minimum and
        maximum; the page step counts them, and an arrow key on the slider moves by one. Buttons
        and typed values still reach every value. Emits nothing.

        Set the range first; later ranges and decimals keep the scale. If the minimum is 0 or
        less, now or later, a warning is logged and the scale stays or becomes linear.
        \since 1.1
    */
    void setSliderScale(SliderScale scale);

    /*! Returns the slider's scale. \since 1.1 */
    SliderScale sliderScale() const;

    /*!
        Sets the step of buttons, arrow keys and wheel to \a val, 1 by default. The buttons and
        the spin box ignore a negative step. NaN is ignored. Set the step before decimals and
        range: the slider's arrow keys take it over with the next call that sets those.
    */
    void setSingleStep(double val);

    /*! Returns the step of the buttons and the spin box. */
    double singleStep() const;

    /*! Sets the step of a click on the groove to \a val slider positions, 10 by default. */
    void setPageStep(int val);

    /*! Returns the step of a click on the groove, in slider positions. */
    int pageStep() const;

    /*! Lets a held button repeat its step, see SliderEditFrame::setAutoRepeat(). */
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
        Reports a drag once, when the handle is released, see SliderEditFrame::setReleaseMode().
        Here the spin box follows the handle during the drag.
    */
    void setReleaseMode(bool b);

    /*! Returns whether release mode is on. \since 1.1 */
    bool isReleaseMode() const;

    /*! Reports a drag every \a val ms at most, see SliderEditFrame::setTimeSamplingRate(). */
    void setTimeSamplingRate(int val);

    /*! Returns the sampling rate in milliseconds, or 0 while sampling is off. \since 1.1 */
    int timeSamplingRate() const;

    /*!
        Keeps every value that the user sets on one side of the whole number \a val, see
        SliderEditFrame::setValueChangeDirection(). A reference beyond the range is reported as it
        is, while the row shows the end of the range.
    */
    void setValueChangeDirection(int directions, int val);

    /*!
        Returns whether a mouse button is down on the slider, see SliderEditFrame::isMousePressed().
        \since 1.1
    */
    bool isMousePressed() const;

public Q_SLOTS:
    /*!
        Shows the default value, clamped to the range; does nothing if there is none. Emits
        nothing. \since 1.1
    */
    void resetValue();

Q_SIGNALS:
    /*! The user changed the value to \a val, see SliderEditFrame::valueChanged(). */
    void valueChanged(double val);

    /*! The user starts an edit, see SliderEditFrame::editStarted(). \since 1.1 */
    void editStarted();

    /*! The edit has ended, see SliderEditFrame::editFinished(). \since 1.1 */
    void editFinished();

protected:
    /*! Selects the text of an entered spin box. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    /*! Reports a drag at each tick of time sampling. */
    void timerEvent(QTimerEvent *event) override;

private:
    // The property: as the editor of an item view, ends a pending entry first.
    double committedValue();

    /*! Returns the number of decimals of \a num: 1 for a whole number, 0 for more than 10. */
    int getPrecision(float num);

    /*! Returns the power of ten that makes \a num whole, from 10 to 1 000 000 000. */
    int getMagnification(float num);

    // The property: without a default value that of the one before it means nothing.
    void writeHasDefaultValue(bool b);

    // 0 leaves sampling off, so that all properties of a row can be copied to another one.
    void writeTimeSamplingRate(int val);

    Internal::SliderEditDoublePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
