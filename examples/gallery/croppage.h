#pragma once

#include "rectpage.h"

#include <cropeditframe.h>

// The crop is edited here or dragged over the picture with the pointer.
class CropPage : public RectPage
{
    Q_OBJECT

public:
    CropPage(PictureView *view, LogPane *log);

    PictureView::Overlay overlay() const override { return PictureView::Overlay::Crop; }
    void setPictureSize(const QSize &size) override;

private:
    Vantor::Widgets::CropEditFrame *m_editor;
};
