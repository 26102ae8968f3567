#include "rgbeditframe.h"

#include "colorchannel_p.h"
#include "colorgrooves_p.h"
#include "editorrows_p.h"
#include "editspan_p.h"
#include "itemeditor_p.h"
#include "slidereditframe.h"
#include "ui_rgbeditframe.h"

#include <memory>

namespace Vantor::Widgets {

using Row = SliderEditFrame;

namespace Internal {

// The rows of the three channels, and the signal for their changes.
class RGBEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBEditFramePrivate(RGBEditFrame *editer) : m_pEditer(editer) { }

    void createWidgets();
    void createConnects();

    EditorRows rows() const
    {
        return {{RGBEditFrame::R, ui->frameR},
                {RGBEditFrame::G, ui->frameG},
                {RGBEditFrame::B, ui->frameB}};
    }

    RGBEditFrame *m_pEditer;
    const std::unique_ptr<Ui::RGBEditFrame> ui = std::make_unique<Ui::RGBEditFrame>();
    EditSpan m_edits {m_pEditer};
    ItemEditorFilter m_itemEditor {m_pEditer};
    std::unique_ptr<ColorGrooves> m_grooves;

private Q_SLOTS:
    void redValueChanged(int val);
    void greenValueChanged(int val);
    void blueValueChanged(int val);
};

void RGBEditFramePrivate::createWidgets()
{
    m_pEditer->setRanges(0, 255);
    m_pEditer->setValues(50, 50, 50);
    ui->frameR->setSliderProperty("isColorControl_Red", true);
    ui->frameG->setSliderProperty("isColorControl_Green", true);
    ui->frameB->setSliderProperty("isColorControl_Blue", true);
}

void RGBEditFramePrivate::createConnects()
{
    connect(ui->frameR, &Row::valueChanged, this, &RGBEditFramePrivate::redValueChanged);
    connect(ui->frameG, &Row::valueChanged, this, &RGBEditFramePrivate::greenValueChanged);
    connect(ui->frameB, &Row::valueChanged, this, &RGBEditFramePrivate::blueValueChanged);
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

SliderEditFrame *RGBEditFrame::row(Type type) const
{
    return d->rows().findOrWarn(type, VANTORSLIDER_HERE, "Get RGB row");
}

QList<SliderEditFrame *> RGBEditFrame::rows() const
{
    return d->rows().frames();
}

// The warning names another class since 1.0; hosts may look for it in their logs.
void RGBEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGBAll label text", &Row::setLabelText, text);
}

void RGBEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
    Internal::markTopmost(d->ui->verticalLayout);
}

void RGBEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&Row::setHorizontalSpacing, nLabelSlider, nSliderButton);
}

void RGBEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

void RGBEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label width range", &Row::setLabelWidthRange,
                  maxw, minw);
}

void RGBEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB label fixed width", &Row::setLabelFixedWidth,
                  w);
}

void RGBEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button width range", &Row::setButtonWidthRange,
                  maxw, minw);
}

void RGBEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB button fixed width", &Row::setButtonFixedWidth,
                  w);
}

void RGBEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox width range",
                  &Row::setSpinBoxWidthRange, maxw, minw);
}

void RGBEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB spinbox fixed width",
                  &Row::setSpinBoxFixedWidth, w);
}

void RGBEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&Row::setSpinBoxWheelEnable, b);
}

void RGBEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB value", &Row::setValue, val);
}

void RGBEditFrame::setValues(int r, int g, int b)
{
    d->ui->frameR->setValue(r);
    d->ui->frameG->setValue(g);
    d->ui->frameB->setValue(b);
}

void RGBEditFrame::setColor(const QColor &color)
{
    const QRgba64 rgba = color.rgba64();
    Internal::setChannel(*d->ui->frameR, rgba.red());
    Internal::setChannel(*d->ui->frameG, rgba.green());
    Internal::setChannel(*d->ui->frameB, rgba.blue());
}

QColor RGBEditFrame::color() const
{
    return QColor::fromRgba64(Internal::channelOf(*d->ui->frameR),
                              Internal::channelOf(*d->ui->frameG),
                              Internal::channelOf(*d->ui->frameB));
}

QColor RGBEditFrame::committedColor()
{
    return Internal::committed(this, &RGBEditFrame::color);
}

void RGBEditFrame::value(int &r, int &g, int &b)
{
    r = d->ui->frameR->value();
    g = d->ui->frameG->value();
    b = d->ui->frameB->value();
}

void RGBEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB range", &Row::setRange, min, max);
}

void RGBEditFrame::setRanges(int min, int max)
{
    d->rows().all(&Row::setRange, min, max);
}

void RGBEditFrame::resetValues()
{
    d->rows().all(&Row::resetValue);
}

void RGBEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB single step", &Row::setSingleStep, val);
}

void RGBEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, VANTORSLIDER_HERE, "Set RGB page step", &Row::setPageStep, val);
}

void RGBEditFrame::setEntryOptions(EntryOptions options)
{
    d->rows().all(&Row::setEntryOptions, options);
}

EntryOptions RGBEditFrame::entryOptions() const
{
    return d->ui->frameR->entryOptions();
}

bool RGBEditFrame::hasPendingEntry() const
{
    return Internal::hasPendingEntry(rows());
}

void RGBEditFrame::finishEntry()
{
    Internal::finishEntries(rows());
}

void RGBEditFrame::setColoredGrooves(bool b)
{
    if (b != coloredGrooves()) {
        d->m_grooves = b ? std::make_unique<Internal::ColorGrooves>(rows()) : nullptr;
    }
}

bool RGBEditFrame::coloredGrooves() const
{
    return d->m_grooves != nullptr;
}

void RGBEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&Row::setAutoRepeat, b);
}

void RGBEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&Row::setAutoRepeatDelay, val);
}

void RGBEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&Row::setAutoRepeatInterval, val);
}

void RGBEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&Row::setReleaseMode, b);
}

void RGBEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&Row::setTimeSamplingRate, val);
}

void RGBEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

int RGBEditFrame::lastVerticalSpace() const
{
    return d->ui->verticalSpacer->sizeHint().height();
}

void RGBEditFrame::setLastVerticalSpace(int height)
{
    Internal::setSpacerHeight(d->ui->verticalSpacer, d->ui->verticalLayout, height);
}

bool RGBEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

int RGBEditFrame::labelMaxLength()
{
    return d->rows().labelMaxLength();
}

} // namespace Vantor::Widgets

#include "rgbeditframe.moc"
