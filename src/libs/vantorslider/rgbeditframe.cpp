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

void RGBEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGBAll label text", &SliderEditFrame::setLabelText,
                  text);
}

void RGBEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

void RGBEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&SliderEditFrame::setHorizontalSpacing, nLabelSlider, nSliderButton);
}

void RGBEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

void RGBEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label width range",
                  &SliderEditFrame::setLabelWidthRange, maxw, minw);
}

void RGBEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label fixed width",
                  &SliderEditFrame::setLabelFixedWidth, w);
}

void RGBEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button width range",
                  &SliderEditFrame::setButtonWidthRange, maxw, minw);
}

void RGBEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button fixed width",
                  &SliderEditFrame::setButtonFixedWidth, w);
}

void RGBEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox width range",
                  &SliderEditFrame::setSpinBoxWidthRange, maxw, minw);
}

void RGBEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox fixed width",
                  &SliderEditFrame::setSpinBoxFixedWidth, w);
}

void RGBEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&SliderEditFrame::setSpinBoxWheelEnable, b);
}

void RGBEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB value", &SliderEditFrame::setValue, val);
}

void RGBEditFrame::value(int &r, int &g, int &b)
{
    r = d->ui->frameR->value();
    g = d->ui->frameG->value();
    b = d->ui->frameB->value();
}

void RGBEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB range", &SliderEditFrame::setRange, min, max);
}

void RGBEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB single step", &SliderEditFrame::setSingleStep,
                  val);
}

void RGBEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB page step", &SliderEditFrame::setPageStep, val);
}

void RGBEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&SliderEditFrame::setAutoRepeat, b);
}

void RGBEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatDelay, val);
}

void RGBEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&SliderEditFrame::setAutoRepeatInterval, val);
}

void RGBEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&SliderEditFrame::setReleaseMode, b);
}

void RGBEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&SliderEditFrame::setTimeSamplingRate, val);
}

void RGBEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

bool RGBEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

int RGBEditFrame::labelMaxLength()
{
    return d->rows().labelMaxLength();
}

} // namespace Widgets
} // namespace Vantor

#include "rgbeditframe.moc"
