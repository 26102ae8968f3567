#pragma once

#include "vantorslider_global.h"

#include <QtWidgets/QFrame>

namespace Vantor {
namespace Widgets {

namespace Internal {
class RGBAllEditFramePrivate;
}

/*!
    \class RGBAllEditFrame rgballeditframe.h vantorslider/rgballeditframe.h
    \brief A colour editor with a master value: its row stands above the three channels.
    All four run from 0 to 255 and are at 50 at first.

    The editor keeps no relation between the master and the channels; the host gives the master
    its meaning. An operation that takes a Type addresses the one row that it names; any other
    value changes nothing and is reported by a warning in Qt's log. The master row is named
    "frameAll", the block of the channels "frameRGB".
*/
class VANTORSLIDER_EXPORT RGBAllEditFrame : public QFrame
{
    Q_OBJECT

public:
    /*! The values, as single bits. */
    enum Type : int {
        R = 2, //!< Red.
        G = 4, //!< Green.
        B = 8, //!< Blue.
        ALL = 16, //!< The master value.
        ALLAndRgb = R | G | B | ALL, //!< All four, for setEditerVisible().
    };

    /*! Builds the four rows without label texts. Emits nothing. */
    explicit RGBAllEditFrame(QWidget *parent = nullptr);
    ~RGBAllEditFrame() override;

    /*! Shows \a text as the name of the row \a type. */
    void setLabelText(Type type, const QString &text);

    /*! Shows the rows whose bit is set in \a types and hides the others. */
    void setEditerVisible(int types);

    /*! SliderEditFrame::setHorizontalSpacing() of every row. */
    void setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton);

    /*! Sets the gap between master row and channels to \a nVal pixels; the channels' own stays. */
    void setVerticalSpacing(const int &nVal);

    /*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
    void setLabelWidthRange(Type type, int maxw, int minw);

    /*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
    void setLabelFixedWidth(Type type, int w);

    /*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
    void setButtonWidthRange(Type type, int maxw, int minw);

    /*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
    void setButtonFixedWidth(Type type, int w);

    /*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
    void setSpinBoxWidthRange(Type type, int maxw, int minw);

    /*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
    void setSpinBoxFixedWidth(Type type, int w);

    /*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
    void setSpinBoxWheelEnable(bool b);

    /*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
    void setValue(Type type, int val);

    /*! Writes the values to \a r, \a g, \a b and \a all. */
    void value(int &r, int &g, int &b, int &all);

    /*! SliderEditFrame::setRange() of the row \a type. Emits nothing. */
    void setRange(Type type, int min, int max);

    /*! SliderEditFrame::setSingleStep() of the row \a type. */
    void setSingleStep(Type type, int val);

    /*! SliderEditFrame::setPageStep() of the row \a type. */
    void setPageStep(Type type, int val);

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

    /*! The width in pixels of the widest label text, the master's in its own row's font. */
    int labelMaxLength();

Q_SIGNALS:
    /*! The user changed a value; \a r, \a g, \a b and \a all are all four values now. */
    void valueChanged(int r, int g, int b, int all);

private:
    Internal::RGBAllEditFramePrivate *d;
};

} // namespace Widgets
} // namespace Vantor
