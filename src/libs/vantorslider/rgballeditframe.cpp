#include "rgballeditframe.h"

#include "rgbandrow_p.h"
#include "ui_rgballeditframe.h"

namespace Vantor {
namespace Widgets {

namespace Internal {

// The master row above the block of the channels, and the one signal that
// their changes make.
class RGBAllEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBAllEditFramePrivate(RGBAllEditFrame *editer);
    ~RGBAllEditFramePrivate() override;

    void createWidgets();
    void createConnects();

    RGBAndRow rows() const { return {{{RGBAllEditFrame::ALL, ui->frameAll}}, ui->frameRGB}; }

    RGBAllEditFrame *m_pEditer;
    Ui::RGBAllEditFrame *ui;

private Q_SLOTS:
    void allValueChanged(int val);
    void rgbValueChanged(int r, int g, int b);
};

RGBAllEditFramePrivate::RGBAllEditFramePrivate(RGBAllEditFrame *editer)
    : m_pEditer(editer), ui(new Ui::RGBAllEditFrame)
{
}

RGBAllEditFramePrivate::~RGBAllEditFramePrivate()
{
    delete ui;
    ui = nullptr;
}

void RGBAllEditFramePrivate::createWidgets()
{
    using Editor = RGBAllEditFrame;
    for (const auto type : {Editor::ALL, Editor::R, Editor::G, Editor::B}) {
        m_pEditer->setRange(type, 0, 255);
    }
    for (const auto type : {Editor::ALL, Editor::R, Editor::G, Editor::B}) {
        m_pEditer->setValue(type, 50);
    }
}

void RGBAllEditFramePrivate::createConnects()
{
    connect(ui->frameAll, &SliderEditFrame::valueChanged, this,
            &RGBAllEditFramePrivate::allValueChanged);
    connect(ui->frameRGB, &RGBEditFrame::valueChanged, this,
            &RGBAllEditFramePrivate::rgbValueChanged);
}

void RGBAllEditFramePrivate::allValueChanged(int val)
{
    int r = 0;
    int g = 0;
    int b = 0;
    ui->frameRGB->value(r, g, b);
    Q_EMIT m_pEditer->valueChanged(r, g, b, val);
}

void RGBAllEditFramePrivate::rgbValueChanged(int r, int g, int b)
{
    Q_EMIT m_pEditer->valueChanged(r, g, b, ui->frameAll->value());
}

} // namespace Internal

/*!
    \class RGBAllEditFrame rgballeditframe.h vantorslider/rgballeditframe.h
    \brief A colour editor with a master value: its row stands above the three
    channels. All four run from 0 to 255 and are at 50 at first.

    The editor keeps no relation between the master and the channels; the host
    gives the master its meaning. An operation that takes a Type addresses the
    one row that it names; any other value changes nothing and is reported by a
    warning in Qt's log. The master row is named "frameAll", the block of the
    channels "frameRGB".
*/

/*!
    \enum RGBAllEditFrame::Type
    \brief The values, as single bits.

    \var RGBAllEditFrame::R
    Red.
    \var RGBAllEditFrame::G
    Green.
    \var RGBAllEditFrame::B
    Blue.
    \var RGBAllEditFrame::ALL
    The master value.
    \var RGBAllEditFrame::ALLAndRgb
    All four, for setEditerVisible().
*/

/*!
    \fn void RGBAllEditFrame::valueChanged(int r, int g, int b, int all)
    \brief The user changed a value; \a r, \a g, \a b and \a all are all four values now.
*/

/*! Builds the four rows without label texts. Emits nothing. */
RGBAllEditFrame::RGBAllEditFrame(QWidget *parent)
    : QFrame(parent), d(new Internal::RGBAllEditFramePrivate(this))
{
    d->ui->setupUi(this);
    d->createWidgets();
    d->createConnects();
    setProperty("isSliderFrame", true);
}

RGBAllEditFrame::~RGBAllEditFrame()
{
    delete d;
    d = nullptr;
}

/*! Shows \a text as the name of the row \a type. */
void RGBAllEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, &SliderEditFrame::setLabelText, &RGBEditFrame::setLabelText, text);
}

/*! Shows the rows whose bit is set in \a types and hides the others. */
void RGBAllEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

/*! SliderEditFrame::setHorizontalSpacing() of every row. */
void RGBAllEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&SliderEditFrame::setHorizontalSpacing, &RGBEditFrame::setHorizontalSpacing,
                  nLabelSlider, nSliderButton);
}

/*! Sets the gap between master row and channels to \a nVal pixels; the channels' own stays. */
void RGBAllEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

/*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
void RGBAllEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setLabelWidthRange, &RGBEditFrame::setLabelWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
void RGBAllEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setLabelFixedWidth, &RGBEditFrame::setLabelFixedWidth, w);
}

/*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
void RGBAllEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setButtonWidthRange, &RGBEditFrame::setButtonWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
void RGBAllEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setButtonFixedWidth, &RGBEditFrame::setButtonFixedWidth,
                  w);
}

/*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
void RGBAllEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &SliderEditFrame::setSpinBoxWidthRange, &RGBEditFrame::setSpinBoxWidthRange,
                  maxw, minw);
}

/*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
void RGBAllEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, &SliderEditFrame::setSpinBoxFixedWidth, &RGBEditFrame::setSpinBoxFixedWidth,
                  w);
}

/*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
void RGBAllEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&SliderEditFrame::setSpinBoxWheelEnable, &RGBEditFrame::setSpinBoxWheelEnable, b);
}

/*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
void RGBAllEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setValue, &RGBEditFrame::setValue, val);
}

/*! Writes the values to \a r, \a g, \a b and \a all. */
void RGBAllEditFrame::value(int &r, int &g, int &b, int &all)
{
    all = d->ui->frameAll->value();
    d->ui->frameRGB->value(r, g, b);
}

/*! SliderEditFrame::setRange() of the row \a type. Emits nothing. */
void RGBAllEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, &SliderEditFrame::setRange, &RGBEditFrame::setRange, min, max);
}

/*! SliderEditFrame::setSingleStep() of the row \a type. */
void RGBAllEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setSingleStep, &RGBEditFrame::setSingleStep, val);
}

/*! SliderEditFrame::setPageStep() of the row \a type. */
void RGBAllEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, &SliderEditFrame::setPageStep, &RGBEditFrame::setPageStep, val);
}

/*! SliderEditFrame::setAutoRepeat() of every row. */
void RGBAllEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&SliderEditFrame::setAutoRepeat, &RGBEditFrame::setAutoRepeat, b);
}

/*! SliderEditFrame::setAutoRepeatDelay() of every row. */
void RGBAllEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatDelay, &RGBEditFrame::setAutoRepeatDelay, val);
}

/*! SliderEditFrame::setAutoRepeatInterval() of every row. */
void RGBAllEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatInterval, &RGBEditFrame::setAutoRepeatInterval,
                  val);
}

/*! SliderEditFrame::setReleaseMode() of every row. */
void RGBAllEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&SliderEditFrame::setReleaseMode, &RGBEditFrame::setReleaseMode, b);
}

/*! SliderEditFrame::setTimeSamplingRate() of every row. */
void RGBAllEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&SliderEditFrame::setTimeSamplingRate, &RGBEditFrame::setTimeSamplingRate, val);
}

/*!
    Lets the space below the rows take the spare height, if \a b is true; else
    the rows do. On a shown editor it takes effect when its layout is next
    invalidated.
*/
void RGBAllEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

/*! The width in pixels of the widest label text, the master's in its own row's font. */
int RGBAllEditFrame::labelMaxLength()
{
    return qMax(d->ui->frameRGB->labelMaxLength(), d->rows().row.labelMaxLength());
}

} // namespace Widgets
} // namespace Vantor

#include "rgballeditframe.moc"
