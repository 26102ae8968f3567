#include "rgbeditframe.h"

#include "editorlayout_p.h"
#include "invalidtype_p.h"
#include "slidereditframe.h"
#include "ui_rgbeditframe.h"

#include <algorithm>
#include <array>

namespace Vantor {
namespace Widgets {

namespace Internal {

class RGBEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBEditFramePrivate(RGBEditFrame *editer);
    ~RGBEditFramePrivate() override;

    void createWidgets();
    void createConnects();

    std::array<SliderEditFrame *, 3> rows() const { return {ui->frameR, ui->frameG, ui->frameB}; }
    SliderEditFrame *rowOrWarn(int type, const char *failure, const QMessageLogger &here) const;

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

SliderEditFrame *RGBEditFramePrivate::rowOrWarn(int type, const char *failure,
                                                const QMessageLogger &here) const
{
    switch (type) {
    case RGBEditFrame::G:
        return ui->frameG;
    case RGBEditFrame::B:
        return ui->frameB;
    case RGBEditFrame::R:
        return ui->frameR;
    default:
        warnInvalidType(here, failure, type);
        return nullptr;
    }
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
    \class RGBEditFrame
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
    if (auto *row =
            d->rowOrWarn(type, "Set RGBAll label text has failed. The type ", VANTORSLIDER_HERE)) {
        row->setLabelText(text);
    }
}

/*! Shows the rows whose bit is set in \a types and hides the others. */
void RGBEditFrame::setEditerVisible(int types)
{
    d->ui->frameR->setVisible((types & R) != 0);
    d->ui->frameG->setVisible((types & G) != 0);
    d->ui->frameB->setVisible((types & B) != 0);
}

/*! SliderEditFrame::setHorizontalSpacing() of every row. */
void RGBEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    for (auto *row : d->rows()) {
        row->setHorizontalSpacing(nLabelSlider, nSliderButton);
    }
}

/*! Sets the gap between the rows to \a nVal pixels. */
void RGBEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

/*! SliderEditFrame::setLabelWidthRange() of the row \a type. */
void RGBEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB label width range has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setLabelWidthRange(maxw, minw);
    }
}

/*! SliderEditFrame::setLabelFixedWidth() of the row \a type. */
void RGBEditFrame::setLabelFixedWidth(Type type, int w)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB label fixed width has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setLabelFixedWidth(w);
    }
}

/*! SliderEditFrame::setButtonWidthRange() of the row \a type. */
void RGBEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB button width range has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setButtonWidthRange(maxw, minw);
    }
}

/*! SliderEditFrame::setButtonFixedWidth() of the row \a type. */
void RGBEditFrame::setButtonFixedWidth(Type type, int w)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB button fixed width has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setButtonFixedWidth(w);
    }
}

/*! SliderEditFrame::setSpinBoxWidthRange() of the row \a type. */
void RGBEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB spinbox width range has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setSpinBoxWidthRange(maxw, minw);
    }
}

/*! SliderEditFrame::setSpinBoxFixedWidth() of the row \a type. */
void RGBEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB spinbox fixed width has failed. The type ",
                                 VANTORSLIDER_HERE)) {
        row->setSpinBoxFixedWidth(w);
    }
}

/*! SliderEditFrame::setSpinBoxWheelEnable() of every row. */
void RGBEditFrame::setSpinBoxWheelEnable(bool b)
{
    for (auto *row : d->rows()) {
        row->setSpinBoxWheelEnable(b);
    }
}

/*! SliderEditFrame::setValue() of the row \a type. Emits nothing. */
void RGBEditFrame::setValue(Type type, int val)
{
    if (auto *row = d->rowOrWarn(type, "Set RGB value has failed. The type ", VANTORSLIDER_HERE)) {
        row->setValue(val);
    }
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
    if (auto *row = d->rowOrWarn(type, "Set RGB range has failed. The type ", VANTORSLIDER_HERE)) {
        row->setRange(min, max);
    }
}

/*! SliderEditFrame::setSingleStep() of the row \a type. */
void RGBEditFrame::setSingleStep(Type type, int val)
{
    if (auto *row =
            d->rowOrWarn(type, "Set RGB single step has failed. The type ", VANTORSLIDER_HERE)) {
        row->setSingleStep(val);
    }
}

/*! SliderEditFrame::setPageStep() of the row \a type. */
void RGBEditFrame::setPageStep(Type type, int val)
{
    if (auto *row =
            d->rowOrWarn(type, "Set RGB page step has failed. The type ", VANTORSLIDER_HERE)) {
        row->setPageStep(val);
    }
}

/*! SliderEditFrame::setAutoRepeat() of every row. */
void RGBEditFrame::setAutoRepeat(bool b)
{
    for (auto *row : d->rows()) {
        row->setAutoRepeat(b);
    }
}

/*! SliderEditFrame::setAutoRepeatDelay() of every row. */
void RGBEditFrame::setAutoRepeatDelay(int val)
{
    for (auto *row : d->rows()) {
        row->setAutoRepeatDelay(val);
    }
}

/*! SliderEditFrame::setAutoRepeatInterval() of every row. */
void RGBEditFrame::setAutoRepeatInterval(int val)
{
    for (auto *row : d->rows()) {
        row->setAutoRepeatInterval(val);
    }
}

/*! SliderEditFrame::setReleaseMode() of every row. */
void RGBEditFrame::setReleaseMode(bool b)
{
    for (auto *row : d->rows()) {
        row->setReleaseMode(b);
    }
}

/*! SliderEditFrame::setTimeSamplingRate() of every row. */
void RGBEditFrame::setTimeSamplingRate(int val)
{
    for (auto *row : d->rows()) {
        row->setTimeSamplingRate(val);
    }
}

/*!
    Lets the space below the rows take the spare height, if \a b is true; else the rows do.
    On a shown editor it takes effect when its layout is next invalidated.
*/
void RGBEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

/*! True while the pointer holds the slider of any row. */
bool RGBEditFrame::isMousePressed() const
{
    const auto rows = d->rows();
    return std::any_of(rows.begin(), rows.end(),
                       [](const SliderEditFrame *row) { return row->isMousePressed(); });
}

/*! The width in pixels of the widest label text, in the red row's font. */
int RGBEditFrame::labelMaxLength()
{
    int widest = 0;
    for (const auto *row : d->rows()) {
        widest = qMax(widest, Internal::labelWidth(row, d->ui->frameR));
    }
    return widest;
}

} // namespace Widgets
} // namespace Vantor

#include "rgbeditframe.moc"
