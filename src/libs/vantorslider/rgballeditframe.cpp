#include "rgballeditframe.h"

#include "editspan_p.h"
#include "rgbandrow_p.h"
#include "ui_rgballeditframe.h"

#include <memory>

namespace Vantor {
namespace Widgets {

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

    RGBAndRow rows() const { return {{{RGBAllEditFrame::ALL, ui->frameAll}}, ui->frameRGB}; }

    RGBAllEditFrame *m_pEditer;
    const std::unique_ptr<Ui::RGBAllEditFrame> ui = std::make_unique<Ui::RGBAllEditFrame>();
    EditSpan m_edits {m_pEditer};

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

EditSpan *EditSpan::of(const RGBAllEditFrame &editor)
{
    return editor.d != nullptr ? &editor.d->m_edits : nullptr;
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

void RGBAllEditFrame::setLabelText(Type type, const QString &text)
{
    d->rows().one(type, &Row::setLabelText, &RGB::setLabelText, text);
}

QString RGBAllEditFrame::labelText(Type type) const
{
    return d->rows().get(type, &Row::labelText, &RGB::labelText);
}

void RGBAllEditFrame::setEditerVisible(int types)
{
    d->rows().setVisible(types);
}

void RGBAllEditFrame::setHorizontalSpacing(const int &nLabelSlider, const int &nSliderButton)
{
    d->rows().all(&Row::setHorizontalSpacing, &RGB::setHorizontalSpacing, nLabelSlider,
                  nSliderButton);
}

void RGBAllEditFrame::setVerticalSpacing(const int &nVal)
{
    d->ui->verticalLayout->setSpacing(nVal);
}

void RGBAllEditFrame::setLabelWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setLabelWidthRange, &RGB::setLabelWidthRange, maxw, minw);
}

void RGBAllEditFrame::setLabelWidthRanges(int maxw, int minw)
{
    d->rows().all(&Row::setLabelWidthRange, &RGB::setLabelWidthRanges, maxw, minw);
}

void RGBAllEditFrame::setLabelFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setLabelFixedWidth, &RGB::setLabelFixedWidth, w);
}

void RGBAllEditFrame::setLabelFixedWidths(int w)
{
    d->rows().all(&Row::setLabelFixedWidth, &RGB::setLabelFixedWidths, w);
}

void RGBAllEditFrame::setButtonWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setButtonWidthRange, &RGB::setButtonWidthRange, maxw, minw);
}

void RGBAllEditFrame::setButtonWidthRanges(int maxw, int minw)
{
    d->rows().all(&Row::setButtonWidthRange, &RGB::setButtonWidthRanges, maxw, minw);
}

void RGBAllEditFrame::setButtonFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setButtonFixedWidth, &RGB::setButtonFixedWidth, w);
}

void RGBAllEditFrame::setButtonFixedWidths(int w)
{
    d->rows().all(&Row::setButtonFixedWidth, &RGB::setButtonFixedWidths, w);
}

void RGBAllEditFrame::setSpinBoxWidthRange(Type type, int maxw, int minw)
{
    d->rows().one(type, &Row::setSpinBoxWidthRange, &RGB::setSpinBoxWidthRange, maxw, minw);
}

void RGBAllEditFrame::setSpinBoxWidthRanges(int maxw, int minw)
{
    d->rows().all(&Row::setSpinBoxWidthRange, &RGB::setSpinBoxWidthRanges, maxw, minw);
}

void RGBAllEditFrame::setSpinBoxFixedWidth(Type type, int w)
{
    d->rows().one(type, &Row::setSpinBoxFixedWidth, &RGB::setSpinBoxFixedWidth, w);
}

void RGBAllEditFrame::setSpinBoxFixedWidths(int w)
{
    d->rows().all(&Row::setSpinBoxFixedWidth, &RGB::setSpinBoxFixedWidths, w);
}

void RGBAllEditFrame::setSpinBoxWheelEnable(bool b)
{
    d->rows().all(&Row::setSpinBoxWheelEnable, &RGB::setSpinBoxWheelEnable, b);
}

void RGBAllEditFrame::setSliderVisible(bool b)
{
    d->rows().all(&Row::setSliderVisible, &RGB::setSliderVisible, b);
}

void RGBAllEditFrame::setButtonVisible(bool b)
{
    d->rows().all(&Row::setButtonVisible, &RGB::setButtonVisible, b);
}

void RGBAllEditFrame::setSliderProperty(Type type, const char *name, const QVariant &value)
{
    d->rows().one(type, &Row::setSliderProperty, &RGB::setSliderProperty, name, value);
}

void RGBAllEditFrame::setFieldFocus(Type type)
{
    d->rows().one(type, &Row::setFieldFocus, &RGB::setFieldFocus);
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

void RGBAllEditFrame::value(int &r, int &g, int &b, int &all)
{
    all = d->ui->frameAll->value();
    d->ui->frameRGB->value(r, g, b);
}

int RGBAllEditFrame::valueOf(Type type) const
{
    return d->rows().get(type, &Row::value, &RGB::valueOf);
}

void RGBAllEditFrame::setPrefix(Type type, const QString &text)
{
    d->rows().one(type, &Row::setPrefix, &RGB::setPrefix, text);
}

void RGBAllEditFrame::setPrefixes(const QString &text)
{
    d->rows().all(&Row::setPrefix, &RGB::setPrefixes, text);
}

QString RGBAllEditFrame::prefix(Type type) const
{
    return d->rows().get(type, &Row::prefix, &RGB::prefix);
}

void RGBAllEditFrame::setSuffix(Type type, const QString &text)
{
    d->rows().one(type, &Row::setSuffix, &RGB::setSuffix, text);
}

void RGBAllEditFrame::setSuffixes(const QString &text)
{
    d->rows().all(&Row::setSuffix, &RGB::setSuffixes, text);
}

QString RGBAllEditFrame::suffix(Type type) const
{
    return d->rows().get(type, &Row::suffix, &RGB::suffix);
}

void RGBAllEditFrame::setRange(Type type, int min, int max)
{
    d->rows().one(type, &Row::setRange, &RGB::setRange, min, max);
}

void RGBAllEditFrame::setRanges(int min, int max)
{
    d->rows().all(&Row::setRange, &RGB::setRanges, min, max);
}

void RGBAllEditFrame::range(Type type, int &min, int &max) const
{
    d->rows().range(type, min, max);
}

void RGBAllEditFrame::setDefaultValue(Type type, int val)
{
    d->rows().one(type, &Row::setDefaultValue, &RGB::setDefaultValue, val);
}

int RGBAllEditFrame::defaultValue(Type type) const
{
    return d->rows().get(type, &Row::defaultValue, &RGB::defaultValue);
}

bool RGBAllEditFrame::hasDefaultValue(Type type) const
{
    return d->rows().get(type, &Row::hasDefaultValue, &RGB::hasDefaultValue);
}

void RGBAllEditFrame::resetValue(Type type)
{
    d->rows().one(type, &Row::resetValue, &RGB::resetValue);
}

void RGBAllEditFrame::resetValues()
{
    d->rows().all(&Row::resetValue, &RGB::resetValues);
}

void RGBAllEditFrame::setSingleStep(Type type, int val)
{
    d->rows().one(type, &Row::setSingleStep, &RGB::setSingleStep, val);
}

int RGBAllEditFrame::singleStep(Type type) const
{
    return d->rows().get(type, &Row::singleStep, &RGB::singleStep);
}

void RGBAllEditFrame::setPageStep(Type type, int val)
{
    d->rows().one(type, &Row::setPageStep, &RGB::setPageStep, val);
}

int RGBAllEditFrame::pageStep(Type type) const
{
    return d->rows().get(type, &Row::pageStep, &RGB::pageStep);
}

void RGBAllEditFrame::setValueChangeDirection(Type type, int directions, int val)
{
    d->rows().one(type, &Row::setValueChangeDirection, &RGB::setValueChangeDirection, directions,
                  val);
}

void RGBAllEditFrame::setEntryOptions(EntryOptions options)
{
    d->rows().all(&Row::setEntryOptions, &RGB::setEntryOptions, options);
}

EntryOptions RGBAllEditFrame::entryOptions() const
{
    return d->ui->frameAll->entryOptions();
}

void RGBAllEditFrame::setAutoRepeat(bool b)
{
    d->rows().all(&Row::setAutoRepeat, &RGB::setAutoRepeat, b);
}

void RGBAllEditFrame::setAutoRepeatDelay(int val)
{
    d->rows().all(&Row::setAutoRepeatDelay, &RGB::setAutoRepeatDelay, val);
}

void RGBAllEditFrame::setAutoRepeatInterval(int val)
{
    d->rows().all(&Row::setAutoRepeatInterval, &RGB::setAutoRepeatInterval, val);
}

void RGBAllEditFrame::setReleaseMode(bool b)
{
    d->rows().all(&Row::setReleaseMode, &RGB::setReleaseMode, b);
}

void RGBAllEditFrame::setTimeSamplingRate(int val)
{
    d->rows().all(&Row::setTimeSamplingRate, &RGB::setTimeSamplingRate, val);
}

void RGBAllEditFrame::setLastVerticalSpacerExpanding(bool b)
{
    Internal::setSpacerExpanding(d->ui->verticalSpacer, b);
}

bool RGBAllEditFrame::isMousePressed() const
{
    return d->rows().isMousePressed();
}

int RGBAllEditFrame::labelMaxLength()
{
    return d->rows().labelMaxLength();
}

} // namespace Widgets
} // namespace Vantor

#include "rgballeditframe.moc"
