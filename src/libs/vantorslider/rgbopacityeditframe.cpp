#include "rgbopacityeditframe.h"

#include "colorchannel_p.h"
#include "colorgrooves_p.h"
#include "editspan_p.h"
#include "itemeditor_p.h"
#include "rgbandrow_p.h"
#include "ui_rgbopacityeditframe.h"

#include <memory>

namespace Vantor::Widgets {

using Row = SliderEditFrame;
using RGB = RGBEditFrame;

namespace Internal {

// The RGB editor above the opacity row, and the signal for their changes.
class RGBOpacityEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBOpacityEditFramePrivate(RGBOpacityEditFrame *editer) : m_pEditer(editer) { }

    void createWidgets();
    void createConnects();

    RGBAndRow rows() const
    {
        return {{RGBOpacityEditFrame::Opacity, ui->frameOpacity}, ui->frameRGB};
    }

    RGBOpacityEditFrame *m_pEditer;
    const std::unique_ptr<Ui::RGBOpacityEditFrame> ui = std::make_unique<Ui::RGBOpacityEditFrame>();
    EditSpan m_edits {m_pEditer};
    ItemEditorFilter m_itemEditor {m_pEditer};
    std::unique_ptr<ColorGrooves> m_grooves;

private Q_SLOTS:
    void opacityValueChanged(int val);
    void rgbValueChanged(int r, int g, int b);
};

void RGBOpacityEditFramePrivate::createWidgets()
{
    ui->frameRGB->setLastVerticalSpacerExpanding(false);
    m_pEditer->setRange(RGBOpacityEditFrame::Opacity, 0, 100);
    m_pEditer->setValue(RGBOpacityEditFrame::Opacity, 100);
}

void RGBOpacityEditFramePrivate::createConnects()
{
    connect(ui->frameOpacity, &Row::valueChanged, this,
            &RGBOpacityEditFramePrivate::opacityValueChanged);
    connect(ui->frameRGB, &RGB::valueChanged, this, &RGBOpacityEditFramePrivate::rgbValueChanged);
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

SliderEditFrame *RGBOpacityEditFrame::row(Type type) const
{
    return d->rows().row(type);
}

QList<SliderEditFrame *> RGBOpacityEditFrame::rows() const
{
    return d->rows().frames();
}

void RGBOpacityEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, &Row::setLabelText, &RGB::setLabelText, text);
}

void RGBOpacityEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

void RGBOpacityEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&Row::setHorizontalSpacing, nLabelSlider, nSliderButton);
}

void RGBOpacityEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->frameRGB->layout()->setSpacing(nVal);
    d->ui->verticalLayout->setSpacing(nVal);
}

void RGBOpacityEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setLabelWidthRange, &RGB::setLabelWidthRange, maxw, minw);
}

void RGBOpacityEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setLabelFixedWidth, &RGB::setLabelFixedWidth, w);
}

void RGBOpacityEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setButtonWidthRange, &RGB::setButtonWidthRange, maxw, minw);
}

void RGBOpacityEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setButtonFixedWidth, &RGB::setButtonFixedWidth, w);
}

void RGBOpacityEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setSpinBoxWidthRange, &RGB::setSpinBoxWidthRange, maxw, minw);
}

void RGBOpacityEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setSpinBoxFixedWidth, &RGB::setSpinBoxFixedWidth, w);
}

void RGBOpacityEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&Row::setSpinBoxWheelEnable, b);
}

void RGBOpacityEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, &Row::setValue, &RGB::setValue, val);
}

void RGBOpacityEditFrame::setValues(int r, int g, int b, int opacity)
{
    d->ui->frameOpacity->setValue(opacity);
    d->ui->frameRGB->setValues(r, g, b);
}

void RGBOpacityEditFrame::setColor(const QColor &color)
{
    d->ui->frameRGB->setColor(color);
    Internal::setChannel(*d->ui->frameOpacity, color.rgba64().alpha());
}

QColor RGBOpacityEditFrame::color() const
{
    QRgba64 rgba = d->ui->frameRGB->color().rgba64();
    rgba.setAlpha(Internal::channelOf(*d->ui->frameOpacity));
    return QColor::fromRgba64(rgba);
}

QColor RGBOpacityEditFrame::committedColor()
{
    return Internal::committed(this, &RGBOpacityEditFrame::color);
}

void RGBOpacityEditFrame::value(int &r, int &g, int &b, int &opacity)
{
    opacity = d->ui->frameOpacity->value();
    d->ui->frameRGB->value(r, g, b);
}

void RGBOpacityEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, &Row::setRange, &RGB::setRange, min, max);
}

void RGBOpacityEditFrame::setRanges(int min, int max)
{
    d->ui->frameRGB->setRanges(min, max);
}

void RGBOpacityEditFrame::resetValues()
{
    d->rows().all(&Row::resetValue);
}

void RGBOpacityEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, &Row::setSingleStep, &RGB::setSingleStep, val);
}

void RGBOpacityEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, &Row::setPageStep, &RGB::setPageStep, val);
}

void RGBOpacityEditFrame::setEntryOptions(EntryOptions options)
{
    d->rows().all(&Row::setEntryOptions, options);
}

EntryOptions RGBOpacityEditFrame::entryOptions() const
{
    return d->ui->frameOpacity->entryOptions();
}

bool RGBOpacityEditFrame::hasPendingEntry() const
{
    return Internal::hasPendingEntry(rows());
}

void RGBOpacityEditFrame::finishEntry()
{
    Internal::finishEntries(rows());
}

void RGBOpacityEditFrame::setColoredGrooves(bool b)
{
    if (b != coloredGrooves()) {
        d->m_grooves = b ? std::make_unique<Internal::ColorGrooves>(rows()) : nullptr;
    }
}

bool RGBOpacityEditFrame::coloredGrooves() const
{
    return d->m_grooves != nullptr;
}

void RGBOpacityEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&Row::setAutoRepeat, b);
}

void RGBOpacityEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&Row::setAutoRepeatDelay, val);
}

void RGBOpacityEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&Row::setAutoRepeatInterval, val);
}

void RGBOpacityEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&Row::setReleaseMode, b);
}

void RGBOpacityEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&Row::setTimeSamplingRate, val);
}

int RGBOpacityEditFrame::lastVerticalSpace() const
{
    return d->ui->verticalSpacer->sizeHint().height();
}

void RGBOpacityEditFrame::setLastVerticalSpace(int height)
{
    Internal::setSpacerHeight(d->ui->verticalSpacer, d->ui->verticalLayout, height);
}

void RGBOpacityEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

} // namespace Vantor::Widgets

#include "rgbopacityeditframe.moc"
