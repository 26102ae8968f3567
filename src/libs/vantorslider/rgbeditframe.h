#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

class SliderEditFrame;

namespace Internal {
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
    Any other value changes nothing and logs one warning. No setter emits a signal, nor does
    writing a property. The getters of 1.0 are not const: color() and rows() read a const editor.

    Style sheets select on the dynamic property "isSliderFrame", on the rows' object names
    "frameR", "frameG" and "frameB", and on the dynamic properties "isColorControl_Red",
    "isColorControl_Green" and "isColorControl_Blue" of their sliders.
*/
class VANTORSLIDER_EXPORT RGBEditFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)
    Q_PROPERTY(bool coloredGrooves READ coloredGrooves WRITE setColoredGrooves)
    Q_PROPERTY(QColor color READ committedColor WRITE setColor NOTIFY valueChanged USER true)
    Q_PROPERTY(int lastVerticalSpace READ lastVerticalSpace WRITE setLastVerticalSpace)

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

    /*!
        Returns the row of the flag \a type: R, G or B. It has the settings that this class does not
        forward: unit, default value, scale, step getters and so on. It belongs to the editor and is
        deleted with it. Any other value returns null and logs one warning. \since 1.1
    */
    SliderEditFrame *row(Type type) const;

    /*! Returns all rows in the order of their flags. \since 1.1 */
    QList<SliderEditFrame *> rows() const;

    /*! Shows \a text in the label of the row \a type; empty by default. */
    void setLabelText(Type type, const QString &text);

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

    /*! Makes the label in the row \a type \a w pixels wide. */
    void setLabelFixedWidth(Type type, int w);

    /*! Limits the width of each button in the row \a type to \a minw to \a maxw pixels. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! Makes each button in the row \a type \a w pixels wide; 49 by default. */
    void setButtonFixedWidth(Type type, int w);

    /*! Limits the width of the spin box in the row \a type to \a minw to \a maxw pixels. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! Makes the spin box in the row \a type \a w pixels wide; 65 by default. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! Lets the wheel step a spin box that has the focus, if \a b is true; false by default. */
    void setSpinBoxWheelEnable(bool b);

    /*! Sets how all spin boxes handle what the user types; none by default. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! Returns the options of the first row. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! Returns whether a row has a pending entry, see SliderEditFrame. \since 1.1 */
    bool hasPendingEntry() const;

    /*!
        Ends the pending entries of the rows as Enter does, and leaves the focus where it is.
        Does nothing if no entry is pending. \since 1.1
    */
    void finishEntry();

    /*!
        Shows in the sliders' grooves the colours that their handles would give, if \a b is true;
        false by default. The groove of a channel goes from the colour with that channel at the
        minimum of its range to the one at the maximum, and follows each change of another
        channel's value or range, also by a setter. A brush that SliderEditFrame::setGrooveBrush()
        gave a row is not shown meanwhile. \since 1.1
    */
    void setColoredGrooves(bool b);

    /*! Returns whether the grooves show colours. \since 1.1 */
    bool coloredGrooves() const;

    /*! Shows \a val in the row \a type, clamped to its range. Emits nothing. */
    void setValue(Type type, int val);

    /*! Shows \a r, \a g and \a b, each clamped to its row's range. Emits nothing. \since 1.1 */
    void setValues(int r, int g, int b);

    /*!
        Shows \a color, each channel in proportion to the range of its row. An invalid color is
        shown as black. Emits nothing. \since 1.1
    */
    void setColor(const QColor &color);

    /*! Returns the current values as a color, see setColor(). \since 1.1 */
    QColor color() const;

    /*! Writes the current values to \a r, \a g and \a b. */
    void value(int &r, int &g, int &b);

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
        Sets the step of buttons, arrow keys and wheel in the row \a type to \a val, 1 by default.
    */
    void setSingleStep(Type type, int val);

    /*! Sets the step of a click on the groove in the row \a type to \a val, 10 by default. */
    void setPageStep(Type type, int val);

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

    /*!
        Gives the space below the rows a height of \a height pixels, beside the spare height that it
        takes; 20 by default. Does nothing after setLastVerticalSpacerExpanding(). In a style sheet:
        qproperty-lastVerticalSpace. \since 1.1
    */
    void setLastVerticalSpace(int height);

    /*! Returns the height of the space below the rows without spare height. \since 1.1 */
    int lastVerticalSpace() const;

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
    // The property: as the editor of an item view, ends a pending entry first.
    QColor committedColor();

    Internal::RGBEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
