#include "rgballeditframe.h"

#include "editspan_p.h"
#include "itemeditor_p.h"
#include "rgbandrow_p.h"
#include "ui_rgballeditframe.h"

#include <memory>

namespace Vantor::Widgets {

using Row = SliderEditFrame;
using RGB = RGBEditFrame;

namespace Internal {

// The master row above the RGB editor, and the signal for their changes.
class RGBAllEditFramePrivate : public QObject
{
    Q_OBJECT

public:
    explicit RGBAllEditFramePrivate(RGBAllEditFrame *editer) : m_pEditer(editer) { }

    void createWidgets();
    void createConnects();

    RGBAndRow rows() const { return {{RGBAllEditFrame::ALL, ui->frameAll}, ui->frameRGB}; }

    RGBAllEditFrame *m_pEditer;
    const std::unique_ptr<Ui::RGBAllEditFrame> ui = std::make_unique<Ui::RGBAllEditFrame>();
    EditSpan m_edits {m_pEditer};
    ItemEditorFilter m_itemEditor {m_pEditer};

private Q_SLOTS:
    void allValueChanged(int val);
    void rgbValueChanged(int r, int g, int b);
};

void RGBAllEditFramePrivate::createWidgets()
{
    m_pEditer->setRanges(0, 255);
    m_pEditer->setValues(50, 50, 50, 50);
}

void RGBAllEditFramePrivate::createConnects()
{
    connect(ui->frameAll, &Row::valueChanged, this, &RGBAllEditFramePrivate::allValueChanged);
    connect(ui->frameRGB, &RGB::valueChanged, this, &RGBAllEditFramePrivate::rgbValueChanged);
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

SliderEditFrame *RGBAllEditFrame::row(Type type) const
{
    return d->rows().row(type);
}

QList<SliderEditFrame *> RGBAllEditFrame::rows() const
{
    return d->rows().frames();
}

void RGBAllEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, &Row::setLabelText, &RGB::setLabelText, text);
}

void RGBAllEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

void RGBAllEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&Row::setHorizontalSpacing, nLabelSlider, nSliderButton);
}

void RGBAllEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

void RGBAllEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setLabelWidthRange, &RGB::setLabelWidthRange, maxw, minw);
}

void RGBAllEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setLabelFixedWidth, &RGB::setLabelFixedWidth, w);
}

void RGBAllEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setButtonWidthRange, &RGB::setButtonWidthRange, maxw, minw);
}

void RGBAllEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setButtonFixedWidth, &RGB::setButtonFixedWidth, w);
}

void RGBAllEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setSpinBoxWidthRange, &RGB::setSpinBoxWidthRange, maxw, minw);
}

void RGBAllEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setSpinBoxFixedWidth, &RGB::setSpinBoxFixedWidth, w);
}

void RGBAllEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&Row::setSpinBoxWheelEnable, b);
}

void RGBAllEditFrame::setValue(Type type, int val)
{
    d->rows().one(type, &Row::setValue, &RGB::setValue, val);
}

void RGBAllEditFrame::setValues(int r, int g, int b, int all)
{
    d->ui->frameAll->setValue(all);
    d->ui->frameRGB->setValues(r, g, b);
}

void RGBAllEditFrame::setColor(const QColor &color)
{
    d->ui->frameRGB->setColor(color);
}

QColor RGBAllEditFrame::color() const
{
    return d->ui->frameRGB->color();
}

QColor RGBAllEditFrame::committedColor()
{
    return Internal::committed(this, &RGBAllEditFrame::color);
}

void RGBAllEditFrame::value(int &r, int &g, int &b, int &all)
{
    all = d->ui->frameAll->value();
    d->ui->frameRGB->value(r, g, b);
}

void RGBAllEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, &Row::setRange, &RGB::setRange, min, max);
}

void RGBAllEditFrame::setRanges(int min, int max)
{
    d->rows().all(&Row::setRange, min, max);
}

void RGBAllEditFrame::resetValues()
{
    d->rows().all(&Row::resetValue);
}

void RGBAllEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, &Row::setSingleStep, &RGB::setSingleStep, val);
}

void RGBAllEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, &Row::setPageStep, &RGB::setPageStep, val);
}

void RGBAllEditFrame::setEntryOptions(EntryOptions options)
{
    d->rows().all(&Row::setEntryOptions, options);
}

EntryOptions RGBAllEditFrame::entryOptions() const
{
    return d->ui->frameAll->entryOptions();
}

bool RGBAllEditFrame::hasPendingEntry() const
{
    return Internal::hasPendingEntry(rows());
}

void RGBAllEditFrame::finishEntry()
{
    Internal::finishEntries(rows());
}

void RGBAllEditFrame::setColoredGrooves(bool b)
{
    d->ui->frameRGB->setColoredGrooves(b);
}

bool RGBAllEditFrame::coloredGrooves() const
{
    return d->ui->frameRGB->coloredGrooves();
}

void RGBAllEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&Row::setAutoRepeat, b);
}

void RGBAllEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&Row::setAutoRepeatDelay, val);
}

void RGBAllEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&Row::setAutoRepeatInterval, val);
}

void RGBAllEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&Row::setReleaseMode, b);
}

void RGBAllEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&Row::setTimeSamplingRate, val);
}

int RGBAllEditFrame::lastVerticalSpace() const
{
    return d->ui->verticalSpacer->sizeHint().height();
}

void RGBAllEditFrame::setLastVerticalSpace(int height)
{
    Internal::setSpacerHeight(d->ui->verticalSpacer, d->ui->verticalLayout, height);
}

void RGBAllEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

int RGBAllEditFrame::labelMaxLength()
{
    return qMax(d->ui->frameRGB->labelMaxLength(), Internal::labelWidth(*d->ui->frameAll));
}

} // namespace Vantor::Widgets

#include "rgballeditframe.moc"
