#include "dialogs.h"

#include <recteditframe.h>
#include <slidereditframe.h>
#include <slidereditframedouble.h>

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>

using namespace Vantor::Widgets;

QDialog *scaleDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    constexpr int most = 4; // times as wide and high
    const QSize whole = picture.size();

    auto *factor = new SliderEditFrameDouble;
    factor->setLabelText("&Scale");
    factor->setDecimals(1);
    factor->setSingleStep(0.5);
    factor->setRange(1, most * 100);
    factor->setSuffix(" %");
    factor->setValue(100);
    factor->setDefaultValue(100);
    factor->setEntryOptions(SafeEntry | EscapeRestores | EnterStays | ExactEntry);

    auto *size = new RectEditFrame;
    size->setEditerVisible(RectEditFrame::Size);
    size->setLabelText(RectEditFrame::Width, "&Width");
    size->setLabelText(RectEditFrame::Height, "&Height");
    size->setRange(RectEditFrame::Width, 1, most * whole.width());
    size->setRange(RectEditFrame::Height, 1, most * whole.height());
    size->setRectangle(picture.rect());
    size->setSizeLockEnable(true, RectEditFrame::SizeScaleLock);
    size->setSizeLock(true);
    size->setSizeLockRatio(whole);
    size->setEntryOptions(SafeEntry | EscapeRestores | EnterStays);
    for (SliderEditFrame *row : size->rows()) {
        row->setSuffix(" px");
        row->setDefaultValue(row->value());
    }

    auto *isSmooth = new QCheckBox("S&mooth");
    isSmooth->setChecked(true);

    const auto scaled = [=] {
        return picture.scaled(size->rectangle().size(), Qt::IgnoreAspectRatio,
                              isSmooth->isChecked() ? Qt::SmoothTransformation
                                                    : Qt::FastTransformation);
    };
    const auto reset = [=] {
        factor->resetValue();
        size->resetValues();
        isSmooth->setChecked(true);
        show(picture);
    };
    QDialog *dialog = editorDialog("Scale", {factor, size, isSmooth}, reset, parent);
    QObject::connect(factor, &SliderEditFrameDouble::valueChanged, dialog, [=](double percent) {
        size->setRectangle(QRect(QPoint(), whole * (percent / 100)));
        show(scaled());
    });
    QObject::connect(size, &RectEditFrame::valueChanged, dialog, [=](int, int, int width, int) {
        factor->setValue(100.0 * width / whole.width());
        show(scaled());
    });
    QObject::connect(isSmooth, &QCheckBox::toggled, dialog, [=] { show(scaled()); });
    return dialog;
}
