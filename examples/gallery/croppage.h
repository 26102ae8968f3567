#pragma once

#include "rectpage.h"

#include <cropeditframe.h>

// The crop is edited here or dragged over the picture with the pointer.
class CropPage : public RectPage
{
    Q_OBJECT

public:
    CropPage(PictureView *view, EditHistory *history, LogPane *log);

    PictureView::Overlay overlay() const override { return PictureView::Overlay::Crop; }
    void startOn(const QSize &size, Edits &edits) override;

private:
    void showCrop(const QRect &crop);

    Vantor::Widgets::CropEditFrame *m_editor;
};
