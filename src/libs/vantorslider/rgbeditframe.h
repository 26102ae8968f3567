#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class EditSpan;
class RGBEditFramePrivate;
} // namespace Internal

/*!
    \class RGBEditFrame rgbeditframe.h vantorslider/rgbeditframe.h
    \brief A colour editor with three slider rows: red, green and blue, each 0 to 255.

    For a fourth value there are RGBAllEditFrame and RGBOpacityEditFrame.

    \code
    auto *colour = new RGBEditFrame(this);
    colour->setLabelText(RGBEditFrame::R, tr("Red"));
    colour->setLabelText(RGBEditFrame::G, tr("Green"));
    colour->setLabelText(RGBEditFrame::B, tr("Blue"));
    colour->setValue(RGBEditFrame::R, 255);
    connect(colour, &RGBEditFrame::valueChanged, lamp, &Lamp::setColour);
    \endcode

    Each row is a SliderEditFrame. A function with a Type argument addresses the row of that flag.
    Any other value changes nothing and logs one warning. No setter emits a signal.

    Style sheets select on the dynamic property "isSliderFrame", on the rows' object names
    "frameR", "frameG" and "frameB", and on the dynamic properties "isColorControl_Red",
    "isColorControl_Green" and "isColorControl_Blue" of their sliders.
*/
class VANTORSLIDER_EXPORT RGBEditFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    /*! The channels, as flags. */
    enum Type : int {
        R = 2, //!< Red.
        G = 4, //!< Green.
        B = 8, //!< Blue.
    };

    /*! Creates the rows with empty labels, the range 0 to 255 and the value 50. */
    explicit RGBEditFrame(QWidget *parent = nullptr);
    ~RGBEditFrame() override;

    /*! Shows \a text in the label of the row \a type; empty by default. */
    void setLabelText(Type type, const QString &text);

    /*! Returns the label text of the row \a type; empty if \a type is invalid. \since 1.1 */
    QString labelText(Type type) const;

    /*!
        Shows the rows whose flag is set in \a types and hides the others; all are visible by
        default.
    */
    void setEditerVisible(int types);

    /*!
        Sets the gap between label and slider to \a nLabelSlider, and the gaps between slider,
        spin box and buttons to \a nSliderButton, in pixels, in all rows; 0 by default.
    */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*! Sets the gap between the rows to \a nVal pixels; 0 by default. */
    void setVerticalSpacing(const int &nVal);

    /*! Limits the width of the label in the row \a type to \a minw to \a maxw pixels. */
    void setLabelWidthRange(Type type, int maxw, int minw);

    /*! Limits the width of all labels to \a minw to \a maxw pixels. \since 1.1 */
    void setLabelWidthRanges(int maxw, int minw);

    /*! Makes the label in the row \a type \a w pixels wide. */
    void setLabelFixedWidth(Type type, int w);

    /*! Makes all labels \a w pixels wide. \since 1.1 */
    void setLabelFixedWidths(int w);

    /*! Limits the width of each button in the row \a type to \a minw to \a maxw pixels. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! Limits the width of all buttons to \a minw to \a maxw pixels. \since 1.1 */
    void setButtonWidthRanges(int maxw, int minw);

    /*! Makes each button in the row \a type \a w pixels wide; 49 by default. */
    void setButtonFixedWidth(Type type, int w);

    /*! Makes all buttons \a w pixels wide; 49 by default. \since 1.1 */
    void setButtonFixedWidths(int w);

    /*! Limits the width of the spin box in the row \a type to \a minw to \a maxw pixels. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! Limits the width of all spin boxes to \a minw to \a maxw pixels. \since 1.1 */
    void setSpinBoxWidthRanges(int maxw, int minw);

    /*! Makes the spin box in the row \a type \a w pixels wide; 65 by default. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! Makes all spin boxes \a w pixels wide; 65 by default. \since 1.1 */
    void setSpinBoxFixedWidths(int w);

    /*! Lets the wheel step a spin box that has the focus, if \a b is true; false by default. */
    void setSpinBoxWheelEnable(bool b);

    /*! Shows or hides the sliders of all rows; they are visible by default. \since 1.1 */
    void setSliderVisible(bool b);

    /*! Shows or hides the buttons of all rows; they are visible by default. \since 1.1 */
    void setButtonVisible(bool b);

    /*!
        Sets the dynamic property \a name of the slider in the row \a type to \a value, for style
        sheets. \since 1.1
    */
    void setSliderProperty(Type type, const char *name, const QVariant &value);

    /*!
        Gives the keyboard focus to the spin box of the row \a type and selects its text.
        \since 1.1
    */
    void setFieldFocus(Type type);

    /*! Sets how all spin boxes handle what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options of the first row. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! Shows \a val in the row \a type, clamped to its range. Emits nothing. */
    void setValue(Type type, int val);

    /*! Shows \a r, \a g and \a b, each clamped to its row's range. Emits nothing. \since 1.1 */
    void setValues(int r, int g, int b);

    /*! Writes the current values to \a r, \a g and \a b. */
    void value(int &r, int &g, int &b);

    /*! Returns the value of the row \a type, or 0 if \a type is invalid. \since 1.1 */
    int valueOf(Type type) const;

    /*!
        Shows \a text before the number in the row \a type; empty by default. Emits nothing.
        \since 1.1
    */
    void setPrefix(Type type, const QString &text);

    /*! Shows \a text before the number in all rows. Emits nothing. \since 1.1 */
    void setPrefixes(const QString &text);

    /*!
        Returns the text before the number in the row \a type; empty if \a type is invalid.
        \since 1.1
    */
    QString prefix(Type type) const;

    /*!
        Shows \a text after the number in the row \a type; empty by default. Emits nothing.
        \since 1.1
    */
    void setSuffix(Type type, const QString &text);

    /*! Shows \a text after the number in all rows. Emits nothing. \since 1.1 */
    void setSuffixes(const QString &text);

    /*!
        Returns the text after the number in the row \a type; empty if \a type is invalid.
        \since 1.1
    */
    QString suffix(Type type) const;

    /*!
        Sets the range of the row \a type to \a min to \a max, 0 to 255 by default, see
        SliderEditFrame::setRange(). Emits nothing.
    */
    void setRange(Type type, int min, int max);

    /*!
        Sets the range of all rows to \a min to \a max, 0 to 255 by default. Emits nothing.
        \since 1.1
    */
    void setRanges(int min, int max);

    /*!
        Writes the range of the row \a type to \a min and \a max; does not change them if \a type
        is invalid. \since 1.1
    */
    void range(Type type, int &min, int &max) const;

    /*!
        Sets the default value of the row \a type to \a val, see
        SliderEditFrame::setDefaultValue(). Emits nothing. \since 1.1
    */
    void setDefaultValue(Type type, int val);

    /*! Returns the default value of the row \a type, or 0 if there is none. \since 1.1 */
    int defaultValue(Type type) const;

    /*! Returns whether the row \a type has a default value. \since 1.1 */
    bool hasDefaultValue(Type type) const;

    /*!
        Shows the default value of the row \a type; does nothing if there is none. Emits nothing.
        \since 1.1
    */
    void resetValue(Type type);

    /*!
        Sets the step of buttons, arrow keys and wheel in the row \a type to \a val, 1 by default.
    */
    void setSingleStep(Type type, int val);

    /*!
        Returns the step of buttons, arrow keys and wheel in the row \a type, or 0 if \a type is
        invalid. \since 1.1
    */
    int singleStep(Type type) const;

    /*! Sets the step of a click on the groove in the row \a type to \a val, 10 by default. */
    void setPageStep(Type type, int val);

    /*!
        Returns the step of a click on the groove in the row \a type, or 0 if \a type is invalid.
        \since 1.1
    */
    int pageStep(Type type) const;

    /*!
        Keeps every value that the user sets in the row \a type on one side of \a val, see
        SliderEditFrame::setValueChangeDirection(). \since 1.1
    */
    void setValueChangeDirection(Type type, int directions, int val);

    /*! Lets held buttons of all rows repeat their step, if \a b is true; false by default. */
    void setAutoRepeat(bool b);

    /*! Sets the time until a held button first repeats to \a val ms; Qt's 300 by default. */
    void setAutoRepeatDelay(int val);

    /*! Sets the time between a held button's repetitions to \a val ms; Qt's 100 by default. */
    void setAutoRepeatInterval(int val);

    /*!
        Reports a drag once, when the handle is released, if \a b is true; false by default.
        Applies to all rows, see SliderEditFrame::setReleaseMode().
    */
    void setReleaseMode(bool b);

    /*!
        Reports a drag at most every \a val milliseconds and at its end; off by default. Applies
        to all rows, see SliderEditFrame::setTimeSamplingRate().
    */
    void setTimeSamplingRate(int val);

    /*!
        Gives the spare height to the space below the rows if \a b is true, else to the rows. True
        by default. On a visible editor this takes effect with its next layout pass.
    */
    void setLastVerticalSpacerExpanding(bool b);

    /*! Returns whether a mouse button is down on the slider of any row. */
    bool isMousePressed() const;

    /*! Returns the width of the widest label text in pixels, in the font of the red row. */
    int labelMaxLength();

public Q_SLOTS:
    /*! Shows the default value of each row that has one. Emits nothing. \since 1.1 */
    void resetValues();

Q_SIGNALS:
    /*! The user changed a channel. \a r, \a g and \a b are the current values. */
    void valueChanged(int r, int g, int b);

    /*!
        The user starts an edit in any row, see SliderEditFrame::editStarted(). All signals of the
        edit come before editFinished(). \since 1.1
    */
    void editStarted();

    /*! The edit has ended in all rows, see SliderEditFrame::editFinished(). \since 1.1 */
    void editFinished();

private:
    friend class Internal::EditSpan;

    Internal::RGBEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
