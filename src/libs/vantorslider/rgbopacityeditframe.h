#pragma once

#include "entryoptions.h"
#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class EditSpan;
class RGBOpacityEditFramePrivate;
} // namespace Internal

/*!
    \class RGBOpacityEditFrame rgbopacityeditframe.h vantorslider/rgbopacityeditframe.h
    \brief A colour editor with an opacity: three channels, each 0 to 255 and at 50 at
    first, and below them the opacity, 0 to 100 and at 100.

    An operation that takes a Type addresses the one row that it names; any other value changes
    nothing and is reported by a warning in Qt's log. The opacity's row is named "frameOpacity",
    the block of the channels "frameRGB".
*/
class VANTORSLIDER_EXPORT RGBOpacityEditFrame : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(Vantor::Widgets::EntryOptions entryOptions READ entryOptions WRITE setEntryOptions)

public:
    /*! The values, as single bits. */
    enum Type : int {
        R = 2, //!< Red.
        G = 4, //!< Green.
        B = 8, //!< Blue.
        Opacity = 16, //!< The opacity.
    };

    /*! Builds the four rows without label texts. Emits nothing. */
    explicit RGBOpacityEditFrame(QWidget *parent = nullptr);
    ~RGBOpacityEditFrame() override;

    /*! Shows \a text as the name of the row \a type. */
    void setLabelText(Type type, const QString &text);

    /*! The name shown of the row \a type; empty where it names none. \since 1.1 */
    QString labelText(Type type) const;

    /*! Shows the rows whose bit is set in \a types and hides the others. */
    void setEditerVisible(int types);

    /*! SliderEditFrame::setHorizontalSpacing() of every row. */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*! Sets the gap between all four rows to \a nVal pixels. */
    void setVerticalSpacing(const int &nVal);

    /*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
    void setLabelWidthRange(Type type, int maxw, int minw);

    /*! setLabelWidthRange() of every row. \since 1.1 */
    void setLabelWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
    void setLabelFixedWidth(Type type, int w);

    /*! setLabelFixedWidth() of every row. \since 1.1 */
    void setLabelFixedWidth(int w);

    /*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! setButtonWidthRange() of every row. \since 1.1 */
    void setButtonWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
    void setButtonFixedWidth(Type type, int w);

    /*! setButtonFixedWidth() of every row. \since 1.1 */
    void setButtonFixedWidth(int w);

    /*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! setSpinBoxWidthRange() of every row. \since 1.1 */
    void setSpinBoxWidthRange(int maxw, int minw);

    /*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! setSpinBoxFixedWidth() of every row. \since 1.1 */
    void setSpinBoxFixedWidth(int w);

    /*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
    void setSpinBoxWheelEnable(bool b);

    /*! SliderEditFrame::setSliderVisible() of every row. \since 1.1 */
    void setSliderVisible(bool b);

    /*! SliderEditFrame::setButtonVisible() of every row. \since 1.1 */
    void setButtonVisible(bool b);

    /*! SliderEditFrame::setSliderProperty() of the row \a type. \since 1.1 */
    void setSliderProperty(Type type, const char *name, const QVariant &value);

    /*! SliderEditFrame::setFieldFocus() of the row \a type. \since 1.1 */
    void setFieldFocus(Type type);

    /*! SliderEditFrame::setEntryOptions() of every row. \since 1.1 */
    void setEntryOptions(EntryOptions options);

    /*! The options that are on in the first row. \since 1.1 */
    EntryOptions entryOptions() const;

    /*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
    void setValue(Type type, int val);

    /*! Shows \a r, \a g, \a b and \a opacity, each clamped to its row's range. Emits nothing.
     * \since 1.1 */
    void setValue(int r, int g, int b, int opacity);

    /*! Writes the values to \a r, \a g, \a b and \a opacity. */
    void value(int &r, int &g, int &b, int &opacity);

    /*! The value of the row \a type; 0 where it names none. \since 1.1 */
    int value(Type type) const;

    /*! SliderEditFrame::setPrefix() of the row \a type. \since 1.1 */
    void setPrefix(Type type, const QString &text);

    /*! setPrefix() of every row. \since 1.1 */
    void setPrefix(const QString &text);

    /*! The prefix of the row \a type; empty where it names none. \since 1.1 */
    QString prefix(Type type) const;

    /*! SliderEditFrame::setSuffix() of the row \a type. \since 1.1 */
    void setSuffix(Type type, const QString &text);

    /*! setSuffix() of every row. \since 1.1 */
    void setSuffix(const QString &text);

    /*! The suffix of the row \a type; empty where it names none. \since 1.1 */
    QString suffix(Type type) const;

    /*! SliderEditFrame::setRange() of the row \a type. Emits nothing. */
    void setRange(Type type, int min, int max);

    /*!
        Sets the range of the three channels to \a min up to \a max; the opacity keeps its own.
        Emits nothing. \since 1.1
    */
    void setRange(int min, int max);

    /*!
        Writes the range of the row \a type to \a min and \a max; leaves them where it names
        none. \since 1.1
    */
    void range(Type type, int &min, int &max) const;

    /*! SliderEditFrame::setDefaultValue() of the row \a type. \since 1.1 */
    void setDefaultValue(Type type, int val);

    /*! The value that the row \a type goes back to; 0 where there is none. \since 1.1 */
    int defaultValue(Type type) const;

    /*! Whether the row \a type has a value to go back to. \since 1.1 */
    bool hasDefaultValue(Type type) const;

    /*! SliderEditFrame::resetValue() of the row \a type. Emits nothing. \since 1.1 */
    void resetValue(Type type);

    /*! SliderEditFrame::setSingleStep() of the row \a type. */
    void setSingleStep(Type type, int val);

    /*! The step of the row \a type; 0 where it names none. \since 1.1 */
    int singleStep(Type type) const;

    /*! SliderEditFrame::setPageStep() of the row \a type. */
    void setPageStep(Type type, int val);

    /*! The page step of the row \a type; 0 where it names none. \since 1.1 */
    int pageStep(Type type) const;

    /*! SliderEditFrame::setValueChangeDirection() of the row \a type. \since 1.1 */
    void setValueChangeDirection(Type type, int directions, int val);

    /*! SliderEditFrame::setAutoRepeat() of every row. */
    void setAutoRepeat(bool b);

    /*! SliderEditFrame::setAutoRepeatDelay() of every row. */
    void setAutoRepeatDelay(int val);

    /*! SliderEditFrame::setAutoRepeatInterval() of every row. */
    void setAutoRepeatInterval(int val);

    /*! SliderEditFrame::setReleaseMode() of every row. */
    void setReleaseMode(bool b);

    /*! SliderEditFrame::setTimeSamplingRate() of every row. */
    void setTimeSamplingRate(int val);

    /*!
        Lets the space below the rows take the spare height, if \a b is true; else the rows do.
        On a shown editor it takes effect when its layout is next invalidated.
    */
    void setLastVerticalSpacerExpanding(bool b);

    /*! True while the pointer holds the slider of any row. \since 1.1 */
    bool isMousePressed() const;

    /*!
        The width in pixels of the widest label text, the opacity's in its own row's font.
        \since 1.1
    */
    int labelMaxLength() const;

public Q_SLOTS:
    /*! SliderEditFrame::resetValue() of every row. Emits nothing. \since 1.1 */
    void resetValue();

Q_SIGNALS:
    /*! The user changed a value; \a r, \a g, \a b and \a opacity are all four values now. */
    void valueChanged(int r, int g, int b, int opacity);

    /*!
        As SliderEditFrame::editStarted(), of any row: one edit takes in all signals of all
        rows. \since 1.1
    */
    void editStarted();

    /*! As SliderEditFrame::editFinished(), of all rows. \since 1.1 */
    void editFinished();

private:
    friend class Internal::EditSpan;

    Internal::RGBOpacityEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
