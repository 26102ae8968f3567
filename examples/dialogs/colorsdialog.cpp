#include "dialogs.h"
#include "picture.h"

#include <rgbeditframe.h>
#include <slidereditframe.h>
#include <slidereditframedouble.h>

#include <QtWidgets/QDialog>

using namespace Vantor::Widgets;

namespace {

SliderEditFrame *percentRow(const QString &text)
{
    auto *row = new SliderEditFrame;
    row->setLabelText(text);
    row->setRange(-100, 100);
    row->setSuffix(" %");
    row->setDefaultValue(0);
    return row;
}

} // namespace

QDialog *colorsDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    constexpr auto options = SafeEntry | EscapeRestores | EnterStays;
    auto *brightness = percentRow("&Brightness");
    brightness->setEntryOptions(options);
    auto *contrast = percentRow("&Contrast");
    contrast->setEntryOptions(options);

    auto *gamma = new SliderEditFrameDouble;
    gamma->setLabelText("Ga&mma");
    gamma->setSingleStep(0.05);
    gamma->setDecimals(2);
    gamma->setRange(0.1, 10);
    gamma->setSliderScale(SliderEditFrameDouble::LogarithmicScale);
    gamma->setValue(1);
    gamma->setDefaultValue(1);
    gamma->setEntryOptions(options | ExactEntry);

    auto *balance = new RGBEditFrame;
    balance->setLabelText(RGBEditFrame::R, "&Red");
    balance->setLabelText(RGBEditFrame::G, "&Green");
    balance->setLabelText(RGBEditFrame::B, "B&lue");
    balance->setRanges(-100, 100);
    balance->setColoredGrooves(true);
    balance->setEntryOptions(options);
    for (SliderEditFrame *row : balance->rows()) {
        row->setSuffix(" %");
        row->setValue(0);
        row->setDefaultValue(0);
    }

    const auto preview = [=] {
        const QList<SliderEditFrame *> rgb = balance->rows();
        show(withColors(picture,
                        {brightness->value(), contrast->value(), gamma->value(), rgb[0]->value(),
                         rgb[1]->value(), rgb[2]->value()}));
    };
    const auto reset = [=] {
        brightness->resetValue();
        contrast->resetValue();
        gamma->resetValue();
        balance->resetValues();
        preview();
    };
    QDialog *dialog = editorDialog("Colors", {brightness, contrast, gamma, balance}, reset, parent);
    QObject::connect(brightness, &SliderEditFrame::valueChanged, dialog, preview);
    QObject::connect(contrast, &SliderEditFrame::valueChanged, dialog, preview);
    QObject::connect(gamma, &SliderEditFrameDouble::valueChanged, dialog, preview);
    QObject::connect(balance, &RGBEditFrame::valueChanged, dialog, preview);
    return dialog;
}
