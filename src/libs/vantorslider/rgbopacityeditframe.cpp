#include "rgbopacityeditframe.h"

#include "rgbandrow_p.h"
#include "ui_rgbopacityeditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

// The block of the channels above the opacity's row, and the one signal that
// their changes make.
class RGBOpacityEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBOpacityEditFramePrivate(RGBOpacityEditFrame *editer);
    ~RGBOpacityEditFramePrivate() override;

    void createWidgets();
    void createConnects();

    RGBAndRow rows() const
    {
        return {{{RGBOpacityEditFrame::Opacity, ui->frameOpacity}}, ui->frameRGB};
    }

    RGBOpacityEditFrame *m_pEditer;
    Ui::RGBOpacityEditFrame *ui;

private Q_SLOTS:
    void opacityValueChanged(int val);
    void rgbValueChanged(int r, int g, int b);
};

RGBOpacityEditFramePrivate::RGBOpacityEditFramePrivate(RGBOpacityEditFrame *editer)
    : m_pEditer(editer), ui(new Ui::RGBOpacityEditFrame)
{
}

RGBOpacityEditFramePrivate::~RGBOpacityEditFramePrivate()
{
    delete ui;
    ui = nullptr;
}

void RGBOpacityEditFramePrivate::createWidgets()
{
    ui->frameRGB->setLastVerticalSpacerExpanding(false);
    m_pEditer->setRange(RGBOpacityEditFrame::Opacity, 0, 100);
    m_pEditer->setValue(RGBOpacityEditFrame::Opacity, 100);
}

void RGBOpacityEditFramePrivate::createConnects()
{
    connect(ui->frameOpacity, &SliderEditFrame::valueChanged, this,
            &RGBOpacityEditFramePrivate::opacityValueChanged);
    connect(ui->frameRGB, &RGBEditFrame::valueChanged, this,
            &RGBOpacityEditFramePrivate::rgbValueChanged);
}

void RGBOpacityEditFramePrivate::opacityValueChanged(int val)
{
    int r = 0;
    int g = 0;
    int b = 0;
    ui->frameRGB->value(r, g, b);
    Q_EMIT m_pEditer->valueChanged(r, g, b, val);
}

void RGBOpacityEditFramePrivate::rgbValueChanged(int r, int g, int b)
{
    Q_EMIT m_pEditer->valueChanged(r, g, b, ui->frameOpacity->value());
}

} // namespace Internal

/*!
    \class RGBOpacityEditFrame rgbopacityeditframe.h vantorslider/rgbopacityeditframe.h
    \brief A colour editor with an opacity: three channels, each 0 to 255 and at
    50 at first, and below them the opacity, 0 to 100 and at 100.

    An operation that takes a Type addresses the one row that it names; any
    other value changes nothing and is reported by a warning in Qt's log. The
    opacity's row is named "frameOpacity", the block of the channels "frameRGB".
*/

/*!
    \enum RGBOpacityEditFrame::Type
    \brief The values, as single bits.

    \var RGBOpacityEditFrame::R
    Red.
    \var RGBOpacityEditFrame::G
    Green.
    \var RGBOpacityEditFrame::B
    Blue.
    \var RGBOpacityEditFrame::Opacity
    The opacity.
*/

/*!
    \fn void RGBOpacityEditFrame::valueChanged(int r, int g, int b, int opacity)
    \brief The user changed a value; \a r, \a g, \a b and \a opacity are all four values now.
*/

/*! Builds the four rows without label texts. Emits nothing. */
RGBOpacityEditFrame::RGBOpacityEditFrame(QWidget *parent)
    : QFrame(parent), d(new Internal::RGBOpacityEditFramePrivate(this))
{
    d->ui->setupUi(this);
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

RGBOpacityEditFrame::~RGBOpacityEditFrame()
{
    delete d;
    d = nullptr;
}

/*! Shows \a text as the name of the row \a type. */
void RGBOpacityEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, &SliderEditFrame::setLabelText, &RGBEditFrame::setLabelText, text);
}

/*! Shows the rows whose bit is set in \a types and hides the others. */
void RGBOpacityEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

/*! SliderEditFrame::setHorizontalSpacing() of every row. */
void RGBOpacityEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&SliderEditFrame::setHorizontalSpacing, &RGBEditFrame::setHorizontalSpacing,
                  nLabelSlider, nSliderButton);
}

/*! Sets the gap between all four rows to \a nVal pixels. */
void RGBOpacityEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->frameRGB->layout()->setSpacing(nVal);
    d->ui->verticalLayout->setSpacing(nVal);
}

/*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
void RGBOpacityEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setLabelWidthRange, &RGBEditFrame::setLabelWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
void RGBOpacityEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setLabelFixedWidth, &RGBEditFrame::setLabelFixedWidth, w);
}

/*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
void RGBOpacityEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setButtonWidthRange, &RGBEditFrame::setButtonWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
void RGBOpacityEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setButtonFixedWidth, &RGBEditFrame::setButtonFixedWidth,
                  w);
}

/*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
void RGBOpacityEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setSpinBoxWidthRange, &RGBEditFrame::setSpinBoxWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
void RGBOpacityEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setSpinBoxFixedWidth, &RGBEditFrame::setSpinBoxFixedWidth,
                  w);
}

/*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
void RGBOpacityEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&SliderEditFrame::setSpinBoxWheelEnable, &RGBEditFrame::setSpinBoxWheelEnable, b);
}

/*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
void RGBOpacityEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setValue, &RGBEditFrame::setValue, val);
}

/*! Writes the values to \a r, \a g, \a b and \a opacity. */
void RGBOpacityEditFrame::value(int &r, int &g, int &b, int &opacity)
{
    opacity = d->ui->frameOpacity->value();
    d->ui->frameRGB->value(r, g, b);
}

/*! SliderEditFrame::setRange() of the row \a type. Emits nothing. */
void RGBOpacityEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, &SliderEditFrame::setRange, &RGBEditFrame::setRange, min, max);
}

/*! SliderEditFrame::setSingleStep() of the row \a type. */
void RGBOpacityEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setSingleStep, &RGBEditFrame::setSingleStep, val);
}

/*! SliderEditFrame::setPageStep() of the row \a type. */
void RGBOpacityEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setPageStep, &RGBEditFrame::setPageStep, val);
}

/*! SliderEditFrame::setAutoRepeat() of every row. */
void RGBOpacityEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&SliderEditFrame::setAutoRepeat, &RGBEditFrame::setAutoRepeat, b);
}

/*! SliderEditFrame::setAutoRepeatDelay() of every row. */
void RGBOpacityEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatDelay, &RGBEditFrame::setAutoRepeatDelay, val);
}

/*! SliderEditFrame::setAutoRepeatInterval() of every row. */
void RGBOpacityEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatInterval, &RGBEditFrame::setAutoRepeatInterval,
                  val);
}

/*! SliderEditFrame::setReleaseMode() of every row. */
void RGBOpacityEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&SliderEditFrame::setReleaseMode, &RGBEditFrame::setReleaseMode, b);
}

/*! SliderEditFrame::setTimeSamplingRate() of every row. */
void RGBOpacityEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&SliderEditFrame::setTimeSamplingRate, &RGBEditFrame::setTimeSamplingRate, val);
}

/*!
    Lets the space below the rows take the spare height, if \a b is true; else
    the rows do. On a shown editor it takes effect when its layout is next
    invalidated.
*/
void RGBOpacityEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

} // namespace Widgets
} // namespace Vantor

#include "rgbopacityeditframe.moc"
