#include "dialogs.h"
#include "picture.h"

#include <cropeditframe.h>
#include <slidereditframe.h>

#include <QtWidgets/QDialog>

using namespace Vantor::Widgets;

QDialog *cropDialog(const QImage &picture, const Show &show, QWidget *parent)
{
    auto *crop = new CropEditFrame;
    crop->setLabelText(CropEditFrame::X, "&Left");
    crop->setLabelText(CropEditFrame::Y, "&Top");
    crop->setLabelText(CropEditFrame::Width, "&Width");
    crop->setLabelText(CropEditFrame::Height, "&Height");
    crop->setCropMinSize(1, 1);
    crop->setCropRange(picture.width(), picture.height());
    crop->setCrop(picture.rect());
    crop->setSizeLockEnable(true, CropEditFrame::SizeScaleLock);
    crop->setEntryOptions(SafeEntry | EscapeRestores | EnterStays);
    for (SliderEditFrame *row : crop->rows()) {
        row->setSuffix(" px");
        row->setDefaultValue(row->value());
    }

    const auto preview = [crop, picture, show] { show(withCrop(picture, crop->crop())); };
    const auto reset = [crop, preview] {
        crop->resetValues();
        preview();
    };
    QDialog *dialog = editorDialog("Crop", {crop}, reset, parent);
    QObject::connect(crop, &CropEditFrame::cropValueChanged, dialog, preview);
    QObject::connect(dialog, &QDialog::accepted, dialog,
                     [crop, picture, show] { show(picture.copy(crop->crop())); });
    return dialog;
}
