#include "rgbeditframe.h"

#include "editorrows_p.h"
#include "slidereditframe.h"
#include "ui_rgbeditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

// The rows of the three channels, and the one signal that their changes make.
class RGBEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBEditFramePrivate(RGBEditFrame *editer);
    ~RGBEditFramePrivate() override;

    void createWidgets();
    void createConnects();

    EditorRows rows() const
    {
        return {{RGBEditFrame::R, ui->frameR},
                {RGBEditFrame::G, ui->frameG},
                {RGBEditFrame::B, ui->frameB}};
    }

    RGBEditFrame *m_pEditer;
    Ui::RGBEditFrame *ui;

private Q_SLOTS:
    void redValueChanged(int val);
    void greenValueChanged(int val);
    void blueValueChanged(int val);
};

RGBEditFramePrivate::RGBEditFramePrivate(RGBEditFrame *editer)
    : m_pEditer(editer), ui(new Ui::RGBEditFrame)
{
}

RGBEditFramePrivate::~RGBEditFramePrivate()
{
    delete ui;
    ui = nullptr;
}

void RGBEditFramePrivate::createWidgets()
{
    for (const auto channel : {RGBEditFrame::R, RGBEditFrame::G, RGBEditFrame::B}) {
        m_pEditer->setRange(channel, 0, 255);
    }
    for (const auto channel : {RGBEditFrame::R, RGBEditFrame::G, RGBEditFrame::B}) {
        m_pEditer->setValue(channel, 50);
    }
    ui->frameR->setSliderProperty("isColorControl_Red", true);
    ui->frameG->setSliderProperty("isColorControl_Green", true);
    ui->frameB->setSliderProperty("isColorControl_Blue", true);
}

void RGBEditFramePrivate::createConnects()
{
    connect(ui->frameR, &SliderEditFrame::valueChanged, this,
            &RGBEditFramePrivate::redValueChanged);
    connect(ui->frameG, &SliderEditFrame::valueChanged, this,
            &RGBEditFramePrivate::greenValueChanged);
    connect(ui->frameB, &SliderEditFrame::valueChanged, this,
            &RGBEditFramePrivate::blueValueChanged);
}

void RGBEditFramePrivate::redValueChanged(int val)
{
    Q_EMIT m_pEditer->valueChanged(val, ui->frameG->value(), ui->frameB->value());
}

void RGBEditFramePrivate::greenValueChanged(int val)
{
    Q_EMIT m_pEditer->valueChanged(ui->frameR->value(), val, ui->frameB->value());
}

void RGBEditFramePrivate::blueValueChanged(int val)
{
    Q_EMIT m_pEditer->valueChanged(ui->frameR->value(), ui->frameG->value(), val);
}

} // namespace Internal

/*!
    \class RGBEditFrame rgbeditframe.h vantorslider/rgbeditframe.h
    \brief A colour editor of three slider rows: red, green and blue, each 0 to
    255 and at 50 at first.

    An operation that takes a Type addresses the one row that it names; any
    other value changes nothing and is reported by a warning in Qt's log. The
    rows are named "frameR", "frameG" and "frameB"; their sliders carry the
    dynamic properties "isColorControl_Red", "isColorControl_Green" and
    "isColorControl_Blue".
*/

/*!
    \enum RGBEditFrame::Type
    \brief The channels, as single bits.

    \var RGBEditFrame::R
    Red.
    \var RGBEditFrame::G
    Green.
    \var RGBEditFrame::B
    Blue.
*/

/*!
    \fn void RGBEditFrame::valueChanged(int r, int g, int b)
    \brief The user changed a channel; \a r, \a g and \a b are all three values now.
*/

/*! Builds the three rows without label texts. Emits nothing. */
RGBEditFrame::RGBEditFrame(QWidget *parent)
    : QFrame(parent), d(new Internal::RGBEditFramePrivate(this))
{
    d->ui->setupUi(this);
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

RGBEditFrame::~RGBEditFrame()
{
    delete d;
    d = nullptr;
}

/*! Shows \a text as the name of the row \a type. */
void RGBEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGBAll label text", &SliderEditFrame::setLabelText,
                  text);
}

/*! Shows the rows whose bit is set in \a types and hides the others. */
void RGBEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

/*! SliderEditFrame::setHorizontalSpacing() of every row. */
void RGBEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&SliderEditFrame::setHorizontalSpacing, nLabelSlider, nSliderButton);
}

/*! Sets the gap between the rows to \a nVal pixels. */
void RGBEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

/*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
void RGBEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label width range",
                  &SliderEditFrame::setLabelWidthRange, maxw, minw);
}

/*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
void RGBEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label fixed width",
                  &SliderEditFrame::setLabelFixedWidth, w);
}

/*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
void RGBEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button width range",
                  &SliderEditFrame::setButtonWidthRange, maxw, minw);
}

/*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
void RGBEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button fixed width",
                  &SliderEditFrame::setButtonFixedWidth, w);
}

/*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
void RGBEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox width range",
                  &SliderEditFrame::setSpinBoxWidthRange, maxw, minw);
}

/*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
void RGBEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox fixed width",
                  &SliderEditFrame::setSpinBoxFixedWidth, w);
}

/*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
void RGBEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&SliderEditFrame::setSpinBoxWheelEnable, b);
}

/*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
void RGBEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB value", &SliderEditFrame::setValue, val);
}

/*! Writes the channels' values to \a r, \a g and \a b. */
void RGBEditFrame::value(int &r, int &g, int &b)
{
    r = d->ui->frameR->value();
    g = d->ui->frameG->value();
    b = d->ui->frameB->value();
}

/*! SliderEditFrame::setRange() of the row \a type. Emits nothing. */
void RGBEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB range", &SliderEditFrame::setRange, min, max);
}

/*! SliderEditFrame::setSingleStep() of the row \a type. */
void RGBEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB single step", &SliderEditFrame::setSingleStep,
                  val);
}

/*! SliderEditFrame::setPageStep() of the row \a type. */
void RGBEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB page step", &SliderEditFrame::setPageStep, val);
}

/*! SliderEditFrame::setAutoRepeat() of every row. */
void RGBEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&SliderEditFrame::setAutoRepeat, b);
}

/*! SliderEditFrame::setAutoRepeatDelay() of every row. */
void RGBEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatDelay, val);
}

/*! SliderEditFrame::setAutoRepeatInterval() of every row. */
void RGBEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatInterval, val);
}

/*! SliderEditFrame::setReleaseMode() of every row. */
void RGBEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&SliderEditFrame::setReleaseMode, b);
}

/*! SliderEditFrame::setTimeSamplingRate() of every row. */
void RGBEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&SliderEditFrame::setTimeSamplingRate, val);
}

/*!
    Lets the space below the rows take the spare height, if \a b is true; else
    the rows do. On a shown editor it takes effect when its layout is next
    invalidated.
*/
void RGBEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

/*! True while the pointer holds the slider of any row. */
bool RGBEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

/*! The width in pixels of the widest label text, in the red row's font. */
int RGBEditFrame::labelMaxLength()
{
    return d->rows().labelMaxLength();
}

} // namespace Widgets
} // namespace Vantor

#include "rgbeditframe.moc"
